// Values and enumerations by number: copies with fields, texts and lists of arguments.
#include "reflect/TestLanguage.h"

#include <gtest/gtest.h>

namespace {

using namespace reflecttest;
using everyShape::Dial;
using everyShape::Heap;
using everyShape::Hue;
using everyShape::Knob;
using everyShape::Level;
using everyShape::Mix;
using everyShape::Shade;

Mix const mixed(1, -2, 3, 4, "five");

template <class T>
T valueOf(GenericIf::PtrConst const& face) {
  return *static_cast<T const*>(face->voidPtrIs(T::_fwkType()));
}

/// A list constructor of `T`, and what it refuses.
template <class T>
GenericIf::Ptr made(std::vector<GenericIf::PtrConst> const& entries) {
  return given(T())->genericIfListConstructor(list(entries));
}
template <class T>
std::string refusedList(GenericIf::PtrConst const& arguments) {
  return refusal([&] { given(T())->genericIfListConstructor(arguments); });
}

TEST(ValueTest, FieldsAreReadByNumber) {
  Face const face(given(mixed));
  EXPECT_EQ(face.read(2), "1");
  EXPECT_EQ(face.read(3), "-2");
  EXPECT_EQ(face.read(4), "3");
  EXPECT_EQ(face.read(5), "4");
  EXPECT_EQ(face.read(6), "'five'");
  EXPECT_EQ(face.read(7), std::to_string(mixed.hash()));
}

TEST(ValueTest, AWriteReplacesTheInterfacesCopyAlone) {
  Mix const original = mixed;
  Face const face(given(original));
  face.write(2, given(U8{9}));
  face.write(3, given(S8{-9}));
  face.write(4, given(U16{9}));
  face.write(5, given(U32{9}));
  face.write(6, text("nine"));
  EXPECT_EQ(valueOf<Mix>(face.ptr()), Mix(9, -9, 9, 9, "nine"));
  EXPECT_EQ(original, mixed);
}

TEST(ValueTest, TheHashFollowsTheFieldsAndIsNotWritten) {
  Face const face(given(mixed));
  face.write(2, given(U8{9}));
  EXPECT_EQ(face.read(7), std::to_string(Mix(9, -2, 3, 4, "five").hash()));
  EXPECT_EQ(face.refused(7, GenericIf::opWrite, nullptr, given(U32{1})),
            "OpNotSupported: 'hash' does not support operation 128");
}

TEST(ValueTest, RefusesAsEntitiesDo) {
  Face const face(given(mixed));
  EXPECT_EQ(face.refused(9, GenericIf::opRead), "UnknownAttr: 'Mix' has no such attribute");
  EXPECT_EQ(face.refused(2, GenericIf::opRead, given(U8{1})),
            "BadIndexAttr: attribute 'small' takes no index");
  EXPECT_EQ(face.refused(2, GenericIf::opWrite, nullptr, given(U16{1})),
            "Type: wrong type for 'small'");
  EXPECT_EQ(face.refused(2, GenericIf::opWrite), "Type: wrong type for 'small'");
  EXPECT_EQ(face.refused(2, GenericIf::opCount),
            "OpNotSupported: 'small' does not support operation 1");
  EXPECT_EQ(refusal([&] { face->attributeIteratorConst(2); }),
            "OpNotSupported: 'small' is no collection");
}

TEST(ValueTest, AConstantOneIsNotWritten) {
  Face const face(given(mixed, true));
  EXPECT_EQ(face.refused(2, 128, nullptr, given(U8{1})),
            "Const: attempting to modify a const instance");
  EXPECT_EQ(face.refused(99, 129), "Const: attempting to modify a const instance");
  EXPECT_TRUE(face->attributeOp({2})->isConst());
  EXPECT_EQ(face.read(2), "1");
}

TEST(ValueTest, ACloneIsEqualConstantAlikeAndItsOwn) {
  Face const face(given(mixed));
  Face const copy(face->clone());
  copy.write(2, given(U8{9}));
  EXPECT_EQ(face.read(2), "1");
  EXPECT_FALSE(copy->isConst());
  EXPECT_TRUE(copy->hasNotificationActive());
  EXPECT_TRUE(given(mixed, true)->clone()->isConst());
  GenericIf::PtrConst const reading = given(mixed, true);
  EXPECT_EQ(shown(reading->clone()), shown(reading));
}

TEST(ValueTest, ItsTextReadsBack) {
  auto const back = Mix::_fwkType()->genericIf(given(mixed)->strRep(), true);
  EXPECT_EQ(valueOf<Mix>(back), mixed);
  EXPECT_TRUE(back->isConst());
  EXPECT_EQ(valueOf<Level>(Level::_fwkType()->genericIf(given(Level(9))->strRep(), false)),
            Level(9));
}

TEST(ValueTest, TypesAreComparedByIdentity) {
  EXPECT_EQ(refusal([] { given(Shade(1))->voidPtrIs(Hue::_fwkType()); }),
            "Type: wrong type for 'Shade'");
  EXPECT_EQ(refusal([] { given(Hue(1))->voidPtrIs(Shade::_fwkType()); }),
            "Type: wrong type for 'Hue'");
  EXPECT_EQ(refusal([] { given(mixed)->voidPtrIs(nullptr); }), "Type: wrong type for 'Mix'");
}

TEST(ValueTest, NumbersAreFoundByName) {
  EXPECT_EQ(given(mixed)->attributeId("text"), 6u);
  EXPECT_EQ(given(Level())->attributeId("value"), 2u);
  EXPECT_EQ(refusal([] { given(mixed)->attributeId("no"); }),
            "UnknownAttr: 'Mix' has no such attribute");
}

TEST(ValueTest, ABoundIsCheckedAtEachWrite) {
  Face const level(given(Level(3)));
  EXPECT_EQ(level.refused(2, 128, nullptr, given(U8{10})),
            "Range: Level::value < 0 or > 9 not allowed");
  EXPECT_EQ(level.read(2), "3");
  level.write(2, given(U8{9}));
  EXPECT_EQ(level.read(2), "9");
  Face const dial(given(Dial()));
  EXPECT_EQ(dial.refused(2, 128, nullptr, given(U32{1})),
            "Range: Dial::value < 0 or > 0 not allowed");
}

TEST(ValueTest, ADerivedValueHasItsOwnBoundAndItsBasesHash) {
  Face const shade(given(Shade(30)));
  EXPECT_EQ(shade.read(2), "30");
  EXPECT_EQ(shade.read(3), "30");
  EXPECT_EQ(shade.refused(2, 128, nullptr, given(U16{360})),
            "Range: Shade::value < 0 or > 359 not allowed");
  shade.write(2, given(U16{359}));
  EXPECT_EQ(valueOf<Shade>(shade.ptr()).value(), 359);
  EXPECT_EQ(shade.refused(4, GenericIf::opRead), "UnknownAttr: 'Shade' has no such attribute");
  EXPECT_TRUE(given(Shade(30), true)->attributeOp({3})->isConst());
  EXPECT_EQ(shade.refused(3, 128, nullptr, given(U16{1})),
            "OpNotSupported: 'hash' does not support operation 128");
}

TEST(ValueTest, AnEmptyListMakesTheDefault) {
  EXPECT_EQ(valueOf<Mix>(made<Mix>({})), Mix());
  EXPECT_EQ(valueOf<Hue>(made<Hue>({})).value(), 65535);
  EXPECT_EQ(valueOf<Knob>(made<Knob>({})).turn(), 3);
}

TEST(ValueTest, EntriesGoToTheFieldsInOrderAndTheRestHasDefaults) {
  EXPECT_EQ(valueOf<Mix>(made<Mix>({given(U8{1}), given(S8{-2})})), Mix(1, -2, 0, 0, ""));
  EXPECT_EQ(valueOf<Mix>(made<Mix>(
                {given(U8{1}), given(S8{-2}), given(U16{3}), given(U32{4}), text("five")})),
            mixed);
  EXPECT_FALSE(made<Mix>({})->isConst());
}

TEST(ValueTest, AListDoesntTouchTheInterfaceThatReadsIt) {
  auto const face = given(mixed, true);
  face->genericIfListConstructor(list({given(U8{9})}));
  EXPECT_EQ(valueOf<Mix>(face), mixed);
}

TEST(ValueTest, RefusesEntriesLeftOver) {
  EXPECT_EQ(refusedList<Level>(list({given(U8{1}), given(U8{2})})),
            "UnknownArg: too many arguments for 'Level'");
  EXPECT_EQ(refusedList<Level>(list({given(U8{1}), nullptr})),
            "UnknownArg: too many arguments for 'Level'");
  EXPECT_EQ(refusedList<Mix>(list({given(U8{1}), given(S8{2}), given(U16{3}), given(U32{4}),
                                   text("five"), given(U32{6})})),
            "UnknownArg: too many arguments for 'Mix'")
      << "the hash is no argument";
}

TEST(ValueTest, RefusesAWrongTypeByTheFieldsName) {
  EXPECT_EQ(refusedList<Mix>(list({given(U8{1}), given(U8{2})})), "Type: wrong type for 'below'");
  EXPECT_EQ(refusedList<Mix>(list({nullptr})), "Type: wrong type for 'small'");
  EXPECT_EQ(refusedList<Level>(list({given(U16{1})})), "Type: wrong type for 'value'");
}

TEST(ValueTest, TypesComeAheadOfEntriesLeftOverAndThoseAheadOfTheBound) {
  EXPECT_EQ(refusedList<Level>(list({given(U16{1}), given(U8{1})})),
            "Type: wrong type for 'value'");
  EXPECT_EQ(refusedList<Level>(list({given(U8{10}), given(U8{1})})),
            "UnknownArg: too many arguments for 'Level'");
}

TEST(ValueTest, TheBoundIsCheckedInAListToo) {
  EXPECT_EQ(refusedList<Level>(list({given(U8{10})})),
            "Range: Level::value < 0 or > 9 not allowed");
  EXPECT_EQ(refusedList<Shade>(list({given(U16{360})})),
            "Range: Shade::value < 0 or > 359 not allowed");
}

TEST(ValueTest, RefusesWhatIsNoList) {
  EXPECT_EQ(refusedList<Mix>(nullptr), "Type: wrong type for 'Mox::GenericIf::List_'");
  EXPECT_EQ(refusedList<Mix>(given(U8{1})), "Type: wrong type for 'Mox::GenericIf::List_'");
  EXPECT_EQ(refusedList<Level>(new GenericIf::List_(nullptr)), "Type: wrong type for 'List'");
}

TEST(ValueTest, AValueWithoutFieldsHasNoListConstructor) {
  EXPECT_EQ(refusedList<Heap>(list()), "OpNotSupported: 'Heap' is not made of a list of arguments");
}

TEST(EnumerationTest, AttributeOneIsTheEnumeratorItself) {
  Face const face(given(everyShape::tense));
  EXPECT_EQ(face.read(1), "'tense'");
  EXPECT_EQ(face->attributeOp({1})->type(), everyShape::_fwkType_Mood());
  EXPECT_EQ(face.refused(0, GenericIf::opRead), "UnknownAttr: 'Mood' has no such attribute");
  EXPECT_EQ(face.refused(2, GenericIf::opRead), "UnknownAttr: 'Mood' has no such attribute");
}

TEST(EnumerationTest, IsReadAloneAndTakesNoIndex) {
  Face const face(given(everyShape::tense));
  EXPECT_EQ(face.refused(1, GenericIf::opWrite, nullptr, given(everyShape::calm)),
            "OpNotSupported: 'Mood' does not support operation 128");
  EXPECT_EQ(face.refused(1, GenericIf::opRead, given(U8{1})),
            "BadIndexAttr: attribute 'Mood' takes no index");
}

TEST(EnumerationTest, TextAndCloneGiveTheSame) {
  for (auto const mood : {everyShape::calm, everyShape::tense}) {
    auto const back = everyShape::_fwkType_Mood()->genericIf(given(mood)->strRep(), true);
    EXPECT_EQ(*static_cast<everyShape::Mood const*>(back->voidPtrIs(everyShape::_fwkType_Mood())),
              mood);
    EXPECT_TRUE(back->isConst());
    EXPECT_TRUE(back->clone()->isConst());
    EXPECT_EQ(shown(back->clone()), shown(back));
  }
  EXPECT_EQ(refusal([] { given(everyShape::calm)->voidPtrIs(Mox::Builtin<U32>::_fwkType()); }),
            "Type: wrong type for 'Mood'");
}

TEST(EnumerationTest, AConstantOneRefusesWritesFirst) {
  auto const constant = everyShape::_fwkType_Mood()->genericIf(Mox::String8("'calm'"), true);
  EXPECT_EQ(Face(constant).refused(9, 128), "Const: attempting to modify a const instance");
}

TEST(EnumerationTest, ItsDescriptorListsTheEnumeratorsByNumber) {
  EXPECT_EQ(given(everyShape::calm)->attributeId("calm"), 0u);
  EXPECT_EQ(given(everyShape::calm)->attributeId("tense"), 1u);
}

}  // namespace
