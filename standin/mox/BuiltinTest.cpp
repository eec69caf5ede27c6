// Interfaces of primitives, of bounded integers and of lists.
#include "Mox/BoundedIf.h"
#include "Mox/BoundedIntegers.h"
#include "Mox/Builtin.h"
#include "Mox/Exception.h"
#include "standin/mox/TestThreadSafe.h"

#include <gtest/gtest.h>
#include <limits>
#include <string>
#include <vector>

namespace {

using Mox::Builtin;
using Mox::GenericIf;
using Mox::MoxType;
using Mox::primitiveIf;
using Mox::String8;

std::string shown(GenericIf::PtrConst const& face) { return face->strRep().charPtr(); }

/// What `step` raises as `Exception`; "" if it doesn't.
template <class Exception, class Step>
std::string complaint(Step const& step) {
  try {
    step();
  } catch (Exception const& raised) {
    return raised.what();
  }
  return "";
}

template <class T>
T valueOf(GenericIf::PtrConst const& face, MoxType const* type) {
  return *static_cast<T const*>(face->voidPtrIs(type));
}

GenericIf::Ptr list(std::vector<GenericIf::PtrConst> const& entries) {
  Mox::Ptr<GenericIf::List_> const made = new GenericIf::List_;
  for (auto const& entry : entries) made->genericIfEnq(entry);
  return made;
}

/// Values of each primitive, the ends of its range among them.
template <class T>
std::vector<T> samples() {
  if constexpr (std::is_same_v<T, String8> || std::is_same_v<T, Mox::Name>)
    return {T(""), T("a"), T("it's \\ \"quoted\"\n\x01\xff"), T("long enough to need the heap")};
  else if constexpr (std::is_same_v<T, double>)
    return {0.0, -0.1, 1e300, std::numeric_limits<double>::infinity()};
  else if constexpr (std::is_same_v<T, void*>)
    return {nullptr};
  else
    return {T(0), T(1), std::numeric_limits<T>::min(), std::numeric_limits<T>::max()};
}

template <class T>
T first() {
  return samples<T>().front();
}
template <class T>
T last() {
  return samples<T>().back();
}

template <class T>
struct PrimitiveTest : testing::Test {
  static MoxType* type() { return Builtin<T>::_fwkType(); }
};
using Primitives =
    testing::Types<bool, U8, S8, U16, U32, S32, U64, double, String8, Mox::Name, void*>;
TYPED_TEST_SUITE(PrimitiveTest, Primitives);

TYPED_TEST(PrimitiveTest, HoldsACopyUnderItsType) {
  for (TypeParam const& value : samples<TypeParam>()) {
    auto const face = primitiveIf(value, false);
    EXPECT_EQ(face->type(), this->type());
    EXPECT_EQ(valueOf<TypeParam>(face, this->type()), value);
    EXPECT_TRUE(face->hasNotificationActive());
  }
}

TYPED_TEST(PrimitiveTest, ItsTextReadsBack) {
  for (TypeParam const& value : samples<TypeParam>()) {
    auto const face = primitiveIf(value, false);
    auto const back = this->type()->genericIf(face->strRep(), true);
    EXPECT_EQ(valueOf<TypeParam>(back, this->type()), value) << shown(face);
    EXPECT_TRUE(back->isConst());
  }
}

TYPED_TEST(PrimitiveTest, JunkBehindAValueIsRefused) {
  auto const text = primitiveIf(first<TypeParam>(), false)->strRep() + " x";
  EXPECT_NE(complaint<Mox::RangeException>([&] { this->type()->genericIf(text, false); }), "");
}

TYPED_TEST(PrimitiveTest, ACloneIsAnotherOfTheSameValueAndConstAlike) {
  for (bool const isConst : {false, true}) {
    auto const face = primitiveIf(last<TypeParam>(), isConst);
    auto const copy = face->clone();
    EXPECT_NE(copy, face);
    EXPECT_EQ(shown(copy), shown(face));
    EXPECT_EQ(copy->isConst(), isConst);
  }
}

TYPED_TEST(PrimitiveTest, HasNoAttributesAndNoConstructor) {
  auto const face = primitiveIf(first<TypeParam>(), false);
  EXPECT_NE(complaint<Mox::UnknownAttrException>([&] { face->attributeOp({2}); }), "");
  EXPECT_NE(complaint<Mox::UnknownAttrException>([&] { face->attributeIteratorConst(2); }), "");
  EXPECT_NE(complaint<Mox::UnknownAttrException>([&] { face->attributeId("value"); }), "");
  EXPECT_NE(
      complaint<Mox::OpNotSupportedException>([&] { face->genericIfListConstructor(list({})); }),
      "");
}

TYPED_TEST(PrimitiveTest, IsHeldForItsVeryTypeAlone) {
  auto const face = primitiveIf(first<TypeParam>(), false);
  EXPECT_NE(complaint<Mox::TypeException>([&] { face->voidPtrIs(MoxType::_fwkType()); }), "");
  EXPECT_NE(complaint<Mox::TypeException>([&] { face->voidPtrIs(nullptr); }), "");
}

TYPED_TEST(PrimitiveTest, IsReadByItsTypeWithoutACast) {
  for (TypeParam const& value : samples<TypeParam>())
    EXPECT_EQ(primitiveIn<TypeParam>(primitiveIf(value, true)), value);
  for (auto const& other : {GenericIf::PtrConst(), GenericIf::PtrConst(list({}))}) {
    EXPECT_EQ(complaint<Mox::TypeException>([&] { primitiveIn<TypeParam>(other); }),
              "wrong type for 'value'");
  }
}

TYPED_TEST(PrimitiveTest, WhatIsHeldNeverChangesUnderItsHolder) {
  TypeParam const value = first<TypeParam>();
  auto const first = primitiveIf(value, true);
  auto const second = primitiveIf(last<TypeParam>(), false);
  EXPECT_NE(first, second);
  EXPECT_EQ(valueOf<TypeParam>(first, this->type()), value);
  EXPECT_TRUE(first->isConst());
}

TYPED_TEST(PrimitiveTest, NoSpareIsHandedOutWhileCountsAreSafeForThreads) {
  auto const former = primitiveIf(first<TypeParam>(), true).ptr();  // kept as the spare one
  Mox::ThreadSafe const threadSafe;
  auto const value = primitiveIf(last<TypeParam>(), false);
  auto const other = primitiveIf(first<TypeParam>(), true);
  EXPECT_NE(value.ptr(), former);
  EXPECT_NE(value, other);
  EXPECT_EQ(primitiveIn<TypeParam>(value), last<TypeParam>());
  EXPECT_EQ(primitiveIn<TypeParam>(other), first<TypeParam>());
  EXPECT_EQ(primitiveIn<TypeParam>(primitiveIf(last<TypeParam>(), true)), last<TypeParam>());
}

TEST(BuiltinTest, OneThatServesAgainHasForgottenItsFormerUse) {
  primitiveIf(U32{7}, true)->moxMarkedForDeletionIs(true);
  auto const marked = primitiveIf(U32{8}, false);
  EXPECT_FALSE(marked->moxMarkedForDeletion());
  EXPECT_FALSE(marked->isConst());
  EXPECT_EQ(shown(marked), "8");
}

TEST(BuiltinTest, MemoryHasNoTextButNone) {
  int anything = 0;
  EXPECT_EQ(shown(primitiveIf(static_cast<void*>(&anything), false)), "Object('VoidPtr')");
  EXPECT_EQ(shown(primitiveIf(static_cast<void*>(nullptr), false)), "None");
}

TEST(BuiltinTest, TypesHaveTheNamesOfSchemas) {
  EXPECT_EQ(Builtin<bool>::_fwkType()->moxName(), "bool");
  EXPECT_EQ(Builtin<U64>::_fwkType()->moxName(), "U64");
  EXPECT_EQ(Builtin<String8>::_fwkType()->moxName(), "Mox::String");
  EXPECT_EQ(Builtin<Mox::Name>::_fwkType(), Mox::Name::_fwkType());
}

TEST(BuiltinTest, NothingHasNoInterface) {
  Mox::PtrInterface const* const nothing = nullptr;
  EXPECT_EQ(complaint<Mox::OpNotSupportedException>(
                [&] { Builtin<void>::_fwkType()->genericIf(&nothing, false); }),
            "'void' has no access by number");
}

/// Each bounded integer, with its greatest value and its complaint.
template <class T>
struct Bound;
template <>
struct Bound<U1> {
  static constexpr U8 most = 1;
  static constexpr char const* words = "U1::value < 0 or > 0x01 not allowed";
};
template <>
struct Bound<U4> {
  static constexpr U8 most = 15;
  static constexpr char const* words = "U4::value < 0 or > 0x0f not allowed";
};
template <>
struct Bound<U6> {
  static constexpr U8 most = 63;
  static constexpr char const* words = "U6::value < 0 or > 0x3f not allowed";
};
template <>
struct Bound<U22> {
  static constexpr U32 most = 0x3FFFFF;
  static constexpr char const* words = "U22::value < 0 or > 0x003fffff not allowed";
};

template <class T>
struct BoundedIfTest : testing::Test {
  using Storage = typename T::Storage;
  static constexpr Mox::AttributeId valueId = 2;
  static constexpr Storage most = Bound<T>::most;

  static GenericIf::Ptr face(T const& value, bool isConst = false) {
    return T::_fwkType()->genericIf(&value, isConst);
  }
  static GenericIf::Ptr number(Storage value) { return primitiveIf(value, false); }
  static T held(GenericIf::PtrConst const& of) { return valueOf<T>(of, T::_fwkType()); }
  static std::string name() { return T::_fwkType()->moxName().stringValue().charPtr(); }
  template <class Exception, class Step>
  static void refuses(std::string const& words, Step const& step) {
    EXPECT_EQ(complaint<Exception>(step), words);
  }
};
using Bounded = testing::Types<U1, U4, U6, U22>;
TYPED_TEST_SUITE(BoundedIfTest, Bounded);

TYPED_TEST(BoundedIfTest, EveryValueReadsBackFromItsText) {
  U32 const step = this->most > 1000 ? 4099 : 1;
  for (U32 value = 0; value <= this->most; value += step) {
    TypeParam const number(static_cast<typename TypeParam::Storage>(value));
    auto const text = this->face(number)->strRep();
    EXPECT_EQ(this->held(TypeParam::_fwkType()->genericIf(text, false)), number);
  }
  EXPECT_EQ(this->held(TypeParam::_fwkType()->genericIf(this->face(TypeParam(this->most))->strRep(),
                                                        false)),
            TypeParam(this->most));
}

TYPED_TEST(BoundedIfTest, ItsOneAttributeIsTheValue) {
  auto const face = this->face(TypeParam(1));
  EXPECT_EQ(face->attributeId("value"), this->valueId);
  EXPECT_EQ(shown(face->attributeOp({this->valueId})), "1");
  EXPECT_EQ(face->attributeOp({this->valueId})->type(),
            Builtin<typename TypeParam::Storage>::_fwkType());
  EXPECT_FALSE(
      face->attributeOp({this->valueId, GenericIf::opWrite}, nullptr, this->number(this->most)));
  EXPECT_EQ(this->held(face), TypeParam(this->most));
}

TYPED_TEST(BoundedIfTest, AWriteBeyondTheBoundChangesNothing) {
  auto const face = this->face(TypeParam(1));
  this->template refuses<Mox::RangeException>(Bound<TypeParam>::words, [&] {
    face->attributeOp({this->valueId, 128}, nullptr, this->number(this->most + 1));
  });
  EXPECT_EQ(this->held(face), TypeParam(1));
}

TYPED_TEST(BoundedIfTest, RefusesTheRestInTheCommonOrder) {
  auto const face = this->face(TypeParam(1));
  auto const constant = this->face(TypeParam(1), true);
  auto const one = this->number(1);
  auto const other = primitiveIf(S8{1}, false);
  this->template refuses<Mox::ConstException>("attempting to modify a const instance", [&] {
    constant->attributeOp({99, 128});
  });
  this->template refuses<Mox::UnknownAttrException>("'" + this->name() + "' has no such attribute",
                                                    [&] { face->attributeOp({99}, one); });
  this->template refuses<Mox::BadIndexAttrException>("attribute 'value' takes no index", [&] {
    face->attributeOp({this->valueId, 7}, one);
  });
  this->template refuses<Mox::OpNotSupportedException>("'value' does not support operation 7", [&] {
    face->attributeOp({this->valueId, 7});
  });
  this->template refuses<Mox::TypeException>("wrong type for 'value'", [&] {
    face->attributeOp({this->valueId, 128}, nullptr, other);
  });
  this->template refuses<Mox::TypeException>("wrong type for 'value'", [&] {
    face->attributeOp({this->valueId, 128});
  });
}

TYPED_TEST(BoundedIfTest, ACloneIsItsOwnAndConstantAlike) {
  auto const face = this->face(TypeParam(1));
  auto const copy = face->clone();
  copy->attributeOp({this->valueId, 128}, nullptr, this->number(0));
  EXPECT_EQ(this->held(face), TypeParam(1));
  EXPECT_TRUE(this->face(TypeParam(1), true)->clone()->isConst());
  EXPECT_FALSE(copy->isConst());
  EXPECT_TRUE(copy->hasNotificationActive());
}

TYPED_TEST(BoundedIfTest, AListMakesTheDefaultOrOfItsOneEntry) {
  auto const face = this->face(TypeParam(1), true);
  EXPECT_EQ(this->held(face->genericIfListConstructor(list({}))), TypeParam());
  auto const made = face->genericIfListConstructor(list({this->number(this->most)}));
  EXPECT_EQ(this->held(made), TypeParam(this->most));
  EXPECT_FALSE(made->isConst());
}

TYPED_TEST(BoundedIfTest, AListIsRefusedByTheCommonRules) {
  auto const face = this->face(TypeParam(1));
  auto const make = [&](GenericIf::PtrConst const& arguments) {
    return [&face, arguments] { face->genericIfListConstructor(arguments); };
  };
  auto const one = this->number(1);
  this->template refuses<Mox::TypeException>("wrong type for 'Mox::GenericIf::List_'",
                                             make(nullptr));
  this->template refuses<Mox::TypeException>("wrong type for 'Mox::GenericIf::List_'", make(one));
  this->template refuses<Mox::TypeException>("wrong type for 'List'",
                                             make(new GenericIf::List_(nullptr)));
  this->template refuses<Mox::TypeException>("wrong type for 'value'",
                                             make(list({primitiveIf(S8{1}, false)})));
  this->template refuses<Mox::TypeException>("wrong type for 'value'", make(list({nullptr})));
  this->template refuses<Mox::UnknownArgException>("too many arguments for '" + this->name() + "'",
                                                   make(list({one, this->number(this->most + 1)})));
  this->template refuses<Mox::TypeException>("wrong type for 'value'",
                                             make(list({primitiveIf(S8{1}, false), one})));
  this->template refuses<Mox::UnknownArgException>("too many arguments for '" + this->name() + "'",
                                                   make(list({this->number(this->most + 1), one})));
  this->template refuses<Mox::RangeException>(Bound<TypeParam>::words,
                                              make(list({this->number(this->most + 1)})));
}

TEST(ListTest, ShowsItsEntriesInOrder) {
  EXPECT_EQ(shown(list({})), "[]");
  EXPECT_EQ(shown(list({primitiveIf(U8{1}, false), nullptr, primitiveIf(String8("a"), false)})),
            "[1, None, 'a']");
  EXPECT_EQ(shown(new GenericIf::List_(nullptr)), "[]");
}

TEST(ListTest, ACloneHasTheSameEntriesAndGrowsByItself) {
  auto const entries = list({primitiveIf(U8{1}, false)});
  auto const copy = entries->clone();
  dynamic_cast<GenericIf::List_&>(*copy).genericIfEnq(primitiveIf(U8{2}, false));
  EXPECT_EQ(shown(entries), "[1]");
  EXPECT_EQ(shown(copy), "[1, 2]");
}

TEST(ListTest, OneWithoutEntriesAtAllStaysSoInAClone) {
  Mox::Ptr<GenericIf::List_> const none = new GenericIf::List_(nullptr);
  auto const copy = none->clone();
  EXPECT_FALSE(dynamic_cast<GenericIf::List_&>(*copy).list());
  none->genericIfEnq(primitiveIf(U8{1}, false));
  EXPECT_EQ(shown(none), "[1]") << "an entry makes the list";
}

TEST(ListTest, EntriesAreAppendedToWhatIsThere) {
  GenericIf::List_::Entries entries;
  auto const two = list({primitiveIf(U8{1}, false), primitiveIf(U8{2}, false)});
  GenericIf::List_::entriesOf(two, entries);
  GenericIf::List_::entriesOf(two, entries);
  EXPECT_EQ(entries.count(), 4u);
  EXPECT_EQ(shown(two), "[1, 2]") << "a copy is taken";
}

}  // namespace
