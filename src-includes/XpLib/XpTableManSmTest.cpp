// The order of the bring-up, again and after a broken one.
#include "XpLib/XpTableManSm.h"
#include "XpLib/XpTableManSmAbortTest.h"

#include <stdexcept>

namespace Kestrel::xpTableManSm {
namespace {

Lines const firstCalls = {
    "xpPortConfigMgr[0]::addDevice device=0 init=1 -> 0",
    "xpAcmBankMgr[0]::addDevice device=0 init=1 -> 0",
    "xpAcmRsltMgr[0]::addDevice device=0 init=1 -> 0",
    "xpEgressFilterMgr[0]::addDevice device=0 init=1 -> 0",
    "xpTrunkResolutionMgr[0]::addDevice device=0 init=1 -> 0",
    "xpBdMgr[0]::addDevice device=0 table=31 copies=1 mode=1 -> 0",
    "entry 31 INGRESS_BD",
    "xpEgressBdMgr[0]::addDevice device=0 table=32 copies=1 mode=1 -> 0",
    "entry 32 EGRESS_BD",
};

Lines const callsOfPipeModeThree = {
    "aaclL4PortMgr[1]::addDevice device=0 table=33 copies=1 mode=1 -> 0",
    "entry 33 AACL_SRC_PORT",
    "aaclL4PortMgr[2]::addDevice device=0 table=34 copies=1 mode=1 -> 0",
    "entry 34 AACL_DST_PORT",
    "xpMgksMgr[0]::addDevice device=0 list=0:53/0/0,1:54/0/0,2:55/0/0,3:56/0/0,4:57/0/0,"
    "5:58/0/0,6:59/0/0 copies=1 mode=1 -> 0",
    "entry 53 AACL_MGKS_0",
    "entry 54 AACL_MGKS_1",
    "entry 55 AACL_MGKS_2",
    "entry 56 AACL_MGKS_3",
    "entry 57 AACL_MGKS_4",
    "entry 58 AACL_MGKS_5",
    "entry 59 AACL_MGKS_6",
    "xpAaclMgTableMgr[0]::addDevice device=0 list=0:36/0/0,1:37/0/0,2:38/0/0,3:39/0/0,"
    "4:40/0/0,5:41/0/0 copies=1 mode=1 -> 0",
    "entry 36 AACL_MG_0",
    "entry 37 AACL_MG_1",
    "entry 38 AACL_MG_2",
    "entry 39 AACL_MG_3",
    "entry 40 AACL_MG_4",
    "entry 41 AACL_MG_5",
    "xpTunnelInfoMgr[0]::addDevice device=0 table=35 copies=1 mode=1 -> 0",
    "entry 35 TUNNEL_INFO",
    "entry 2 TNL_IVIF",
    "entry 12 LOCAL_VTEP",
    "entry 13 VNI",
    "xpTunnelIvifMgr[0]::addDevice device=0 list=0:2/1/0,1:12/1/2,"
    "2:13/1/3 copies=1 mode=1 -> 0",
    "xpIpXformMgr[1]::addDevice device=0 table=60 copies=1 mode=1 -> 0",
    "entry 60 SIP_XFORM",
    "xpIpXformMgr[2]::addDevice device=0 table=61 copies=1 mode=1 -> 0",
    "entry 61 DIP_XFORM",
};

Lines const lastCalls = {
    "xpFdbMgr[0]::addDevice device=0 table=0 copies=1 mode=1 -> 0",
    "entry 0 FDB",
    "xpIpv4RouteMcMgr[0]::addDevice device=0 table=8 copies=1 mode=1 -> 0",
    "entry 8 IPV4_ROUTEMC",
    "xpIpv4PIMBiDirRPFMgr[0]::addDevice device=0 table=10 copies=1 mode=1 -> 0",
    "xpPortVlanIvifMgr[0]::addDevice device=0 table=1 copies=1 mode=1 -> 0",
    "entry 1 PORTVLAN_IVIF",
    "xpMdtMgr[0]::addDevice device=0 table=30 copies=1 mode=1 -> 0",
    "entry 30 MDT",
    "xpHdrModificationMgr[0]::addDevice device=0 list=0:27/0/0,1:28/0/0,"
    "2:29/0/0 copies=1 mode=1 -> 0",
    "xpHdrModificationMgr[0]::loadDefaultValue device=0 -> 0",
    "entry 27 INS0_128",
    "entry 28 INS1_128",
    "entry 29 INS2_128",
    "xpVifMgr[0]::addDevice device=0 list=0:19/0/0,1:20/0/0,2:21/0/0,3:22/0/0,4:23/0/0,"
    "5:24/0/0,6:25/0/0,7:26/0/0 copies=1 mode=1 -> 0",
    "entry 19 VIF_TBL_0",
    "entry 20 VIF_TBL_1",
    "entry 21 VIF_TBL_2",
    "entry 22 VIF_TBL_3",
    "entry 23 VIF_TBL_4",
    "entry 24 VIF_TBL_5",
    "entry 25 VIF_TBL_6",
    "entry 26 VIF_TBL_7",
    "xpVifMgr[0]::writeEntry device=0 vif=7 direction=1 -> 0",
    "xpControlMacMgr[0]::addDevice device=0 init=1 -> 0",
    "xpIpRouteLpmMgr[1]::addDevice device=0 table=50 copies=1 mode=1 -> 0",
    "xpIpRouteLpmMgr[0]::addDevice device=0 table=51 copies=1 mode=1 -> 0",
    "entry 50 LPM_IPV4",
    "entry 51 LPM_IPV6",
    "xpNhMgr[0]::addDevice device=0 table=52 copies=1 mode=1 -> 0",
    "entry 52 NEXTHOP",
    "xpIpv4HostMgr[0]::addDevice device=0 table=4 copies=1 mode=1 -> 0",
    "xpIpv6HostMgr[0]::addDevice device=0 table=5 copies=1 mode=1 -> 0",
    "entry 4 IPV4_HOST",
    "entry 5 IPV6_HOST",
    "xpAqmMgr::init -> 0",
    "xpAqmMgr::addDevice device=0 init=1 -> 0",
    "xpLanzMgr::init -> 0",
    "xpLanzMgr::addDevice device=0 init=1 -> 0",
    "xpQueueCounterMgr::init -> 0",
    "xpQueueCounterMgr::addDevice device=0 init=1 -> 0",
    "xpPortIngressQosMgr::init -> 0",
    "xpPortIngressQosMgr::addDevice device=0 init=1 -> 0",
    "xpSchedulerMgr::init -> 0",
    "xpSchedulerMgr::addDevice device=0 init=1 -> 0",
    "xpShaperMgr::init -> 0",
    "xpShaperMgr::addDevice device=0 init=1 -> 0",
    "xpCpuStormControlMgr::init -> 0",
    "xpCpuStormControlMgr::addDevice device=0 init=1 -> 0",
    "xpEgressQosMapMgr::init -> 0",
    "xpEgressQosMapMgr::addDevice device=0 init=1 -> 0",
    "xpPolicerMgr::init -> 0",
    "xpPolicerMgr::addDevice device=0 init=1 -> 0",
    "xpControlPlanePolicingMgr::init -> 0",
    "xpControlPlanePolicingMgr::addDevice device=0 init=1 -> 0",
    "xpFlowControlMgr::init -> 0",
    "xpFlowControlMgr::addDevice device=0 init=1 -> 0",
    "xpIaclMgr[0]::addDevice device=0 -> 0",
    "xpIaclMgr[0]::createTable device=0 list=0:42/0/0,1:43/0/0,2:44/0/0 copies=1 mode=1 -> 0",
    "entry 42 IACL0",
    "entry 43 IACL1",
    "entry 44 IACL2",
    "xpEgressAclMgr::init -> 0",
    "xpEgressAclMgr::addDevice device=0 init=1 -> 0",
};

Lines operator+(Lines front, Lines const& back) {
  front.insert(front.end(), back.begin(), back.end());
  return front;
}

Lines const coldBringUp = firstCalls + callsOfPipeModeThree + lastCalls;

Lines with(Lines lines, std::string const& from, std::string const& to) {
  for (std::string& line : lines) {
    std::size_t const at = line.find(from);
    if (at != line.npos) line.replace(at, from.size(), to);
  }
  return lines;
}

TEST(TableManSmTest, BringUpCreatesAndPublishesInItsOrder) {
  Rig rig;
  rig.bringUp();
  EXPECT_EQ(rig.lines, coldBringUp);
}

TEST(TableManSmTest, WarmStartDiffersInTheInitTypeAlone) {
  auto profile = fullProfile();
  profile.coldStartNeeded = false;
  Rig rig(profile);
  rig.bringUp();
  EXPECT_EQ(rig.lines, with(coldBringUp, "init=1", "init=2"));
}

TEST(TableManSmTest, PipeModeOtherThanThreeLeavesItsTablesAbsent) {
  for (U32 mode : {0u, 1u, 2u, 4u}) {
    auto profile = fullProfile();
    profile.ldePipeMode = mode;
    Rig rig(profile);
    rig.bringUp();
    EXPECT_EQ(rig.lines, firstCalls + lastCalls);
  }
}

TEST(TableManSmTest, EachCallNamesTheDevice) {
  auto profile = fullProfile();
  profile.deviceId = 31;
  Rig rig(profile);
  rig.deviceId = 31;
  rig.bringUp();
  EXPECT_EQ(rig.lines, with(coldBringUp, "device=0", "device=31"));
}

TEST(TableManSmTest, BringUpLeavesTheManagerRunning) {
  Rig rig;
  auto const sm = rig.bringUp();
  EXPECT_TRUE(sm->initialized());
  EXPECT_EQ(sm->tableProfile(), &rig.sim.tableProfile());
  EXPECT_EQ(sm->deviceId(), 0);
  EXPECT_EQ(sm->chipStatus(), rig.status);
  EXPECT_EQ(sm->lpmTreadCfg(), rig.lpmTreadCfg);
  EXPECT_EQ(sm->ldePipeMode(), XpXdk::xpDeviceLdePipeMode3);
  EXPECT_TRUE(sm->coldStartNeeded());
}

TEST(TableManSmTest, BringUpOfTheBuiltInDevice) {
  Rig rig(xdksim::defaultProfile());
  rig.bringUp();
  EXPECT_EQ(rig.lines.back(), coldBringUp.back());
  for (auto entry = rig.status->tableContextEntryIteratorConst(); entry; ++entry)
    EXPECT_GT(entry.value()->tblCopyNum(), 0u) << entry.key();
  EXPECT_EQ(rig.status->tableContextEntryCount(), 46u);
}

TEST(TableManSmTest, InitializedIsSetBeforeAnyTableExists) {
  Rig rig;
  auto const sm = rig.bringUp();
  sm->initializedIs(false);
  rig.sim.callLogIs([&](std::string_view) {
    EXPECT_TRUE(sm->initialized());
    EXPECT_TRUE(sm->tableProfile());
  });
  sm->handleInitialized();
}

TEST(TableManSmTest, ProfileAndFlagArePlainStores) {
  Rig rig;
  auto const sm = rig.bringUp();
  rig.take();
  sm->tableProfileIs(nullptr);
  sm->initializedIs(false);
  EXPECT_EQ(sm->tableProfile(), nullptr);
  EXPECT_FALSE(sm->initialized());
  EXPECT_EQ(rig.lines, Lines());
}

TEST(TableManSmTest, WarmRestartTouchesNothing) {
  Rig rig;
  auto const sm = rig.bringUp();
  rig.take();
  EXPECT_TRUE(sm->doVerifyOrCreateTables(true));
  EXPECT_EQ(rig.lines, Lines());
  EXPECT_EQ(rig.status->tableContextEntryCount(), 46u);
}

TEST(TableManSmTest, CreationAnswersTrue) {
  Rig rig;
  EXPECT_TRUE(rig.bringUp()->doVerifyOrCreateTables(false));
}

TEST(TableManSmTest, HandleInitializedDoesAllItsWorkAgain) {
  Rig rig(bareProfile());
  auto const sm = rig.bringUp();
  auto const first = rig.take();
  sm->handleInitialized();
  Lines const gone = {"gone 36", "gone 52", "gone 50", "gone 19", "gone 51"};
  EXPECT_EQ(rig.lines, gone + first);
}

TEST(TableManSmTest, EntriesOfAnEarlierBringUpAreGone) {
  Rig rig;
  auto const first = rig.bringUp();
  rig.sdkContext<xpTableContext>(30)->first = -1;
  rig.take();
  auto const second = rig.bringUp();
  EXPECT_EQ(rig.entry(30), nullptr);
  EXPECT_EQ(rig.status->tableContextEntryCount(), 45u);
  EXPECT_EQ(std::count(rig.lines.begin(), rig.lines.end(), "gone 30"), 1);
}

TEST(TableManSmTest, EntriesOfAnEarlierBringUpArePublishedAnew) {
  Rig rig;
  rig.bringUp();
  auto const former = rig.entry(31);
  rig.bringUp();
  EXPECT_NE(rig.entry(31), former);
  EXPECT_EQ(rig.entry(31)->tableName(), "INGRESS_BD");
}

TEST(TableManSmTest, StatusOfEgressAclInitIsNotLookedAt) {
  for (S32 status : {-1, 1, 7}) {
    Rig rig;
    rig.sim.statusIs("xpEgressAclMgr::init", {status});
    rig.bringUp();
    EXPECT_EQ(rig.lines.back(), coldBringUp.back());
  }
}

TEST(TableManSmTest, MissingProfileEndsTheProcess) {
  Rig rig;
  rig.sim.tableProfileNullIs(0, true);
  expectAbort([&] { rig.bringUp(); },
              assertion("tableProfile()", "void Kestrel::TableManSm::handleInitialized()"));
}

TEST(TableManSmTest, EntriesOutliveTheManager) {
  Rig rig;
  rig.bringUp();
  EXPECT_EQ(rig.status->tableContextEntryCount(), 46u);
}

// The sanitizer's leak check tells whether the storage is freed.
TEST(TableManSmTest, ExceptionOfTheConstructorPassesOnAndLetsGoOfAll) {
  Rig rig;
  auto const held = rig.status->references();
  rig.sim.callLogIs([](std::string_view) { throw std::runtime_error("from the SDK"); });
  EXPECT_THROW(rig.bringUp(), std::runtime_error);
  EXPECT_EQ(rig.status->references(), held);
}

// A failed bring-up is followed by another, on the same chip and status.
TEST(TableManSmTest, BringUpAfterABrokenOne) {
  Rig rig;
  rig.sim.callLogIs([](std::string_view) { throw std::runtime_error("from the SDK"); });
  EXPECT_THROW(rig.bringUp(), std::runtime_error);
  rig.sim.callLogIs([&rig](std::string_view line) { rig.lines.emplace_back(line); });
  rig.bringUp();
  EXPECT_EQ(rig.lines, coldBringUp);
}

}  // namespace
}  // namespace Kestrel::xpTableManSm
