// Managers that are missing: each that is asked for, and when.
#include "XpLib/XpTableManSmAbortTest.h"

namespace Kestrel::xpTableManSm {
namespace {

// One manager that a platform layer is asked for.
struct Asked {
  char const* manager;
  char const* local;
  char const* signature;
};

void PrintTo(Asked const& asked, std::ostream* out) { *out << asked.manager; }

constexpr Asked askedManagers[] = {
    {"xpPortConfigMgr", "portConfigMgr", "void Kestrel::TableManSm::doCreateStaticTables()"},
    {"xpAcmBankMgr", "acmBankMgr", "void Kestrel::TableManSm::doCreateStaticTables()"},
    {"xpAcmRsltMgr", "acmRsltMgr", "void Kestrel::TableManSm::doCreateStaticTables()"},
    {"xpEgressFilterMgr", "egressFilterMgr", "void Kestrel::TableManSm::doCreateStaticTables()"},
    {"xpTrunkResolutionMgr", "trunkResolutionMgr",
     "void Kestrel::TableManSm::doCreateStaticTables()"},
    {"xpBdMgr", "bdMgr", "void Kestrel::TableManSm::doCreateBdTables()"},
    {"xpEgressBdMgr", "egressBdMgr", "void Kestrel::TableManSm::doCreateBdTables()"},
    {"aaclL4PortMgr[1]", "l4SrcPortMgr", "void Kestrel::TableManSm::doCreateL4PortTables()"},
    {"aaclL4PortMgr[2]", "l4DstPortMgr", "void Kestrel::TableManSm::doCreateL4PortTables()"},
    {"xpMgksMgr", "mgksMgr", "void Kestrel::TableManSm::doCreateAaclMgksTables()"},
    {"xpAaclMgTableMgr", "mgTableMgr", "void Kestrel::TableManSm::doCreateAaclMgTables()"},
    {"xpTunnelInfoMgr", "tunInfoMgr", "void Kestrel::TableManSm::doCreateTunnelTables()"},
    {"xpTunnelIvifMgr", "tunIvifMgr", "void Kestrel::TableManSm::doCreateTunnelTables()"},
    {"xpIpXformMgr[1]", "sipXformMgr", "void Kestrel::TableManSm::doCreateIpXformTables()"},
    {"xpIpXformMgr[2]", "dipXformMgr", "void Kestrel::TableManSm::doCreateIpXformTables()"},
    {"xpFdbMgr", "fdbMgr", "void Kestrel::TableManSm::doCreateFdbTable()"},
    {"xpIpv4RouteMcMgr", "mrouteMgr", "void Kestrel::TableManSm::doCreateRouteMcTable()"},
    {"xpIpv4PIMBiDirRPFMgr", "v4PimMgr", "void Kestrel::TableManSm::doCreatePimTable()"},
    {"xpPortVlanIvifMgr", "portVlanMgr", "void Kestrel::TableManSm::doCreatePortVlanTable()"},
    {"xpMdtMgr", "mdtMgr", "void Kestrel::TableManSm::doCreateMdtTable()"},
    {"xpHdrModificationMgr", "hdrModMgr", "void Kestrel::TableManSm::doCreateHeaderModTables()"},
    {"xpVifMgr", "vifMgr", "void Kestrel::TableManSm::doCreateVifTables()"},
    {"xpControlMacMgr", "controlMacMgr", "void Kestrel::TableManSm::doCreateControlMacTable()"},
    {"xpIpRouteLpmMgr[1]", "v4LpmMgr", "void Kestrel::TableManSm::doCreateLpmTables()"},
    {"xpIpRouteLpmMgr[0]", "v6LpmMgr", "void Kestrel::TableManSm::doCreateLpmTables()"},
    {"xpNhMgr", "nhMgr", "void Kestrel::TableManSm::doCreateNhTables()"},
    {"xpIpv4HostMgr", "v4HostMgr", "void Kestrel::TableManSm::doCreateHostTables()"},
    {"xpIpv6HostMgr", "v6HostMgr", "void Kestrel::TableManSm::doCreateHostTables()"},
    {"xpIaclMgr", "iaclMgr", "void Kestrel::TableManSm::doCreateIAclTables()"},
};

class AskedManagerDeathTest : public testing::TestWithParam<Asked> {};

TEST_P(AskedManagerDeathTest, MissingManagerEndsTheProcess) {
  Rig rig;
  rig.sim.managerNullIs(GetParam().manager, true);
  expectAbort([&] { rig.bringUp(); }, assertion(GetParam().local, GetParam().signature));
}

INSTANTIATE_TEST_SUITE_P(EachManager, AskedManagerDeathTest, testing::ValuesIn(askedManagers));

// The last call that the SDK's history tells where a manager is missing.
void expectLastCall(char const* missing, std::string const& call) {
  Rig rig;
  rig.sim.managerNullIs(missing, true);
  EXPECT_EXIT(rig.bringUp(), testing::KilledBySignal(SIGABRT), testing::EndsWith(call + '\n'))
      << missing;
}

TEST(MissingManagerDeathTest, SecondOfAPairIsAskedForBehindTheFirst) {
  expectLastCall("xpIpRouteLpmMgr[0]",
                 "xpIpRouteLpmMgr[1]::addDevice device=0 table=50 copies=1 mode=1 -> 0");
  expectLastCall("xpIpv6HostMgr",
                 "xpIpv4HostMgr[0]::addDevice device=0 table=4 copies=1 mode=1 -> 0");
  expectLastCall("xpTunnelIvifMgr",
                 "xpTunnelInfoMgr[0]::addDevice device=0 table=35 copies=1 mode=1 -> 0");
  expectLastCall("xpIpXformMgr[2]",
                 "xpIpXformMgr[1]::addDevice device=0 table=60 copies=1 mode=1 -> 0");
  expectLastCall("aaclL4PortMgr[2]",
                 "aaclL4PortMgr[1]::addDevice device=0 table=33 copies=1 mode=1 -> 0");
  expectLastCall("xpAcmBankMgr", "xpPortConfigMgr[0]::addDevice device=0 init=1 -> 0");
}

// Index 1 is asked for first, and leaves entry 0 zero: there is no manager of that id.
TEST(MissingManagerDeathTest, PrefixManagersThatTheSdkHasNotNumbered) {
  std::string const expected =
      assertion("v6LpmMgr", "void Kestrel::TableManSm::doCreateLpmTables()");
  {
    Rig rig;
    auto const sm = rig.bringUp();
    rig.sim.idsDelAll("xpIpRouteLpmMgr");
    expectAbort([&] { sm->doCreateLpmTables(); }, expected);
  }
  Rig rig;
  rig.sim.idsDelAll("xpIpRouteLpmMgr");
  expectAbort([&] { rig.bringUp(); }, expected);
}

TEST(MissingManagerDeathTest, ComesBeforeAMissingTable) {
  struct Row {
    char const* manager;
    U32 tableId;
    char const* local;
  };
  for (Row const row :
       {Row{"xpIpRouteLpmMgr[1]", 50, "v4LpmMgr"}, {"xpIpRouteLpmMgr[0]", 51, "v6LpmMgr"}}) {
    auto profile = fullProfile();
    profile.tables.erase(row.tableId);
    Rig rig(profile);
    rig.sim.managerNullIs(row.manager, true);
    expectAbort([&] { rig.bringUp(); },
                assertion(row.local, "void Kestrel::TableManSm::doCreateLpmTables()"));
  }
}

TEST(MissingManagerDeathTest, ComesBeforeTheCopiesOfAGroup) {
  struct Row {
    char const* manager;
    U32 firstId;
    char const* local;
    char const* signature;
  };
  for (Row const row :
       {Row{"xpAaclMgTableMgr", 36, "mgTableMgr",
            "void Kestrel::TableManSm::doCreateAaclMgTables()"},
        {"xpVifMgr", 19, "vifMgr", "void Kestrel::TableManSm::doCreateVifTables()"}}) {
    Rig rig(withCopies(row.firstId, {3}));
    rig.sim.managerNullIs(row.manager, true);
    expectAbort([&] { rig.bringUp(); }, assertion(row.local, row.signature));
  }
}

// Whoever catches the abort finds nothing undone.
TEST(TableManSmDeathTest, FailureOfTheEgressHalfLeavesTheIngressTablePublished) {
  Rig rig;
  auto const sm = rig.bringUp();
  rig.status->tableContextEntryDelAll();
  rig.sim.managerNullIs("xpEgressBdMgr", true);
  rig.sim.callLogIs([](std::string_view line) { fprintf(stderr, "%s\n", line.data()); });
  struct Seen : ChipStatus::NotifieeConst {
    void onTableContextEntry(U32 id) override { fprintf(stderr, "entry %u\n", id); }
  };
  Mox::Ptr<Seen> seen = new Seen;
  seen->notifierIs(rig.status);
  seen->isRegisteredNotifieeIs(true);
  expectAbort([&] { sm->doCreateBdTables(); },
              "xpBdMgr[0]::addDevice device=0 table=31 copies=1 mode=1 -> 0\nentry 31\n" +
                  assertion("egressBdMgr", "void Kestrel::TableManSm::doCreateBdTables()"));
}

}  // namespace
}  // namespace Kestrel::xpTableManSm
