// A simulated chip with the model that an agent keeps of it.
#pragma once

#include "Kestrel/ChipStatus.h"
#include "XpLib/Config/LpmTreadCfg.h"
#include "XpLib/XpTableCliHelper.h"
#include "XpLib/XpTableManSm.h"
#include "standin/xdk/Sim.h"
#include "tools/kestrel/SdkRequest.h"

#include <string>

namespace kestrel {

/// The profile's device, as the model numbers it.  `origin` is how complaints name the profile.
/// Throws `UsageFault` for a number that the model can't take.
XpXdk::XpDeviceId deviceIdOf(xdksim::Profile const& profile, std::string const& origin);

/// One chip of one process.  While it lives, it is the simulated SDK of that process; at its end it
/// tells on standard error what became of each fault that was asked for.
class Chip {
 public:
  /// A chip that nobody has brought up yet.  `origin` is how complaints name the profile.  Throws
  /// `UsageFault` for a profile that the model can't take.
  Chip(xdksim::Profile const& profile, std::string const& origin, SdkRequest const& request = {});
  ~Chip();
  Chip(Chip const&) = delete;
  Chip& operator=(Chip const&) = delete;

  xdksim::Sim& sdk() { return sdk_; }
  /// Where the bring-up publishes the tables.
  Kestrel::ChipStatus::Ptr const& status() const { return status_; }
  /// Who has brought the tables up; null ahead of that.
  Kestrel::TableManSm::Ptr const& tables() const { return tables_; }

  /// Creates all tables.  The library ends the process where it can't.
  void bringUp();

  /// Takes the managers down that a bring-up has taken up; does nothing ahead of one.
  void takeDown();

  /// What reports on the tables as they stand now.
  Kestrel::TableCliHelper::Ptr reports() const;

 private:
  xdksim::Sim sdk_;
  Kestrel::ChipStatus::Ptr status_;
  XpXdk::XpDeviceId deviceId_;
  XpXdk::XpDeviceLdePipeMode ldePipeMode_;
  bool coldStartNeeded_;
  XpLib::Config::LpmTreadCfg::Ptr treads_;
  Kestrel::TableManSm::Ptr tables_;
};

}  // namespace kestrel
