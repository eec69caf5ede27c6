// Walks by number: they survive every change of the collection, of the entity and of their
// interface.
#include "reflect/TestLanguage.h"

#include <gtest/gtest.h>
#include <set>

namespace {

using namespace reflecttest;
using everyShape::Leaf;
using everyShape::Mix;
using At = GenericIf::AttributeIteratorConst;

/// The same as text by the typed iterator of `bytes`.
std::string typedBytes(everyShape::Every const& entity) {
  std::string met;
  for (auto at = entity.bytesIteratorConst(); at; ++at)
    met += std::to_string(at.key()) + "=" + std::to_string(at.value()) + " ";
  return met;
}

struct WalkTest : EveryFixture {
  void bytesAre(std::initializer_list<U8> keys) {
    for (U8 const key : keys) entity->bytesIs(key, U32{10} * key);
  }
  void lanesAre(std::initializer_list<U8> keys) {
    for (U8 const key : keys) entity->lanesIs(key, static_cast<U8>(10 * key));
  }
  At walk(Id id) const { return face->attributeIteratorConst(id); }
  At walkFrom(Id id, GenericIf::PtrConst const& key) const {
    return face->attributeIteratorKeyConst(id, key);
  }
};

TEST_F(WalkTest, MeetsElementsInTheOrderOfTheCollection) {
  bytesAre({1, 2, 3, 4, 5, 6, 7, 200, 255});
  EXPECT_EQ(rest(walk(every::bytes)), typedBytes(*entity));
}

TEST_F(WalkTest, TheOrderedMapIsWalkedByKey) {
  lanesAre({9, 3, 200, 1});
  entity->lanesIs(200, 7);
  EXPECT_EQ(rest(walk(every::lanes)), "1=10 3=30 9=90 200=7 ");
}

TEST_F(WalkTest, AnEmptyCollectionIsAtItsEndAtOnce) {
  for (Id const id : {every::bytes, every::lanes, every::leaves, every::known, every::marks}) {
    auto at = walk(id);
    EXPECT_FALSE(at);
    EXPECT_FALSE(at.obj());
    EXPECT_FALSE(at.key());
    ++at;
    EXPECT_FALSE(at);
  }
}

TEST_F(WalkTest, StaysAtItsEndWhenTheCollectionGrows) {
  auto at = walk(every::bytes);
  bytesAre({1});
  EXPECT_FALSE(at);
  ++at;
  EXPECT_FALSE(at);
}

TEST_F(WalkTest, TheNullIteratorIsAtTheEnd) {
  At nobodys;
  EXPECT_FALSE(nobodys);
  EXPECT_FALSE(nobodys.obj());
  EXPECT_FALSE(nobodys.key());
  ++nobodys;
  At const copy = nobodys;
  EXPECT_FALSE(copy);
}

TEST_F(WalkTest, KeysAreConstantAndElementsAsConstantAsTheInterface) {
  bytesAre({1});
  auto const at = walk(every::bytes);
  EXPECT_TRUE(at.key()->isConst());
  EXPECT_FALSE(at.obj()->isConst());
  EXPECT_TRUE(constant->attributeIteratorConst(every::bytes).obj()->isConst());
  EXPECT_EQ(at.key()->type(), Mox::Builtin<U8>::_fwkType());
  EXPECT_EQ(at.obj()->type(), Mox::Builtin<U32>::_fwkType());
}

TEST_F(WalkTest, DeletingTheCurrentElementLosesNoOther) {
  for (Id const id : {every::bytes, every::lanes}) {
    bytesAre({1, 2, 3, 4, 5});
    lanesAre({1, 2, 3, 4, 5});
    std::string const all = rest(walk(id));
    std::string met;
    for (auto at = walk(id); at; ++at) {
      face.ask(id, GenericIf::opErase, at.key());
      met += shown(at.key()) + "=" + shown(at.obj()) + " ";
    }
    EXPECT_EQ(met, all) << "what was deleted still stands under the iterator";
    EXPECT_EQ(shown(face.ask(id, GenericIf::opCount)), "0");
  }
}

TEST_F(WalkTest, DeletingTheNextElementSkipsIt) {
  lanesAre({1, 2, 3});
  auto at = walk(every::lanes);
  entity->lanesDel(2);
  ++at;
  EXPECT_EQ(rest(at), "3=30 ");
}

TEST_F(WalkTest, DeletingAllEndsTheWalkAtItsNextStep) {
  for (Id const id : {every::bytes, every::lanes}) {
    bytesAre({1, 2});
    lanesAre({1, 2});
    auto at = walk(id);
    entity->bytesDelAll();
    entity->lanesDelAll();
    EXPECT_TRUE(at);
    ++at;
    EXPECT_FALSE(at);
  }
}

TEST_F(WalkTest, GrowthInMidWalkMeetsEachFormerElementOnce) {
  bytesAre({1, 2, 3});
  std::multiset<std::string> met;
  U8 next = 100;
  for (auto at = walk(every::bytes); at; ++at) {
    met.insert(shown(at.key()));
    if (next < 140)
      for (int i = 0; i < 20; ++i) entity->bytesIs(next++, 0);
  }
  for (char const* const former : {"1", "2", "3"}) EXPECT_EQ(met.count(former), 1u) << former;
  for (auto const& key : met) EXPECT_EQ(met.count(key), 1u) << key;
}

TEST_F(WalkTest, TheOrderedMapMeetsWhatComesBehindThePlace) {
  lanesAre({3, 5});
  auto at = walk(every::lanes);
  lanesAre({1, 4, 6});
  EXPECT_EQ(rest(at), "3=30 4=40 5=50 6=60 ");
}

TEST_F(WalkTest, AValueThatChangesIsReadAsItIs) {
  bytesAre({1});
  auto const at = walk(every::bytes);
  entity->bytesIs(1, 77);
  EXPECT_EQ(shown(at.obj()), "77");
}

TEST_F(WalkTest, StartsAtAKeyThatIsThere) {
  bytesAre({1, 2, 3, 4, 5, 6});
  std::string const all = typedBytes(*entity);
  for (U8 const key : {1, 2, 3, 4, 5, 6}) {
    std::string const own = std::to_string(key) + "=";
    EXPECT_EQ(rest(walkFrom(every::bytes, given(key))), all.substr(all.find(own)));
  }
}

TEST_F(WalkTest, AKeyThatIsAbsentStartsAtTheElementBehindItsPlace) {
  bytesAre({1, 2, 3, 5, 6, 7, 8});
  entity->bytesIs(4, 40);
  std::string const all = typedBytes(*entity);
  entity->bytesDel(4);
  EXPECT_EQ(rest(walkFrom(every::bytes, given(U8{4}))), all.substr(all.find("4=40 ") + 5));
}

TEST_F(WalkTest, TheOrderedMapStartsAtTheNextGreaterKey) {
  lanesAre({2, 4, 6});
  EXPECT_EQ(rest(walkFrom(every::lanes, given(U8{4}))), "4=40 6=60 ");
  EXPECT_EQ(rest(walkFrom(every::lanes, given(U8{3}))), "4=40 6=60 ");
  EXPECT_EQ(rest(walkFrom(every::lanes, given(U8{0}))), "2=20 4=40 6=60 ");
  EXPECT_EQ(rest(walkFrom(every::lanes, given(U8{7}))), "");
}

TEST_F(WalkTest, ACopyWalksOnByItself) {
  lanesAre({1, 2, 3});
  auto at = walk(every::lanes);
  ++at;
  At copy = at;
  ++copy;
  EXPECT_EQ(shown(at.key()), "2");
  EXPECT_EQ(rest(copy), "3=30 ");
  copy = at;
  ++at;
  EXPECT_EQ(shown(copy.key()), "2");
  At const moved = std::move(copy);
  EXPECT_EQ(shown(moved.key()), "2");
}

TEST_F(WalkTest, ACopyOfADeletedPlaceGoesOnBehindIt) {
  bytesAre({1, 2, 3, 4, 5});
  std::string const all = typedBytes(*entity);
  auto const at = walk(every::bytes);
  face.ask(every::bytes, GenericIf::opErase, at.key());
  At const copy = at;
  EXPECT_EQ(rest(copy), all);
}

TEST_F(WalkTest, SurvivesItsInterface) {
  bytesAre({1});
  At at = Face(entity)->attributeIteratorConst(every::bytes);
  EXPECT_EQ(rest(at), "1=10 ");
}

TEST_F(WalkTest, KeepsTheEntityThatNobodyElseHolds) {
  auto at = Face(entity)->attributeIteratorConst(every::bytes);
  EXPECT_FALSE(at);
  bytesAre({1, 2, 3});
  at = walk(every::bytes);
  std::string const all = typedBytes(*entity);
  entity = nullptr;
  EXPECT_EQ(rest(at), all);
}

TEST_F(WalkTest, LetsTheEntityGoAtItsEnd) {
  bytesAre({1});
  U32 const references = entity->references();
  auto at = walk(every::bytes);
  EXPECT_EQ(entity->references(), references + 1);
  ++at;
  EXPECT_FALSE(at);
  EXPECT_EQ(entity->references(), references);
}

TEST_F(WalkTest, LetsTheEntityGoWithTheIterator) {
  bytesAre({1});
  U32 const references = entity->references();
  {
    auto const at = walk(every::bytes);
    At const copy = at;
    EXPECT_EQ(entity->references(), references + 2);
  }
  EXPECT_EQ(entity->references(), references);
}

TEST_F(WalkTest, ADerivedClassWalksItsOwnAndItsBases) {
  entity->marksIs(4, true);
  entity->wordsIs(5, "five");
  EXPECT_EQ(rest(walk(every::marks)), "4=True ");
  EXPECT_EQ(rest(walk(every::words)), "5='five' ");
  EXPECT_EQ(rest(walkFrom(every::words, given(U32{5}))), "5='five' ");
  EXPECT_EQ(rest(walkFrom(every::marks, given(U8{4}))), "4=True ");
}

TEST_F(WalkTest, MeetsEntitiesAndNulls) {
  auto const grove = everyShape::groveFactory("g");
  grove->rowIs(1, leaf("a"));
  grove->rowIs(2, nullptr);
  EXPECT_EQ(rest(Face(grove)->attributeIteratorConst(grove::row)),
            "1=Entity('everyShape::Leaf', 'a') 2=None ");
  auto at = Face(grove)->attributeIteratorKeyConst(grove::row, given(U8{2}));
  EXPECT_EQ(at.obj()->type(), Leaf::_fwkType()) << "of no entity, but of the declared type";
}

TEST_F(WalkTest, MeetsChildrenThatAreTheirOwnNodes) {
  entity->leavesIs("c", 1, Mix());
  auto at = walk(every::leaves);
  EXPECT_EQ(rest(at), "'c'=Entity('everyShape::Leaf', 'e0/c') ");
  Face(at.obj()).write(260, given(true));
  EXPECT_TRUE(entity->leaves("c")->lit());
  entity->leavesDel("c");
  EXPECT_EQ(rest(at), "'c'=Entity('everyShape::Leaf', 'c') ") << "the iterator holds the child";
}

TEST_F(WalkTest, MeetsReferencesByTheirOwnKey) {
  entity->knownIs(leaf("k"));
  EXPECT_EQ(rest(walk(every::known)), "'k'=Entity('everyShape::Leaf', 'k') ");
}

TEST_F(WalkTest, AWalkOverAnObjectKeepsIt) {
  auto shelf = everyShape::shelfFactory(4);
  shelf->booksIs(Mix(2, 0, 0, 0, ""), true);
  shelf->booksIs(Mix(1, 0, 0, 0, ""), false);
  auto at = Face(shelf)->attributeIteratorConst(131);
  shelf = nullptr;
  EXPECT_EQ(shown(at.obj()), "False") << "in the order of the records";
  ++at;
  EXPECT_EQ(shown(at.obj()), "True");
}

TEST_F(WalkTest, AWalkOverAValueIsOverTheInterfacesCopy) {
  everyShape::Heap heap;
  heap.itemIs(1, true);
  At at;
  {
    Face const of(given(heap));
    at = of->attributeIteratorConst(2);
    heap.itemIs(2, true);
    of.write(2, given(U32{1}), given(false));
  }
  EXPECT_EQ(rest(at), "1=False ") << "the iterator keeps the copy";
}

}  // namespace
