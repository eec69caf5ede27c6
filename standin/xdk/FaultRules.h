// The faults that the simulated SDK has, and what became of each.
#pragma once

#include "standin/xdk/FaultRule.h"

#include <optional>
#include <string>
#include <vector>

namespace xdksim {

/// A fault rule with its counts.
struct FaultCount {
  std::string rule;  ///< its words
  U32 calls = 0;     ///< calls or look-ups that its key covers
  U32 fired = 0;     ///< those that it made fail

  bool operator==(FaultCount const&) const = default;
};

/// The first rule that fires wins.  Every call counts for all rules whose key covers it, whichever
/// fires, so that what a rule does hangs on the calls alone.
class FaultRules {
 public:
  /// Adds a rule behind the others; it counts from now on.
  void add(FaultRule rule);

  /// What the call that begins now answers; none where no rule fires.  Does not come back where one
  /// kills.
  std::optional<XP_STATUS> atCall(ManagerId manager, Call call);
  /// The call has answered, whatever it was.
  void answered(ManagerId manager, Call call);
  /// Whether the look-up that comes now finds nothing.
  bool isNullAtLookUp(ManagerId manager);

  std::vector<FaultCount> counts() const;
  /// What became of each rule, a line each: `simulated SDK: fault "..." fired once`, and for one
  /// that never fired how many calls its key covered.
  std::string report() const;
  /// Writes the report to standard error.  A signal handler may call it.
  void tell() const noexcept;

 private:
  struct Entry {
    FaultRule rule;
    U32 calls = 0;
    U32 fired = 0;
    bool isBehindOther = false;

    bool meets(bool isFirst);
    template <class Say>
    void tell(Say const& say) const;
  };

  std::vector<Entry> entries_;
};

}  // namespace xdksim
