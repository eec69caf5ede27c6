// The collections of the reports, and how the module registers its types.
#include "Kestrel/XpTableCliHelper.module.h"
#include "XpLib/XpTableCliHelperRigTest.h"

namespace Kestrel::xpTableCliHelper {

namespace {

using Strings = std::vector<std::string>;

Strings attributes(Mox::MoxType const& type) {
  Strings result;
  for (auto const& entry : type.attributeQ())
    result.push_back(std::to_string(entry.key()) + ' ' + entry.value()->name().charPtr());
  return result;
}

Mox::MoxAttr::AttrFlags flags(Mox::MoxType const& type, char const* name) {
  return type.attr(name)->flags();
}

TEST(TableMemCollectionTest, HoldsItsTable) {
  EXPECT_EQ(tableMemCollectionFactory(42)->tableId(), 42u);
  EXPECT_EQ(TableMemCollection::TableMemCollectionIs(7)->tableId(), 7u);
}

TEST(TableMemCollectionTest, ChunksAreASet) {
  auto const memory = tableMemCollectionFactory(1);
  memory->sramChunkIs({1, 2, 3}, true);
  memory->sramChunkIs({1, 2, 3}, true);
  EXPECT_EQ(memory->sramChunkCount(), 1u);
}

TEST(TableMemCollectionTest, AbsentChunkReadsAsFalse) {
  auto const memory = tableMemCollectionFactory(1);
  EXPECT_FALSE(memory->sramChunk({1, 2, 3}));
  EXPECT_FALSE(memory->tcamChunk({1, 2}));
  EXPECT_FALSE(memory->ismeChunk({1, 2, 3}));
}

TEST(TableMemCollectionTest, FalseIsStoredAndRemovesNothing) {
  auto const memory = tableMemCollectionFactory(1);
  memory->ismeChunkIs({1, 2, 3}, true);
  memory->ismeChunkIs({1, 2, 3}, false);
  EXPECT_FALSE(memory->ismeChunk({1, 2, 3}));
  EXPECT_EQ(memory->ismeChunkCount(), 1u);
  memory->tcamChunkIs({1, 2}, false);
  EXPECT_EQ(memory->tcamChunkCount(), 1u);
}

TEST(TableMemCollectionTest, ChunksComeInAscendingOrder) {
  auto const memory = tableMemCollectionFactory(1);
  for (U8 pool : {3, 0, 200, 7, 1}) memory->newSramChunk({pool, 0, 0}, true);
  EXPECT_EQ(shown("sram", memory->sramChunkIteratorConst()),
            " sram 0:0-0 sram 1:0-0 sram 3:0-0 sram 7:0-0 sram 200:0-0");
}

TEST(TableMemCollectionTest, ChunksAreRemovedByKeyByIteratorAndAll) {
  auto const memory = tableMemCollectionFactory(1);
  for (U8 start : {1, 2, 3, 4}) memory->tcamChunkIs({start, start}, true);
  EXPECT_TRUE(memory->tcamChunkDel({1, 1}));
  EXPECT_FALSE(memory->tcamChunkDel({1, 1}));
  EXPECT_TRUE(memory->tcamChunkDel(memory->tcamChunkIterator()));
  EXPECT_EQ(shown("tcam", memory->tcamChunkIteratorConst()), " tcam 3-3 tcam 4-4");
  memory->tcamChunkDelAll();
  EXPECT_EQ(memory->tcamChunkCount(), 0u);
}

TEST(TableMemCollectionTest, NotifyDoesNothing) {
  auto const memory = tableMemCollectionFactory(1);
  memory->sramChunkNotify({1, 2, 3});
  EXPECT_EQ(memory->sramChunkCount(), 0u);
}

TEST(TableSramMemoryMapTest, AbsentBlockHasTheEmptyGroup) {
  auto const map = TableSramMemoryMap::TableSramMemoryMapIs();
  EXPECT_EQ(map->tableId({0, 0, 0}), SharedTableGroup());
  EXPECT_EQ(map->tableIdCount(), 0u);
}

TEST(TableSramMemoryMapTest, AbsentLegendIsTheEmptyString) {
  EXPECT_EQ(tableSramMemoryMapFactory()->legend(SharedTableGroup()), "");
}

TEST(TableSramMemoryMapTest, StoredGroupIsACopy) {
  auto const map = tableSramMemoryMapFactory();
  SharedTableGroup group;
  group.tableIdIs(1, true);
  map->tableIdIs({0, 0, 0}, group);
  group.tableIdIs(2, true);
  EXPECT_FALSE(map->tableId({0, 0, 0}).tableId(2));
  map->tableIdIs({0, 0, 0}, group);
  EXPECT_TRUE(map->tableId({0, 0, 0}).tableId(2));
}

// No group is less than another: those of one bucket have no order to go on by.
TEST(TableSramMemoryMapTest, RemovingAllLegendsLeavesNone) {
  auto const map = tableSramMemoryMapFactory();
  for (U32 table = 0; table < 8; ++table) {
    SharedTableGroup group;
    group.tableIdIs(table, true);
    map->legendIs(group, "x");
  }
  map->legendDelAll();
  EXPECT_EQ(map->legendCount(), 0u);
}

TEST(TableTcamMemoryMapTest, TellsTheTableOfAChunk) {
  auto const map = tableTcamMemoryMapFactory();
  map->tableIdIs({4, 5}, 42);
  EXPECT_EQ(map->tableId({4, 5}), 42u);
  EXPECT_EQ(map->tableId({4, 6}), 0u);
}

TEST(TableIsmeMemoryMapTest, TellsTheTableOfAChunkOfItsMemory) {
  auto const map = tableIsmeMemoryMapFactory(3);
  map->tableIdIs({3, 4, 5}, 60);
  EXPECT_EQ(map->ismeNum(), 3);
  EXPECT_EQ(map->tableId({3, 4, 5}), 60u);
}

TEST(TableCollectionTest, NamesInTheOrderOfTheHashMap) {
  auto const tables = tableCollectionFactory();
  for (U32 id : {1, 2, 3, 4}) tables->tableNameIs(id, std::to_string(id).c_str());
  std::string names;
  for (auto at = tables->tableNameIteratorConst(); at; ++at) names += at.value().charPtr();
  EXPECT_EQ(names, "4213");
}

TEST(TableCliHelperTest, TakesNoStatus) {
  EXPECT_FALSE(tableCliHelperFactory(nullptr)->chipStatus());
}

TEST(TableCliHelperTest, HoldsItsStatusAndLetsItGo) {
  auto const status = chipWith({});
  U32 const before = status->references();
  auto helper = tableCliHelperFactory(status);
  EXPECT_EQ(status->references(), before + 1);
  helper = nullptr;
  EXPECT_EQ(status->references(), before);
}

TEST(XpTableCliHelperModuleTest, TypesInTheirOrder) {
  Strings names;
  for (frame::TypeRow const* row : moxModuleXpTableCliHelper().types())
    names.push_back(row->fullName);
  EXPECT_EQ(names, (Strings{"Kestrel::TableSramChunk", "Kestrel::TableTcamChunk",
                            "Kestrel::TableIsmeChunk", "Kestrel::TableMemCollection",
                            "Kestrel::SharedTableGroup", "Kestrel::TableSramMemoryMap",
                            "Kestrel::TableTcamMemoryMap", "Kestrel::TableIsmeMemoryMap",
                            "Kestrel::TableCollection", "Kestrel::TableCliHelper"}));
}

TEST(XpTableCliHelperModuleTest, AttributesOfChunks) {
  EXPECT_EQ(attributes(*TableSramChunk::_fwkType()),
            (Strings{"2 poolId", "3 startRowBlkId", "4 endRowBlkId", "5 numRows", "6 hash"}));
  EXPECT_EQ(attributes(*TableTcamChunk::_fwkType()),
            (Strings{"2 startDb", "3 endDb", "4 numRows", "5 hash"}));
  EXPECT_EQ(attributes(*TableIsmeChunk::_fwkType()),
            (Strings{"2 ismeId", "3 startTileId", "4 endTileId", "5 numRows", "6 hash"}));
}

TEST(XpTableCliHelperModuleTest, AttributesOfRecords) {
  EXPECT_EQ(attributes(*TableMemCollection::_fwkType()),
            (Strings{"130 tableId", "131 sramChunk", "132 tcamChunk", "133 ismeChunk"}));
  EXPECT_EQ(attributes(*SharedTableGroup::_fwkType()), (Strings{"2 tableId", "3 hash"}));
  EXPECT_EQ(attributes(*TableSramMemoryMap::_fwkType()), (Strings{"130 tableId", "131 legend"}));
  EXPECT_EQ(attributes(*TableTcamMemoryMap::_fwkType()), (Strings{"130 tableId"}));
  EXPECT_EQ(attributes(*TableIsmeMemoryMap::_fwkType()), (Strings{"130 ismeNum", "131 tableId"}));
  EXPECT_EQ(attributes(*TableCollection::_fwkType()), (Strings{"130 tableName"}));
}

TEST(XpTableCliHelperModuleTest, OperationsOfTheHelper) {
  EXPECT_EQ(
      attributes(*TableCliHelper::_fwkType()),
      (Strings{"130 chipStatus", "131 getTableCollection", "132 displayAllDynamicTablesSummary",
               "133 displayAllDynamicTablesDetail", "134 displaySramAllocationGraph",
               "135 displaySingleDynamicTableDetail", "136 displaySingleDynamicTableSummary"}));
}

TEST(XpTableCliHelperModuleTest, KindsAndBases) {
  for (Mox::MoxType const* value : {TableSramChunk::_fwkType(), SharedTableGroup::_fwkType()}) {
    EXPECT_TRUE(value->isValue() && value->hasGenericIfSupport() && !value->isEntity());
    EXPECT_EQ(value->base(), nullptr);
  }
  for (Mox::MoxType const* object : {TableMemCollection::_fwkType(), TableCliHelper::_fwkType()}) {
    EXPECT_TRUE(object->hasGenericIfSupport() && !object->isValue() && !object->isEntity());
    EXPECT_EQ(object->base()->fullTypeName(), "Mox::PtrInterface");
  }
}

TEST(XpTableCliHelperModuleTest, Flags) {
  using Flags = Mox::MoxAttr::AttrFlags;
  EXPECT_EQ(flags(*TableSramChunk::_fwkType(), "poolId"), (Flags{0x220109, 0x40000400}));
  EXPECT_EQ(flags(*TableSramChunk::_fwkType(), "numRows"), (Flags{0x220001, 0x40000400}));
  EXPECT_EQ(flags(*TableMemCollection::_fwkType(), "sramChunk"), (Flags{0x1A20103, 0x400}));
  EXPECT_EQ(flags(*TableMemCollection::_fwkType(), "tableId"), (Flags{0x220109, 0x40000400}));
  EXPECT_EQ(flags(*TableCliHelper::_fwkType(), "chipStatus"), (Flags{0x8220109, 0x40000400}));
  EXPECT_EQ(flags(*TableCliHelper::_fwkType(), "getTableCollection"), (Flags{0x20001, 0x400}));
  EXPECT_EQ(flags(*TableCliHelper::_fwkType(), "displayAllDynamicTablesSummary"),
            (Flags{0x20000, 0x400}));
}

}  // namespace

}  // namespace Kestrel::xpTableCliHelper
