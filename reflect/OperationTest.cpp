// Operations and constructors by number: their arguments, and what they hand out.
#include "reflect/Steps.h"
#include "reflect/TestLanguage.h"

#include <gtest/gtest.h>

namespace {

using namespace reflecttest;
using everyShape::Knob;
using everyShape::Leaf;
using everyShape::Mix;

Knob turned(U8 turn) {
  Knob knob;
  knob.turnIs(turn);
  return knob;
}

struct OperationTest : testing::Test {
  std::string prune(GenericIf::PtrConst const& arguments) const {
    return shown(trees.ask(grove::prune, GenericIf::opWrite, nullptr, arguments));
  }
  std::string refusedPrune(GenericIf::PtrConst const& arguments) const {
    return trees.refused(grove::prune, GenericIf::opWrite, nullptr, arguments);
  }
  std::string refusedStart(GenericIf::PtrConst const& arguments) const {
    return works.refused(engine::start, GenericIf::opWrite, nullptr, arguments);
  }

  Mox::Ptr<everyShape::Grove> grove = everyShape::groveFactory("g");
  Mox::Ptr<everyShape::Engine> engine = everyShape::engineFactory(grove, "n");
  Face trees{grove};
  Face works{engine};
};

TEST_F(OperationTest, SeveralArgumentsComeInAListAndTheResultComesBack) {
  EXPECT_EQ(prune(list({given(U8{4}), given(turned(5))})), "9");
}

TEST_F(OperationTest, TheResultIsOfTheOperationsType) {
  auto const result =
      trees.ask(grove::prune, GenericIf::opWrite, nullptr, list({given(U8{4}), given(turned(5))}));
  EXPECT_EQ(result->type(), Mox::Builtin<U8>::_fwkType());
}

TEST_F(OperationTest, NoArgumentsAreNullOrAnEmptyList) {
  engine->runningIs(false);
  EXPECT_FALSE(works.ask(engine::start, GenericIf::opWrite)) << "there is no result";
  EXPECT_TRUE(engine->running());
  engine->runningIs(false);
  EXPECT_FALSE(works.ask(engine::start, GenericIf::opWrite, nullptr, list()));
  EXPECT_TRUE(engine->running());
}

TEST_F(OperationTest, TooManyArgumentsNameTheOperation) {
  EXPECT_EQ(refusedStart(given(U8{1})), "UnknownArg: too many arguments for 'start'");
  EXPECT_EQ(refusedStart(list({nullptr})), "UnknownArg: too many arguments for 'start'");
  EXPECT_EQ(refusedPrune(list({given(U8{4}), given(turned(5)), given(U8{6})})),
            "UnknownArg: too many arguments for 'prune'");
}

TEST_F(OperationTest, AMissingArgumentIsNamed) {
  EXPECT_EQ(refusedPrune(list()), "Type: wrong type for 'from'");
  EXPECT_EQ(refusedPrune(list({given(U8{4})})), "Type: wrong type for 'knob'");
  EXPECT_EQ(refusedPrune(list({given(U8{4}), nullptr})), "Type: wrong type for 'knob'");
}

TEST_F(OperationTest, AWrongArgumentIsNamed) {
  EXPECT_EQ(refusedPrune(list({given(U16{4}), given(turned(5))})), "Type: wrong type for 'from'");
  EXPECT_EQ(refusedPrune(list({given(U8{4}), given(U8{5})})), "Type: wrong type for 'knob'");
}

TEST_F(OperationTest, SeveralArgumentsMustBeAList) {
  EXPECT_EQ(refusedPrune(nullptr), "Type: wrong type for 'Mox::GenericIf::List_'");
  EXPECT_EQ(refusedPrune(given(U8{4})), "Type: wrong type for 'Mox::GenericIf::List_'");
  EXPECT_EQ(refusedPrune(new GenericIf::List_(nullptr)), "Type: wrong type for 'List'");
}

TEST_F(OperationTest, AnOperationIsOnlyCalled) {
  EXPECT_EQ(works.refused(engine::start, GenericIf::opRead),
            "OpNotSupported: 'start' does not support operation 0");
  EXPECT_EQ(works.refused(engine::start, GenericIf::opErase),
            "OpNotSupported: 'start' does not support operation 129");
  EXPECT_EQ(works.refused(engine::start, GenericIf::opWrite, given(U8{1})),
            "BadIndexAttr: attribute 'start' takes no index");
}

TEST_F(OperationTest, AConstantInterfaceCallsNothing) {
  engine->runningIs(false);
  EXPECT_EQ(Face(engine, true).refused(engine::start, GenericIf::opWrite),
            "Const: attempting to modify a const instance");
  EXPECT_FALSE(engine->running());
}

struct ConstructorTest : testing::Test {
  static std::string refused(GenericIf::PtrConst const& arguments) {
    return refusal([&] { leaves()->genericIfListConstructor(arguments); });
  }
  static GenericIf::Ptr leaves() { return Leaf::_fwkType()->genericIf_(nullptr, true); }
};

TEST_F(ConstructorTest, MakesAnEntityOfItsParameters) {
  Face const made(leaves()->genericIfListConstructor(
      list({given(Mox::Name("a")), given(U8{3}), given(Mix(1, 2, 3, 4, "t"))})));
  EXPECT_EQ(shown(made.ptr()), "Entity('everyShape::Leaf', 'a')");
  EXPECT_EQ(made.read(258), "3");
  EXPECT_EQ(made.read(259), shown(given(Mix(1, 2, 3, 4, "t"))));
  EXPECT_FALSE(made->isConst());
}

TEST_F(ConstructorTest, WhatTheListLeavesOutHasItsDefault) {
  Face const made(leaves()->genericIfListConstructor(list({given(Mox::Name("a"))})));
  EXPECT_EQ(made.read(258), "0");
  EXPECT_EQ(shown(leaves()->genericIfListConstructor(list())), "Entity('everyShape::Leaf', '')");
}

TEST_F(ConstructorTest, TheResultAloneKeepsTheEntityAlive) {
  auto made = leaves()->genericIfListConstructor(list({given(Mox::Name("a"))}));
  Mox::Ptr<Mox::Entity> const entity = entityOf(made);
  EXPECT_EQ(entity->references(), 2u);
  made = nullptr;
  EXPECT_EQ(entity->references(), 1u);
}

TEST_F(ConstructorTest, RefusesWhatIsNoList) {
  EXPECT_EQ(refused(nullptr), "Type: wrong type for 'Mox::GenericIf::List_'");
  EXPECT_EQ(refused(given(U8{1})), "Type: wrong type for 'Mox::GenericIf::List_'");
  EXPECT_EQ(refused(new GenericIf::List_(nullptr)), "Type: wrong type for 'List'");
}

TEST_F(ConstructorTest, RefusesWrongTypesByTheParametersName) {
  EXPECT_EQ(refused(list({text("a")})), "Type: wrong type for 'name'");
  EXPECT_EQ(refused(list({given(Mox::Name("a")), given(U16{1})})), "Type: wrong type for 'lane'");
  EXPECT_EQ(refused(list({given(Mox::Name("a")), nullptr})), "Type: wrong type for 'lane'");
}

TEST_F(ConstructorTest, RefusesEntriesLeftOver) {
  EXPECT_EQ(refused(list({given(Mox::Name("a")), given(U8{1}), given(Mix()), given(U8{1})})),
            "UnknownArg: too many arguments for 'Leaf'");
}

TEST_F(ConstructorTest, TakesEntitiesAsParameters) {
  Mox::Ptr<everyShape::Bush> const parent = new everyShape::Bush("p", nullptr);
  Face const made(everyShape::Bush::_fwkType()
                      ->genericIf_(nullptr, false)
                      ->genericIfListConstructor(list({given(Mox::Name("b")), given(parent)})));
  EXPECT_EQ(made.read(258), "Entity('everyShape::Bush', 'p')");
}

TEST_F(ConstructorTest, ADerivedClassMakesOneOfItsOwn) {
  auto const deriveds = everyShape::Derived::_fwkType()->genericIf_(nullptr, false);
  auto const made =
      deriveds->genericIfListConstructor(list({given(Mox::Name("d")), given(U16{5})}));
  EXPECT_EQ(shown(made), "Entity('everyShape::Derived', 'd')");
  EXPECT_EQ(Face(made).read(every::port), "5");
  EXPECT_EQ(refusal([&] {
              deriveds->genericIfListConstructor(
                  list({given(Mox::Name("d")), given(U16{1}), given(U8{1})}));
            }),
            "UnknownArg: too many arguments for 'Derived'");
}

TEST_F(ConstructorTest, AClassWithTheNameAloneHasNone) {
  auto const groves = everyShape::Grove::_fwkType()->genericIf_(nullptr, false);
  EXPECT_EQ(refusal([&] { groves->genericIfListConstructor(list()); }),
            "OpNotSupported: 'Grove' is not made of a list of arguments");
}

/// An interface that is constant no longer once it has gone.
class Fleeting : public GenericIf {
 public:
  Fleeting() : GenericIf(Mox::Builtin<void>::_fwkType(), true) {}
  ~Fleeting() override { isConstIs(false); }
  Ptr clone() override { return new Fleeting; }
  Mox::String8 strRep() const override { return "fleeting"; }
};

/// Lets go of the interface that it is asked through.
struct Ungrateful : Mox::PtrInterface {
  GenericIf::Ptr face = new Fleeting;
  U32 seven() const {
    const_cast<Ungrateful*>(this)->face = nullptr;
    return 7;
  }
};

TEST(StepsTest, WhatIsReadOrCalledMayLetGoOfTheInterface) {
  constexpr reflect::Row row = {.id = 1,
                                .name = "seven",
                                .type = Mox::Builtin<U32>::_fwkType,
                                .read = reflect::read<&Ungrateful::seven>,
                                .call = reflect::call<&Ungrateful::seven>};
  Mox::Ptr<Ungrateful> const read = new Ungrateful;
  EXPECT_TRUE(row.read(row, read.ptr(), *read->face)->isConst());
  Mox::Ptr<Ungrateful> const called = new Ungrateful;
  EXPECT_TRUE(row.call(row, called.ptr(), *called->face, nullptr)->isConst());
}

}  // namespace
