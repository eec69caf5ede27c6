// Value records and enumerations: comparison, texts, parsers, hashes.
#include "Mox/TestValues.h"
#include "frame/Record.h"
#include "frame/TestLanguage.h"

#include <gtest/gtest.h>
#include <sstream>

namespace frametest {
namespace {

using everyShape::Mix;
using moxtest::read;
using moxtest::written;

constexpr char const* fullText =
    "Value('everyShape::Mix', ** {'small': 1, 'below': -3, 'medium': 2, 'large': 4000000000, "
    "'text': 'a\\'b'})";

Mix full() { return Mix(1, -3, 2, 4000000000, "a'b"); }

Mix parsed(Mox::String8 const& text) {
  Mix value;
  Mox::strepToValue<Mix>(text, &value);
  return value;
}

std::string complaint(Mox::String8 const& text) {
  try {
    parsed(text);
  } catch (Mox::RangeException const& exception) {
    return exception.what();
  }
  return "";
}

TEST(RecordTest, DefaultIsZeroAndEmpty) {
  Mix const value;
  EXPECT_EQ(value.small(), 0u);
  EXPECT_EQ(value.below(), 0);
  EXPECT_EQ(value.large(), 0u);
  EXPECT_EQ(value.text(), "");
}

TEST(RecordTest, EqualWhenEveryFieldIs) {
  EXPECT_EQ(full(), full());
  EXPECT_NE(full(), Mix(1, -3, 2, 4000000000, "a'c"));
  EXPECT_NE(full(), Mix(1, -2, 2, 4000000000, "a'b"));
}

TEST(RecordTest, OrderIsLexicographicInFieldOrder) {
  EXPECT_LT(Mix(1, 9, 0, 0, ""), Mix(2, 0, 0, 0, ""));
  EXPECT_LT(Mix(1, -1, 0, 0, ""), Mix(1, 0, 0, 0, ""));
  EXPECT_LT(Mix(1, 1, 1, 1, "a"), Mix(1, 1, 1, 1, "b"));
  EXPECT_FALSE(full() < full());
  EXPECT_TRUE(full() <= full());
  EXPECT_TRUE(full() >= full());
  EXPECT_FALSE(full() > full());
}

TEST(RecordTest, TextNamesTheTypeAndEachField) {
  EXPECT_EQ(valueToStrep(full()), fullText);
  std::ostringstream out;
  out << full();
  EXPECT_EQ(out.str(), fullText);
}

TEST(RecordTest, TextParsesBack) { EXPECT_EQ(parsed(fullText), full()); }

TEST(RecordTest, KeysInAnyOrderAndSpacesAnywhere) {
  EXPECT_EQ(parsed("  Value ( 'everyShape::Mix' , ** { 'medium' : 2 , 'small' : 1 } ) "),
            Mix(1, 0, 2, 0, ""));
}

TEST(RecordTest, FieldThatTheTextLeavesOutStaysZero) {
  EXPECT_EQ(parsed("Value('everyShape::Mix', ** {'medium': 2})"), Mix(0, 0, 2, 0, ""));
  EXPECT_EQ(parsed("Value('everyShape::Mix', ** {})"), Mix());
}

TEST(RecordTest, FieldNamedTwiceTakesTheLastValue) {
  EXPECT_EQ(parsed("Value('everyShape::Mix', ** {'small': 1, 'small': 2})").small(), 2u);
}

TEST(RecordTest, NumberIsNarrowedToItsField) {
  EXPECT_EQ(parsed("Value('everyShape::Mix', ** {'small': 258})").small(), 2u);
}

TEST(RecordTest, UnknownKeyIsNamed) {
  EXPECT_EQ(complaint("Value('everyShape::Mix', ** {'big': 1})"), "Mix has no such attribute: big");
}

TEST(RecordTest, TextThatStopsIsPremature) {
  for (char const* text :
       {"Value('everyShape::Mix', ** {", "Value('everyShape::Mix', ** {'small': 1"})
    EXPECT_EQ(complaint(text), "premature end of value type Mix");
}

TEST(RecordTest, ValueOfTheWrongKindNamesItsField) {
  EXPECT_NE(complaint("Value('everyShape::Mix', ** {'small': 'x'})").find("small"),
            std::string::npos);
}

TEST(RecordTest, OtherTypesTextIsRefused) {
  EXPECT_NE(complaint("Value('everyShape::Max', ** {'small': 1})"), "");
  EXPECT_NE(complaint(""), "");
  EXPECT_NE(complaint("Value('everyShape::Mix', ** {'small': 1 'below': 2})"), "");
}

TEST(RecordTest, TrailingTextIsJunk) {
  EXPECT_EQ(complaint("Value('everyShape::Mix', ** {})x"),
            "junk at column 31 deserializing Value('everyShape::Mix', ** {})x");
}

TEST(RecordTest, HashRunsOverTheBytesInFieldOrder) {
  Mox::OneAtATime expected;
  for (int byte : {1, 0xFD, 2, 0, 4, 3, 2, 1, int('h'), int('i')})
    expected.add(static_cast<U8>(byte));
  EXPECT_EQ(Mix(1, -3, 2, 0x01020304, "hi").hash(), expected.finish());
}

TEST(RecordTest, AStreamHasTheFieldsInOrder) {
  std::string_view const bytes(
      "\x01\xFD\0\x02\xEE\x6B\x28\0\0\0\0\x03"
      "a'b",
      15);
  EXPECT_EQ(written(full()), bytes);
  EXPECT_EQ(read<Mix>(bytes), full());
}

TEST(RecordTest, AStreamThatEndsInAFieldIsRefused) {
  std::string const bytes = written(full());
  for (std::size_t size = 0; size < bytes.size(); ++size)
    EXPECT_THROW(read<Mix>(std::string_view(bytes).substr(0, size)), Mox::RangeException) << size;
}

TEST(RecordTest, FieldsThatCanBeSetAreNoConstructorArguments) {
  everyShape::Knob knob;
  EXPECT_EQ(knob.turn(), 3);
  knob.turnIs(4);
  EXPECT_EQ(valueToStrep(knob), "Value('everyShape::Knob', ** {'turn': 4})");
  EXPECT_TRUE(knob.fwkType()->constructorArgNames().empty());
  EXPECT_EQ(knob.fwkType()->valAttr(), nullptr);
}

TEST(EnumerationTest, NamesAndNumbers) {
  EXPECT_EQ(everyShape::stringValue(everyShape::tense), "tense");
  EXPECT_EQ(everyShape::stringValue(static_cast<everyShape::Mood>(7)), "Mood(7)");
  EXPECT_EQ(everyShape::stringValue(static_cast<everyShape::Mood>(-1)), "Mood(-1)");
  EXPECT_EQ(everyShape::MoodInstance(1u), everyShape::tense);
  EXPECT_EQ(everyShape::MoodInstance(Mox::String8("calm")), everyShape::calm);
}

TEST(EnumerationTest, WhatIsNotInTheTableRaisesTheBareName) {
  auto const complaintOf = [](auto value) -> std::string {
    try {
      everyShape::MoodInstance(value);
    } catch (Mox::RangeException const& exception) {
      return exception.what();
    }
    return "";
  };
  EXPECT_EQ(complaintOf(2u), "Mood");
  EXPECT_EQ(complaintOf(Mox::String8("Calm")), "Mood");
  EXPECT_EQ(complaintOf(Mox::String8("")), "Mood");
}

TEST(EnumerationTest, TextIsQuotedAndParsesBack) {
  EXPECT_EQ(valueToStrep(everyShape::tense), "'tense'");
  everyShape::Mood mood = everyShape::calm;
  Mox::strepToValue<everyShape::Mood>("'tense'", &mood);
  EXPECT_EQ(mood, everyShape::tense);
  std::ostringstream out;
  out << mood;
  EXPECT_EQ(out.str(), "tense");
}

TEST(EnumerationTest, ReaderStoresWhereItWasAskedTo) {
  everyShape::Mood mood = everyShape::calm;
  Mox::String8 const text("'tense'");
  auto at = text.begin();
  EXPECT_EQ(sequenceToValue(at, text.end(), &mood), everyShape::tense);
  EXPECT_EQ(mood, everyShape::tense);
}

TEST(EnumerationTest, FallbackTextDoesntParseBack) {
  everyShape::Mood mood = everyShape::calm;
  EXPECT_THROW(Mox::strepToValue<everyShape::Mood>("'Mood(7)'", &mood), Mox::RangeException);
  EXPECT_THROW(Mox::strepToValue<everyShape::Mood>("'calm' ", &mood), Mox::RangeException);
}

TEST(ObjectTest, CollectionsOfObjectsTellNobody) {
  auto const shelf = everyShape::shelfFactory(7);
  EXPECT_EQ(shelf->shelfId(), 7u);
  shelf->booksIs(full(), true);
  shelf->booksIs(full(), true);
  shelf->booksNotify(full());
  EXPECT_EQ(shelf->booksCount(), 1u);
  EXPECT_TRUE(shelf->books(full()));
  EXPECT_FALSE(shelf->books(Mix()));
}

TEST(ObjectTest, FalseIsAValueAndNoDeletion) {
  auto const shelf = everyShape::Shelf::ShelfIs(7);
  shelf->booksIs(full(), false);
  EXPECT_EQ(shelf->booksCount(), 1u);
  EXPECT_FALSE(shelf->booksDel(full()));
  EXPECT_EQ(shelf->booksCount(), 0u);
}

TEST(ObjectTest, OrderedMapWalksByTheKeysOrder) {
  auto const shelf = everyShape::shelfFactory(7);
  for (U8 small : {3, 1, 2}) shelf->newBooks(Mix(small, 0, 0, 0, ""), true);
  std::string order;
  for (auto at = shelf->booksIteratorConst(); at; ++at) order += std::to_string(at.key().small());
  EXPECT_EQ(order, "123");
  shelf->booksDelAll();
  EXPECT_EQ(shelf->booksCount(), 0u);
}

}  // namespace
}  // namespace frametest
