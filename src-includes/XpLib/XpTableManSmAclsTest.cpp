// The tables of access control: which tables of a group go to the manager, and with how many
// copies.
#include "XpLib/XpTableManSmAbortTest.h"

namespace Kestrel::xpTableManSm {
namespace {

using testing::Contains;

std::string const mgSignature = "void Kestrel::TableManSm::doCreateAaclMgTables()";

// Ports.

TEST(L4PortTablesTest, SourceIsPublishedBeforeTheDestinationIsAdded) {
  Rig rig;
  EXPECT_EQ(linesOf(rig, &TableManSm::doCreateL4PortTables),
            (Lines{"aaclL4PortMgr[1]::addDevice device=0 table=33 copies=1 mode=1 -> 0",
                   "entry 33 AACL_SRC_PORT",
                   "aaclL4PortMgr[2]::addDevice device=0 table=34 copies=1 mode=1 -> 0",
                   "entry 34 AACL_DST_PORT"}));
}

TEST(L4PortTablesTest, IndicesOneAndTwoAreOfOneClass) {
  Rig rig;
  rig.bringUp();
  EXPECT_EQ(rig.entry(33)->plMgrId(), aaclL4PortMgr::myId[1]);
  EXPECT_EQ(rig.entry(34)->plMgrId(), aaclL4PortMgr::myId[2]);
  EXPECT_NE(aaclL4PortMgr::myId[1], aaclL4PortMgr::myId[2]);
  EXPECT_EQ(rig.entry(33)->tableIdForMgr(), 0u);
  EXPECT_EQ(rig.entry(34)->tableIdForMgr(), 0u);
}

// Whoever asks first for index 1 leaves entry 0 at zero.
TEST(L4PortTablesTest, FindsManagersThatTheSdkHasNotNumbered) {
  Rig rig;
  auto const sm = rig.bringUp();
  rig.sim.idsDelAll("aaclL4PortMgr");
  sm->doCreateL4PortTables();
  ASSERT_EQ(aaclL4PortMgr::myId.size(), 3u);
  EXPECT_EQ(aaclL4PortMgr::myId[0], 0u);
  EXPECT_EQ(rig.entry(34)->plMgrId(), aaclL4PortMgr::myId[2]);
}

// Mask and key sets.

TEST(MgksTablesTest, FirstTablesCopiesServeAll) {
  auto profile = withCopies(53, {0x102, 1, 0, 3, 1, 1, 1});
  for (U32 id = 53; id <= 59; ++id) profile.tables[id].contexts = contexts<xpMatchTableContext>(2);
  Rig rig(profile);
  rig.bringUp();
  EXPECT_THAT(rig.lines,
              Contains("xpMgksMgr[0]::addDevice device=0 "
                       "list=0:53/0/0,1:54/0/0,2:55/0/0,3:56/0/0,4:57/0/0,5:58/0/0,6:59/0/0 "
                       "copies=2 mode=1 -> 0"));
  for (U32 i = 0; i < 7; ++i) {
    auto const entry = rig.entry(53 + i);
    ASSERT_TRUE(entry) << i;
    EXPECT_EQ(entry->tableName(), Mox::format("AACL_MGKS_%d", i));
    EXPECT_EQ(entry->tblCopyNum(), 2u);
    EXPECT_EQ(entry->tableIdForMgr(), i);
    EXPECT_EQ(entry->plMgrId(), xpMgksMgr::myId[0]);
  }
}

TEST(MgksTablesTest, TableWithoutContextIsInTheListAndNotPublished) {
  auto profile = fullProfile();
  profile.tables.erase(55);
  Rig rig(profile);
  rig.bringUp();
  EXPECT_THAT(rig.lines,
              Contains("xpMgksMgr[0]::addDevice device=0 "
                       "list=0:53/0/0,1:54/0/0,2:-/0/0,3:56/0/0,4:57/0/0,5:58/0/0,6:59/0/0 "
                       "copies=1 mode=1 -> 0"));
  EXPECT_EQ(rig.entry(55), nullptr);
  EXPECT_TRUE(rig.entry(56));
}

TEST(MgksTablesTest, NoCopiesGiveEntriesWithoutContexts) {
  Rig rig(withCopies(53, {0, 1}));
  rig.bringUp();
  EXPECT_EQ(rig.entry(53)->tblCopyNum(), 0u);
  EXPECT_EQ(rig.entry(54)->tblCopyNum(), 0u);
}

// Mask groups.

TEST(MaskGroupTablesTest, TablesWithoutCopiesAreLeftOutAndOthersKeepTheirPlace) {
  Rig rig(withCopies(36, {0, 2, 0, 2, 2, 0}));
  EXPECT_EQ(linesOf(rig, &TableManSm::doCreateAaclMgTables),
            (Lines{"xpAaclMgTableMgr[0]::addDevice device=0 list=1:37/0/0,3:39/0/0,4:40/0/0 "
                   "copies=2 mode=1 -> 0",
                   "entry 37 AACL_MG_1", "entry 39 AACL_MG_3", "entry 40 AACL_MG_4"}));
  for (U32 i : {1u, 3u, 4u}) {
    EXPECT_EQ(rig.entry(36 + i)->tableIdForMgr(), i);
    EXPECT_EQ(rig.entry(36 + i)->tblCopyNum(), 2u);
    EXPECT_EQ(rig.entry(36 + i)->plMgrId(), xpAaclMgTableMgr::myId[0]);
  }
}

TEST(MaskGroupTablesTest, TableWithoutContextIsLeftOut) {
  auto profile = fullProfile();
  profile.tables[36].contexts = std::vector<xpHashTableContext>();
  Rig rig(profile);
  rig.sdkContext<xpTableContext>(38)->first = -1;
  auto const lines = linesOf(rig, &TableManSm::doCreateAaclMgTables);
  EXPECT_EQ(lines.front(),
            "xpAaclMgTableMgr[0]::addDevice device=0 list=1:37/0/0,3:39/0/0,4:40/0/0,5:41/0/0 "
            "copies=1 mode=1 -> 0");
  EXPECT_EQ(lines.size(), 5u);
  EXPECT_EQ(rig.entry(36), nullptr);
  EXPECT_EQ(rig.entry(38), nullptr);
}

// Only -1 says here that a table isn't in use; publication passes over every negative number.
TEST(MaskGroupTablesTest, OtherNegativeFirstFieldGoesToTheManagerAndIsNotPublished) {
  Rig rig;
  rig.sdkContext<xpTableContext>(38)->first = -2;
  auto const lines = linesOf(rig, &TableManSm::doCreateAaclMgTables);
  EXPECT_NE(lines.front().find("2:38/0/0"), std::string::npos);
  EXPECT_EQ(lines.size(), 6u);
  EXPECT_EQ(rig.entry(38), nullptr);
}

TEST(MaskGroupTablesDeathTest, CopiesMustAgree) {
  for (auto const& copies : {std::vector<U32>{1, 2}, {0, 2, 0, 1}, {2, 2, 2, 2, 2, 1}}) {
    Rig rig(withCopies(36, copies));
    expectAbort([&] { rig.bringUp(); }, assertion("tblCopyNum == perTableCopyNum", mgSignature));
  }
}

TEST(MaskGroupTablesDeathTest, CopiesAreTwoAtMost) {
  for (U32 copies : {3u, 256u, 257u, 0x80000000u}) {
    Rig rig(withCopies(36, {0, copies}));
    expectAbort([&] { rig.bringUp(); }, assertion("perTableCopyNum <= 2", mgSignature));
  }
}

TEST(MaskGroupTablesDeathTest, CopiesAreComparedBeforeTheContextIsLookedAt) {
  struct Case {
    U32 copies;
    char const* text;
  };
  for (Case const each : {Case{2, "tblCopyNum == perTableCopyNum"}, {3, "perTableCopyNum <= 2"}}) {
    auto profile = withCopies(36, {1, each.copies});
    profile.tables[37].contexts = std::vector<xpHashTableContext>();
    Rig rig(profile);
    expectAbort([&] { rig.bringUp(); }, assertion(each.text, mgSignature));
  }
}

TEST(MaskGroupTablesDeathTest, ThereMustBeOne) {
  Rig none(withCopies(36, {0, 0, 0, 0, 0, 0}));
  expectAbort([&] { none.bringUp(); }, assertion("index", mgSignature));
}

TEST(MaskGroupTablesDeathTest, TablesThatAreNotInUseAreNone) {
  Rig rig(bareProfile());
  rig.sdkContext<xpTableContext>(36)->first = -1;
  expectAbort([&] { rig.bringUp(); }, assertion("index", mgSignature));
}

// Ingress tables.

TEST(IngressAclTablesTest, DeviceComesFirstAndTablesInASecondCall) {
  Rig rig;
  EXPECT_EQ(linesOf(rig, &TableManSm::doCreateIAclTables),
            (Lines{"xpIaclMgr[0]::addDevice device=0 -> 0",
                   "xpIaclMgr[0]::createTable device=0 list=0:42/0/0,1:43/0/0,2:44/0/0 copies=1 "
                   "mode=1 -> 0",
                   "entry 42 IACL0", "entry 43 IACL1", "entry 44 IACL2"}));
}

TEST(IngressAclTablesTest, FirstTablesCopiesServeAll) {
  auto profile = withCopies(42, {0x102, 1, 0});
  for (U32 id = 42; id <= 44; ++id) profile.tables[id].contexts = contexts<xpMatchTableContext>(2);
  Rig rig(profile);
  rig.bringUp();
  for (U32 i = 0; i < 3; ++i) {
    EXPECT_EQ(rig.entry(42 + i)->tblCopyNum(), 2u) << i;
    EXPECT_EQ(rig.entry(42 + i)->tableIdForMgr(), i);
    EXPECT_EQ(rig.entry(42 + i)->plMgrId(), xpIaclMgr::myId[0]);
  }
}

TEST(IngressAclTablesTest, CallGetsTheFirstTablesCopies) {
  Rig rig(withCopies(42, {0x102, 1, 0}));
  rig.bringUp();
  EXPECT_THAT(rig.lines, Contains("xpIaclMgr[0]::createTable device=0 "
                                  "list=0:42/0/0,1:43/0/0,2:44/0/0 copies=2 mode=1 -> 0"));
}

TEST(IngressAclTablesTest, RunInEveryMode) {
  auto profile = fullProfile();
  profile.ldePipeMode = 0;
  Rig rig(profile);
  rig.bringUp();
  EXPECT_TRUE(rig.entry(44));
  EXPECT_EQ(rig.entry(33), nullptr);
}

}  // namespace
}  // namespace Kestrel::xpTableManSm
