// Which rule fires, and the words for what became of it.
#include "standin/xdk/FaultRules.h"

#include "standin/xdk/LastWords.h"

#include <csignal>

namespace xdksim {
namespace {

using enum FaultRule::Outcome;
using enum FaultRule::When;

template <class Say>
void tellTimes(U32 number, Say const& say) {
  if (number == 1) return say("once");
  say(number);
  say(" times");
}

}  // namespace

/// Counts a call that the key covers; whether the rule fires, if none before it has.
bool FaultRules::Entry::meets(bool isFirst) {
  ++calls;
  bool isDue = rule.when == always || (rule.when == at && calls == rule.number) ||
               (rule.when == every && calls % rule.number == 0) ||
               (rule.when == after && isBehindOther);
  if (isDue && isFirst) ++fired;
  return isDue && isFirst;
}

/// The words for what became of the rule, piece by piece: for a signal handler none may be put
/// together.
template <class Say>
void FaultRules::Entry::tell(Say const& say) const {
  say("simulated SDK: fault \"");
  say(rule.text);
  say("\" ");
  if (fired > 0) {
    say("fired ");
    tellTimes(fired, say);
  } else {
    say("never fired: ");
    say(std::string_view(rule.text).substr(0, rule.text.find(' ')));
    say(calls == 0 ? " was never " : " was ");
    say(rule.outcome == null ? "looked up" : "called");
    if (calls > 0) say(" ");
    if (calls > 0) tellTimes(calls, say);
  }
  say("\n");
}

void FaultRules::add(FaultRule rule) {
  Entry& entry = entries_.emplace_back();
  entry.rule = std::move(rule);
}

std::optional<XP_STATUS> FaultRules::atCall(ManagerId manager, Call call) {
  FaultRule const* fired = nullptr;
  for (Entry& entry : entries_) {
    if (entry.rule.outcome != null && covers(entry.rule.key, manager, call) &&
        entry.meets(fired == nullptr))
      fired = &entry.rule;
  }
  if (!fired) return {};
  if (fired->outcome == FaultRule::Outcome::kill) {
    tell();
    raise(SIGKILL);  // past all that is registered for an orderly end
  }
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
  struct Appender {
    std::string& text;
    void operator()(std::string_view piece) const { text += piece; }
    void operator()(U32 number) const { text += std::to_string(number); }
  };
  for (Entry const& entry : entries_) entry.tell(Appender{text});
  return text;
}

void FaultRules::tell() const noexcept {
  for (Entry const& entry : entries_) entry.tell([](auto piece) { LastWords::say(piece); });
}

}  // namespace xdksim
