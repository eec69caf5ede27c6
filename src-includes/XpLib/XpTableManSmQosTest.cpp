// The managers without tables: the order in which they come up and are taken down.
#include "XpLib/XpTableManSmAbortTest.h"

namespace Kestrel::xpTableManSm {
namespace {

using testing::Contains;

Lines const takeDown = {
    "xpAqmMgr::removeDevice device=0 -> 0",
    "xpAqmMgr::deInit -> 0",
    "xpLanzMgr::removeDevice device=0 -> 0",
    "xpLanzMgr::deInit -> 0",
    "xpQueueCounterMgr::removeDevice device=0 -> 0",
    "xpQueueCounterMgr::removeDevice device=0 -> 0",
    "xpPortIngressQosMgr::removeDevice device=0 -> 0",
    "xpSchedulerMgr::removeDevice device=0 -> 0",
    "xpShaperMgr::removeDevice device=0 -> 0",
    "xpCpuStormControlMgr::removeDevice device=0 -> 0",
    "xpEgressAclMgr::removeDevice device=0 -> 0",
    "xpPolicerMgr::removeDevice device=0 -> 0",
    "xpPolicerMgr::deInit -> 0",
    "xpControlPlanePolicingMgr::removeDevice device=0 -> 0",
    "xpControlPlanePolicingMgr::deInit -> 0",
    "xpEgressQosMapMgr::removeDevice device=0 -> 0",
    "xpEgressQosMapMgr::deInit -> 0",
    "xpFlowControlMgr::removeDevice device=0 -> 0",
    "xpFlowControlMgr::deInit -> 0",
};

// Static managers.

TEST(StaticManagersTest, GetTheInitTypeAndPublishNothing) {
  for (bool cold : {true, false}) {
    auto profile = fullProfile();
    profile.coldStartNeeded = cold;
    Rig rig(profile);
    std::string const end = std::string(" device=0 init=") + (cold ? "1" : "2") + " -> 0";
    EXPECT_EQ(linesOf(rig, &TableManSm::doCreateStaticTables),
              (Lines{"xpPortConfigMgr[0]::addDevice" + end, "xpAcmBankMgr[0]::addDevice" + end,
                     "xpAcmRsltMgr[0]::addDevice" + end, "xpEgressFilterMgr[0]::addDevice" + end,
                     "xpTrunkResolutionMgr[0]::addDevice" + end}));
  }
}

TEST(StaticManagersTest, ErrorIsNotNoticed) {
  Rig rig;
  rig.sim.statusIs("xpAcmBankMgr::addDevice", {5});
  testing::internal::CaptureStderr();
  auto const lines = linesOf(rig, &TableManSm::doCreateStaticTables);
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
  EXPECT_EQ(lines[1], "xpAcmBankMgr[0]::addDevice device=0 init=1 -> 5");
  EXPECT_EQ(lines[2], "xpAcmRsltMgr[0]::addDevice device=0 init=1 -> 0");
  EXPECT_EQ(lines.size(), 5u);
}

// Quality of service.

TEST(QosManagersTest, EachIsUpBeforeTheNextIsTouched) {
  for (bool cold : {true, false}) {
    auto profile = fullProfile();
    profile.coldStartNeeded = cold;
    Rig rig(profile);
    Lines expected;
    for (std::string const manager :
         {"xpAqmMgr", "xpLanzMgr", "xpQueueCounterMgr", "xpPortIngressQosMgr", "xpSchedulerMgr",
          "xpShaperMgr", "xpCpuStormControlMgr", "xpEgressQosMapMgr", "xpPolicerMgr",
          "xpControlPlanePolicingMgr", "xpFlowControlMgr"}) {
      expected.push_back(manager + "::init -> 0");
      expected.push_back(manager + "::addDevice device=0 init=" + (cold ? "1" : "2") + " -> 0");
    }
    EXPECT_EQ(linesOf(rig, &TableManSm::doCreateQosTables), expected);
  }
}

TEST(QosManagersTest, TolerableInitIsFollowedByTheDevice) {
  Rig rig;
  rig.sim.statusIs("xpLanzMgr::init", {9});
  auto const lines = linesOf(rig, &TableManSm::doCreateQosTables);
  EXPECT_EQ(lines[2], "xpLanzMgr::init -> 9");
  EXPECT_EQ(lines[3], "xpLanzMgr::addDevice device=0 init=1 -> 0");
}

// Taking down.

TEST(PrepareToDieTest, TakesDownInItsOrderAndOnce) {
  Rig rig;
  auto const sm = rig.bringUp();
  rig.take();
  sm->doPrepareToDie();
  EXPECT_EQ(rig.take(), takeDown);
  EXPECT_FALSE(sm->initialized());
  sm->doPrepareToDie();
  EXPECT_EQ(rig.take(), Lines());
}

TEST(PrepareToDieTest, PublishedTablesStay) {
  Rig rig;
  auto const sm = rig.bringUp();
  auto const version = rig.status->version();
  sm->doPrepareToDie();
  EXPECT_EQ(rig.status->tableContextEntryCount(), 46u);
  EXPECT_EQ(rig.status->version(), version);
}

TEST(PrepareToDieTest, FlagIsClearedLast) {
  Rig rig;
  auto const sm = rig.bringUp();
  rig.sim.callLogIs([&sm](std::string_view) { EXPECT_TRUE(sm->initialized()); });
  sm->doPrepareToDie();
  EXPECT_FALSE(sm->initialized());
}

TEST(PrepareToDieTest, EachCallNamesTheDevice) {
  auto profile = fullProfile();
  profile.deviceId = 31;
  Rig rig(profile);
  rig.deviceId = 31;
  auto const sm = rig.bringUp();
  rig.take();
  sm->doPrepareToDie();
  EXPECT_THAT(rig.lines, Contains("xpEgressAclMgr::removeDevice device=31 -> 0"));
}

TEST(PrepareToDieTest, NobodyCallsItInsideTheLibrary) {
  Rig rig;
  {
    auto const sm = rig.bringUp();
    rig.take();
  }
  EXPECT_EQ(rig.take(), Lines());
}

// The flag stands before the first table, so what a broken-off bring-up left is taken down in full.
TEST(PrepareToDieTest, RunsInFullAfterABrokenBringUp) {
  Rig rig;
  auto const sm = rig.bringUp();
  sm->initializedIs(false);
  rig.sim.callLogIs([](std::string_view) { throw 1; });
  EXPECT_THROW(sm->handleInitialized(), int);
  EXPECT_TRUE(sm->initialized());
  rig.sim.callLogIs([&rig](std::string_view line) { rig.lines.emplace_back(line); });
  rig.take();
  sm->doPrepareToDie();
  EXPECT_EQ(rig.take(), takeDown);
}

TEST(PrepareToDieTest, ChipCanBeBroughtUpAgain) {
  Rig rig;
  auto const sm = rig.bringUp();
  sm->doPrepareToDie();
  sm->handleInitialized();
  EXPECT_TRUE(sm->initialized());
  rig.take();
  sm->doPrepareToDie();
  EXPECT_EQ(rig.take(), takeDown);
}

constexpr Checked takeDownCalls[] = {
    {"xpAqmMgr::removeDevice", "((xpAqmMgr::instance()->removeDevice( xpDeviceId )))",
     "void Kestrel::TableManSm::doPrepareToDie()"},
    {"xpAqmMgr::deInit", "((xpAqmMgr::instance()->deInit()))",
     "void Kestrel::TableManSm::doPrepareToDie()"},
    {"xpLanzMgr::removeDevice", "((xpLanzMgr::instance()->removeDevice( xpDeviceId )))",
     "void Kestrel::TableManSm::doPrepareToDie()"},
    {"xpLanzMgr::deInit", "((xpLanzMgr::instance()->deInit()))",
     "void Kestrel::TableManSm::doPrepareToDie()"},
    {"xpQueueCounterMgr::removeDevice",
     "((xpQueueCounterMgr::instance()->removeDevice( xpDeviceId )))",
     "void Kestrel::TableManSm::doPrepareToDie()"},
    {"xpPortIngressQosMgr::removeDevice",
     "((xpPortIngressQosMgr::instance()->removeDevice( xpDeviceId )))",
     "void Kestrel::TableManSm::doPrepareToDie()"},
    {"xpSchedulerMgr::removeDevice", "((xpSchedulerMgr::instance()->removeDevice( xpDeviceId )))",
     "void Kestrel::TableManSm::doPrepareToDie()"},
    {"xpShaperMgr::removeDevice", "((xpShaperMgr::instance()->removeDevice( xpDeviceId )))",
     "void Kestrel::TableManSm::doPrepareToDie()"},
    {"xpCpuStormControlMgr::removeDevice",
     "((xpCpuStormControlMgr::instance()->removeDevice( xpDeviceId )))",
     "void Kestrel::TableManSm::doPrepareToDie()"},
    {"xpEgressAclMgr::removeDevice", "((xpEgressAclMgr::instance()->removeDevice( xpDeviceId )))",
     "void Kestrel::TableManSm::doPrepareToDie()"},
    {"xpPolicerMgr::removeDevice", "((xpPolicerMgr::instance()->removeDevice( xpDeviceId )))",
     "void Kestrel::TableManSm::doPrepareToDie()"},
    {"xpPolicerMgr::deInit", "((xpPolicerMgr::instance()->deInit()))",
     "void Kestrel::TableManSm::doPrepareToDie()"},
    {"xpControlPlanePolicingMgr::removeDevice",
     "((xpControlPlanePolicingMgr::instance()->removeDevice( xpDeviceId )))",
     "void Kestrel::TableManSm::doPrepareToDie()"},
    {"xpControlPlanePolicingMgr::deInit", "((xpControlPlanePolicingMgr::instance()->deInit()))",
     "void Kestrel::TableManSm::doPrepareToDie()"},
    {"xpEgressQosMapMgr::removeDevice",
     "((xpEgressQosMapMgr::instance()->removeDevice( xpDeviceId )))",
     "void Kestrel::TableManSm::doPrepareToDie()"},
    {"xpEgressQosMapMgr::deInit", "((xpEgressQosMapMgr::instance()->deInit()))",
     "void Kestrel::TableManSm::doPrepareToDie()"},
    {"xpFlowControlMgr::removeDevice",
     "((xpFlowControlMgr::instance()->removeDevice( xpDeviceId )))",
     "void Kestrel::TableManSm::doPrepareToDie()"},
    {"xpFlowControlMgr::deInit", "((xpFlowControlMgr::instance()->deInit()))",
     "void Kestrel::TableManSm::doPrepareToDie()"},
};

class TakeDownCallDeathTest : public testing::TestWithParam<Checked> {
 protected:
  Rig rig;
  Mox::Ptr<TableManSm> sm = rig.bringUp();
};

TEST_P(TakeDownCallDeathTest, OtherStatusEndsTheProcess) {
  rig.sim.statusIs(GetParam().operation, {1});
  expectAbort([&] { sm->doPrepareToDie(); }, apiError(GetParam().call, 1, GetParam().signature));
}

TEST_P(TakeDownCallDeathTest, NineAndFortyTwoAreAccepted) {
  for (S32 status : {9, 42}) {
    sm->initializedIs(true);
    rig.sim.statusIs(GetParam().operation, {status});
    rig.take();
    sm->doPrepareToDie();
    EXPECT_EQ(rig.lines.size(), 19u) << "status " << status;
  }
}

INSTANTIATE_TEST_SUITE_P(EachCall, TakeDownCallDeathTest, testing::ValuesIn(takeDownCalls));

// The second removal is checked like the first.
TEST(StatusRuleDeathTest, SecondRemovalOfTheQueueCountersIsChecked) {
  Rig rig;
  auto const sm = rig.bringUp();
  rig.sim.statusIs("xpQueueCounterMgr::removeDevice", {0, 5});
  expectAbort([&] { sm->doPrepareToDie(); },
              apiError("((xpQueueCounterMgr::instance()->removeDevice( xpDeviceId )))", 5,
                       "void Kestrel::TableManSm::doPrepareToDie()"));
}

}  // namespace
}  // namespace Kestrel::xpTableManSm
