// The tables of the packet path: what goes into each list, with how many copies, and in what order
// it is published.
#include "XpLib/XpTableManSmAbortTest.h"

namespace Kestrel::xpTableManSm {
namespace {

using testing::Contains;

std::string const vifSignature = "void Kestrel::TableManSm::doCreateVifTables()";

// Tunnels.

// The entries stand before the manager gets the tables.
TEST(TunnelTablesTest, SeparateTablesArePublishedBeforeTheManagerGetsThem) {
  Rig rig;
  EXPECT_EQ(
      linesOf(rig, &TableManSm::doCreateTunnelTables),
      (Lines{"xpTunnelInfoMgr[0]::addDevice device=0 table=35 copies=1 mode=1 -> 0",
             "entry 35 TUNNEL_INFO", "entry 2 TNL_IVIF", "entry 12 LOCAL_VTEP", "entry 13 VNI",
             "xpTunnelIvifMgr[0]::addDevice device=0 list=0:2/1/0,1:12/1/2,2:13/1/3 copies=1 "
             "mode=1 -> 0"}));
  EXPECT_EQ(rig.entry(14), nullptr);
}

TEST(TunnelTablesTest, CombinedTableTakesThePlaceOfTheTwo) {
  auto profile = fullProfile();
  profile.tables[14] = table<xpHashTableContext>(1);
  Rig rig(profile);
  auto const lines = linesOf(rig, &TableManSm::doCreateTunnelTables);
  EXPECT_EQ(lines.back(),
            "xpTunnelIvifMgr[0]::addDevice device=0 list=0:2/1/0,1:14/1/1 copies=1 mode=1 -> 0");
  EXPECT_EQ(rig.entry(14)->tableName(), "LOCAL_VTEP_VNI");
  EXPECT_EQ(rig.entry(14)->tableIdForMgr(), 1u);
  EXPECT_EQ(rig.entry(12), nullptr);
  EXPECT_EQ(rig.entry(13), nullptr);
}

TEST(TunnelTablesTest, LowByteOfTheCombinedTableDecides) {
  auto profile = fullProfile();
  profile.tables[14] = table<xpHashTableContext>(1);
  profile.tables[14].copyNum = 0x100;
  Rig rig(profile);
  rig.bringUp();
  EXPECT_EQ(rig.entry(14), nullptr);
  EXPECT_TRUE(rig.entry(12));
}

TEST(TunnelTablesTest, ManagerGetsTheCopiesOfTheFirstAndEachEntryItsOwn) {
  auto profile = fullProfile();
  profile.tables[2] = table<xpHashTableContext>(2);
  profile.tables[12].copyNum = 0;
  profile.tables[13] = table<xpHashTableContext>(3);
  Rig rig(profile);
  rig.bringUp();
  EXPECT_THAT(rig.lines, Contains("xpTunnelIvifMgr[0]::addDevice device=0 "
                                  "list=0:2/2/0,1:12/0/2,2:13/3/3 copies=2 mode=1 -> 0"));
  EXPECT_EQ(rig.entry(2)->tblCopyNum(), 2u);
  EXPECT_EQ(rig.entry(12)->tblCopyNum(), 0u);
  EXPECT_EQ(rig.entry(13)->tblCopyNum(), 3u);
}

TEST(TunnelTablesTest, EntriesNameTheManagerAndTheirPlaceInIt) {
  Rig rig;
  rig.bringUp();
  EXPECT_EQ(rig.entry(35)->plMgrId(), xpTunnelInfoMgr::myId[0]);
  EXPECT_EQ(rig.entry(35)->tableIdForMgr(), 0u);
  for (auto [id, place] : {std::pair{2u, 0u}, {12u, 2u}, {13u, 3u}}) {
    EXPECT_EQ(rig.entry(id)->plMgrId(), xpTunnelIvifMgr::myId[0]);
    EXPECT_EQ(rig.entry(id)->tableIdForMgr(), place);
  }
}

// What the manager does to a context in its call comes too late for the entry.
TEST(TunnelTablesTest, EntriesHoldTheContextsAsTheProfileGaveThem) {
  Rig rig;
  rig.sdkContext<xpHashTableContext>(2)->numOfEntries = 64;
  rig.sim.callLogIs([&rig](std::string_view line) {
    if (line.starts_with("xpTunnelIvifMgr"))
      rig.sdkContext<xpHashTableContext>(2)->numOfEntries = 99;
  });
  rig.bringUp();
  EXPECT_EQ(rig.published<xpHashTableContext>(2).numOfEntries, 64u);
}

TEST(TunnelTablesTest, TableWithoutContextIsInTheListAndNotPublished) {
  auto profile = fullProfile();
  profile.tables.erase(13);
  Rig rig(profile);
  rig.bringUp();
  EXPECT_THAT(rig.lines, Contains("xpTunnelIvifMgr[0]::addDevice device=0 "
                                  "list=0:2/1/0,1:12/1/2,2:-/0/3 copies=1 mode=1 -> 0"));
  EXPECT_EQ(rig.entry(13), nullptr);
}

// Virtual interfaces.

TEST(VifTablesTest, NullPortIsWrittenBehindTheTables) {
  Rig rig(withCopies(19, {1, 1, 0, 0, 0, 0, 0, 0}));
  EXPECT_EQ(linesOf(rig, &TableManSm::doCreateVifTables),
            (Lines{"xpVifMgr[0]::addDevice device=0 list=0:19/0/0,1:20/0/0 copies=1 mode=1 -> 0",
                   "entry 19 VIF_TBL_0", "entry 20 VIF_TBL_1",
                   "xpVifMgr[0]::writeEntry device=0 vif=7 direction=1 -> 0"}));
}

TEST(VifTablesTest, TablesWithoutCopiesAreLeftOutAndOthersKeepTheirPlace) {
  Rig rig(withCopies(19, {2, 0, 0, 2, 0, 0, 0, 0}));
  auto const lines = linesOf(rig, &TableManSm::doCreateVifTables);
  EXPECT_EQ(lines[0],
            "xpVifMgr[0]::addDevice device=0 list=0:19/0/0,3:22/0/0 copies=2 mode=1 -> 0");
  EXPECT_EQ(lines[1], "entry 19 VIF_TBL_0");
  EXPECT_EQ(lines[2], "entry 22 VIF_TBL_3");
  EXPECT_EQ(lines.size(), 4u);
  EXPECT_EQ(rig.entry(22)->tableIdForMgr(), 3u);
  EXPECT_EQ(rig.entry(22)->tblCopyNum(), 2u);
  EXPECT_EQ(rig.entry(22)->plMgrId(), xpVifMgr::myId[0]);
}

// Contexts aren't looked at, unlike those of the mask groups.
TEST(VifTablesTest, TableThatIsNotInUseIsInTheListAndNotPublished) {
  auto profile = withCopies(19, {1, 1, 1, 0, 0, 0, 0, 0});
  profile.tables[20].contexts = std::vector<xpDirectTableContext>();
  Rig rig(profile);
  rig.sdkContext<xpTableContext>(21)->first = -1;
  rig.bringUp();
  EXPECT_THAT(rig.lines, Contains("xpVifMgr[0]::addDevice device=0 list=0:19/0/0,1:-/0/0,2:21/0/0 "
                                  "copies=1 mode=1 -> 0"));
  EXPECT_EQ(rig.entry(20), nullptr);
  EXPECT_EQ(rig.entry(21), nullptr);
}

TEST(VifTablesTest, EachPublicationLooksTheIdUpAnew) {
  Rig rig(withCopies(19, {1, 0, 0, 0, 0, 0, 0, 0}));
  auto const sm = rig.bringUp();
  rig.sim.callLogIs([](std::string_view line) {
    if (line.starts_with("xpVifMgr[0]::addDevice")) xpVifMgr::myId[0] = 777;
  });
  sm->doCreateVifTables();
  EXPECT_EQ(rig.entry(19)->plMgrId(), 777u);
}

TEST(VifTablesDeathTest, ThereMustBeOne) {
  Rig rig(withCopies(19, {0, 0, 0, 0, 0, 0, 0, 0}));
  expectAbort([&] { rig.bringUp(); }, assertion("index", vifSignature));
}

TEST(VifTablesDeathTest, CopiesAreTwoAtMost) {
  for (U32 copies : {3u, 256u}) {
    Rig rig(withCopies(19, {copies}));
    expectAbort([&] { rig.bringUp(); }, assertion("perTableCopyNum <= 2", vifSignature));
  }
}

TEST(VifTablesDeathTest, CopiesMustAgree) {
  Rig rig(withCopies(19, {1, 2}));
  expectAbort([&] { rig.bringUp(); }, assertion("tblCopyNum == perTableCopyNum", vifSignature));
}

// A failure of the entry comes behind the tables: they are published by then.
TEST(VifTablesDeathTest, FailureToWriteComesBehindThePublication) {
  Rig rig(withCopies(19, {1, 0, 0, 0, 0, 0, 0, 0}));
  auto const sm = rig.bringUp();
  rig.sim.statusIs("xpVifMgr::writeEntry", {1});
  rig.sim.callLogIs([&rig](std::string_view line) {
    if (line.find("writeEntry") != line.npos)
      fprintf(stderr, "%s\n", rig.entry(19) ? "published" : "missing");
  });
  rig.status->tableContextEntryDelAll();
  expectAbort([&] { sm->doCreateVifTables(); },
              "published\n" + apiError("((vifMgr->writeEntry( deviceId().value(), nullPortVifId, "
                                       "XP_INGRESS, &vifEntry)))",
                                       1, vifSignature));
}

// IP transformation.

TEST(IpXformTablesTest, SourceIsPublishedBeforeTheDestinationIsAdded) {
  Rig rig;
  EXPECT_EQ(linesOf(rig, &TableManSm::doCreateIpXformTables),
            (Lines{"xpIpXformMgr[1]::addDevice device=0 table=60 copies=1 mode=1 -> 0",
                   "entry 60 SIP_XFORM",
                   "xpIpXformMgr[2]::addDevice device=0 table=61 copies=1 mode=1 -> 0",
                   "entry 61 DIP_XFORM"}));
  EXPECT_EQ(rig.entry(60)->plMgrId(), xpIpXformMgr::myId[1]);
  EXPECT_EQ(rig.entry(61)->plMgrId(), xpIpXformMgr::myId[2]);
}

// Header modification.

TEST(HeaderModTablesTest, DefaultsAreLoadedBeforeThePublication) {
  Rig rig;
  EXPECT_EQ(linesOf(rig, &TableManSm::doCreateHeaderModTables),
            (Lines{"xpHdrModificationMgr[0]::addDevice device=0 list=0:27/0/0,1:28/0/0,2:29/0/0 "
                   "copies=1 mode=1 -> 0",
                   "xpHdrModificationMgr[0]::loadDefaultValue device=0 -> 0", "entry 27 INS0_128",
                   "entry 28 INS1_128", "entry 29 INS2_128"}));
}

// Records behind the stop are zero.
TEST(HeaderModTablesTest, WalkStopsAtTheFirstTableWithoutCopies) {
  Rig rig(withCopies(27, {2, 0, 1}));
  auto const lines = linesOf(rig, &TableManSm::doCreateHeaderModTables);
  EXPECT_EQ(lines[0],
            "xpHdrModificationMgr[0]::addDevice device=0 list=0:27/0/0,0:-/0/0,0:-/0/0 copies=2 "
            "mode=1 -> 0");
  EXPECT_EQ(rig.entry(27)->tblCopyNum(), 2u);
  EXPECT_EQ(rig.entry(28), nullptr);
  EXPECT_EQ(rig.entry(29), nullptr);
}

TEST(HeaderModTablesTest, LargestOfTheLeadingNumbersServesAll) {
  auto profile = withCopies(27, {1, 2, 0});
  profile.tables[27].contexts = contexts<xpDirectTableContext>(2);
  Rig rig(profile);
  auto const lines = linesOf(rig, &TableManSm::doCreateHeaderModTables);
  EXPECT_EQ(lines[0],
            "xpHdrModificationMgr[0]::addDevice device=0 list=0:27/0/0,1:28/0/0,0:-/0/0 copies=2 "
            "mode=1 -> 0");
  EXPECT_EQ(rig.entry(27)->tblCopyNum(), 2u);
  EXPECT_EQ(rig.entry(28)->tblCopyNum(), 2u);
  EXPECT_EQ(rig.entry(28)->tableIdForMgr(), 1u);
  EXPECT_EQ(rig.entry(28)->plMgrId(), xpHdrModificationMgr::myId[0]);
}

TEST(HeaderModTablesTest, LowBytesCount) {
  Rig rig(withCopies(27, {0x101, 0x100, 1}));
  auto const lines = linesOf(rig, &TableManSm::doCreateHeaderModTables);
  EXPECT_EQ(lines[0],
            "xpHdrModificationMgr[0]::addDevice device=0 list=0:27/0/0,0:-/0/0,0:-/0/0 copies=1 "
            "mode=1 -> 0");
}

TEST(HeaderModTablesTest, NeitherEqualCopiesNorAnyAreAsserted) {
  Rig rig(withCopies(27, {0, 9, 9}));
  auto const lines = linesOf(rig, &TableManSm::doCreateHeaderModTables);
  EXPECT_EQ(lines, (Lines{"xpHdrModificationMgr[0]::addDevice device=0 "
                          "list=0:-/0/0,0:-/0/0,0:-/0/0 copies=0 mode=1 -> 0",
                          "xpHdrModificationMgr[0]::loadDefaultValue device=0 -> 0"}));
}

}  // namespace
}  // namespace Kestrel::xpTableManSm
