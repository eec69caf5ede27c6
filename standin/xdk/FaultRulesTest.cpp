// Which calls a fault meets, what it is reported to have done, and how faults meet statuses.
#include "Xdk/Xdk.h"
#include "standin/xdk/FaultRules.h"
#include "standin/xdk/Sim.h"

#include <csignal>
#include <cstdlib>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace xdksim {
namespace {

using testing::ElementsAre;
using testing::KilledBySignal;
using testing::StrEq;
using Statuses = std::vector<S32>;

S32 initEgress() { return xpEgressAclMgr::instance()->init(); }
S32 removeEgress() { return xpEgressAclMgr::instance()->removeDevice(0); }

xpPrimitiveMgr* rawFdb() { return xpL2Pl::instance()->getPrimitiveMgr(xpFdbMgr::myId.at(0)); }
bool fdbIsThere() { return rawFdb() != nullptr; }

/// What `calls` calls answer.
Statuses answers(U32 calls, S32 (*call)() = initEgress) {
  Statuses statuses;
  while (calls-- > 0) statuses.push_back(call());
  return statuses;
}

TEST(FaultRulesTest, WithoutWhenEveryCall) {
  Sim sim;
  sim.newFault("xpEgressAclMgr::init 5");
  EXPECT_EQ(answers(3), (Statuses{5, 5, 5}));
}

TEST(FaultRulesTest, AtANumberThatCallAlone) {
  Sim sim;
  sim.newFault("xpEgressAclMgr::init 5 at 2");
  EXPECT_EQ(answers(4), (Statuses{0, 5, 0, 0}));
}

TEST(FaultRulesTest, AtOneTheFirst) {
  Sim sim;
  sim.newFault("xpEgressAclMgr::init 5 at 1");
  EXPECT_EQ(answers(2), (Statuses{5, 0}));
}

TEST(FaultRulesTest, EveryThird) {
  Sim sim;
  sim.newFault("xpEgressAclMgr::init 9 every 3");
  EXPECT_EQ(answers(7), (Statuses{0, 0, 9, 0, 0, 9, 0}));
}

TEST(FaultRulesTest, EveryOneIsEach) {
  Sim sim;
  sim.newFault("xpEgressAclMgr::init 9 every 1");
  EXPECT_EQ(answers(2), (Statuses{9, 9}));
}

TEST(FaultRulesTest, AfterAnotherCallFromThenOn) {
  Sim sim;
  sim.newFault("xpEgressAclMgr::init 42 after xpEgressAclMgr::removeDevice");
  EXPECT_EQ(answers(1), Statuses{0});
  removeEgress();
  EXPECT_EQ(answers(2), (Statuses{42, 42}));
}

TEST(FaultRulesTest, AfterItselfAllButTheFirst) {
  Sim sim;
  sim.newFault("xpEgressAclMgr::init 42 after xpEgressAclMgr::init");
  EXPECT_EQ(answers(3), (Statuses{0, 42, 42}));
}

TEST(FaultRulesTest, CallThatFailsIsACallToo) {
  Sim sim;
  sim.statusIs("xpEgressAclMgr::removeDevice", {5});
  sim.newFault("xpEgressAclMgr::init 42 after xpEgressAclMgr::removeDevice");
  removeEgress();
  EXPECT_EQ(answers(1), Statuses{42});
}

TEST(FaultRulesTest, LookUpFindsNothing) {
  Sim sim;
  sim.newFault("xpFdbMgr null");
  EXPECT_FALSE(fdbIsThere());
  EXPECT_FALSE(fdbIsThere());
}

TEST(FaultRulesTest, LookUpOfANumber) {
  Sim sim;
  sim.newFault("xpFdbMgr[0] null at 2");
  EXPECT_TRUE(fdbIsThere());
  EXPECT_FALSE(fdbIsThere());
  EXPECT_TRUE(fdbIsThere());
}

TEST(FaultRulesTest, EverySecondLookUp) {
  Sim sim;
  sim.newFault("xpFdbMgr null every 2");
  EXPECT_TRUE(fdbIsThere());
  EXPECT_FALSE(fdbIsThere());
  EXPECT_TRUE(fdbIsThere());
  EXPECT_FALSE(fdbIsThere());
}

TEST(FaultRulesTest, LookUpAfterACall) {
  Sim sim;
  sim.newFault("xpFdbMgr null after xpEgressAclMgr::init");
  EXPECT_TRUE(fdbIsThere());
  initEgress();
  EXPECT_FALSE(fdbIsThere());
}

TEST(FaultRulesTest, LookUpsOfOthersAreNotMeant) {
  Sim sim;
  sim.newFault("xpIpRouteLpmMgr[1] null");
  auto const& ids = xpIpRouteLpmMgr::myId;
  EXPECT_NE(xpL3Pl::instance()->getPrimitiveMgr(ids.at(0)), nullptr);
  EXPECT_EQ(xpL3Pl::instance()->getPrimitiveMgr(ids.at(1)), nullptr);
}

TEST(FaultRulesTest, CallsOfAnIndexAndOfAllCountApart) {
  Sim sim;
  sim.newFault("xpIpRouteLpmMgr[1]::addDevice 5 at 1");
  sim.newFault("xpIpRouteLpmMgr::addDevice 9 at 3");
  auto const add = [](U32 index) {
    xpTableContext* none = nullptr;
    auto* lpm = xpL3Pl::instance()->getPrimitiveMgr(xpIpRouteLpmMgr::myId.at(index));
    return lpm->addDevice(0, &none, 0, TABLE_INIT_WITH_FIXED_INFO);
  };
  EXPECT_EQ(add(0), 0);
  EXPECT_EQ(add(1), 5);
  EXPECT_EQ(add(0), 9);
}

TEST(FaultRulesTest, FirstThatFiresWinsAndBothCount) {
  Sim sim;
  sim.newFault("xpEgressAclMgr::init 5 at 2");
  sim.newFault("xpEgressAclMgr::init 9 every 2");
  sim.newFault("xpEgressAclMgr::init 42 at 3");
  EXPECT_EQ(answers(4), (Statuses{0, 5, 42, 9}));
}

TEST(FaultRulesTest, FaultGoesBeforeAStatusWhichDoesNotCountThen) {
  Sim sim;
  sim.statusIs("xpEgressAclMgr::init", {1, 2, 3});
  sim.newFault("xpEgressAclMgr::init 9 at 2");
  EXPECT_EQ(answers(4), (Statuses{1, 9, 2, 3}));
}

TEST(FaultRulesTest, StatusZeroMakesACallPass) {
  Sim sim;
  sim.statusIs("xpEgressAclMgr::init", {5});
  sim.newFault("xpEgressAclMgr::init 0 at 1");
  EXPECT_EQ(answers(2), (Statuses{0, 5}));
}

TEST(FaultRulesTest, NullManagerStaysNull) {
  Sim sim;
  sim.managerNullIs("xpFdbMgr", true);
  sim.newFault("xpFdbMgr null at 2");
  EXPECT_FALSE(fdbIsThere());
  EXPECT_FALSE(fdbIsThere());
  EXPECT_EQ(sim.faults().at(0).fired, 1u);
}

TEST(FaultRulesTest, CountsTellCallsAndThoseThatFired) {
  Sim sim;
  sim.newFault("xpEgressAclMgr::init  5 every 2");
  sim.newFault("xpEgressAclMgr::init 9 at 2");
  sim.newFault("xpFdbMgr null");
  answers(5);
  EXPECT_THAT(sim.faults(), ElementsAre(FaultCount{"xpEgressAclMgr::init 5 every 2", 5, 2},
                                        FaultCount{"xpEgressAclMgr::init 9 at 2", 5, 0},
                                        FaultCount{"xpFdbMgr null", 0, 0}));
}

TEST(FaultRulesTest, CountsBeginWhereTheRuleCame) {
  Sim sim;
  answers(3);
  sim.newFault("xpEgressAclMgr::init 5 at 1");
  EXPECT_EQ(answers(1), Statuses{5});
}

TEST(FaultRulesTest, ReportTellsHowOftenEachFired) {
  Sim sim;
  sim.newFault("xpEgressAclMgr::init 5 at 2");
  sim.newFault("xpEgressAclMgr::init 9 every 3");
  sim.newFault("xpEgressAclMgr::init 9 at 7");
  sim.newFault("xpEgressAclMgr::removeDevice kill");
  sim.newFault("xpFdbMgr null at 2");
  answers(6);
  rawFdb();
  EXPECT_EQ(sim.faultReport(),
            "simulated SDK: fault \"xpEgressAclMgr::init 5 at 2\" fired once\n"
            "simulated SDK: fault \"xpEgressAclMgr::init 9 every 3\" fired 2 times\n"
            "simulated SDK: fault \"xpEgressAclMgr::init 9 at 7\" never fired: "
            "xpEgressAclMgr::init was called 6 times\n"
            "simulated SDK: fault \"xpEgressAclMgr::removeDevice kill\" never fired: "
            "xpEgressAclMgr::removeDevice was never called\n"
            "simulated SDK: fault \"xpFdbMgr null at 2\" never fired: "
            "xpFdbMgr was looked up once\n");
}

TEST(FaultRulesTest, NoRulesNoReport) { EXPECT_EQ(Sim().faultReport(), ""); }

TEST(FaultRulesTest, ResetTakesThemAway) {
  Sim sim;
  sim.newFault("xpEgressAclMgr::init 5");
  sim.reset();
  EXPECT_EQ(answers(1), Statuses{0});
  EXPECT_TRUE(sim.faults().empty());
}

TEST(FaultRulesTest, FurtherDeviceLeavesThem) {
  Sim sim;
  sim.newFault("xpEgressAclMgr::init 5 at 2");
  answers(1);
  Profile second;
  second.deviceId = 1;
  sim.deviceIs(second);
  EXPECT_EQ(answers(1), Statuses{5});
}

TEST(FaultRulesTest, RefusedRuleIsNotAdded) {
  Sim sim;
  EXPECT_THROW(sim.newFault("xpEgressAclMgr::init 5 at 0"), std::invalid_argument);
  EXPECT_TRUE(sim.faults().empty());
}

TEST(FaultRulesTest, FaultStandsInTheCallLog) {
  Sim sim;
  std::string lines;
  sim.callLogIs([&lines](std::string_view line) { (lines += line) += '\n'; });
  sim.newFault("xpEgressAclMgr::init 5 at 2");
  answers(2);
  EXPECT_EQ(lines, "xpEgressAclMgr::init -> 0\nxpEgressAclMgr::init -> 5\n");
}

TEST(FaultRulesTest, KilledCallEndsTheProcessAndIsNotInTheLog) {
  Sim sim;
  sim.callLogIs([](std::string_view line) { fprintf(stderr, "%s\n", std::string(line).c_str()); });
  sim.newFault("xpEgressAclMgr::init kill at 2");
  EXPECT_EXIT(answers(3), KilledBySignal(SIGKILL),
              StrEq("xpEgressAclMgr::init -> 0\n"
                    "simulated SDK: fault \"xpEgressAclMgr::init kill at 2\" fired once\n"));
}

TEST(FaultRulesTest, AbortTellsTheFaultsBehindTheCalls) {
  Sim sim;
  sim.newFault("xpEgressAclMgr::init 5 at 2");
  sim.newFault("xpEgressAclMgr::init 9 at 3");
  EXPECT_EXIT((answers(2), std::abort()), KilledBySignal(SIGABRT),
              StrEq("simulated SDK: the last 2 calls:\n"
                    "xpEgressAclMgr::init -> 0\n"
                    "xpEgressAclMgr::init -> 5\n"
                    "simulated SDK: fault \"xpEgressAclMgr::init 5 at 2\" fired once\n"
                    "simulated SDK: fault \"xpEgressAclMgr::init 9 at 3\" never fired: "
                    "xpEgressAclMgr::init was called 2 times\n"));
}

}  // namespace
}  // namespace xdksim
