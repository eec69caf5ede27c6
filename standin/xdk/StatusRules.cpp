// Keys of the rules, and which rule a call follows.
#include "standin/xdk/StatusRules.h"

#include "standin/xdk/Json.h"

#include <algorithm>
#include <charconv>
#include <stdexcept>

namespace xdksim {
namespace {

using Fault = std::invalid_argument;

U32 indexOf(Manager const& manager, std::string_view digits) {
  if (manager.isSingleton())
    throw Fault(std::string(manager.name) + " is a singleton, without index");
  U32 index = 0;
  auto const error = std::from_chars(digits.data(), digits.data() + digits.size(), index).ec;
  // One spelling for one index: two rules of a profile don't mean the same unseen.
  bool isNumber = error == std::errc() && std::to_string(index) == digits;
  if (!isNumber || index < manager.firstIndex || index > manager.lastIndex)
    throw Fault(std::string(manager.name) + " has no index " + inQuotes(digits));
  return index;
}

/// Reads the part in front of "::".
RuleKey classKey(std::string_view text) {
  auto bracket = text.find('[');
  auto name = text.substr(0, bracket);
  RuleKey key;
  key.manager = managerOf(name);
  if (!key.manager) throw Fault("no manager class " + inQuotes(name));
  if (bracket == std::string_view::npos) return key;
  if (text.back() != ']') throw Fault("expected \"]\" at the end of " + inQuotes(text));
  key.index = indexOf(*key.manager, text.substr(bracket + 1, text.size() - bracket - 2));
  return key;
}

}  // namespace

bool covers(RuleKey const& key, ManagerId manager) {
  return key.manager == manager.row && (!key.index || *key.index == manager.index);
}

bool covers(RuleKey const& key, ManagerId manager, Call call) {
  return covers(key, manager) && key.operation == operationOf(call).name;
}

RuleKey operationKey(std::string_view text) {
  auto colons = text.find("::");
  RuleKey key = classKey(text.substr(0, colons));
  if (colons == std::string_view::npos)
    throw Fault("no operation named behind " + inQuotes(text) + ", as in \"" + std::string(text) +
                "::" + operationOf(key.manager->calls[0]).name + '"');
  key.operation = text.substr(colons + 2);
  if (!key.manager->has(key.operation))
    throw Fault(std::string(key.manager->name) + " has no operation " + inQuotes(key.operation));
  return key;
}

RuleKey managerKey(std::string_view text) {
  if (text.find("::") != std::string_view::npos)
    throw Fault("an operation can't be null, only a manager: " + inQuotes(text));
  RuleKey key = classKey(text);
  if (key.manager->isSingleton())
    throw Fault(std::string(key.manager->name) + " is a singleton, and never null");
  return key;
}

StatusRules::Rule* StatusRules::find(RuleKey const& key) {
  auto rule = std::ranges::find(rules_, key, &Rule::key);
  return rule == rules_.end() ? nullptr : &*rule;
}

void StatusRules::statusIs(RuleKey const& key, std::vector<S32> statuses) {
  std::erase_if(rules_, [&key](Rule const& rule) { return rule.key == key; });
  if (!statuses.empty()) rules_.push_back({key, std::move(statuses)});
}

void StatusRules::managerNullIs(RuleKey const& key, bool isNull) {
  std::erase(nulls_, key);
  if (isNull) nulls_.push_back(key);
}

XP_STATUS StatusRules::next(ManagerId manager, Call call) {
  if (rules_.empty()) return 0;
  RuleKey key{manager.row, manager.index, operationOf(call).name};
  Rule* rule = find(key);
  if (!rule) {
    key.index.reset();
    rule = find(key);
  }
  if (!rule) return 0;
  auto turn = std::min(rule->calls++, rule->statuses.size() - 1);
  return rule->statuses[turn];
}

bool StatusRules::isNull(ManagerId manager) const {
  return std::ranges::any_of(nulls_,
                             [manager](RuleKey const& key) { return covers(key, manager); });
}

}  // namespace xdksim
