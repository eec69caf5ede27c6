// References to entities as texts: what they write reads back below the root directory.
#include "reflect/TestLanguage.h"

#include <gtest/gtest.h>
#include <string>

namespace {

using namespace reflecttest;
using everyShape::Derived;
using everyShape::Leaf;
using everyShape::Mix;
using Mox::Ptr;

/// Roots that stand in the root directory for one test.
struct EntityReferenceTest : EveryFixture {
  ~EntityReferenceTest() override {
    for (auto const& name : entered_) Mox::Dir::root()->entryIs(name, nullptr);
  }
  void enter(Ptr<Mox::Entity> const& root, Mox::Name const& under) {
    entered_.push_back(under);
    Mox::Dir::root()->entryIs(under, root);
  }
  void enter(Ptr<Mox::Entity> const& root) { enter(root, root->name()); }
  static Mox::Entity* read(Mox::MoxType const* type, std::string const& text) {
    return entityOf(type->genericIf(Mox::String8(text), false));
  }
  static Mox::Entity* leafOf(std::string const& text) { return read(Leaf::_fwkType(), text); }
  static std::string refused(Mox::MoxType const* type, std::string const& text) {
    return refusal([&] { read(type, text); });
  }

 private:
  std::vector<Mox::Name> entered_;
};

TEST_F(EntityReferenceTest, ARootReadsBack) {
  enter(entity);
  EXPECT_EQ(read(Derived::_fwkType(), shown(face.ptr())), entity.ptr());
}

TEST_F(EntityReferenceTest, ChildrenReadBackFromScalarsAndCollections) {
  enter(entity);
  auto const best = entity->bestIs("b", 1, Mix());
  auto const child = entity->leavesIs("c", 1, Mix());
  EXPECT_EQ(leafOf(shown(given(best))), best.ptr());
  EXPECT_EQ(leafOf(shown(given(child))), child.ptr());
}

TEST_F(EntityReferenceTest, GrandchildrenReadBack) {
  Ptr<everyShape::Bush> const bush = new everyShape::Bush("bush", nullptr);
  auto const branch = bush->branchesIs(4, leaf("l"), everyShape::calm);
  auto const twig = branch->twigIs("twig", 1, Mix());
  enter(bush);
  EXPECT_EQ(leafOf(shown(given(twig))), twig.ptr());
}

TEST_F(EntityReferenceTest, WhatIsOnlyReferredToIsNotFound) {
  enter(entity);
  entity->buddyIs(leaf("l"));
  entity->knownIs(leaf("l"));
  EXPECT_EQ(refused(Leaf::_fwkType(), "Entity('everyShape::Leaf', 'e0/l')"),
            "Range: there is no everyShape::Leaf 'e0/l'");
}

TEST_F(EntityReferenceTest, TheInterfaceIsAsConstantAsAsked) {
  enter(entity);
  auto const text = face->strRep();
  EXPECT_TRUE(Derived::_fwkType()->genericIf(text, true)->isConst());
  EXPECT_FALSE(Derived::_fwkType()->genericIf(text, false)->isConst());
}

TEST_F(EntityReferenceTest, NoneIsNoEntity) {
  EXPECT_EQ(leafOf("None"), nullptr);
  EXPECT_NE(refused(Leaf::_fwkType(), "None of it"), "done");
}

TEST_F(EntityReferenceTest, WhiteSpaceWithinAndQuotesAreFree) {
  enter(entity);
  EXPECT_EQ(read(Derived::_fwkType(), "Entity(\"everyShape::Derived\",\"e0\")"), entity.ptr());
  EXPECT_EQ(read(Derived::_fwkType(), "Entity ( 'everyShape::Derived' ,  'e0' )"), entity.ptr());
}

TEST_F(EntityReferenceTest, AnUnknownNameIsRefused) {
  enter(entity);
  EXPECT_EQ(refused(Derived::_fwkType(), "Entity('everyShape::Derived', 'e')"),
            "Range: there is no everyShape::Derived 'e'");
  EXPECT_EQ(refused(Derived::_fwkType(), "Entity('everyShape::Derived', 'e0/')"),
            "Range: there is no everyShape::Derived 'e0/'");
  EXPECT_EQ(refused(Derived::_fwkType(), "Entity('everyShape::Derived', '')"),
            "Range: there is no everyShape::Derived ''");
}

TEST_F(EntityReferenceTest, TheTypeMustBeTheVeryOne) {
  enter(entity);
  EXPECT_EQ(refused(Derived::_fwkType(), "Entity('everyShape::Every', 'e0')"),
            "Range: there is no everyShape::Every 'e0'");
  EXPECT_EQ(refused(Leaf::_fwkType(), "Entity('everyShape::Derived', 'e0')"),
            "Type: wrong type for 'Leaf'");
}

TEST_F(EntityReferenceTest, TwoOfOneNameAreAmbiguous) {
  enter(entity);
  entity->bestIs("c", 1, Mix());
  entity->leavesIs("c", 1, Mix());
  EXPECT_EQ(refused(Leaf::_fwkType(), "Entity('everyShape::Leaf', 'e0/c')"),
            "Range: there is more than one everyShape::Leaf 'e0/c'");
}

TEST_F(EntityReferenceTest, OneThatIsEnteredTwiceIsStillOne) {
  enter(entity);
  enter(entity, "again");
  EXPECT_EQ(read(Derived::_fwkType(), shown(face.ptr())), entity.ptr());
}

TEST_F(EntityReferenceTest, TheEntitysOwnNameCountsAndNotTheDirectorys) {
  enter(entity, "elsewhere");
  EXPECT_EQ(read(Derived::_fwkType(), "Entity('everyShape::Derived', 'e0')"), entity.ptr());
  EXPECT_EQ(refused(Derived::_fwkType(), "Entity('everyShape::Derived', 'elsewhere')"),
            "Range: there is no everyShape::Derived 'elsewhere'");
}

TEST_F(EntityReferenceTest, NamesMayHoldSlashesAndQuotes) {
  Ptr<Derived> const odd = new Derived("a/b", 1);
  auto const child = odd->leavesIs("it's c/d", 1, Mix());
  enter(odd);
  EXPECT_EQ(read(Derived::_fwkType(), "Entity('everyShape::Derived', 'a/b')"), odd.ptr());
  EXPECT_EQ(leafOf(shown(given(child))), child.ptr());
  EXPECT_EQ(leafOf("Entity('everyShape::Leaf', 'a/b/it\\'s c/d')"), child.ptr());
}

TEST_F(EntityReferenceTest, SlashesThatLeadToTwoAreAmbiguous) {
  Ptr<Derived> const one = new Derived("a", 1);
  Ptr<Derived> const other = new Derived("a/b", 1);
  one->leavesIs("b/c", 1, Mix());
  other->leavesIs("c", 1, Mix());
  enter(one);
  enter(other);
  EXPECT_EQ(refused(Leaf::_fwkType(), "Entity('everyShape::Leaf', 'a/b/c')"),
            "Range: there is more than one everyShape::Leaf 'a/b/c'");
}

TEST_F(EntityReferenceTest, TheBeginningOfANameIsNoName) {
  enter(entity);
  entity->leavesIs("cd", 1, Mix());
  EXPECT_EQ(refused(Leaf::_fwkType(), "Entity('everyShape::Leaf', 'e0/c')"),
            "Range: there is no everyShape::Leaf 'e0/c'");
  EXPECT_EQ(refused(Leaf::_fwkType(), "Entity('everyShape::Leaf', 'e0cd')"),
            "Range: there is no everyShape::Leaf 'e0cd'");
  EXPECT_EQ(refused(Leaf::_fwkType(), "Entity('everyShape::Leaf', 'e0-cd')"),
            "Range: there is no everyShape::Leaf 'e0-cd'");
}

TEST_F(EntityReferenceTest, ReadingCountsNoReadOfTheUsers) {
  enter(entity);
  entity->leavesIs("c", 1, Mix());
  U32 const version = entity->version();
  leafOf("Entity('everyShape::Leaf', 'e0/c')");
  EXPECT_EQ(entity->version(), version);
  EXPECT_EQ(entity->references(), 2u) << "nothing is kept";
}

TEST_F(EntityReferenceTest, TextsThatAreNoReferenceAreRefused) {
  for (char const* const junk : {"", "e0", "Entity", "Entity(", "Entity('everyShape::Leaf')",
                                 "Entity('a', 'b'", "Object('everyShape::Engine')"})
    EXPECT_EQ(refused(Leaf::_fwkType(), junk).substr(0, 15),
              "Range: column " + std::string() + refused(Leaf::_fwkType(), junk).substr(14, 1))
        << junk;
  enter(entity);
  EXPECT_EQ(refused(Derived::_fwkType(), "Entity('everyShape::Derived', 'e0') x").substr(0, 21),
            "Range: junk at column");
}

TEST_F(EntityReferenceTest, AnObjectHasNoReference) {
  EXPECT_EQ(refused(everyShape::Engine::_fwkType(), "None"),
            "Range: everyShape::Engine has no text form");
}

}  // namespace
