// The status rule: each checked call, text by text.
#include "XpLib/XpTableManSmAbortTest.h"

#include <algorithm>
#include <set>

namespace Kestrel::xpTableManSm {
namespace {

constexpr Checked checkedCalls[] = {
    {"xpBdMgr[0]::addDevice",
     "((bdMgr->addDevice( deviceId().value(), &bdTblCtx, tblCopyNum, TABLE_INIT_WITH_FIXED_INFO "
     ")))",
     "void Kestrel::TableManSm::doCreateBdTables()"},
    {"xpEgressBdMgr[0]::addDevice",
     "((egressBdMgr->addDevice( deviceId().value(), &egressBdTblCtx, tblCopyNum, "
     "TABLE_INIT_WITH_FIXED_INFO )))",
     "void Kestrel::TableManSm::doCreateBdTables()"},
    {"aaclL4PortMgr[1]::addDevice",
     "((l4SrcPortMgr->addDevice( deviceId().value(), &l4SrcPortTblCtx, tblCopyNum, "
     "TABLE_INIT_WITH_FIXED_INFO )))",
     "void Kestrel::TableManSm::doCreateL4PortTables()"},
    {"aaclL4PortMgr[2]::addDevice",
     "((l4DstPortMgr->addDevice( deviceId().value(), &l4DstPortTblCtx, tblCopyNum, "
     "TABLE_INIT_WITH_FIXED_INFO )))",
     "void Kestrel::TableManSm::doCreateL4PortTables()"},
    {"xpMgksMgr[0]::addDevice",
     "((mgksMgr->addDevice( deviceId().value(), mgksTblCtxPerIdx, numTblCopies, "
     "TABLE_INIT_WITH_FIXED_INFO )))",
     "void Kestrel::TableManSm::doCreateAaclMgksTables()"},
    {"xpAaclMgTableMgr[0]::addDevice",
     "((mgTableMgr->addDevice( deviceId().value(), tblCtxPerIdx, tblCopyNum, "
     "TABLE_INIT_WITH_FIXED_INFO )))",
     "void Kestrel::TableManSm::doCreateAaclMgTables()"},
    {"xpTunnelInfoMgr[0]::addDevice",
     "((tunInfoMgr->addDevice( deviceId().value(), &tunInfoTblCtx, tunInfoTblCopyNum, "
     "TABLE_INIT_WITH_FIXED_INFO )))",
     "void Kestrel::TableManSm::doCreateTunnelTables()"},
    {"xpTunnelIvifMgr[0]::addDevice",
     "((tunIvifMgr->addDevice( deviceId().value(), tnlTblCtxPerIdx, tunIvifTblCopyNum, "
     "TABLE_INIT_WITH_FIXED_INFO )))",
     "void Kestrel::TableManSm::doCreateTunnelTables()"},
    {"xpIpXformMgr[1]::addDevice",
     "((sipXformMgr->addDevice( deviceId().value(), &sipXformTblCtx, tblCopyNum, "
     "TABLE_INIT_WITH_FIXED_INFO )))",
     "void Kestrel::TableManSm::doCreateIpXformTables()"},
    {"xpIpXformMgr[2]::addDevice",
     "((dipXformMgr->addDevice( deviceId().value(), &dipXformTblCtx, tblCopyNum, "
     "TABLE_INIT_WITH_FIXED_INFO )))",
     "void Kestrel::TableManSm::doCreateIpXformTables()"},
    {"xpFdbMgr[0]::addDevice",
     "((fdbMgr->addDevice( devId, &fdbTblCtx, tblCopyNum, TABLE_INIT_WITH_FIXED_INFO )))",
     "void Kestrel::TableManSm::doCreateFdbTable()"},
    {"xpIpv4RouteMcMgr[0]::addDevice",
     "((mrouteMgr->addDevice( devId, &mrouteTblCtx, tblCopyNum, TABLE_INIT_WITH_FIXED_INFO )))",
     "void Kestrel::TableManSm::doCreateRouteMcTable()"},
    {"xpIpv4PIMBiDirRPFMgr[0]::addDevice",
     "((v4PimMgr->addDevice( devId, &v4PimTblCtx, v4TblCopyNum, TABLE_INIT_WITH_FIXED_INFO )))",
     "void Kestrel::TableManSm::doCreatePimTable()"},
    {"xpPortVlanIvifMgr[0]::addDevice",
     "((portVlanMgr->addDevice( devId, &portVlanTblCtx, tblCopyNum, TABLE_INIT_WITH_FIXED_INFO )))",
     "void Kestrel::TableManSm::doCreatePortVlanTable()"},
    {"xpMdtMgr[0]::addDevice",
     "((mdtMgr->addDevice( devId, &mdtTblCtx, tblCopyNum, TABLE_INIT_WITH_FIXED_INFO )))",
     "void Kestrel::TableManSm::doCreateMdtTable()"},
    {"xpHdrModificationMgr[0]::addDevice",
     "((hdrModMgr->addDevice( devId, tblCtxPerIdx, tblCopyNum, TABLE_INIT_WITH_FIXED_INFO )))",
     "void Kestrel::TableManSm::doCreateHeaderModTables()"},
    {"xpHdrModificationMgr[0]::loadDefaultValue", "((hdrModMgr->loadDefaultValue( devId )))",
     "void Kestrel::TableManSm::doCreateHeaderModTables()"},
    {"xpVifMgr[0]::addDevice",
     "((vifMgr->addDevice( deviceId().value(), tblCtxPerIdx, tblCopyNum, "
     "TABLE_INIT_WITH_FIXED_INFO )))",
     "void Kestrel::TableManSm::doCreateVifTables()"},
    {"xpVifMgr[0]::writeEntry",
     "((vifMgr->writeEntry( deviceId().value(), nullPortVifId, XP_INGRESS, &vifEntry)))",
     "void Kestrel::TableManSm::doCreateVifTables()"},
    {"xpControlMacMgr[0]::addDevice", "((controlMacMgr->addDevice( devId, xdkInitType( this ) )))",
     "void Kestrel::TableManSm::doCreateControlMacTable()"},
    {"xpIpRouteLpmMgr[1]::addDevice",
     "((v4LpmMgr->addDevice( devId, &v4TblCtx, v4TblCopyNum, TABLE_INIT_WITH_FIXED_INFO )))",
     "void Kestrel::TableManSm::doCreateLpmTables()"},
    {"xpIpRouteLpmMgr[0]::addDevice",
     "((v6LpmMgr->addDevice( devId, &v6TblCtx, v6TblCopyNum, TABLE_INIT_WITH_FIXED_INFO )))",
     "void Kestrel::TableManSm::doCreateLpmTables()"},
    {"xpNhMgr[0]::addDevice",
     "((nhMgr->addDevice( devId, &nhTblCtx, nhTblCopyNum, TABLE_INIT_WITH_FIXED_INFO )))",
     "void Kestrel::TableManSm::doCreateNhTables()"},
    {"xpIpv4HostMgr[0]::addDevice",
     "((v4HostMgr->addDevice( devId, &v4HostTblCtx, v4TblCopyNum, TABLE_INIT_WITH_FIXED_INFO )))",
     "void Kestrel::TableManSm::doCreateHostTables()"},
    {"xpIpv6HostMgr[0]::addDevice",
     "((v6HostMgr->addDevice( devId, &v6HostTblCtx, v6TblCopyNum, TABLE_INIT_WITH_FIXED_INFO )))",
     "void Kestrel::TableManSm::doCreateHostTables()"},
    {"xpAqmMgr::init", "((xpAqmMgr::instance()->init()))",
     "void Kestrel::TableManSm::doCreateQosTables()"},
    {"xpAqmMgr::addDevice",
     "((xpAqmMgr::instance()->addDevice( xpDeviceId, xdkInitType( this ) )))",
     "void Kestrel::TableManSm::doCreateQosTables()"},
    {"xpLanzMgr::init", "((xpLanzMgr::instance()->init()))",
     "void Kestrel::TableManSm::doCreateQosTables()"},
    {"xpLanzMgr::addDevice",
     "((xpLanzMgr::instance()->addDevice( xpDeviceId, xdkInitType( this ) )))",
     "void Kestrel::TableManSm::doCreateQosTables()"},
    {"xpQueueCounterMgr::init", "((xpQueueCounterMgr::instance()->init()))",
     "void Kestrel::TableManSm::doCreateQosTables()"},
    {"xpQueueCounterMgr::addDevice",
     "((xpQueueCounterMgr::instance()->addDevice( xpDeviceId, xdkInitType( this ) )))",
     "void Kestrel::TableManSm::doCreateQosTables()"},
    {"xpPortIngressQosMgr::init", "((xpPortIngressQosMgr::instance()->init()))",
     "void Kestrel::TableManSm::doCreateQosTables()"},
    {"xpPortIngressQosMgr::addDevice",
     "((xpPortIngressQosMgr::instance()->addDevice( xpDeviceId, xdkInitType( this ) )))",
     "void Kestrel::TableManSm::doCreateQosTables()"},
    {"xpSchedulerMgr::init", "((xpSchedulerMgr::instance()->init()))",
     "void Kestrel::TableManSm::doCreateQosTables()"},
    {"xpSchedulerMgr::addDevice",
     "((xpSchedulerMgr::instance()->addDevice( xpDeviceId, xdkInitType( this ) )))",
     "void Kestrel::TableManSm::doCreateQosTables()"},
    {"xpShaperMgr::init", "((xpShaperMgr::instance()->init()))",
     "void Kestrel::TableManSm::doCreateQosTables()"},
    {"xpShaperMgr::addDevice",
     "((xpShaperMgr::instance()->addDevice( xpDeviceId, xdkInitType( this ) )))",
     "void Kestrel::TableManSm::doCreateQosTables()"},
    {"xpCpuStormControlMgr::init", "((xpCpuStormControlMgr::instance()->init()))",
     "void Kestrel::TableManSm::doCreateQosTables()"},
    {"xpCpuStormControlMgr::addDevice",
     "((xpCpuStormControlMgr::instance()->addDevice( xpDeviceId, xdkInitType( this ) )))",
     "void Kestrel::TableManSm::doCreateQosTables()"},
    {"xpEgressQosMapMgr::init", "((xpEgressQosMapMgr::instance()->init()))",
     "void Kestrel::TableManSm::doCreateQosTables()"},
    {"xpEgressQosMapMgr::addDevice",
     "((xpEgressQosMapMgr::instance()->addDevice( xpDeviceId, xdkInitType( this ) )))",
     "void Kestrel::TableManSm::doCreateQosTables()"},
    {"xpPolicerMgr::init", "((xpPolicerMgr::instance()->init()))",
     "void Kestrel::TableManSm::doCreateQosTables()"},
    {"xpPolicerMgr::addDevice",
     "((xpPolicerMgr::instance()->addDevice( xpDeviceId, xdkInitType( this ) )))",
     "void Kestrel::TableManSm::doCreateQosTables()"},
    {"xpControlPlanePolicingMgr::init", "((xpControlPlanePolicingMgr::instance()->init()))",
     "void Kestrel::TableManSm::doCreateQosTables()"},
    {"xpControlPlanePolicingMgr::addDevice",
     "((xpControlPlanePolicingMgr::instance()->addDevice( xpDeviceId, xdkInitType( this ) )))",
     "void Kestrel::TableManSm::doCreateQosTables()"},
    {"xpFlowControlMgr::init", "((xpFlowControlMgr::instance()->init()))",
     "void Kestrel::TableManSm::doCreateQosTables()"},
    {"xpFlowControlMgr::addDevice",
     "((xpFlowControlMgr::instance()->addDevice( xpDeviceId, xdkInitType( this ) )))",
     "void Kestrel::TableManSm::doCreateQosTables()"},
    {"xpIaclMgr[0]::addDevice", "((iaclMgr->addDevice( deviceId().value() )))",
     "void Kestrel::TableManSm::doCreateIAclTables()"},
    {"xpIaclMgr[0]::createTable",
     "((iaclMgr->createTable( deviceId().value(), tblCtxPerIdx, numTblCopies, "
     "TABLE_INIT_WITH_FIXED_INFO )))",
     "void Kestrel::TableManSm::doCreateIAclTables()"},
    {"xpEgressAclMgr::addDevice",
     "((eaclMgr->addDevice( deviceId().value(), xdkInitType( this ) )))",
     "bool Kestrel::TableManSm::doVerifyOrCreateTables(bool)"},
};

class CheckedCallDeathTest : public testing::TestWithParam<Checked> {
 protected:
  Rig rig;

  void answers(S32 status) { rig.sim.statusIs(GetParam().operation, {status}); }
};

TEST_P(CheckedCallDeathTest, OtherStatusEndsTheProcess) {
  answers(1);
  expectAbort([&] { rig.bringUp(); }, apiError(GetParam().call, 1, GetParam().signature));
}

TEST_P(CheckedCallDeathTest, NineAndFortyTwoAreAccepted) {
  rig.bringUp();
  auto const accepted = rig.take().size();
  for (S32 status : {9, 42}) {
    answers(status);
    testing::internal::CaptureStderr();
    testing::internal::CaptureStdout();
    rig.bringUp();
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "");
    EXPECT_EQ(rig.status->tableContextEntryCount(), 46u);
    auto lines = rig.take();
    std::erase_if(lines, [](auto const& line) { return line.starts_with("gone "); });
    EXPECT_EQ(lines.size(), accepted) << "status " << status;
  }
}

// One rule judges all calls, so one call shows its bounds.
TEST(StatusRuleDeathTest, AcceptsNothingBesideZeroNineAndFortyTwo) {
  Rig rig;
  // Neighbours of the accepted ones, numbers whose low byte is one of them, and the lowest of all.
  for (S32 status : {-1, 1, 7, 8, 10, 41, 43, 265, 298, -9, -2147483647 - 1}) {
    rig.sim.statusIs("xpFdbMgr[0]::addDevice", {status});
    expectAbort(
        [&] { rig.bringUp(); },
        apiError(
            "((fdbMgr->addDevice( devId, &fdbTblCtx, tblCopyNum, TABLE_INIT_WITH_FIXED_INFO )))",
            status, "void Kestrel::TableManSm::doCreateFdbTable()"));
  }
}

// Statuses of the other calls stop nothing: the five of the static managers and one `init`.
TEST(StatusRuleTest, AllOtherCallsAreUnchecked) {
  std::set<std::string> checked;
  for (Checked const& row : checkedCalls) checked.insert(row.operation);
  EXPECT_EQ(checked.size(), 50u);

  Lines all;
  {
    Rig rig;
    rig.bringUp();
    all = rig.lines;
  }
  Lines unchecked;
  for (std::string const& line : all) {
    std::string const operation = line.substr(0, line.find(' '));
    if (operation != "entry" && !checked.contains(operation)) unchecked.push_back(operation);
  }
  EXPECT_EQ(unchecked, (Lines{"xpPortConfigMgr[0]::addDevice", "xpAcmBankMgr[0]::addDevice",
                              "xpAcmRsltMgr[0]::addDevice", "xpEgressFilterMgr[0]::addDevice",
                              "xpTrunkResolutionMgr[0]::addDevice", "xpEgressAclMgr::init"}));
  for (std::string const& operation : unchecked) {
    Rig rig;
    rig.sim.statusIs(operation, {5});
    testing::internal::CaptureStderr();
    rig.bringUp();
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
    EXPECT_EQ(rig.lines.size(), all.size()) << operation;
  }
}

// Fewer calls are made in the other modes, and none of them goes unchecked for it.
TEST(StatusRuleTest, FortyTwoCallsAreCheckedInOtherModes) {
  auto profile = fullProfile();
  profile.ldePipeMode = 2;
  Rig rig(profile);
  rig.bringUp();
  EXPECT_EQ(std::ranges::count_if(checkedCalls,
                                  [&rig](Checked const& row) {
                                    std::string const call = std::string(row.operation) + ' ';
                                    return std::ranges::any_of(rig.lines, [&](auto const& line) {
                                      return line.starts_with(call);
                                    });
                                  }),
            42);
}

INSTANTIATE_TEST_SUITE_P(EachCheckedCall, CheckedCallDeathTest, testing::ValuesIn(checkedCalls));

}  // namespace
}  // namespace Kestrel::xpTableManSm
