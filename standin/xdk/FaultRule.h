// A fault that the simulated SDK is told to have, and the language in which it is told.
#pragma once

#include "standin/xdk/StatusRules.h"

#include <string>
#include <string_view>

namespace xdksim {

/// "KEY OUTCOME [WHEN]", in words: which calls, what they meet, and which of them.
struct FaultRule {
  enum class Outcome : U8 { status, null, kill };
  enum class When : U8 { always, at, every, after };

  std::string text;  ///< its words, with one blank between them
  RuleKey key;       ///< without operation for `null`: look-ups of the manager are meant
  Outcome outcome = Outcome::status;
  S32 status = 0;  ///< what is answered; for `status` alone
  When when = When::always;
  U32 number = 0;  ///< for `at` and `every`, 1 or more
  RuleKey other;   ///< the call behind which it holds; for `after` alone
};

/// Reads a rule such as
///
///     xpFdbMgr[0]::addDevice 5 at 2              the second such call answers 5
///     xpFdbMgr::addDevice 9 every 3              the third, the sixth, and so on
///     xpMdtMgr::addDevice 42 after xpBdMgr::addDevice
///                                                all, once one of the other has answered
///     xpBdMgr null                               no look-up finds the manager
///     xpLanzMgr::init kill at 1                  the process is killed in the first call
///
/// Throws `std::invalid_argument` with the fault, one line.
FaultRule faultRule(std::string_view text);

}  // namespace xdksim
