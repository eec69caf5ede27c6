// What the tests of the model's commands work on.
#pragma once

#include "standin/xdk/Profile.h"
#include "tools/kestrel/model/Model.h"
#include "tools/kestrel/model/Place.h"
#include "tools/kestrel/model/Show.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sstream>

namespace kestrel {

/// The built-in slice around the built-in chip.
struct ModelTest : testing::Test {
  static Chip& broughtUp(Chip& chip) {
    chip.bringUp();
    return chip;
  }

  /// The line of what stands at the path, or the complaint behind "! ".
  std::string line(std::string const& path) const {
    return said([&] { return lineAt(paths.requireAt(path)); });
  }
  /// All lines of it.
  std::string text(std::string const& path) const {
    return said([&] {
      std::ostringstream out;
      print(paths.requireAt(path), model.roots(), out);
      return out.str();
    });
  }
  /// The line of what stands at the path once it has been set.
  std::string afterSet(std::string const& path, std::string const& value) const {
    return said([&] {
      set(paths, paths.at(path), value);
      return lineAt(paths.requireAt(path));
    });
  }

  template <class Say>
  static std::string said(Say const& say) {
    try {
      return say();
    } catch (UsageFault const& complaint) {
      return std::string("! ") + complaint.what();
    }
  }

  Chip chip{xdksim::defaultProfile(), "the built-in profile"};
  Model model{broughtUp(chip)};
  Paths paths{model.roots()};
  std::string const port = "/slice0/chipStatus/chip0/portStatus/12";
  std::string const phy = "/phyStatuses/phyStatus/phy3%2F0";
};

}  // namespace kestrel
