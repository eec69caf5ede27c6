// Misuse of the SDK that a lenient one lets pass.
#pragma once

#include "standin/xdk/CallLog.h"
#include "standin/xdk/SramOwners.h"

#include <map>
#include <set>
#include <tuple>

namespace xdksim {

class SimDevice;

/// A call as strict mode sees it.
struct StrictCall {
  ManagerId manager;
  Call call;
  CallArguments const& arguments;
  U32 bringUp;              ///< number of the bring-up that it belongs to; 0 for none
  SimDevice const* device;  ///< null where the SDK doesn't know it
  XP_STATUS status;         ///< what it is about to answer
};

/// While it is on, ends the process, by `misuse` and with manager, device and operation named, at
///  - a second `addDevice` of a device on one manager within one bring-up;
///  - the use of a manager to which the device was never added: `loadDefaultValue`, `writeEntry`,
///    `createTable`, `removeDevice`, and `deInit` without any device;
///  - a table given to a manager of whose SRAM blocks one is another table's, given in the same
///    bring-up, without both declaring it shared;
///  - a manager that is still up at the end of the take-down: the `deInit` of `xpFlowControlMgr`,
///    or what comes behind one that forgets it, be it the next bring-up or the end of the SDK.
///
/// No misuse are what the library is bound to do: a second removal, managers that are never taken
/// down, a new bring-up on a device that is up, and operations on their own, outside a bring-up.
class Strict {
 public:
  /// Off at first.  What was added is known also of the time before it was on; tables on blocks
  /// aren't.
  void isOnIs(bool isOn) { isOn_ = isOn; }

  /// Is told of each call before it answers.
  void called(StrictCall const& call);
  /// The SDK ends.
  void ends() const;

 private:
  /// What has become of a device in a manager's hands, from its first `addDevice` on.
  struct Use {
    U32 addedIn = 0;  // the bring-up in which it was added last
    bool isUp = false;
  };
  using UseKey = std::tuple<Manager const*, U32, U32>;  // row, index, device

  Use const* useOf(ManagerId manager, U32 device) const;
  bool hasAnyDevice(ManagerId manager) const;
  void check(StrictCall const& call);
  void keep(StrictCall const& call);
  void checkSecondAdd(StrictCall const& call) const;
  void checkUse(StrictCall const& call) const;
  void putTables(StrictCall const& call);
  void put(StrictCall const& call, xpTableContext* const* word, U32 copies);
  void checkTakenDown(std::string const& where) const;

  bool isOn_ = false;
  std::map<UseKey, Use> uses_;
  std::set<Manager const*> begun_;  // those that want `deInit`
  U32 lastDevice_ = 0;              // of the last call to a manager that can be taken down
  bool isTakingDown_ = false;       // since the first removal that the SDK has accepted
  SramOwners owners_;
  U32 ownersBringUp_ = 0;
};

}  // namespace xdksim
