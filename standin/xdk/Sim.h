// The simulated SDK: all its state, and the means to control it.
#pragma once

#include "standin/xdk/CallLog.h"
#include "standin/xdk/FaultRules.h"
#include "standin/xdk/Profile.h"

#include <memory>
#include <string_view>
#include <vector>

class xpDevice;
class xpTableProfile;

namespace xdksim {

class LastWords;

/// One simulated SDK, which is there while this object lives; the SDK's own declarations work on
/// it. A process may have many, one after another.  Without one, every operation of the SDK ends
/// the process with a line that says so.  What it does depends on profile and calls alone.  When
/// the process aborts, its last 256 calls are written to standard error, and what became of its
/// faults.
class Sim {
 public:
  /// Knows the device of `profile`, and has an id in the `myId` of each manager class for every
  /// index in use.  Throws `std::logic_error` while another `Sim` lives, `std::invalid_argument`
  /// for a key of `sdkStatus` or `nullManagers` that names nothing of the SDK, and
  /// `std::out_of_range` for a table id above 61.
  explicit Sim(Profile profile = defaultProfile());
  ~Sim();
  Sim(Sim const&) = delete;
  Sim& operator=(Sim const&) = delete;

  /// The one that lives; ends the process when there is none.
  static Sim& current();

  /// Everything as after construction: devices, contexts, ids, statuses, counts; not strict, no
  /// faults, no call log, no history of calls.
  /// Pointers that the SDK handed out before are void.
  void reset();

  /// Adds a device, or puts another in its place; its statuses join those that are set.
  /// Throws like the constructor, and changes nothing then.
  void deviceIs(Profile profile);
  /// Throws `std::out_of_range` for an unknown device, here and below.
  Profile const& profile(U32 deviceId = 0) const;
  /// What the SDK hands out for the device, to be looked at or changed.
  xpTableProfile& tableProfile(U32 deviceId = 0);
  /// Whether the device answers null for its profile.
  void tableProfileNullIs(U32 deviceId, bool isNull);

  /// From now on calls of "Class::operation" or "Class[n]::operation" answer with these, the last
  /// for all calls behind; an empty list takes the rule away.  Throws `std::invalid_argument` with
  /// the fault.
  void statusIs(std::string_view operation, std::vector<S32> statuses);
  /// Whether platform layers answer null for "Class" or "Class[n]".  Throws likewise.
  void managerNullIs(std::string_view manager, bool isNull);
  /// Adds a fault, behind those that are there: "xpFdbMgr[0]::addDevice 5 at 2" (see FaultRule.h).
  /// One that fires goes before the statuses and null managers above, and the call doesn't count
  /// for them; of several that fire the first wins.  Throws likewise.
  void newFault(std::string_view rule);
  /// What became of each, in the order in which they were added.
  std::vector<FaultCount> faults() const;
  /// The same as lines for a user, each with its line end; an abort writes them behind the calls.
  std::string faultReport() const;
  /// Empties the class's `myId`, as before the SDK has filled it.  Throws likewise.
  void idsDelAll(std::string_view manager);
  /// Whether misuse that the SDK would let pass ends the process (see Strict.h); off at first.
  void strictIs(bool isStrict);
  /// Where lines of the call log go; an empty function for nowhere.
  void callLogIs(CallLog log);

  // What the SDK's declarations call.
  XP_STATUS call(xpPrimitiveMgr const& manager, Call call, CallArguments const& arguments);
  xpPrimitiveMgr* manager(Reach layer, U32 plMgrId);
  U32 newPlMgrId();
  xpDevice& device(U32 deviceId);
  xpTableProfile* takeTableProfile(xpDevice& device);

 private:
  friend class BringUp;
  struct State;

  static void tellLast();

  Profile profile_;
  std::unique_ptr<State> state_;
  std::unique_ptr<LastWords> lastWords_;
};

/// Announces a bring-up for as long as it lives, so that another within it is found also on the
/// same thread.
class BringUp {
 public:
  explicit BringUp(Sim& sim, U32 deviceId = 0);
  ~BringUp();
  BringUp(BringUp const&) = delete;
  BringUp& operator=(BringUp const&) = delete;

 private:
  Sim& sim_;  // outlives the scope
};

}  // namespace xdksim
