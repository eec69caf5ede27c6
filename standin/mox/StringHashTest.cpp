// The quick hash of strings against its definition, and equality of bytes read in words.
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

TEST(StringHashTest, ManyHeadsAgreeWithTheDefinition) {
  std::mt19937 random(3);
  for (int i = 0; i < 5000; ++i) {
    std::string text(random() % 24, '\0');
    for (char& byte : text) byte = static_cast<char>(random() % 3 ? random() : 0);
    EXPECT_EQ(String8(text).hash(), byDefinition(text));
    EXPECT_EQ(String8(text).hash(), byDefinition(text)) << "remembered";
  }
}

TEST(StringHashTest, HeadOfZerosIsLikeAnyOther) {
  std::string const zeros(9, '\0');
  EXPECT_EQ(String8(zeros).hash(), byDefinition(zeros));
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
