// Which rule fires, and the words for what became of it.
#include "standin/xdk/FaultRules.h"

#include "standin/xdk/LastWords.h"

#include <csignal>

namespace xdksim {
namespace {

using enum FaultRule::Outcome;
using enum FaultRule::When;

std::string times(U32 number) { return number == 1 ? "once" : std::to_string(number) + " times"; }

/// "was called once", "was never called".
std::string passive(std::string const& verb, U32 number) {
  return number == 0 ? "was never " + verb : "was " + verb + ' ' + times(number);
}

}  // namespace

/// Counts a call that the key covers; whether the rule fires, if none before it has.
bool FaultRules::Entry::meets(bool isFirst) {
  ++calls;
  bool isDue = rule.when == always || (rule.when == at && calls == rule.number) ||
               (rule.when == every && calls % rule.number == 0) ||
               (rule.when == after && isBehindOther);
  if (isDue && isFirst) ++fired;
  tellAnew();
  return isDue && isFirst;
}

void FaultRules::Entry::tellAnew() {
  std::string const key = rule.text.substr(0, rule.text.find(' '));
  line = "simulated SDK: fault \"" + rule.text + "\" ";
  if (fired > 0)
    line += "fired " + times(fired);
  else
    line +=
        "never fired: " + key + ' ' + passive(rule.outcome == null ? "looked up" : "called", calls);
  line += '\n';
}

void FaultRules::add(FaultRule rule) {
  Entry& entry = entries_.emplace_back();
  entry.rule = std::move(rule);
  entry.tellAnew();
}

std::optional<XP_STATUS> FaultRules::atCall(ManagerId manager, Call call) {
  FaultRule const* fired = nullptr;
  for (Entry& entry : entries_) {
    if (entry.rule.outcome != null && covers(entry.rule.key, manager, call) &&
        entry.meets(fired == nullptr))
      fired = &entry.rule;
  }
  if (!fired) return {};
  // Nothing may be written any more, also by what is registered for an orderly end.
  if (fired->outcome == FaultRule::Outcome::kill) raise(SIGKILL);
  return fired->status;
}

void FaultRules::answered(ManagerId manager, Call call) {
  for (Entry& entry : entries_) {
    if (entry.rule.when == after && covers(entry.rule.other, manager, call))
      entry.isBehindOther = true;
  }
}

bool FaultRules::isNullAtLookUp(ManagerId manager) {
  bool isNull = false;
  for (Entry& entry : entries_) {
    if (entry.rule.outcome == null && covers(entry.rule.key, manager))
      isNull |= entry.meets(!isNull);
  }
  return isNull;
}

std::vector<FaultCount> FaultRules::counts() const {
  std::vector<FaultCount> counts;
  for (Entry const& entry : entries_) counts.push_back({entry.rule.text, entry.calls, entry.fired});
  return counts;
}

std::string FaultRules::report() const {
  std::string text;
  for (Entry const& entry : entries_) text += entry.line;
  return text;
}

void FaultRules::tell() const noexcept {
  for (Entry const& entry : entries_) LastWords::say(entry.line);
}

}  // namespace xdksim
