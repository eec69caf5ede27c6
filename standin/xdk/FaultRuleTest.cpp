// The language of faults: what each form means, and what is said of one that means nothing.
#include "standin/xdk/FaultRule.h"

#include <gtest/gtest.h>
#include <stdexcept>

namespace xdksim {
namespace {

using enum FaultRule::Outcome;
using enum FaultRule::When;

TEST(FaultRuleTest, StatusEveryTime) {
  FaultRule rule = faultRule("xpIpRouteLpmMgr[1]::addDevice -5");
  EXPECT_EQ(rule.key, operationKey("xpIpRouteLpmMgr[1]::addDevice"));
  EXPECT_EQ(rule.outcome, status);
  EXPECT_EQ(rule.status, -5);
  EXPECT_EQ(rule.when, always);
}

TEST(FaultRuleTest, StatusZeroIsAStatus) {
  EXPECT_EQ(faultRule("xpLanzMgr::init 0").outcome, status);
}

TEST(FaultRuleTest, EveryStatusThatTheTypeHolds) {
  EXPECT_EQ(faultRule("xpLanzMgr::init 2147483647").status, 2147483647);
  EXPECT_EQ(faultRule("xpLanzMgr::init -2147483648").status, -2147483647 - 1);
}

TEST(FaultRuleTest, CallOfANumber) {
  FaultRule rule = faultRule("xpFdbMgr::addDevice 5 at 1");
  EXPECT_EQ(rule.when, at);
  EXPECT_EQ(rule.number, 1u);
}

TEST(FaultRuleTest, EverySoManyCalls) {
  FaultRule rule = faultRule("xpFdbMgr::addDevice 5 every 4294967295");
  EXPECT_EQ(rule.when, every);
  EXPECT_EQ(rule.number, 4294967295u);
}

TEST(FaultRuleTest, AfterAnotherCall) {
  FaultRule rule = faultRule("xpMdtMgr::addDevice kill after xpBdMgr[0]::addDevice");
  EXPECT_EQ(rule.outcome, kill);
  EXPECT_EQ(rule.when, after);
  EXPECT_EQ(rule.other, operationKey("xpBdMgr[0]::addDevice"));
}

TEST(FaultRuleTest, NullIsOfAManager) {
  FaultRule rule = faultRule("xpIpRouteLpmMgr[0] null every 2");
  EXPECT_EQ(rule.key, managerKey("xpIpRouteLpmMgr[0]"));
  EXPECT_EQ(rule.outcome, null);
}

TEST(FaultRuleTest, BlanksDoNotMatter) {
  EXPECT_EQ(faultRule(" xpLanzMgr::init \t9   at 2 ").text, "xpLanzMgr::init 9 at 2");
}

std::string faultOf(std::string_view rule) {
  try {
    faultRule(rule);
  } catch (std::invalid_argument const& fault) {
    return fault.what();
  }
  return "none";
}

TEST(FaultRuleTest, Faults) {
  std::pair<char const*, char const*> faults[] = {
      {"", "a fault has a key and an outcome: \"xpFdbMgr::addDevice 5\""},
      {" ", "a fault has a key and an outcome: \"xpFdbMgr::addDevice 5\""},
      {"xpLanzMgr::init", "expected a status, null or kill behind \"xpLanzMgr::init\""},
      {"xpLanzMgr::init five", "expected a status, null or kill, not \"five\""},
      {"xpLanzMgr::init 5x", "expected a status, null or kill, not \"5x\""},
      {"xpLanzMgr::init +5", "expected a status, null or kill, not \"+5\""},
      {"xpLanzMgr::init 0x5", "expected a status, null or kill, not \"0x5\""},
      {"xpLanzMgr::init at 2", "expected a status, null or kill, not \"at\""},
      {"xpLanzMgr::init 2147483648", "\"2147483648\" is no status, -2147483648 to 2147483647"},
      {"xpLanzMgr 5", "no operation named behind \"xpLanzMgr\", as in \"xpLanzMgr::init\""},
      {"xpLanzMgr kill", "no operation named behind \"xpLanzMgr\", as in \"xpLanzMgr::init\""},
      {"xpFooMgr::init 5", "no manager class \"xpFooMgr\""},
      {"xpFdbMgr[1]::addDevice 5", "xpFdbMgr has no index \"1\""},
      {"xpFdbMgr::deInit 5", "xpFdbMgr has no operation \"deInit\""},
      {"xpFdbMgr::addDevice null",
       "an operation can't be null, only a manager: \"xpFdbMgr::addDevice\""},
      {"xpLanzMgr null", "xpLanzMgr is a singleton, and never null"},
      {"xpLanzMgr::init 5 on 2", "expected at, every or after behind \"5\", not \"on\""},
      {"xpLanzMgr::init 5 9", "expected at, every or after behind \"5\", not \"9\""},
      {"xpLanzMgr::init 5 at", "expected a count of calls behind \"at\""},
      {"xpLanzMgr::init 5 every", "expected a count of calls behind \"every\""},
      {"xpLanzMgr::init 5 after", "expected a call behind \"after\""},
      {"xpLanzMgr::init 5 at 0", "\"0\" is no count of calls, 1 to 4294967295"},
      {"xpLanzMgr::init 5 every 0", "\"0\" is no count of calls, 1 to 4294967295"},
      {"xpLanzMgr::init 5 at -1", "\"-1\" is no count of calls, 1 to 4294967295"},
      {"xpLanzMgr::init 5 at 2nd", "\"2nd\" is no count of calls, 1 to 4294967295"},
      {"xpLanzMgr::init 5 at 4294967296", "\"4294967296\" is no count of calls, 1 to 4294967295"},
      {"xpLanzMgr::init 5 after xpFooMgr::init", "no manager class \"xpFooMgr\""},
      {"xpLanzMgr::init 5 after 2", "no manager class \"2\""},
      {"xpLanzMgr::init 5 at 2 3", "nothing may follow \"2\""},
      {"xpLanzMgr::init 5 at 2 after xpAqmMgr::init", "nothing may follow \"2\""},
  };
  for (auto [rule, fault] : faults) EXPECT_EQ(faultOf(rule), fault) << rule;
}

}  // namespace
}  // namespace xdksim
