// Values as users write them.
#include "Kestrel/Kestrel.h"
#include "Mox/Builtin.h"
#include "tools/kestrel/UsageFault.h"
#include "tools/kestrel/model/PlainText.h"

#include <gtest/gtest.h>

namespace kestrel {

namespace {

std::string readBack(MoxType const& type, std::string const& text) {
  return textOf(fromText(type, text)->strRep());
}

TEST(PlainTextTest, StringsAndEnumeratorsNeedNoQuotes) {
  EXPECT_EQ(readBack(*Mox::Builtin<Mox::String8>::_fwkType(), "it's"), R"('it\'s')");
  EXPECT_EQ(readBack(*Mox::Name::_fwkType(), ""), "''");
  EXPECT_EQ(readBack(*Kestrel::_fwkType_DfeMode(), "FullDfeTune"), "'FullDfeTune'");
  EXPECT_EQ(readBack(*Mox::Builtin<U8>::_fwkType(), "17"), "17");
}

TEST(PlainTextTest, QuotedTextsAreReadAsTextForms) {
  EXPECT_EQ(readBack(*Mox::Builtin<Mox::String8>::_fwkType(), R"('a\n')"), R"('a\n')");
  EXPECT_EQ(readBack(*Mox::Builtin<Mox::String8>::_fwkType(), "\"a\""), "'a'");
  EXPECT_EQ(readBack(*Kestrel::_fwkType_DfeMode(), "'FullDfeTune'"), "'FullDfeTune'");
  EXPECT_THROW(readBack(*Mox::Builtin<Mox::String8>::_fwkType(), "'a"), Mox::RangeException);
}

/// The complaint about the text.
std::string refused(MoxType const& type, std::string const& text) {
  try {
    fromText(type, text);
  } catch (Mox::RangeException const& complaint) {
    return textOf(complaint.message());
  }
  return "";
}

TEST(PlainTextTest, ARefusedTextNamesTheTypeAndWhatTheParserSays) {
  EXPECT_EQ(refused(*Kestrel::_fwkType_DfeMode(), "half"), "no DfeMode \"half\"");
  EXPECT_EQ(refused(*Mox::Builtin<U8>::_fwkType(), "256"),
            "no U8 \"256\" (column 0: 256 is out of range)");
  EXPECT_EQ(refused(*Mox::Builtin<bool>::_fwkType(), "'no"),
            R"(no bool "'no" (column 0: expected bool, found '\'no'))");
}

TEST(PlainTextTest, APlainTextIsReadAsItStands) {
  auto const& type = *Mox::Builtin<Mox::String8>::_fwkType();
  for (std::string const text : {"", "'", "'a'", "\"", "a/b", "\\n", "\xFF\x01"})
    EXPECT_EQ(plainText(*fromPlainText(type, text)), text);
}

TEST(PlainTextTest, TheEnumeratorsTextHasNoQuotes) {
  EXPECT_EQ(plainText(*fromText(*Kestrel::_fwkType_DfeMode(), "NoDfeTune")), "NoDfeTune");
  std::string const record = "Value('Kestrel::TxEq', ** {'atten': 1, 'pre': 2, 'post': 3})";
  EXPECT_EQ(plainText(*fromText(*Kestrel::TxEq::_fwkType(), record)), record);
}

TEST(PlainTextTest, StepsArePercentEncodedAndBack) {
  EXPECT_EQ(encoded("phy0/3"), "phy0%2F3");
  EXPECT_EQ(encoded("a-b.c_d~e f%\xE9"), "a-b.c_d~e%20f%25%E9");
  EXPECT_EQ(encoded(""), "''");
  EXPECT_EQ(encoded("''"), "%27%27");
  std::string all;
  for (int byte = 0; byte < 256; ++byte) all += static_cast<char>(byte);
  for (std::string const& name : {all, std::string(), std::string("''"), std::string("%2F")})
    EXPECT_EQ(decoded(encoded(name)), name);
}

TEST(PlainTextTest, OtherBytesOfAStepStandForThemselves) {
  EXPECT_EQ(decoded("a b'c'"), "a b'c'");
  EXPECT_EQ(decoded("%2f"), "/");
}

TEST(PlainTextTest, APercentSignNeedsTwoDigits) {
  for (char const* const step : {"%", "a%2", "%2G", "%G2", "%+1", "%-1", "%0x"})
    EXPECT_THROW(decoded(step), Mox::RangeException) << step;
}

}  // namespace

}  // namespace kestrel
