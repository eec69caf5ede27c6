// Scalars, references and children by number: what is read and written.
#include "reflect/TestLanguage.h"

#include <gtest/gtest.h>

namespace {

using namespace reflecttest;
using everyShape::Mix;

struct ReadWriteTest : EveryFixture {};

TEST_F(ReadWriteTest, AScalarIsReadAndWritten) {
  face.write(every::level, given(U32{5}));
  EXPECT_EQ(entity->level(), 5u);
  EXPECT_EQ(face.read(every::level), "5");
}

TEST_F(ReadWriteTest, EveryKindOfScalarIsReadAsItsType) {
  EXPECT_EQ(face.read(every::gauge), "7");
  EXPECT_EQ(face.read(every::ratio), "1.5");
  EXPECT_EQ(face.read(every::label), "''");
  EXPECT_EQ(face.read(every::mood), "'calm'");
  EXPECT_EQ(face.read(every::hits), "0");
  EXPECT_EQ(face->attributeOp({every::gauge})->type(), Mox::Builtin<U8>::_fwkType());
  EXPECT_EQ(face->attributeOp({every::mix})->type(), Mix::_fwkType());
  EXPECT_EQ(face->attributeOp({every::mood})->type(), everyShape::_fwkType_Mood());
  EXPECT_EQ(face->attributeOp({every::bounded})->type(), U4::_fwkType());
}

TEST_F(ReadWriteTest, EveryKindOfScalarIsWritten) {
  face.write(every::gauge, given(U8{255}));
  face.write(every::ratio, given(-0.25));
  face.write(every::label, text("top"));
  face.write(every::mix, given(Mix(1, -2, 3, 4, "five")));
  face.write(every::mood, given(everyShape::tense));
  face.write(every::bounded, given(U4(15)));
  face.write(every::hits, given(U16{9}));
  EXPECT_EQ(entity->gauge(), 255);
  EXPECT_EQ(entity->ratio(), -0.25);
  EXPECT_EQ(entity->label(), "top");
  EXPECT_EQ(entity->mix(), Mix(1, -2, 3, 4, "five"));
  EXPECT_EQ(entity->mood(), everyShape::tense);
  EXPECT_EQ(entity->bounded(), 15);
  EXPECT_EQ(entity->hits(), 9);
}

TEST_F(ReadWriteTest, AWriteGoesThroughTheMutator) {
  face.write(every::odd, given(U32{4}));
  EXPECT_EQ(entity->odd(), 5u) << "its mutator makes numbers odd";
  U32 const version = entity->version();
  face.write(every::odd, given(U32{7}));
  face.write(every::level, given(entity->level()));
  EXPECT_EQ(entity->version(), version) << "an equal value is no change";
}

TEST_F(ReadWriteTest, AConstantValueCanBeWritten) {
  face.write(every::level, given(U32{5}, true));
  EXPECT_EQ(entity->level(), 5u);
}

TEST_F(ReadWriteTest, AReadCountsOnceAndIsACopy) {
  U32 const reads = entity->readCount();
  auto const level = face->attributeOp({every::level});
  EXPECT_EQ(entity->readCount(), reads + 1);
  entity->levelIs(8);
  EXPECT_EQ(shown(level), "0");
}

TEST_F(ReadWriteTest, CollectionsCountTheReadOfAnElementAlone) {
  entity->bytesIs(1, 10);
  U32 const reads = entity->readCount();
  face.read(every::bytes, given(U8{1}));
  EXPECT_EQ(entity->readCount(), reads + 1);
  face.ask(every::bytes, GenericIf::opCount);
  face.ask(every::bytes, GenericIf::opChanges);
  face.ask(every::bytes, GenericIf::opIsMember, given(U8{1}));
  EXPECT_EQ(entity->readCount(), reads + 1);
}

TEST_F(ReadWriteTest, AnAnswerIsAsConstantAsTheInterface) {
  EXPECT_FALSE(face->attributeOp({every::level})->isConst());
  EXPECT_TRUE(constant->attributeOp({every::level})->isConst());
  EXPECT_TRUE(constant->attributeOp({every::mix})->isConst());
  EXPECT_TRUE(constant->attributeOp({every::buddy})->isConst());
}

TEST_F(ReadWriteTest, AReferenceIsReadWrittenAndCleared) {
  auto const friendly = leaf("b");
  EXPECT_EQ(face.read(every::buddy), "None");
  face.write(every::buddy, given(friendly));
  EXPECT_EQ(entity->buddy(), friendly);
  EXPECT_EQ(face.read(every::buddy), "Entity('everyShape::Leaf', 'b')");
  face.write(every::buddy, given(Mox::Ptr<everyShape::Leaf>()));
  EXPECT_EQ(entity->buddy(), nullptr);
}

TEST_F(ReadWriteTest, AReferenceLeadsToTheInterfaceOfItsTarget) {
  entity->buddyIs(leaf("b", 3));
  Face const buddy(face->attributeOp({every::buddy}));
  EXPECT_EQ(buddy.read(258), "3");
  buddy.write(260, given(true));
  EXPECT_TRUE(entity->buddy()->lit());
}

TEST_F(ReadWriteTest, WhatIsReferredToForReadingIsConstant) {
  Mox::Ptr<everyShape::Brook> const brook = new everyShape::Brook("b");
  brook->groveIs(everyShape::groveFactory("g"));
  Face const target(Face(brook)->attributeOp({258}));
  EXPECT_TRUE(target->isConst());
  EXPECT_EQ(target.refused(grove::level, GenericIf::opWrite),
            "Const: attempting to modify a const instance");
}

TEST_F(ReadWriteTest, AConstantTargetCanBeWrittenWhereItIsOnlyRead) {
  Mox::Ptr<everyShape::Brook> const brook = new everyShape::Brook("b");
  auto const grove = everyShape::groveFactory("g");
  Face(brook).write(258, given(grove, true));
  EXPECT_EQ(brook->grove(), grove);
}

TEST_F(ReadWriteTest, AChildIsReadAndNotWritten) {
  EXPECT_EQ(face.read(every::best), "None");
  entity->bestIs("c", 1, Mix());
  EXPECT_EQ(face.read(every::best), "Entity('everyShape::Leaf', 'e0/c')");
  EXPECT_EQ(face.refused(every::best, GenericIf::opWrite, nullptr, given(leaf("d"))),
            "OpNotSupported: 'best' does not support operation 128");
}

TEST_F(ReadWriteTest, ParametersAndComputedAttributesAreOnlyRead) {
  auto const grove = everyShape::groveFactory("g");
  grove->newTree("a", 1, Mix());
  Face const of(grove);
  EXPECT_EQ(face.read(every::port), "7");
  EXPECT_EQ(of.read(grove::treeSum), "1");
  EXPECT_EQ(face.refused(every::port, GenericIf::opWrite, nullptr, given(U16{8})),
            "OpNotSupported: 'port' does not support operation 128");
  EXPECT_EQ(of.refused(grove::treeSum, GenericIf::opWrite, nullptr, given(U32{8})),
            "OpNotSupported: 'treeSum' does not support operation 128");
}

TEST_F(ReadWriteTest, TheFlagOfTheAttributeLogIsOnlyRead) {
  EXPECT_EQ(face.read(every::hasAttrLogInterface), "True");
  EXPECT_EQ(face.refused(every::hasAttrLogInterface, GenericIf::opWrite, nullptr, given(false)),
            "OpNotSupported: 'moxHasAttrLogInterface' does not support operation 128");
}

TEST_F(ReadWriteTest, KeyAndActivityHaveNoOperation) {
  EXPECT_EQ(Face(leaf("a")).refused(0, GenericIf::opRead),
            "OpNotSupported: 'fwkKey' does not support operation 0");
  auto const engine = everyShape::engineFactory(everyShape::groveFactory("g"), "n");
  EXPECT_EQ(Face(engine).refused(0, GenericIf::opRead),
            "OpNotSupported: 'moxFwkActivity' does not support operation 0");
}

TEST_F(ReadWriteTest, ADerivedClassServesItsOwnAndItsBasesAttributes) {
  face.write(every::extra, given(U32{3}));
  face.write(every::level, given(U32{4}));
  EXPECT_EQ(face.read(every::extra), "3");
  EXPECT_EQ(face.read(every::level), "4");
}

TEST_F(ReadWriteTest, TheInterfaceOfTheBaseServesADerivedEntity) {
  Face const base(everyShape::Every::_fwkType()->genericIf_(entity.ptr(), false));
  base.write(every::level, given(U32{4}));
  EXPECT_EQ(entity->level(), 4u);
  EXPECT_EQ(base.refused(every::extra, GenericIf::opRead),
            "UnknownAttr: 'Every' has no such attribute");
}

TEST_F(ReadWriteTest, NumbersAreFoundByName) {
  EXPECT_EQ(face->attributeId("level"), every::level);
  EXPECT_EQ(face->attributeId("marks"), every::marks);
  EXPECT_EQ(refusal([&] { face->attributeId("no"); }),
            "UnknownAttr: 'Derived' has no such attribute");
}

TEST_F(ReadWriteTest, ACloneIsOfTheSameEntityAndAsConstant) {
  Face const copy(constant->clone());
  EXPECT_NE(copy.ptr(), constant.ptr());
  EXPECT_TRUE(copy->isConst());
  EXPECT_TRUE(copy->hasNotificationActive());
  EXPECT_EQ(shown(copy.ptr()), "Entity('everyShape::Derived', 'e0')");
  EXPECT_FALSE(face->clone()->isConst());
  EXPECT_EQ(copy.read(every::extra), "0") << "of the same class";
}

TEST_F(ReadWriteTest, AnObjectsFieldIsAPlainStore) {
  auto const engine = everyShape::engineFactory(everyShape::groveFactory("g"), "n");
  Face const of(engine);
  EXPECT_EQ(of.read(engine::note), "'n'");
  EXPECT_EQ(of.read(engine::grove), "Entity('everyShape::Grove', 'g')");
  of.write(engine::running, given(false));
  EXPECT_FALSE(engine->running());
  EXPECT_EQ(of.read(engine::heat), "0");
}

TEST_F(ReadWriteTest, AnObjectsInterfaceKeepsItAlive) {
  Face const of(everyShape::engineFactory(everyShape::groveFactory("g"), "n"));
  EXPECT_EQ(of.read(engine::note), "'n'");
  EXPECT_EQ(shown(of.ptr()), "Object('everyShape::Engine')");
}

}  // namespace
