// What a type says of its base: another start, a key of the base's, mutators to replace; and
// children whose parameters are compared.
#include "frame/TestLanguage.h"

#include <gtest/gtest.h>

namespace frametest {
namespace {

using everyShape::Branch;
using everyShape::Bush;
using everyShape::Mix;

class BranchListener : public Branch::NotifieeConst {
 public:
  std::string heard;

  void onGirth() override { heard += "girth;"; }
  void onTwig() override { heard += "twig;"; }
  void onBud() override { heard += "bud;"; }
};

class DerivedTest : public testing::Test {
 protected:
  DerivedTest() { watch(listener, branch); }

  Mox::Ptr<everyShape::Leaf> const stalk = leaf("stalk");
  Mox::Ptr<Branch> const branch = new Branch(7, stalk, everyShape::tense);
  Mox::Ptr<BranchListener> const listener = new BranchListener;
};

TEST_F(DerivedTest, PresetIsTheConstructorsLastAct) {
  EXPECT_EQ(everyShape::Stem(1).girth(), 0u);
  EXPECT_EQ(branch->girth(), 3u);
  EXPECT_EQ(branch->version(), 1u);
  EXPECT_EQ(listener->heard, "");
}

TEST_F(DerivedTest, EntityWithoutANameHasTheEmptyOne) {
  EXPECT_EQ(branch->name(), "");
  EXPECT_EQ(branch->port(), 7u);
}

TEST_F(DerivedTest, SecondNameOfAParameterReadsAsThat) {
  U32 const reads = branch->readCount();
  EXPECT_EQ(branch->tone(), everyShape::tense);
  EXPECT_EQ(branch->readCount(), reads + 1);
}

TEST_F(DerivedTest, KeyOfTheBaseIsReadWithoutACount) {
  U32 const reads = branch->readCount();
  EXPECT_EQ(branch->moxKey(), 7u);
  EXPECT_EQ(branch->readCount(), reads);
}

TEST_F(DerivedTest, ElementsAreFoundUnderTheKeyOfTheirBase) {
  Mox::Ptr<Bush> const bush = new Bush("bush", nullptr);
  auto const kept = bush->branchesIs(7, stalk, everyShape::calm);
  U32 const reads = kept->readCount();
  EXPECT_EQ(bush->branches(7), kept);
  EXPECT_FALSE(bush->branches(8));
  EXPECT_EQ(kept->readCount(), reads);
  EXPECT_EQ(bush->branchesDel(7), kept);
}

TEST_F(DerivedTest, AnEntityMayBeMadeOfItsLike) {
  Mox::Ptr<Bush> const bush = new Bush("bush", nullptr);
  Mox::Ptr<Bush> const offshoot = new Bush("offshoot", bush);
  EXPECT_EQ(offshoot->parentBush(), bush);
}

std::string nameInUse(std::function<void()> const& step) {
  try {
    step();
  } catch (Mox::NameInUseException const& exception) {
    return exception.what();
  }
  return "";
}

TEST_F(DerivedTest, ParametersThatAreEntitiesAreComparedByIdentity) {
  Mox::Ptr<Bush> const bush = new Bush("bush", nullptr);
  auto const kept = bush->branchesIs(7, stalk, everyShape::calm);
  EXPECT_EQ(bush->branchesIs(7, stalk, everyShape::calm), kept);
  EXPECT_EQ(nameInUse([&] { bush->branchesIs(7, nullptr, everyShape::tense); }),
            "Reinstantiating the entity with name 7 where constructor parameter attribute _leaf "
            "has a different value of None than the current value of "
            "Entity('everyShape::Leaf', 'stalk') not allowed");
  EXPECT_EQ(nameInUse([&] { bush->branchesIs(7, stalk, everyShape::tense); }),
            "Reinstantiating the entity with name 7 where constructor parameter attribute _mood "
            "has a different value of 'tense' than the current value of 'calm' not allowed");
}

// Doubles what it is told.
class ThickBranch : public Branch {
 public:
  using Branch::Branch;
  void girthIs(U32 girth) override { Branch::girthIs(2 * girth); }
};

TEST_F(DerivedTest, VirtualMutatorsCanBeReplaced) {
  Mox::Ptr<everyShape::Stem> const stem = new ThickBranch(1, stalk, everyShape::calm);
  EXPECT_EQ(stem->girth(), 3u);
  stem->girthIs(4);
  EXPECT_EQ(stem->girth(), 8u);
}

TEST_F(DerivedTest, ComparedChildIsKeptIfAllIsEqualAndTheVersionSteps) {
  auto const twig = branch->twigIs("a", 1, Mix());
  EXPECT_EQ(branch->twigIs("a", 1, Mix()), twig);
  EXPECT_EQ(branch->version(), 1u + 1u + 1u);
  EXPECT_EQ(listener->heard, "twig;");
}

TEST_F(DerivedTest, ComparedChildIsReplacedAtAnyDifference) {
  auto const first = branch->twigIs("a", 1, Mix());
  auto const second = branch->twigIs("a", 2, Mix());
  EXPECT_NE(second, first);
  EXPECT_FALSE(first->parent());
  EXPECT_EQ(second->lane(), 2u);
  EXPECT_EQ(branch->version(), 1u + 1u + 2u);
  EXPECT_EQ(listener->heard, "twig;twig;");
}

TEST_F(DerivedTest, QuietChildIsKeptWithoutAnyChange) {
  auto const bud = branch->budIs("a", 1, Mix());
  EXPECT_EQ(branch->budIs("a", 1, Mix()), bud);
  EXPECT_EQ(branch->version(), 1u + 1u);
  EXPECT_NE(branch->budIs("b", 1, Mix()), bud);
  EXPECT_EQ(branch->version(), 1u + 1u + 2u);
  EXPECT_EQ(listener->heard, "bud;bud;");
}

}  // namespace
}  // namespace frametest
