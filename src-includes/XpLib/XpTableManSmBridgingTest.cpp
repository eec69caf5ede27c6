// The bridging, multicast, port-VLAN and next-hop tables: copies, absent tables, ids of managers.
#include "XpLib/XpTableManSmAbortTest.h"
#include "XpLib/XpTableManSmManagers.h"

namespace Kestrel::xpTableManSm {
namespace {

using testing::Contains;
using testing::Not;

// The tables of the single-table pattern that are published, with the names of their managers.
struct Row {
  U32 id;
  char const* name;
  char const* manager;
  std::vector<U32>& ids;
};

Row const rows[] = {
    {0, "FDB", "xpFdbMgr", xpFdbMgr::myId},
    {1, "PORTVLAN_IVIF", "xpPortVlanIvifMgr", xpPortVlanIvifMgr::myId},
    {8, "IPV4_ROUTEMC", "xpIpv4RouteMcMgr", xpIpv4RouteMcMgr::myId},
    {30, "MDT", "xpMdtMgr", xpMdtMgr::myId},
    {31, "INGRESS_BD", "xpBdMgr", xpBdMgr::myId},
    {32, "EGRESS_BD", "xpEgressBdMgr", xpEgressBdMgr::myId},
    {52, "NEXTHOP", "xpNhMgr", xpNhMgr::myId},
};

std::string addDevice(Row const& row, std::string const& table, U32 copies) {
  return std::string(row.manager) + "[0]::addDevice device=0 table=" + table +
         " copies=" + std::to_string(copies) + " mode=1 -> 0";
}

TEST(BridgingTablesTest, EachIsPublishedUnderItsNameAndManager) {
  Rig rig;
  rig.bringUp();
  for (Row const& row : rows) {
    auto const entry = rig.entry(row.id);
    ASSERT_TRUE(entry) << row.name;
    EXPECT_EQ(entry->tableName(), row.name);
    EXPECT_EQ(entry->plMgrId(), row.ids[0]) << row.name;
    EXPECT_NE(entry->plMgrId(), 0u) << row.name;
    EXPECT_EQ(entry->tableIdForMgr(), 0u) << row.name;
    EXPECT_EQ(entry->tblCopyNum(), 1u) << row.name;
  }
}

TEST(BridgingTablesTest, CopiesAreTheLowByteOfTheProfilesWord) {
  for (Row const& row : rows) {
    auto profile = fullProfile();
    profile.tables[row.id] = table<xpMatchTableContext>(2);
    profile.tables[row.id].copyNum = 0x102;
    Rig rig(profile);
    rig.bringUp();
    EXPECT_THAT(rig.lines, Contains(addDevice(row, std::to_string(row.id), 2)));
    EXPECT_EQ(rig.entry(row.id)->tblCopyNum(), 2u) << row.name;
  }
}

TEST(BridgingTablesTest, CopiesOfAllSingleTablesAreALowByte) {
  for (U32 const id : {4u, 5u, 10u, 33u, 34u, 35u, 50u, 51u, 60u, 61u}) {
    auto profile = fullProfile();
    profile.tables[id].copyNum = 0x101;
    Rig rig(profile);
    rig.bringUp();
    EXPECT_THAT(rig.lines,
                Contains(testing::HasSubstr(" table=" + std::to_string(id) + " copies=1 ")));
    if (id == 10) continue;  // isn't published
    ASSERT_TRUE(rig.entry(id)) << id;
    EXPECT_EQ(rig.entry(id)->tblCopyNum(), 1u) << id;
  }
}

// What the manager got is what is published, whatever the profile says by then.
TEST(BridgingTablesTest, ProfileIsReadOnce) {
  Rig rig;
  auto const sm = rig.bringUp();
  rig.status->tableContextEntryDelAll();
  auto& profile = const_cast<xpTableProfile&>(rig.sim.tableProfile(rig.deviceId));
  rig.sim.callLogIs([&profile](std::string_view line) {
    if (!line.starts_with("xpMdtMgr")) return;
    profile.tblCtx[30] = nullptr;
    profile.copyNum[30] = 0;
  });
  sm->doCreateMdtTable();
  ASSERT_TRUE(rig.entry(30));
  EXPECT_EQ(rig.entry(30)->tblCopyNum(), 1u);
}

TEST(BridgingTablesTest, NoCopiesGiveAnEntryWithoutContextSaveForTheNextHopTable) {
  for (Row const& row : rows) {
    if (row.id == 52) continue;
    auto profile = fullProfile();
    profile.tables[row.id].copyNum = 0x100;
    Rig rig(profile);
    rig.bringUp();
    EXPECT_THAT(rig.lines, Contains(addDevice(row, std::to_string(row.id), 0)));
    ASSERT_TRUE(rig.entry(row.id)) << row.name;
    EXPECT_EQ(rig.entry(row.id)->tblCopyNum(), 0u) << row.name;
    EXPECT_EQ(rig.entry(row.id)->plMgrId(), row.ids[0]) << row.name;
  }
}

TEST(BridgingTablesTest, TableWithoutContextIsAddedAndNotPublished) {
  for (Row const& row : rows) {
    auto profile = fullProfile();
    profile.tables[row.id] = {1, 0, {}};
    Rig rig(profile);
    rig.bringUp();
    EXPECT_THAT(rig.lines, Contains(addDevice(row, "-", 1)));
    EXPECT_EQ(rig.entry(row.id), nullptr) << row.name;
  }
}

TEST(BridgingTablesTest, TableThatIsNotInUseIsAddedAndNotPublished) {
  for (Row const& row : rows) {
    for (S32 first : {-1, -2, -2147483647 - 1}) {
      Rig rig;
      rig.sdkContext<xpTableContext>(row.id)->first = first;
      rig.bringUp();
      EXPECT_THAT(rig.lines, Contains(addDevice(row, std::to_string(row.id), 1)));
      EXPECT_EQ(rig.entry(row.id), nullptr) << row.name << ", " << first;
    }
  }
}

TEST(BridgingTablesTest, PimTableIsCreatedAndNotPublished) {
  Rig rig;
  auto const sm = rig.bringUp();
  auto const version = rig.status->version();
  rig.take();
  sm->doCreatePimTable();
  EXPECT_EQ(rig.lines,
            Lines{"xpIpv4PIMBiDirRPFMgr[0]::addDevice device=0 table=10 copies=1 mode=1 -> 0"});
  EXPECT_EQ(rig.entry(10), nullptr);
  EXPECT_EQ(rig.status->version(), version);
}

TEST(BridgingTablesTest, ControlMacGetsTheInitTypeAndPublishesNothing) {
  for (bool cold : {true, false}) {
    auto profile = fullProfile();
    profile.coldStartNeeded = cold;
    Rig rig(profile);
    auto const sm = rig.bringUp();
    rig.take();
    sm->doCreateControlMacTable();
    EXPECT_EQ(rig.lines, Lines{std::string("xpControlMacMgr[0]::addDevice device=0 init=") +
                               (cold ? "1" : "2") + " -> 0"});
  }
}

TEST(BridgingTablesDeathTest, NextHopTableMustHaveACopy) {
  for (U32 copyNum : {0u, 0x100u, 0xFFFFFF00u}) {
    auto profile = fullProfile();
    profile.tables[52].copyNum = copyNum;
    Rig rig(profile);
    expectAbort([&] { rig.bringUp(); },
                assertion("nhTblCopyNum", "void Kestrel::TableManSm::doCreateNhTables()"));
  }
}

TEST(BridgingTablesDeathTest, NextHopTableWithoutCopyIsNotHandedOver) {
  auto profile = fullProfile();
  profile.tables[52].copyNum = 0;
  Rig rig(profile);
  rig.sim.callLogIs([](std::string_view line) {
    if (line.starts_with("xpNhMgr")) fputs("handed over\n", stderr);
  });
  expectAbort([&] { rig.bringUp(); },
              assertion("nhTblCopyNum", "void Kestrel::TableManSm::doCreateNhTables()"));
}

// The manager is asked for first.
TEST(BridgingTablesDeathTest, MissingNextHopManagerComesBeforeItsCopies) {
  auto profile = fullProfile();
  profile.tables[52].copyNum = 0;
  Rig rig(profile);
  rig.sim.managerNullIs("xpNhMgr", true);
  expectAbort([&] { rig.bringUp(); },
              assertion("nhMgr", "void Kestrel::TableManSm::doCreateNhTables()"));
}

// Ids of managers.

TEST(PlMgrIdTest, EntryThatIsThereIsTaken) {
  Rig rig;
  xpBdMgr::myId = {77, 78};
  EXPECT_EQ(plMgrIdOf<xpBdMgr>(), 77u);
  EXPECT_EQ(plMgrIdOf<xpBdMgr>(1), 78u);
}

TEST(PlMgrIdTest, MissingEntryGetsANewId) {
  Rig rig;
  rig.sim.idsDelAll("xpBdMgr");
  U32 const id = plMgrIdOf<xpBdMgr>();
  EXPECT_NE(id, 0u);
  EXPECT_EQ(xpBdMgr::myId, std::vector<U32>{id});
  EXPECT_EQ(plMgrIdOf<xpBdMgr>(), id);
}

TEST(PlMgrIdTest, EntriesBeforeTheMissingOneStayZero) {
  Rig rig;
  rig.sim.idsDelAll("xpBdMgr");
  U32 const id = plMgrIdOf<xpBdMgr>(2);
  EXPECT_EQ(xpBdMgr::myId, (std::vector<U32>{0, 0, id}));
  EXPECT_EQ(plMgrIdOf<xpBdMgr>(0), 0u);
}

TEST(PlMgrIdTest, BringUpFindsManagersThatTheSdkHasNotNumbered) {
  Rig rig;
  for (Row const& row : rows) rig.sim.idsDelAll(row.manager);
  rig.bringUp();
  EXPECT_EQ(rig.entry(31)->plMgrId(), xpBdMgr::myId.at(0));
}

// The id may change between the two uses of an operation.
TEST(PlMgrIdTest, PublicationLooksTheIdUpAnew) {
  Rig rig;
  rig.sim.callLogIs([](std::string_view line) {
    if (line.starts_with("xpBdMgr")) xpBdMgr::myId[0] = 4711;
  });
  rig.bringUp();
  EXPECT_EQ(rig.entry(31)->plMgrId(), 4711u);
}

}  // namespace
}  // namespace Kestrel::xpTableManSm
