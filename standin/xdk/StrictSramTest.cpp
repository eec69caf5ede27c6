// Tables on one another's blocks, as strict mode finds them.
#include "standin/xdk/TestStrict.h"

namespace xdksim {
namespace {

using StrictSramTest = StrictTest;

template <class T>
std::vector<T> inUse(T context, U32 copies = 1) {
  context.first = 0;
  return std::vector<T>(copies, context);
}

/// A hash table of one way that takes `blocks` blocks of pool 4, from `start` on.
xpHashTableContext hashAt(U32 start, U32 blocks, bool isShared = false) {
  xpHashTableContext context;
  context.keySize = 128;
  context.valueSize = 128;
  context.numOfWays = 1;
  context.numOfEntries = blocks * 1024;
  context.poolId[0] = 4;
  context.rowBlkStartId[0] = start;
  context.shared = isShared;
  return context;
}

xpDirectTableContext directAt(U32 start, U32 blocks) {
  xpDirectTableContext context;
  context.entryWidth = 256;
  context.numOfEntries = blocks * 1024;
  context.poolId = 4;
  context.rowBlkStartId = start;
  return context;
}

TEST_F(StrictSramTest, TwoTablesOnOneBlock) {
  table(0, inUse(hashAt(0, 4)));
  table(31, inUse(directAt(3, 2)));
  useProfile();
  begin();
  add(fdb(), 0);
  expectFinding(
      [this] { add(bd(), 31); },
      "xpBdMgr[0]::addDevice gives device 0 copy 0 of table 31, which takes block 3 of "
      "SRAM pool 4, as does copy 0 of table 0 of xpFdbMgr[0]; not both declare it shared");
}

TEST_F(StrictSramTest, NeighboursShareNothing) {
  table(0, inUse(hashAt(0, 4)));
  table(31, inUse(directAt(4, 2)));
  useProfile();
  begin();
  add(fdb(), 0);
  add(bd(), 31);
}

TEST_F(StrictSramTest, BlockThatBothDeclareShared) {
  table(0, inUse(hashAt(0, 4, true)));
  table(1, inUse(hashAt(3, 4, true)));
  useProfile();
  begin();
  add(fdb(), 0);
  add(xpL2Pl::instance()->getPrimitiveMgr(xpPortVlanIvifMgr::myId.at(0)), 1);
}

TEST_F(StrictSramTest, BlockThatOneAloneDeclaresShared) {
  for (bool isFirst : {true, false}) {
    table(0, inUse(hashAt(0, 1, isFirst)));
    table(1, inUse(hashAt(0, 1, !isFirst)));
    useProfile();
    begin();
    add(fdb(), 0);
    expectFinding([this] { add(bd(), 1); },
                  "xpBdMgr[0]::addDevice gives device 0 copy 0 of table 1, which takes block 0 of "
                  "SRAM pool 4, as does copy 0 of table 0 of xpFdbMgr[0]; not both declare it "
                  "shared");
  }
}

TEST_F(StrictSramTest, CopiesOfOneTableOnOneBlock) {
  table(0, inUse(hashAt(0, 4), 2));
  useProfile();
  begin();
  add(fdb(), 0, 2);
}

TEST_F(StrictSramTest, FurtherCopyMeetsAnotherTable) {
  auto copies = inUse(hashAt(0, 1), 2);
  copies[1].rowBlkStartId[0] = 8;
  table(0, copies);
  table(31, inUse(directAt(8, 1)));
  useProfile();
  begin();
  add(bd(), 31);
  expectFinding(
      [this] { add(fdb(), 0, 2); },
      "xpFdbMgr[0]::addDevice gives device 0 copy 1 of table 0, which takes block 8 of "
      "SRAM pool 4, as does copy 0 of table 31 of xpBdMgr[0]; not both declare it shared");
}

TEST_F(StrictSramTest, CopyThatIsNotGivenTakesNoBlock) {
  auto copies = inUse(hashAt(0, 1), 2);
  copies[1].rowBlkStartId[0] = 8;
  table(0, copies);
  table(31, inUse(directAt(8, 1)));
  useProfile();
  begin();
  add(bd(), 31);
  add(fdb(), 0, 1);
}

TEST_F(StrictSramTest, TablesOfOneListMeetEachOther) {
  table(2, inUse(hashAt(0, 1)));
  table(12, inUse(directAt(0, 1)));
  useProfile();
  begin();
  for (bool ownCopies : {false, true})
    expectFinding(
        [this, ownCopies] {
          addList(tunnel(), {2, 12}, 1, ownCopies);
        },
        "xpTunnelIvifMgr[0]::addDevice gives device 0 copy 0 of table 12, which takes "
        "block 0 of SRAM pool 4, as does copy 0 of table 2 of xpTunnelIvifMgr[0]; not "
        "both declare it shared");
}

TEST_F(StrictSramTest, TableOfAListWithoutCopiesTakesNoBlock) {
  table(2, inUse(hashAt(0, 1)));
  table(12, inUse(directAt(0, 1)));
  profile.tables[12].copyNum = 0;
  useProfile();
  begin();
  addList(tunnel(), {2, 12}, 1, true);
}

TEST_F(StrictSramTest, TablesThatAreCreated) {
  table(31, inUse(directAt(0, 1)));
  table(42, inUse(hashAt(0, 1)));
  useProfile();
  begin();
  add(bd(), 31);
  iacl()->addDevice(0);
  expectFinding([this] { addList(iacl(), {42}, 1); },
                "xpIaclMgr[0]::createTable gives device 0 copy 0 of table 42, which takes block 0 "
                "of SRAM pool 4, as does copy 0 of table 31 of xpBdMgr[0]; not both declare it "
                "shared");
}

TEST_F(StrictSramTest, TableThatIsNotInUseTakesNoBlock) {
  table(0, inUse(hashAt(0, 1)));
  auto unused = inUse(directAt(0, 1));
  unused[0].first = -1;
  table(31, unused);
  useProfile();
  begin();
  add(fdb(), 0);
  add(bd(), 31);
}

TEST_F(StrictSramTest, EachBringUpBeginsWithEmptyBlocks) {
  table(0, inUse(hashAt(0, 1)));
  table(31, inUse(directAt(0, 1)));
  useProfile();
  begin();
  add(fdb(), 0);
  end();
  begin();
  add(bd(), 31);
}

TEST_F(StrictSramTest, TablesGivenOutsideABringUpMeetNobody) {
  table(0, inUse(hashAt(0, 1)));
  table(31, inUse(directAt(0, 1)));
  useProfile();
  add(fdb(), 0);
  add(bd(), 31);
}

TEST_F(StrictSramTest, MoreCopiesThanTheDeviceHasAreNotRead) {
  table(0, inUse(hashAt(0, 1)));
  useProfile();
  begin();
  add(fdb(), 0, 255);
}

TEST_F(StrictSramTest, ContextFromElsewhereIsNotRead) {
  xpHashTableContext own = hashAt(0, 1);
  own.first = 0;
  xpTableContext* word = &own;
  begin();
  fdb()->addDevice(0, &word, 2, TABLE_INIT_WITH_FIXED_INFO);
  bd()->addDevice(200, &word, 2, TABLE_INIT_WITH_FIXED_INFO);
}

}  // namespace
}  // namespace xdksim
