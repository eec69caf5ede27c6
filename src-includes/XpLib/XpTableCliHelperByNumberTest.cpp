// The reports, and the records that they are made of, by number.
#include "XpLib/XpTableCliHelperRigTest.h"
#include "hwmodel/ValuesByNumberTest.h"

namespace Kestrel::xpTableCliHelper {
namespace {

using namespace attributes;

/// The interface of an object.
template <class T>
GenericIf::Ptr faceOf(Mox::Ptr<T> const& object, bool isConst = false) {
  return object->fwkType()->genericIf_(object.ptr(), isConst);
}

/// What a walk over collection `id` meets: "1='a' 2='b' ".
std::string walk(GenericIf::Ptr const& of, Mox::AttributeId id) {
  std::string met;
  for (auto at = of->attributeIteratorConst(id); at; ++at)
    met += std::string(at.key()->strRep().view()) + "=" + at.obj()->strRep().charPtr() + " ";
  return met;
}
std::string count(GenericIf::Ptr const& of, Mox::AttributeId id) {
  return of->attributeOp({id, GenericIf::opCount})->strRep().charPtr();
}

template <class Chunk>
std::string textOf(Chunk const& chunk) {
  return valueToStrep(chunk).charPtr();
}

TEST(XpTableCliHelperByNumberTest, ChunksReadBackFromTheirTexts) {
  expectRoundTrip(TableSramChunk(7, 1, 255));
  expectRoundTrip(TableTcamChunk(1, 2));
  expectRoundTrip(TableIsmeChunk(1, 2, 3));
}

TEST(XpTableCliHelperByNumberTest, ChunksServeFieldsRowsAndHash) {
  TableSramChunk const sram(4, 1, 2);
  EXPECT_EQ(fields(sram), "poolId 4, startRowBlkId 1, endRowBlkId 2, numRows 2048, hash " +
                              std::to_string(sram.hash()));
  TableTcamChunk const tcam(1, 2);
  EXPECT_EQ(fields(tcam), "startDb 1, endDb 2, numRows 6144, hash " + std::to_string(tcam.hash()));
  TableIsmeChunk const isme(4, 1, 2);
  EXPECT_EQ(fields(isme), "ismeId 4, startTileId 1, endTileId 2, numRows 2048, hash " +
                              std::to_string(isme.hash()));
}

TEST(XpTableCliHelperByNumberTest, ChunksAreWrittenFieldByFieldAndMadeOfLists) {
  auto const chunk = face(TableSramChunk(1, 2, 3));
  write(chunk, 4, number(U8{5}));
  EXPECT_EQ(valueOf<TableSramChunk>(chunk), TableSramChunk(1, 2, 5));
  EXPECT_EQ(made<TableSramChunk>({number(U8{1}), number(U8{2})}), TableSramChunk(1, 2, 0));
  EXPECT_EQ(made<TableTcamChunk>({}), TableTcamChunk());
  EXPECT_EQ(made<TableIsmeChunk>({number(U8{1}), number(U8{2}), number(U8{3})}),
            TableIsmeChunk(1, 2, 3));
  EXPECT_EQ(refusal<Mox::UnknownArgException>([] {
              made<TableTcamChunk>({number(U8{1}), number(U8{2}), number(U8{3})});
            }),
            "too many arguments for 'TableTcamChunk'");
}

TEST(XpTableCliHelperByNumberTest, RowsAndHashesAreOnlyRead) {
  expectReadOnly<TableSramChunk>(5, "numRows");
  expectReadOnly<TableSramChunk>(6, "hash");
  expectReadOnly<TableTcamChunk>(4, "numRows");
  expectReadOnly<TableIsmeChunk>(5, "numRows");
}

TEST(XpTableCliHelperByNumberTest, AWalkOverAGroupOutlivesItsInterface) {
  SharedTableGroup group;
  for (U32 const table : {50u, 1u, 7u}) group.tableIdIs(table, true);
  std::string typed;
  for (auto at = group.tableIdIteratorConst(); at; ++at)
    typed += std::to_string(at.key()) + "=True ";
  EXPECT_EQ(walk(face(group), 2), typed);
  auto at = face(group)->attributeIteratorKeyConst(2, number(U32{7}));
  EXPECT_EQ(at.key()->strRep(), "7") << "the copy lives on in the iterator";
  EXPECT_EQ(read(face(group), 3), std::to_string(group.hash()));
}

TEST(XpTableCliHelperByNumberTest, AGroupIsChangedInItsCopyAlone) {
  SharedTableGroup group;
  group.tableIdIs(1, true);
  auto const copy = face(group);
  EXPECT_FALSE(copy->attributeOp({2, GenericIf::opWrite}, number(U32{2}), number(true)));
  EXPECT_EQ(count(copy, 2), "2");
  EXPECT_EQ(group.tableIdCount(), 1u);
}

TEST(XpTableCliHelperByNumberTest, TheMemoryOfATableIsWalkedByChunk) {
  auto const memory = memoryOf(named(9, "T", nh(4096, 64, {{5, 1}, {2, 3}})));
  auto const of = faceOf(memory);
  EXPECT_EQ(read(of, 130), "9");
  std::string typed;
  for (auto at = memory->sramChunkIteratorConst(); at; ++at) typed += textOf(at.key()) + "=True ";
  EXPECT_NE(typed, "");
  EXPECT_EQ(walk(of, 131), typed);
  EXPECT_EQ(count(of, 131), std::to_string(memory->sramChunkCount()));
  EXPECT_EQ(walk(of, 132), "");
}

TEST(XpTableCliHelperByNumberTest, EachKindOfMemoryHasItsNumber) {
  auto const memory = TableMemCollection::TableMemCollectionIs(3);
  auto const of = faceOf(memory);
  auto const add = [&](Mox::AttributeId id, GenericIf::Ptr const& chunk) {
    EXPECT_FALSE(of->attributeOp({id, GenericIf::opWrite}, chunk, number(true)));
  };
  add(131, face(TableSramChunk(1, 2, 3)));
  add(132, face(TableTcamChunk(1, 2)));
  add(133, face(TableIsmeChunk(3, 2, 1)));
  EXPECT_TRUE(memory->sramChunk(TableSramChunk(1, 2, 3)));
  EXPECT_TRUE(memory->tcamChunk(TableTcamChunk(1, 2)));
  EXPECT_TRUE(memory->ismeChunk(TableIsmeChunk(3, 2, 1)));
}

TEST(XpTableCliHelperByNumberTest, AMapFromChunksToGroupsIsReadAndWritten) {
  auto const map = TableSramMemoryMap::TableSramMemoryMapIs();
  SharedTableGroup group;
  group.tableIdIs(7, true);
  auto const of = faceOf(map);
  auto const block = face(TableSramChunk(1, 2, 2));
  EXPECT_FALSE(of->attributeOp({130, GenericIf::opWrite}, block, face(group)));
  EXPECT_FALSE(of->attributeOp({131, GenericIf::opWrite}, face(group), number(Mox::String8("A"))));
  EXPECT_TRUE(map->tableId(TableSramChunk(1, 2, 2)).tableId(7));
  EXPECT_EQ(map->legend(group), "A");
  EXPECT_EQ(of->attributeOp({131}, face(group))->strRep(), "'A'");
}

TEST(XpTableCliHelperByNumberTest, TheReportsAreCalledByNumber) {
  auto const reports = helper({named(9, "T", blocks(1, 2, 3)), named(4, "U", match(2, 1))});
  auto const of = faceOf(reports);
  auto const report = [&](Mox::AttributeId id, GenericIf::PtrConst const& argument = nullptr) {
    auto const text = of->attributeOp({id, GenericIf::opWrite}, nullptr, argument);
    return Mox::String8(Mox::primitiveIn<Mox::String8>(text));
  };
  EXPECT_EQ(report(132), reports->displayAllDynamicTablesSummary());
  EXPECT_EQ(report(133), reports->displayAllDynamicTablesDetail());
  EXPECT_EQ(report(134), reports->displaySramAllocationGraph());
  EXPECT_EQ(report(135, number(U32{9})), reports->displaySingleDynamicTableDetail(9));
  EXPECT_EQ(report(136, list({number(U32{4})})), reports->displaySingleDynamicTableSummary(4));
  EXPECT_NE(report(135, number(U32{9})), report(135, number(U32{4})));
}

TEST(XpTableCliHelperByNumberTest, TheCollectionOfTablesIsAnObjectOfItsOwn) {
  auto const of = faceOf(helper({named(9, "T", blocks(1, 2, 3))}));
  auto const tables = of->attributeOp({131, GenericIf::opWrite});
  EXPECT_EQ(walk(tables, 130), "9='T' ");
}

TEST(XpTableCliHelperByNumberTest, TheStatusIsReadForReadingAlone) {
  auto const status = chipWith({});
  auto const of = faceOf(tableCliHelperFactory(status));
  auto const answer = of->attributeOp({130});
  EXPECT_TRUE(answer->isConst());
  EXPECT_EQ(dynamic_cast<Mox::GenericIfEntity const&>(*answer).entity(), status.ptr());
}

TEST(XpTableCliHelperByNumberTest, AReportOfOneTableNeedsItsNumber) {
  auto const of = faceOf(helper({}));
  EXPECT_EQ(refusal<Mox::TypeException>([&] {
              of->attributeOp({135, 128});
            }),
            "wrong type for 'tableId'");
  EXPECT_EQ(refusal<Mox::TypeException>([&] {
              of->attributeOp({135, 128}, nullptr, number(U8{1}));
            }),
            "wrong type for 'tableId'");
  EXPECT_EQ(refusal<Mox::UnknownArgException>([&] {
              of->attributeOp({132, 128}, nullptr, number(U32{1}));
            }),
            "too many arguments for 'displayAllDynamicTablesSummary'");
  EXPECT_EQ(refusal<Mox::ConstException>([&] {
              faceOf(helper({}), true)->attributeOp({132, 128});
            }),
            "attempting to modify a const instance");
}

}  // namespace
}  // namespace Kestrel::xpTableCliHelper
