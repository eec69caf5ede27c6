// What ends the process: each checked call and each manager that is asked for, text by text.
#include "XpLib/XpTableManSmRigTest.h"

namespace Kestrel::xpTableManSm {
namespace {

// One call whose status is looked at.
struct Checked {
  char const* operation;  // of the SDK
  char const* call;       // what the status line says
  char const* signature;  // of the operation that calls
};

void PrintTo(Checked const& checked, std::ostream* out) { *out << checked.operation; }

constexpr Checked checkedCalls[] = {
    {"xpBdMgr[0]::addDevice",
     "((bdMgr->addDevice( deviceId().value(), &bdTblCtx, tblCopyNum, TABLE_INIT_WITH_FIXED_INFO "
     ")))",
     "void Kestrel::TableManSm::doCreateBdTables()"},
    {"xpEgressBdMgr[0]::addDevice",
     "((egressBdMgr->addDevice( deviceId().value(), &egressBdTblCtx, tblCopyNum, "
     "TABLE_INIT_WITH_FIXED_INFO )))",
     "void Kestrel::TableManSm::doCreateBdTables()"},
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
    {"xpControlMacMgr[0]::addDevice", "((controlMacMgr->addDevice( devId, xdkInitType( this ) )))",
     "void Kestrel::TableManSm::doCreateControlMacTable()"},
    {"xpNhMgr[0]::addDevice",
     "((nhMgr->addDevice( devId, &nhTblCtx, nhTblCopyNum, TABLE_INIT_WITH_FIXED_INFO )))",
     "void Kestrel::TableManSm::doCreateNhTables()"},
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
  // Neighbours of the accepted ones, and numbers whose low byte is one of them.
  for (S32 status : {7, 8, 10, 41, 43, 265, 298, -9}) {
    answers(status);
    expectAbort([&] { rig.bringUp(); }, apiError(GetParam().call, status, GetParam().signature));
  }
}

TEST_P(CheckedCallDeathTest, StatusIsASignedNumber) {
  answers(-2147483647 - 1);
  expectAbort([&] { rig.bringUp(); },
              apiError(GetParam().call, -2147483647 - 1, GetParam().signature));
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
    EXPECT_EQ(rig.status->tableContextEntryCount(), 7u);
    auto lines = rig.take();
    std::erase_if(lines, [](auto const& line) { return line.starts_with("gone "); });
    EXPECT_EQ(lines.size(), accepted) << "status " << status;
  }
}

INSTANTIATE_TEST_SUITE_P(EachCheckedCall, CheckedCallDeathTest, testing::ValuesIn(checkedCalls));

// One manager that a platform layer is asked for.
struct Asked {
  char const* manager;
  char const* local;
  char const* signature;
};

void PrintTo(Asked const& asked, std::ostream* out) { *out << asked.manager; }

constexpr Asked askedManagers[] = {
    {"xpBdMgr", "bdMgr", "void Kestrel::TableManSm::doCreateBdTables()"},
    {"xpEgressBdMgr", "egressBdMgr", "void Kestrel::TableManSm::doCreateBdTables()"},
    {"xpFdbMgr", "fdbMgr", "void Kestrel::TableManSm::doCreateFdbTable()"},
    {"xpIpv4RouteMcMgr", "mrouteMgr", "void Kestrel::TableManSm::doCreateRouteMcTable()"},
    {"xpIpv4PIMBiDirRPFMgr", "v4PimMgr", "void Kestrel::TableManSm::doCreatePimTable()"},
    {"xpPortVlanIvifMgr", "portVlanMgr", "void Kestrel::TableManSm::doCreatePortVlanTable()"},
    {"xpMdtMgr", "mdtMgr", "void Kestrel::TableManSm::doCreateMdtTable()"},
    {"xpControlMacMgr", "controlMacMgr", "void Kestrel::TableManSm::doCreateControlMacTable()"},
    {"xpNhMgr", "nhMgr", "void Kestrel::TableManSm::doCreateNhTables()"},
};

class AskedManagerDeathTest : public testing::TestWithParam<Asked> {};

TEST_P(AskedManagerDeathTest, MissingManagerEndsTheProcess) {
  Rig rig;
  rig.sim.managerNullIs(GetParam().manager, true);
  expectAbort([&] { rig.bringUp(); }, assertion(GetParam().local, GetParam().signature));
}

INSTANTIATE_TEST_SUITE_P(EachManager, AskedManagerDeathTest, testing::ValuesIn(askedManagers));

// Whoever catches the abort finds nothing undone.
TEST(TableManSmDeathTest, FailureOfTheEgressHalfLeavesTheIngressTablePublished) {
  Rig rig;
  rig.sim.managerNullIs("xpEgressBdMgr", true);
  rig.sim.callLogIs([](std::string_view line) { fprintf(stderr, "%s\n", line.data()); });
  struct Seen : ChipStatus::NotifieeConst {
    void onTableContextEntry(U32 id) override { fprintf(stderr, "entry %u\n", id); }
  };
  Mox::Ptr<Seen> seen = new Seen;
  seen->notifierIs(rig.status);
  seen->isRegisteredNotifieeIs(true);
  expectAbort([&] { rig.bringUp(); },
              "xpBdMgr[0]::addDevice device=0 table=31 copies=1 mode=1 -> 0\nentry 31\n" +
                  assertion("egressBdMgr", "void Kestrel::TableManSm::doCreateBdTables()"));
}

}  // namespace
}  // namespace Kestrel::xpTableManSm
