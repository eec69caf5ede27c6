// The statuses that operations of the SDK are told to answer with, and the managers that it is told
// not to have.
#pragma once

#include "Xdk/Types.h"
#include "standin/xdk/Managers.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace xdksim {

/// What "xpIpRouteLpmMgr[1]::addDevice" names.
struct RuleKey {
  Manager const* manager = nullptr;
  std::optional<U32> index;  ///< none: every index
  std::string operation;     ///< empty: the manager itself

  bool operator==(RuleKey const&) const = default;
};

/// Reads "Class::operation" or "Class[n]::operation".  Throws `std::invalid_argument` with the
/// fault: a class, an index or an operation that the SDK doesn't have.
RuleKey operationKey(std::string_view key);
/// Reads "Class" or "Class[n]"; likewise, and refuses singletons, which no look-up can miss.
RuleKey managerKey(std::string_view key);

/// Whether the key is of that manager, or of all of its class.
bool covers(RuleKey const& key, ManagerId manager);
/// Whether it is also of that operation.
bool covers(RuleKey const& key, ManagerId manager, Call call);

/// Status 0 and no null manager until told otherwise.
class StatusRules {
 public:
  /// The first call that the key covers gets the first status, and so on; calls past the end get
  /// the last.  Counts anew from the next call.  An empty list takes the rule away.
  void statusIs(RuleKey const& key, std::vector<S32> statuses);
  void managerNullIs(RuleKey const& key, bool isNull);

  /// What this call answers; a rule with the index goes before one without, and a call counts for
  /// the rule that it follows alone.
  XP_STATUS next(ManagerId manager, Call call);
  bool isNull(ManagerId manager) const;

 private:
  struct Rule {
    RuleKey key;
    std::vector<S32> statuses;
    std::size_t calls = 0;
  };
  Rule* find(RuleKey const& key);

  std::vector<Rule> rules_;
  std::vector<RuleKey> nulls_;
};

}  // namespace xdksim
