// Renders a picture of the tool in a real browser and measures what the browser made of it.
#pragma once

#include "Mox/Integers.h"

#include <array>
#include <nlohmann/json_fwd.hpp>
#include <string>
#include <vector>

namespace browser {

/// Where an element stands, in pixels of the page.
struct Box {
  double x, y, width, height;

  double right() const { return x + width; }
  double bottom() const { return y + height; }
  bool overlaps(Box const& other) const;
};

using Colour = std::array<double, 3>;  ///< red, green and blue, 0 to 255

/// A block of the map.
struct Block {
  U32 pool, block;
  Box box;
  Colour fill;
  std::string letter;  ///< empty on a free one
  Box letterBox;
  std::string hover;
  bool isSeen;  ///< the pointer in its middle meets it and nothing above it
};

/// What the legend says of one set of tables.
struct LegendLine {
  std::string letter;
  std::string text;  ///< without the letter
  Box box;
  Colour fill;
  bool isSeen;
};

/// A line of text above a column or beside it.
struct Label {
  std::string text;
  Box box;
};

/// All that is measured of a picture, in the order of the document.
struct Picture {
  std::vector<Block> blocks;
  std::vector<LegendLine> legend;
  std::vector<Label> pools;  ///< their names
  std::vector<Label> notes;  ///< what stands small beside pools and tiles
  std::vector<std::string> beyond;
  Colour paper, ink;
  U32 fetched;                      ///< what the page has asked a network or a disk for
  std::vector<std::string> faults;  ///< of its scripts, and of its form
  std::vector<std::string> lit;     ///< "pool:block" of the blocks that stay when the pointer
                                    ///< comes to the first line of the legend
  bool isDimmedBehind;              ///< whether others are still faint when it has gone
};

enum class Surroundings { light, dark };

/// Has the tool draw `command`'s chip with `option`, "--svg" or "--html", and renders the file.
Picture render(std::string const& option, std::string const& command = "",
               Surroundings surroundings = Surroundings::light);

}  // namespace browser
