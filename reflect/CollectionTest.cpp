// Collections by number: elements, counts and changes, of every shape.
#include "reflect/TestLanguage.h"

#include <gtest/gtest.h>

namespace {

using namespace reflecttest;
using everyShape::Leaf;
using everyShape::Mix;

struct CollectionTest : EveryFixture {
  std::string count(Id id) const { return shown(face.ask(id, GenericIf::opCount)); }
  std::string has(Id id, GenericIf::PtrConst const& key) const {
    return shown(face.ask(id, GenericIf::opIsMember, key));
  }
  U32 changes(Id id) const { return Mox::primitiveIn<U32>(face.ask(id, GenericIf::opChanges)); }
};

TEST_F(CollectionTest, ElementsAreWrittenReadAndErased) {
  face.write(every::bytes, given(U8{3}), given(U32{30}));
  EXPECT_EQ(entity->bytes(3), 30u);
  EXPECT_EQ(face.read(every::bytes, given(U8{3})), "30");
  EXPECT_FALSE(face.ask(every::bytes, GenericIf::opErase, given(U8{3})));
  EXPECT_EQ(entity->bytesCount(), 0u);
}

TEST_F(CollectionTest, AMissingElementReadsAsTheDefault) {
  EXPECT_EQ(face.read(every::bytes, given(U8{3})), "0");
  EXPECT_EQ(face.read(every::words, given(U32{3})), "''");
  EXPECT_EQ(face.read(every::seats, given(U8{3})), "None");
  EXPECT_EQ(face.read(every::leaves, given(Mox::Name("a"))), "None");
  EXPECT_EQ(count(every::bytes), "0") << "reading adds nothing";
}

TEST_F(CollectionTest, ErasingAMissingElementDoesNothing) {
  entity->bytesIs(1, 10);
  U32 const version = entity->version();
  face.ask(every::bytes, GenericIf::opErase, given(U8{3}));
  EXPECT_EQ(count(every::bytes), "1");
  EXPECT_EQ(entity->version(), version);
}

TEST_F(CollectionTest, MembershipIsOfKeysAndNotOfValues) {
  entity->textsIs("a", false);
  EXPECT_EQ(has(every::texts, text("a")), "True");
  EXPECT_EQ(has(every::texts, text("b")), "False");
}

TEST_F(CollectionTest, CountsAreThirtyTwoBits) {
  for (U32 key = 0; key < 300; ++key) entity->wordsIs(key, "w");
  EXPECT_EQ(count(every::words), "300");
  EXPECT_EQ(face.ask(every::words, GenericIf::opCount)->type(), Mox::Builtin<U32>::_fwkType());
  EXPECT_EQ(face.ask(every::words, GenericIf::opChanges)->type(), Mox::Builtin<U32>::_fwkType());
}

TEST_F(CollectionTest, InsertionsAndRemovalsAreChangesAndOtherValuesAreNot) {
  for (Id const id : {every::bytes, every::lanes}) {
    U32 const before = changes(id);
    auto const value = id == every::bytes ? given(U32{9}) : given(U8{9});
    face.write(id, given(U8{1}), id == every::bytes ? given(U32{1}) : given(U8{1}));
    EXPECT_EQ(changes(id), before + 1);
    face.write(id, given(U8{1}), value);
    EXPECT_EQ(changes(id), before + 1) << "the map is the same";
    face.ask(id, GenericIf::opErase, given(U8{1}));
    EXPECT_EQ(changes(id), before + 2);
    face.ask(id, GenericIf::opErase, given(U8{1}));
    EXPECT_EQ(changes(id), before + 2);
  }
}

TEST_F(CollectionTest, CountAndChangesNeedNoIndexAndLookAtNone) {
  entity->bytesIs(1, 10);
  EXPECT_EQ(shown(face.ask(every::bytes, GenericIf::opCount, text("any"))), "1");
}

TEST_F(CollectionTest, AConstantInterfaceReads) {
  entity->bytesIs(1, 10);
  EXPECT_EQ(constant.read(every::bytes, given(U8{1})), "10");
  EXPECT_TRUE(constant.ask(every::bytes, GenericIf::opRead, given(U8{1}))->isConst());
  EXPECT_TRUE(constant.ask(every::bytes, GenericIf::opCount)->isConst());
  EXPECT_TRUE(constant.ask(every::bytes, GenericIf::opIsMember, given(U8{1}))->isConst());
}

TEST_F(CollectionTest, TheOrderedMapHasTheSameOperations) {
  face.write(every::lanes, given(U8{3}), given(U8{30}));
  EXPECT_EQ(entity->lanes(3), 30);
  EXPECT_EQ(face.read(every::lanes, given(U8{3})), "30");
  EXPECT_EQ(has(every::lanes, given(U8{3})), "True");
  EXPECT_EQ(count(every::lanes), "1");
  face.ask(every::lanes, GenericIf::opErase, given(U8{3}));
  EXPECT_EQ(has(every::lanes, given(U8{3})), "False");
}

TEST_F(CollectionTest, ReferencesUnderAGivenKeyTakeNull) {
  auto const seated = leaf("s");
  face.write(every::seats, given(U8{1}), given(seated));
  EXPECT_EQ(entity->seats(1), seated);
  face.write(every::seats, given(U8{1}), given(Mox::Ptr<Leaf>()));
  EXPECT_EQ(entity->seats(1), nullptr);
  EXPECT_EQ(has(every::seats, given(U8{1})), "True") << "null is an element";
}

TEST_F(CollectionTest, ReferencesThatBearTheirKeyAreWrittenByTheValueAlone) {
  auto const known = leaf("k");
  face.write(every::known, given(known));
  EXPECT_EQ(entity->known("k"), known);
  EXPECT_EQ(face.read(every::known, given(Mox::Name("k"))), "Entity('everyShape::Leaf', 'k')");
  face.ask(every::known, GenericIf::opErase, given(Mox::Name("k")));
  EXPECT_EQ(count(every::known), "0");
}

TEST_F(CollectionTest, ChildrenAreReadCountedAndErased) {
  auto const child = entity->leavesIs("c", 1, Mix());
  EXPECT_EQ(face.read(every::leaves, given(Mox::Name("c"))), "Entity('everyShape::Leaf', 'e0/c')");
  EXPECT_EQ(has(every::leaves, given(Mox::Name("c"))), "True");
  EXPECT_EQ(changes(every::leaves), 1u);
  face.ask(every::leaves, GenericIf::opErase, given(Mox::Name("c")));
  EXPECT_EQ(count(every::leaves), "0");
  EXPECT_FALSE(child->parent()) << "erased as the mutator does";
}

TEST_F(CollectionTest, KeysAndValuesMayBeRecords) {
  auto const grove = everyShape::groveFactory("g");
  Face const of(grove);
  of.write(grove::byLevel, given(everyShape::Level(4)), given(everyShape::Knob()));
  EXPECT_EQ(grove->byLevelCount(), 1u);
  EXPECT_EQ(of.ask(grove::byLevel, GenericIf::opRead, given(everyShape::Level(4)))->type(),
            everyShape::Knob::_fwkType());
  EXPECT_EQ(of.refused(grove::byLevel, 128, given(U8{4}), given(everyShape::Knob())),
            "Type: wrong type for 'byLevel'");
}

TEST_F(CollectionTest, ADerivedClassHasCollectionsOfItsOwnAndOfItsBase) {
  face.write(every::marks, given(U8{1}), given(true));
  face.write(every::words, given(U32{2}), text("two"));
  EXPECT_TRUE(entity->marks(1));
  EXPECT_EQ(entity->words(2), "two");
}

TEST_F(CollectionTest, AnObjectsCollectionsAreReachedAlike) {
  auto const shelf = everyShape::shelfFactory(4);
  Face const of(shelf);
  of.write(131, given(Mix(1, 0, 0, 0, "b")), given(true));
  of.write(132, given(U32{7}), text("seven"));
  EXPECT_TRUE(shelf->books(Mix(1, 0, 0, 0, "b")));
  EXPECT_EQ(of.read(132, given(U32{7})), "'seven'");
  EXPECT_EQ(shown(of.ask(131, GenericIf::opCount)), "1");
  EXPECT_EQ(rest(of->attributeIteratorConst(132)), "7='seven' ");
}

TEST_F(CollectionTest, AValuesCollectionIsThatOfTheInterfacesCopy) {
  everyShape::Heap const heap;
  Face const of(given(heap));
  of.write(2, given(U32{5}), given(true));
  EXPECT_EQ(shown(of.ask(2, GenericIf::opCount)), "1");
  EXPECT_EQ(of.read(3), "1") << "the hash is that of the copy";
  EXPECT_EQ(heap.itemCount(), 0u);
  of.ask(2, GenericIf::opErase, given(U32{5}));
  EXPECT_EQ(shown(of.ask(2, GenericIf::opCount)), "0");
}

}  // namespace
