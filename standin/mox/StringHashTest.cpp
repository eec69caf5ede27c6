// The hash of strings, which is kept, against its definition; equality of bytes read in words.
#include "Mox/KeyOps.h"

#include <gtest/gtest.h>
#include <random>
#include <string>

namespace Mox {
namespace {

U32 byDefinition(std::string const& text) {
  OneAtATime hash;
  for (char const byte : text) hash.add(static_cast<U8>(byte));
  return hash.finish();
}

TEST(StringHashTest, EmptyStringHashesToZero) { EXPECT_EQ(String8("").hash(), 0u); }

TEST(StringHashTest, EveryLengthAgreesWithTheDefinition) {
  std::string text;
  for (int length = 0; length < 40; ++length, text += static_cast<char>('a' + length))
    EXPECT_EQ(String8(text).hash(), byDefinition(text)) << text;
}

TEST(StringHashTest, AnyBytesAgreeWithTheDefinition) {
  std::mt19937 random(3);
  for (int i = 0; i < 5000; ++i) {
    std::string text(random() % 24, '\0');
    for (char& byte : text) byte = static_cast<char>(random() % 3 ? random() : 0);
    String8 const string(text);
    EXPECT_EQ(string.hash(), byDefinition(text));
    EXPECT_EQ(string.hash(), byDefinition(text)) << "kept";
  }
}

TEST(StringHashTest, CopyHasIt) {
  String8 const name("Ethernet1/1");
  String8 const before(name);
  EXPECT_EQ(name.hash(), byDefinition("Ethernet1/1"));
  String8 const behind(name);
  EXPECT_EQ(before.hash(), name.hash());
  EXPECT_EQ(behind.hash(), name.hash());
}

TEST(StringHashTest, StringThatGrowsInPlaceForgetsIt) {
  String8 name("Ethernet");
  EXPECT_EQ(name.hash(), byDefinition("Ethernet"));
  name += "1";
  EXPECT_EQ(name.hash(), byDefinition("Ethernet1"));
}

TEST(StringHashTest, StringThatGrowsAwayFromItsCopyLeavesItThere) {
  String8 name("Ethernet");
  EXPECT_EQ(name.hash(), byDefinition("Ethernet"));
  String8 const copy(name);
  name += "1";
  EXPECT_EQ(name.hash(), byDefinition("Ethernet1"));
  EXPECT_EQ(copy.hash(), byDefinition("Ethernet"));
}

TEST(StringHashTest, AssignedStringHasThatOfItsNewBytes) {
  String8 name("Ethernet1");
  EXPECT_EQ(name.hash(), byDefinition("Ethernet1"));
  name.init("Management1", 0, 11);
  EXPECT_EQ(name.hash(), byDefinition("Management1"));
  name = "Port";
  EXPECT_EQ(name.hash(), byDefinition("Port"));
}

TEST(SameBytesTest, EveryByteCounts) {
  for (std::size_t length = 0; length < 30; ++length) {
    std::string const text(length, 'x');
    EXPECT_TRUE(sameBytes(text, std::string(length, 'x')));
    EXPECT_FALSE(sameBytes(text, std::string(length + 1, 'x')));
    for (std::size_t at = 0; at < length; ++at) {
      std::string other = text;
      other[at] = 'y';
      EXPECT_FALSE(sameBytes(text, other)) << length << " " << at;
    }
  }
}

}  // namespace
}  // namespace Mox
