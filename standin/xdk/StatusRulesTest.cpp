// Keys of the rules, and which rule a call follows.
#include "standin/xdk/StatusRules.h"

#include <gtest/gtest.h>
#include <stdexcept>

namespace xdksim {
namespace {

ManagerId lpm(U32 index) { return {managerOf("xpIpRouteLpmMgr"), index}; }

std::string faultOfKey(RuleKey (*parse)(std::string_view), std::string_view key) {
  try {
    parse(key);
  } catch (std::invalid_argument const& fault) {
    return fault.what();
  }
  return "none";
}

TEST(StatusRulesTest, EverythingAnswersZeroAtFirst) {
  StatusRules rules;
  EXPECT_EQ(rules.next(lpm(0), Call::addTable), 0);
  EXPECT_FALSE(rules.isNull(lpm(0)));
}

TEST(StatusRulesTest, RuleHoldsForItsOperationAlone) {
  StatusRules rules;
  rules.statusIs(operationKey("xpLanzMgr::init"), {9});
  ManagerId lanz{managerOf("xpLanzMgr"), 0};
  EXPECT_EQ(rules.next(lanz, Call::init), 9);
  EXPECT_EQ(rules.next(lanz, Call::deInit), 0);
  EXPECT_EQ(rules.next({managerOf("xpAqmMgr"), 0}, Call::init), 0);
}

TEST(StatusRulesTest, FormsOfAddDeviceShareTheirRule) {
  StatusRules rules;
  rules.statusIs(operationKey("xpMgksMgr::addDevice"), {42});
  EXPECT_EQ(rules.next({managerOf("xpMgksMgr"), 0}, Call::addTables), 42);
}

TEST(StatusRulesTest, ListAnswersInTurnAndItsLastForEver) {
  StatusRules rules;
  rules.statusIs(operationKey("xpIpRouteLpmMgr[0]::addDevice"), {0, 9, 5});
  EXPECT_EQ(rules.next(lpm(0), Call::addTable), 0);
  EXPECT_EQ(rules.next(lpm(0), Call::addTable), 9);
  EXPECT_EQ(rules.next(lpm(0), Call::addTable), 5);
  EXPECT_EQ(rules.next(lpm(0), Call::addTable), 5);
}

TEST(StatusRulesTest, KeyWithoutIndexStandsForEveryIndex) {
  StatusRules rules;
  rules.statusIs(operationKey("xpIpRouteLpmMgr::addDevice"), {1, 2});
  EXPECT_EQ(rules.next(lpm(1), Call::addTable), 1);
  EXPECT_EQ(rules.next(lpm(0), Call::addTable), 2);
}

TEST(StatusRulesTest, KeyWithIndexGoesFirst) {
  StatusRules rules;
  rules.statusIs(operationKey("xpIpRouteLpmMgr::addDevice"), {1, 2});
  rules.statusIs(operationKey("xpIpRouteLpmMgr[1]::addDevice"), {7});
  EXPECT_EQ(rules.next(lpm(1), Call::addTable), 7);
  EXPECT_EQ(rules.next(lpm(0), Call::addTable), 1);
}

TEST(StatusRulesTest, IndexHasOneSpelling) {
  for (char const* index : {"00", "01", "+0", " 0", "0x0", ""})
    EXPECT_THROW(operationKey(std::string("xpIpRouteLpmMgr[") + index + "]::addDevice"),
                 std::invalid_argument)
        << index;
}

TEST(StatusRulesTest, NewStatusesReplaceTheOldAndCountAnew) {
  StatusRules rules;
  rules.statusIs(operationKey("xpIpRouteLpmMgr::addDevice"), {1, 2});
  rules.next(lpm(0), Call::addTable);
  rules.statusIs(operationKey("xpIpRouteLpmMgr::addDevice"), {3, 4});
  EXPECT_EQ(rules.next(lpm(0), Call::addTable), 3);
}

TEST(StatusRulesTest, EmptyListTakesTheRuleAway) {
  StatusRules rules;
  rules.statusIs(operationKey("xpIpRouteLpmMgr::addDevice"), {1});
  rules.statusIs(operationKey("xpIpRouteLpmMgr::addDevice"), {});
  EXPECT_EQ(rules.next(lpm(0), Call::addTable), 0);
}

TEST(StatusRulesTest, NullOfOneIndexAndOfAll) {
  StatusRules rules;
  rules.managerNullIs(managerKey("xpIpRouteLpmMgr[0]"), true);
  EXPECT_TRUE(rules.isNull(lpm(0)));
  EXPECT_FALSE(rules.isNull(lpm(1)));
  rules.managerNullIs(managerKey("xpIpRouteLpmMgr"), true);
  EXPECT_TRUE(rules.isNull(lpm(1)));
}

TEST(StatusRulesTest, EveryManagerAndOperationHasAKey) {
  for (Manager const& manager : managers()) {
    for (Call call : manager.calls) {
      if (call == Call::none) break;
      std::string operation = operationOf(call).name;
      EXPECT_EQ(operationKey(std::string(manager.name) + "::" + operation).manager, &manager);
      ManagerId last{&manager, manager.lastIndex};
      EXPECT_EQ(operationKey(last.name() + "::" + operation).manager, &manager);
    }
  }
}

TEST(StatusRulesTest, FaultsOfOperations) {
  std::pair<char const*, char const*> faults[] = {
      {"", "no manager class \"\""},
      {"xpFooMgr::init", "no manager class \"xpFooMgr\""},
      {"::init", "no manager class \"\""},
      {"xpLanzMgr", "no operation named behind \"xpLanzMgr\", as in \"xpLanzMgr::init\""},
      {"xpLanzMgr::", "xpLanzMgr has no operation \"\""},
      {"xpFdbMgr::init", "xpFdbMgr has no operation \"init\""},
      {"xpShaperMgr::deInit", "xpShaperMgr has no operation \"deInit\""},
      {"xpLanzMgr[0]::init", "xpLanzMgr is a singleton, without index"},
      {"xpFdbMgr[1]::addDevice", "xpFdbMgr has no index \"1\""},
      {"aaclL4PortMgr[0]::addDevice", "aaclL4PortMgr has no index \"0\""},
      {"xpFdbMgr[]::addDevice", "xpFdbMgr has no index \"\""},
      {"xpFdbMgr[0x]::addDevice", "xpFdbMgr has no index \"0x\""},
      {"xpFdbMgr[4294967296]::addDevice", "xpFdbMgr has no index \"4294967296\""},
      {"xpFdbMgr[0::addDevice", "expected \"]\" at the end of \"xpFdbMgr[0\""},
      {"xpFdbMgr[0] ::addDevice", "expected \"]\" at the end of \"xpFdbMgr[0] \""},
      {"xpFdbMgr[::addDevice", "expected \"]\" at the end of \"xpFdbMgr[\""},
  };
  for (auto [key, fault] : faults) EXPECT_EQ(faultOfKey(operationKey, key), fault);
}

TEST(StatusRulesTest, FaultsOfManagers) {
  EXPECT_EQ(faultOfKey(managerKey, "xpFooMgr"), "no manager class \"xpFooMgr\"");
  EXPECT_EQ(faultOfKey(managerKey, "xpLanzMgr"), "xpLanzMgr is a singleton, and never null");
  EXPECT_EQ(faultOfKey(managerKey, "xpFdbMgr::addDevice"),
            "an operation can't be null, only a manager: \"xpFdbMgr::addDevice\"");
}

}  // namespace
}  // namespace xdksim
