// The rules on defaults and ranges, each with the words in which a breach is reported.
#include "tools/schemac/DefaultChecker.h"
#include "tools/schemac/Generator.h"
#include "tools/schemac/Story.h"

#include <array>
#include <gtest/gtest.h>
#include <vector>

namespace schemac {

namespace {

using story::templates;

// The words on `type = text`, a row of an entity that knows all built-in types.
std::string faultOfDefault(std::string const& type, std::string const& text) {
  Diagnostics diagnostics;
  Schema const schema = story::parsed(
      "module M\nnamespace A\nenum Mood\n0 calm\nend\n"
      "extern enum B::Far header h\nvalue V\n2 a U8\nend\n"
      "entity X (name Mox::Name)\n258 scalar a " +
      type + " = " + text + "\nend\n");
  check(loadLibrary(templates).builtin, {schema}, diagnostics);
  std::string const all = diagnostics.text();
  return all.empty() ? ""
                     : all.substr(all.find("error: ") + 7, all.size() - all.find("error: ") - 8);
}

TEST(DefaultCheckerTest, AnIntegerHoldsItsDefault) {
  for (auto const& [type, least, most, below, above] : std::vector<std::array<std::string, 5>>{
           {"U8", "0", "255", "-1", "256"},
           {"S8", "-128", "127", "-129", "128"},
           {"U16", "0", "65535", "-1", "65536"},
           {"S16", "-32768", "32767", "-32769", "32768"},
           {"U32", "0", "4294967295", "-1", "4294967296"},
           {"S32", "-2147483648", "2147483647", "-2147483649", "2147483648"},
           {"U64", "0", "9223372036854775807", "-1", "9223372036854775808"},
           {"U1", "0", "1", "-1", "2"},
           {"U4", "0", "15", "-1", "16"},
           {"U6", "0", "63", "-1", "64"},
           {"U22", "0", "4194303", "-1", "4194304"}}) {
    std::string const outside = " is outside of " + least + " to " + most;
    EXPECT_EQ(faultOfDefault(type, least), "") << type;
    EXPECT_EQ(faultOfDefault(type, most), "") << type;
    EXPECT_EQ(faultOfDefault(type, below), inQuotes(below) + outside) << type;
    EXPECT_EQ(faultOfDefault(type, above), inQuotes(above) + outside) << type;
  }
  EXPECT_EQ(faultOfDefault("S32", "99999999999999999999"),
            "\"99999999999999999999\" is outside of -2147483648 to 2147483647");
}

TEST(DefaultCheckerTest, AnIntegerIsWrittenWithoutIdleZerosAndSigns) {
  for (std::string const text : {"1-2", "--", "-", "010", "0x10", "1.", "-0.5"})
    EXPECT_EQ(faultOfDefault("S32", text),
              "the default of an integer is a number, unlike " + inQuotes(text));
}

TEST(DefaultCheckerTest, ADoubleIsADecimalNumber) {
  for (std::string const text : {"0", "-1.5", "2.5e-3", "1e300"})
    EXPECT_EQ(faultOfDefault("double", text), "");
  for (std::string const text :
       {"abc", "1-2", "--", "inf", "nan", "1e999", "1e-999", "0x1", "1.2.3"})
    EXPECT_EQ(faultOfDefault("double", text),
              "the default of a \"double\" is a number, unlike " + inQuotes(text));
}

TEST(DefaultCheckerTest, AnEnumerationFromElsewhereTakesAName) {
  EXPECT_EQ(faultOfDefault("B::Far", "away"), "");
  EXPECT_EQ(faultOfDefault("B::Far", "1"), "\"1\" is no enumerator of \"Far\"");
}

TEST(DefaultCheckerTest, OtherTypesHaveNoDefaultButTheirOwn) {
  EXPECT_EQ(faultOfDefault("V", "1"), "\"V\" has no default but its own");
  EXPECT_EQ(faultOfDefault("VoidPtr", "0"), "\"VoidPtr\" has no default but its own");
}

TEST(DefaultCheckerTest, APointerHasNoDefault) {
  EXPECT_EQ(story::errors("object X\n130 field x U8* = 0\nend\n"),
            "s:3:19: error: a pointer has no default but null\n");
}

// What becomes of a default in the header.
std::string initialiser(std::string const& type, std::string const& text) {
  Schema const schema = story::parsed(
      "module M\nnamespace A\nenum Mood\n0 calm\nend\n"
      "entity X (name Mox::Name)\n258 scalar a " +
      type + " = " + text + "\nend\n");
  for (Output const& output : generate(loadLibrary(templates), {schema}, {})) {
    std::size_t const at = output.text.find(" a_ = ");
    if (output.path == "A/X.h" && at != std::string::npos)
      return output.text.substr(at + 6, output.text.find(';', at) - at - 6);
  }
  return "none";
}

TEST(DefaultCheckerTest, ADefaultTextIsALiteral) {
  EXPECT_EQ(faultOfDefault("Mox::String", "\"a \\\"b\\\"\""), "");
  EXPECT_EQ(initialiser("Mox::String", "\"a \\\"b\\\"\""), "\"a \\\"b\\\"\"");
  EXPECT_EQ(initialiser("Mox::Name", "word"), "\"word\"");
}

TEST(DefaultCheckerTest, ADefaultEnumeratorIsFoundBehindARowOfItsName) {
  EXPECT_EQ(initialiser("Mood", "calm"), "Mood::calm");
}

TEST(DefaultCheckerTest, ARangeStaysInItsInteger) {
  EXPECT_EQ(story::errors("value X\n2 value U8 in 0..255 else \"m\"\nend\n"), "");
  EXPECT_EQ(story::errors("value X\n2 value U8 in 0..256 else \"m\"\nend\n"),
            "s:3:15: error: \"U8\" ends at 255\n");
}

TEST(DefaultCheckerTest, AFieldWithARangeHasNoDefault) {
  EXPECT_EQ(story::errors("value X\n2 value U8 = 5 in 0..9 else \"m\"\nend\n"),
            "s:3:14: error: a field with a range has no default but 0\n");
}

TEST(DefaultCheckerTest, TheRangeOfAnExternIsOne) {
  EXPECT_EQ(story::errors("extern primitive X range -2..2\n"), "");
  for (std::string const text : {"2", "2..-2", "..", "0..x"})
    EXPECT_EQ(story::errors("extern primitive X range " + text + "\n"),
              "s:2:26: error: expected a range such as 0..127, found " + inQuotes(text) + "\n");
}

}  // namespace

}  // namespace schemac
