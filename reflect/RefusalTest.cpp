// What access by number refuses: with which words, and which complaint comes first.
#include "reflect/TestLanguage.h"

#include <gtest/gtest.h>

namespace {

using namespace reflecttest;

constexpr Id nobodys = 9999;
constexpr char const* constantWords = "Const: attempting to modify a const instance";

struct RefusalTest : EveryFixture {
  /// What a refused step leaves behind: nothing.
  void TearDown() override {
    EXPECT_EQ(entity->version(), 0u);
    EXPECT_EQ(entity->bytesCount(), 0u);
  }
};

TEST_F(RefusalTest, AConstantInterfaceRefusesEachWrite) {
  EXPECT_EQ(constant.refused(every::level, 128, nullptr, given(U32{1})), constantWords);
  EXPECT_EQ(constant.refused(every::bytes, 128, given(U8{1}), given(U32{1})), constantWords);
  EXPECT_EQ(constant.refused(every::bytes, 129, given(U8{1})), constantWords);
  EXPECT_EQ(constant.refused(every::extra, 128, nullptr, given(U32{1})), constantWords);
}

TEST_F(RefusalTest, ConstancyComesAheadOfEveryOtherComplaint) {
  EXPECT_EQ(constant.refused(nobodys, 128), constantWords);
  EXPECT_EQ(constant.refused(every::level, 128, given(U8{1})), constantWords);
  EXPECT_EQ(constant.refused(every::level, 4711), constantWords);
  EXPECT_EQ(constant.refused(every::level, 128), constantWords);
  Face const nobody(everyShape::Derived::_fwkType()->genericIf_(nullptr, true));
  EXPECT_EQ(nobody.refused(every::level, 128), constantWords);
}

TEST_F(RefusalTest, NoOperationBelow128IsAWrite) {
  EXPECT_EQ(constant.refused(every::level, 127),
            "OpNotSupported: 'level' does not support operation 127");
  EXPECT_EQ(constant.refused(nobodys, 127), "UnknownAttr: 'Derived' has no such attribute");
}

TEST_F(RefusalTest, AnUnknownAttributeComesAheadOfIndexAndOperation) {
  EXPECT_EQ(face.refused(nobodys, GenericIf::opRead, given(U8{1})),
            "UnknownAttr: 'Derived' has no such attribute");
  EXPECT_EQ(face.refused(nobodys, 4711), "UnknownAttr: 'Derived' has no such attribute");
  EXPECT_EQ(face.refused(0, GenericIf::opRead), "UnknownAttr: 'Derived' has no such attribute");
  EXPECT_EQ(face.refused(~Id{0}, GenericIf::opRead),
            "UnknownAttr: 'Derived' has no such attribute");
}

TEST_F(RefusalTest, AScalarTakesNoIndex) {
  EXPECT_EQ(face.refused(every::level, GenericIf::opRead, given(U8{1})),
            "BadIndexAttr: attribute 'level' takes no index");
  EXPECT_EQ(face.refused(every::buddy, GenericIf::opRead, given(U8{1})),
            "BadIndexAttr: attribute 'buddy' takes no index");
  EXPECT_EQ(face.refused(every::best, GenericIf::opRead, given(U8{1})),
            "BadIndexAttr: attribute 'best' takes no index");
  EXPECT_EQ(face.refused(every::extra, GenericIf::opWrite, given(U8{1}), given(U32{1})),
            "BadIndexAttr: attribute 'extra' takes no index");
}

TEST_F(RefusalTest, AnIndexComesAheadOfOperationAndType) {
  EXPECT_EQ(face.refused(every::level, 4711, given(U8{1})),
            "BadIndexAttr: attribute 'level' takes no index");
  EXPECT_EQ(face.refused(every::level, GenericIf::opWrite, given(U8{1}), given(true)),
            "BadIndexAttr: attribute 'level' takes no index");
}

TEST_F(RefusalTest, AScalarHasTheTwoOperations) {
  for (GenericIf::OpId const op : {1u, 2u, 3u, 129u, 130u, ~0u})
    EXPECT_EQ(face.refused(every::level, op),
              "OpNotSupported: 'level' does not support operation " + std::to_string(op));
}

TEST_F(RefusalTest, ACollectionHasTheSixOperations) {
  for (GenericIf::OpId const op : {4u, 127u, 130u, ~0u})
    EXPECT_EQ(face.refused(every::bytes, op),
              "OpNotSupported: 'bytes' does not support operation " + std::to_string(op));
}

TEST_F(RefusalTest, AValueMustBeOfTheVeryType) {
  EXPECT_EQ(face.refused(every::level, 128, nullptr, given(U16{1})),
            "Type: wrong type for 'level'");
  EXPECT_EQ(face.refused(every::bounded, 128, nullptr, given(U8{1})),
            "Type: wrong type for 'bounded'");
  EXPECT_EQ(face.refused(every::mood, 128, nullptr, given(U32{1})), "Type: wrong type for 'mood'");
  EXPECT_EQ(face.refused(every::buddy, 128, nullptr, given(entity)),
            "Type: wrong type for 'buddy'");
  EXPECT_EQ(face.refused(every::level, 128, nullptr, list({given(U32{1})})),
            "Type: wrong type for 'level'");
}

TEST_F(RefusalTest, AMissingValueIsAWrongOne) {
  EXPECT_EQ(face.refused(every::level, 128), "Type: wrong type for 'level'");
  EXPECT_EQ(face.refused(every::buddy, 128), "Type: wrong type for 'buddy'");
  EXPECT_EQ(face.refused(every::bytes, 128, given(U8{1})), "Type: wrong type for 'bytes'");
}

TEST_F(RefusalTest, ACollectionNeedsAnIndexOfItsKeysType) {
  for (GenericIf::OpId const op : {0u, 3u, 129u}) {
    EXPECT_EQ(face.refused(every::bytes, op), "Type: wrong type for 'bytes'") << op;
    EXPECT_EQ(face.refused(every::bytes, op, given(U32{1})), "Type: wrong type for 'bytes'") << op;
  }
  EXPECT_EQ(face.refused(every::bytes, 128, nullptr, given(U32{1})),
            "Type: wrong type for 'bytes'");
  EXPECT_EQ(face.refused(every::bytes, 128, given(U32{1}), given(U32{1})),
            "Type: wrong type for 'bytes'");
  EXPECT_EQ(face.refused(every::bytes, 128, given(U8{1}), given(U8{1})),
            "Type: wrong type for 'bytes'");
}

TEST_F(RefusalTest, ANameIsNoText) {
  EXPECT_EQ(face.refused(every::texts, 3, given(Mox::Name("a"))), "Type: wrong type for 'texts'");
  EXPECT_EQ(face.refused(every::leaves, 3, text("a")), "Type: wrong type for 'leaves'");
}

TEST_F(RefusalTest, ElementsThatBearTheirKeyTakeNoIndexAndNoNull) {
  EXPECT_EQ(face.refused(every::known, 128, given(Mox::Name("a")), given(leaf("a"))),
            "BadIndexAttr: attribute 'known' takes no index");
  EXPECT_EQ(face.refused(every::known, 128), "Type: wrong type for 'known'");
  EXPECT_EQ(face.refused(every::known, 128, nullptr, given(Mox::Ptr<everyShape::Leaf>())),
            refusal([&] { entity->knownIs(nullptr); }));
}

TEST_F(RefusalTest, ChildrenByKeyAreNotWritten) {
  EXPECT_EQ(face.refused(every::leaves, 128, given(Mox::Name("a")), given(leaf("a"))),
            "OpNotSupported: 'leaves' does not support operation 128");
}

TEST_F(RefusalTest, OnlyCollectionsAreWalked) {
  EXPECT_EQ(refusal([&] { face->attributeIteratorConst(every::level); }),
            "OpNotSupported: 'level' is no collection");
  EXPECT_EQ(refusal([&] { face->attributeIteratorConst(every::extra); }),
            "OpNotSupported: 'extra' is no collection");
  EXPECT_EQ(refusal([&] { face->attributeIteratorKeyConst(every::level, given(U8{1})); }),
            "OpNotSupported: 'level' is no collection");
  EXPECT_EQ(refusal([&] { face->attributeIteratorConst(nobodys); }),
            "UnknownAttr: 'Derived' has no such attribute");
  EXPECT_EQ(refusal([&] { face->attributeIteratorKeyConst(nobodys, nullptr); }),
            "UnknownAttr: 'Derived' has no such attribute");
}

TEST_F(RefusalTest, AWalkStartsAtAKeyOfTheVeryType) {
  EXPECT_EQ(refusal([&] { face->attributeIteratorKeyConst(every::bytes, given(U16{1})); }),
            "Type: wrong type for 'bytes'");
  EXPECT_EQ(refusal([&] { face->attributeIteratorKeyConst(every::marks, nullptr); }),
            "Type: wrong type for 'marks'");
}

TEST_F(RefusalTest, TheInterfaceOfNoEntityRefusesWhatItWouldNeedOneFor) {
  Face const nobody(everyShape::Derived::_fwkType()->genericIf_(nullptr, false));
  EXPECT_EQ(shown(nobody.ptr()), "None");
  EXPECT_EQ(nobody.refused(every::extra, GenericIf::opRead), "Range: null Derived");
  EXPECT_EQ(nobody.refused(every::bytes, GenericIf::opCount), "Range: null Derived");
  EXPECT_EQ(refusal([&] { nobody->attributeIteratorConst(every::bytes); }), "Range: null Derived");
  EXPECT_EQ(nobody.refused(nobodys, GenericIf::opRead),
            "UnknownAttr: 'Derived' has no such attribute");
  EXPECT_EQ(nobody->attributeId("level"), every::level);
}

TEST_F(RefusalTest, AnInterfaceIsOfItsOwnClassOnly) {
  EXPECT_EQ(refusal([&] { everyShape::Leaf::_fwkType()->genericIf_(entity.ptr(), false); }),
            "Type: wrong type for 'Leaf'");
  auto const engine = everyShape::engineFactory(nullptr, "n");
  EXPECT_EQ(refusal([&] { everyShape::Derived::_fwkType()->genericIf_(engine.ptr(), false); }),
            "Type: wrong type for 'Derived'");
}

TEST_F(RefusalTest, WhatIsHeldIsToldForTheVeryTypeAlone) {
  auto const* const held = face->voidPtrIs(everyShape::Derived::_fwkType());
  EXPECT_EQ(*static_cast<Mox::PtrInterface const* const*>(held), entity.ptr());
  EXPECT_EQ(refusal([&] { face->voidPtrIs(everyShape::Every::_fwkType()); }),
            "Type: wrong type for 'Derived'");
  EXPECT_EQ(refusal([&] { face->voidPtrIs(nullptr); }), "Type: wrong type for 'Derived'");
}

TEST_F(RefusalTest, AnObjectRefusesAsAnEntityDoes) {
  auto const engine = everyShape::engineFactory(nullptr, "n");
  Face const of(engine);
  Face const reading(engine, true);
  EXPECT_EQ(of.refused(nobodys, GenericIf::opRead), "UnknownAttr: 'Engine' has no such attribute");
  EXPECT_EQ(of.refused(engine::note, 128, nullptr, text("m")),
            "OpNotSupported: 'note' does not support operation 128");
  EXPECT_EQ(of.refused(engine::running, 128, nullptr, given(U8{1})),
            "Type: wrong type for 'running'");
  EXPECT_EQ(reading.refused(nobodys, 128), constantWords);
  EXPECT_EQ(reading.refused(engine::start, 128), constantWords);
  Face const nobody(everyShape::Engine::_fwkType()->genericIf_(nullptr, false));
  EXPECT_EQ(nobody.refused(engine::note, GenericIf::opRead), "Range: null Engine");
}

TEST_F(RefusalTest, NothingElseIsAnArgumentOfWhatComesAfterAConstructor) {
  EXPECT_EQ(refusal([&] { face->genericIfListConstructor(nullptr); }),
            "Type: wrong type for 'Mox::GenericIf::List_'");
}

}  // namespace
