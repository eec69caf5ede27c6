// Text forms, both ways, and the complaints about what can't be read.
#include "Mox/Entity.h"
#include "Mox/Strep.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>

namespace Mox {
namespace {

using Position = String8::IteratorConst;

// What `action` complains of; "" when it doesn't.
template <class Action>
String8 complaint(Action action) {
  try {
    action();
  } catch (RangeException const& exception) {
    return exception.message();
  }
  return "";
}

template <class T>
String8 readingFails(String8 const& text) {
  return complaint([&text] { strepToValue<T>(text); });
}

String8 needing(char const* pattern, String8 const& text) {
  auto at = text.begin();
  return complaint([&] { needString(at, text.end(), pattern); });
}

// Where `needString` leaves the position.
U32 passed(char const* pattern, String8 const& text) {
  auto at = text.begin();
  needString(at, text.end(), pattern);
  return at.index();
}

TEST(StrepTest, BooleansAreWords) {
  EXPECT_EQ(valueToStrep(true), "True");
  EXPECT_EQ(valueToStrep(false), "False");
}

TEST(StrepTest, IntegersOfAllWidthsAreDecimal) {
  EXPECT_EQ(valueToStrep(U8(200)), "200");
  EXPECT_EQ(valueToStrep(S8(-3)), "-3");
  EXPECT_EQ(valueToStrep(U16(65535)), "65535");
  EXPECT_EQ(valueToStrep(-5), "-5");
  EXPECT_EQ(valueToStrep(U32(4294967295)), "4294967295");
  EXPECT_EQ(valueToStrep(std::numeric_limits<S64>::min()), "-9223372036854775808");
  EXPECT_EQ(valueToStrep(std::numeric_limits<U64>::max()), "18446744073709551615");
}

TEST(StrepTest, DoublesAreShortestRoundTrip) {
  EXPECT_EQ(valueToStrep(0.1), "0.1");
  EXPECT_EQ(valueToStrep(2.0), "2");
  EXPECT_EQ(valueToStrep(-1.0 / 3), "-0.3333333333333333");
  EXPECT_EQ(valueToStrep(1e300), "1e+300");
  EXPECT_EQ(valueToStrep(std::numeric_limits<double>::infinity()), "inf");
  for (double number : {0.1, -1.0 / 3, 1e300, std::numeric_limits<double>::denorm_min()})
    EXPECT_EQ(strepToValue<double>(valueToStrep(number)), number);
  EXPECT_TRUE(std::isnan(strepToValue<double>("nan")));
}

TEST(StrepTest, TextsStandInSingleQuotes) {
  EXPECT_EQ(valueToStrep(String8("Ethernet1/1")), "'Ethernet1/1'");
  EXPECT_EQ(valueToStrep(Name("slice0")), "'slice0'");
  EXPECT_EQ(valueToStrep("literal"), "'literal'");
  EXPECT_EQ(valueToStrep(String8()), "''");
}

TEST(StrepTest, QuoteBackslashAndControlBytesAreEscaped) {
  EXPECT_EQ(valueToStrep(String8("it's \\ \"x\"")), "'it\\'s \\\\ \"x\"'");
  EXPECT_EQ(valueToStrep(String8("\n\t\r\x01\x1f\x7f")), "'\\n\\t\\r\\x01\\x1f\\x7f'");
  EXPECT_EQ(valueToStrep(String8("a\0b", 3)), "'a\\x00b'");
  EXPECT_EQ(valueToStrep(String8("\xC3\xA4")), "'\xC3\xA4'");
}

TEST(StrepTest, EveryByteReadsBack) {
  for (int byte = 0; byte < 256; ++byte) {
    char const bytes[] = {'a', static_cast<char>(byte), 'b'};
    String8 const text(bytes, 3);
    EXPECT_EQ(strepToValue<String8>(valueToStrep(text)), text) << byte;
  }
}

TEST(StrepTest, ReferencesShowTypeAndFullName) {
  Ptr<Entity> const root = new Entity("chip");
  Ptr<Entity> const child = new Entity("it's");
  child->parentIs(root);
  EXPECT_EQ(valueToStrepOfRawPtr(child.ptr(), typeid(Entity)),
            "Entity('Mox::Entity', 'chip/it\\'s')");
  EXPECT_EQ(valueToStrepOfRawPtr(static_cast<Entity*>(nullptr), typeid(Entity)), "None");
}

TEST(StrepTest, ReferencesToOtherObjectsShowTheType) {
  Ptr<PtrInterface> const object = new PtrInterface;
  EXPECT_EQ(valueToStrepOfRawPtr(object.ptr(), typeid(PtrInterface)),
            "Object('Mox::PtrInterface')");
  EXPECT_EQ(valueToStrepOfRawPtr(static_cast<PtrInterface*>(nullptr), typeid(PtrInterface)),
            "None");
}

TEST(StrepParseTest, ReadsBothKindsOfQuote) {
  EXPECT_EQ(strepToValue<String8>("'it\\'s'"), "it's");
  EXPECT_EQ(strepToValue<String8>("\"it's\""), "it's");
  EXPECT_EQ(strepToValue<String8>("'say \\\"x\\\"'"), "say \"x\"");
  EXPECT_EQ(strepToValue<Name>("''"), Name());
}

TEST(StrepParseTest, ReadsNumbersUpToTheirLimits) {
  EXPECT_EQ(strepToValue<long long>("-9223372036854775808"), std::numeric_limits<long long>::min());
  EXPECT_EQ(strepToValue<unsigned long long>("18446744073709551615"),
            std::numeric_limits<unsigned long long>::max());
  EXPECT_EQ(strepToValue<long long>("007"), 7);
  EXPECT_EQ(strepToValue<U8>("255"), 255);
  EXPECT_EQ(strepToValue<S8>("-128"), -128);
}

TEST(StrepParseTest, NumbersThatDontFitAreRefused) {
  EXPECT_EQ(readingFails<long long>("9223372036854775808"),
            "column 0: 9223372036854775808 is out of range");
  EXPECT_EQ(readingFails<unsigned long long>("18446744073709551616"),
            "column 0: 18446744073709551616 is out of range");
  EXPECT_EQ(readingFails<U8>("256"), "column 0: 256 is out of range");
  EXPECT_EQ(readingFails<S8>("-129"), "column 0: -129 is out of range");
  EXPECT_EQ(readingFails<double>("1e999"), "column 0: 1e999 is out of range");
}

TEST(StrepParseTest, WhatIsNoNumberIsRefused) {
  EXPECT_EQ(readingFails<long long>(""), "column 0: expected long long, found the end");
  EXPECT_EQ(readingFails<long long>("-"), "column 0: expected long long, found '-'");
  EXPECT_EQ(readingFails<long long>("+1"), "column 0: expected long long, found '+1'");
  EXPECT_EQ(readingFails<long long>(" 1"), "column 0: expected long long, found ' 1'");
  EXPECT_EQ(readingFails<U8>("-1"), "column 0: expected unsigned long long, found '-1'");
}

TEST(StrepParseTest, ReadsBooleans) {
  EXPECT_TRUE(strepToValue<bool>("True"));
  EXPECT_TRUE(strepToValue<bool>("1"));
  EXPECT_FALSE(strepToValue<bool>("False"));
  EXPECT_FALSE(strepToValue<bool>("0"));
  EXPECT_EQ(readingFails<bool>("true"), "column 0: expected bool, found 'true'");
}

TEST(StrepParseTest, BrokenTextsAreRefused) {
  EXPECT_EQ(readingFails<String8>("abc"), "column 0: expected Mox::String, found 'abc'");
  EXPECT_EQ(readingFails<String8>("'abc"), "column 4: expected closing ', found the end");
  EXPECT_EQ(readingFails<String8>("'abc\""), "column 5: expected closing ', found the end");
  EXPECT_EQ(readingFails<String8>("'a\\q'"), "column 2: expected an escape, found '\\\\q\\''");
  EXPECT_EQ(readingFails<String8>("'\\x4"), "column 1: expected an escape, found '\\\\x4'");
  EXPECT_EQ(readingFails<String8>("'\\x4g'"), "column 1: expected an escape, found '\\\\x4g\\''");
  EXPECT_EQ(readingFails<String8>("'\\"), "column 1: expected an escape, found '\\\\'");
}

TEST(StrepParseTest, ComplaintsShowTheStartOfALongText) {
  EXPECT_EQ(readingFails<bool>("abcdefghijklmnopqrst"),
            "column 0: expected bool, found 'abcdefghijklmnopqrst'");
  EXPECT_EQ(readingFails<bool>("abcdefghijklmnopqrstu"),
            "column 0: expected bool, found 'abcdefghijklmnopqrst'...");
}

TEST(StrepParseTest, JunkBehindTheValueIsRefused) {
  EXPECT_EQ(readingFails<long long>("12 "), "junk at column 2 deserializing 12 ");
  EXPECT_EQ(readingFails<bool>("Truex"), "junk at column 4 deserializing Truex");
  EXPECT_EQ(readingFails<U32>(String8("5\0", 2)),
            String8("junk at column 1 deserializing 5\0", 33));
}

TEST(StrepParseTest, StoresOnlyWhatWasReadWhole) {
  U32 number = 7;
  EXPECT_EQ(strepToValue("12", &number), 12u);
  EXPECT_EQ(number, 12u);
  EXPECT_NE(complaint([&number] { strepToValue("13x", &number); }), "");
  EXPECT_EQ(number, 12u);
}

TEST(StrepParseTest, ReadersAdvanceAndStore) {
  String8 const text = "12'ab'";
  auto at = text.begin();
  long long number = 0;
  String8 word;
  EXPECT_EQ(sequenceToValue(at, text.end(), &number), 12);
  EXPECT_EQ(at.index(), 2u);
  EXPECT_EQ(sequenceToValue(at, text.end(), &word), "ab");
  EXPECT_TRUE(at == text.end());
  EXPECT_EQ(number, 12);
  EXPECT_EQ(word, "ab");
}

TEST(StrepParseTest, NothingBehindTheEndIsRead) {
  String8 const text = "123";
  auto at = text.begin();
  Position const end(text, 2);
  EXPECT_EQ(sequenceToValue(at, end, static_cast<long long*>(nullptr)), 12);
  EXPECT_EQ(needing("", text), "");
}

TEST(NeedStringTest, BlankStandsForAnyWhiteSpace) {
  EXPECT_EQ(passed(" Value", "Value"), 5u);
  EXPECT_EQ(passed(" Value", " \t\r\n\v\fValue("), 11u);
  EXPECT_EQ(passed(" : ", ":x"), 1u);
  EXPECT_EQ(passed(" : ", " :  x"), 4u);
  EXPECT_EQ(passed(" ", ""), 0u);
}

TEST(NeedStringTest, MismatchNamesThePlaceAndBothTexts) {
  EXPECT_EQ(needing(" Value", "  Valu("), "column 2: expected 'Value', found 'Valu('");
  EXPECT_EQ(needing(", ", ""), "column 0: expected ',', found the end");
  EXPECT_EQ(needing(" **", "*"), "column 0: expected '**', found '*'");
}

TEST(RethrowTest, NamesTheAttributeAndKeepsTheIds) {
  Exception::IdBitArray ids;
  ids.add(9);
  String8 attribute = "atten";
  try {
    rethrowFromDeserializeAttr(RangeException("column 3: expected x", ids), attribute);
  } catch (RangeException const& exception) {
    EXPECT_EQ(exception.message(), "attribute 'atten': column 3: expected x");
    EXPECT_TRUE(exception.ids().isMember(9));
    return;
  }
  FAIL();
}

// A value with a parser of its own.
struct Lane {
  Lane(Position& at, Position const& end) {
    needString(at, end, " lane ");
    number = sequenceToAttribute<U8>(at, end, "number");
  }
  U8 number;
};

TEST(ReadsItselfTest, ParsingConstructorsAreReaders) {
  EXPECT_EQ(strepToValue<Lane>(" lane 7").number, 7);
  EXPECT_EQ(readingFails<Lane>("lane x"),
            "attribute 'number': column 5: expected unsigned long long, found 'x'");
  EXPECT_EQ(readingFails<Lane>("lane 7 "), "junk at column 6 deserializing lane 7 ");
}

}  // namespace
}  // namespace Mox
