// Strings and names: what they share, what they hold, how they compare.
#include "Mox/Exception.h"
#include "Mox/Name.h"
#include "Mox/PtrInterface.h"
#include "Mox/String8.h"
#include "standin/mox/TestThreadSafe.h"

#include <gtest/gtest.h>
#include <sstream>
#include <string>
#include <thread>
#include <type_traits>
#include <vector>

namespace Mox {
namespace {

bool isNullRecord(String8 const& text) { return &text.data() == &String8::nullStringData_; }
U32 holders(String8 const& text) { return text.data().references.count(); }

TEST(StringTest, IsOnePointer) {
  EXPECT_EQ(sizeof(String8), sizeof(void*));
  EXPECT_EQ(sizeof(Name), sizeof(void*));
  EXPECT_EQ(sizeof(VFPtrInterface::enableThreadSafePointers), 1u);
}

TEST(StringTest, EmptyStringsHaveNoRecordOfTheirOwn) {
  EXPECT_TRUE(isNullRecord(String8()));
  EXPECT_TRUE(isNullRecord(String8("")));
  EXPECT_TRUE(isNullRecord(String8("text", 0)));
  EXPECT_TRUE(isNullRecord(String8("text").substr(4, 1)));
}

TEST(StringTest, NullPointerGivesTheEmptyString) {
  char const* const none = nullptr;
  EXPECT_EQ(String8(none), String8());
  String8 text = "x";
  text += none;
  EXPECT_EQ(text, "x");
}

TEST(StringTest, NullRecordIsEmptyZeroTerminatedAndNeverReleased) {
  auto& null = String8::nullStringData_;
  EXPECT_EQ(null.length, 0u);
  EXPECT_EQ(*null.bytes(), 0);
  null.references.inc();
  EXPECT_FALSE(null.references.dec());
}

TEST(StringTest, CopiesShareTheirRecord) {
  String8 const text = "Ethernet1/1";
  String8 const copy = text;
  EXPECT_EQ(copy.charPtr(), text.charPtr());
  EXPECT_EQ(holders(text), 2u);
}

TEST(StringTest, LastHolderReleasesTheRecord) {
  String8 const text = "Ethernet1/1";
  { String8 const copy = text; }
  EXPECT_EQ(holders(text), 1u);
}

TEST(StringTest, MoveLeavesTheEmptyString) {
  String8 text = "Ethernet1/1";
  String8 const moved = std::move(text);
  EXPECT_EQ(moved, "Ethernet1/1");
  EXPECT_EQ(holders(moved), 1u);
}

TEST(StringTest, AssignmentFromItselfKeepsTheBytes) {
  String8 text = "Ethernet1/1";
  text = *&text;
  EXPECT_EQ(text, "Ethernet1/1");
  text = text.charPtr() + 8;
  EXPECT_EQ(text, "1/1");
}

TEST(StringTest, InitTakesItsLengthAndZeroBytes) {
  String8 text = "old";
  text.init("a\0b and more", 0, 3);
  EXPECT_EQ(text.size(), 3u);
  EXPECT_EQ(text.view(), std::string_view("a\0b", 3));
  EXPECT_EQ(text.charPtr()[3], 0);
}

TEST(StringTest, InitFromItsOwnBytes) {
  String8 text = "Ethernet";
  text.init(text.charPtr() + 5, 0, 3);
  EXPECT_EQ(text, "net");
}

TEST(StringTest, AppendingLeavesOtherHoldersAlone) {
  String8 text = "slice";
  String8 const before = text;
  text += "0";
  EXPECT_EQ(text, "slice0");
  EXPECT_EQ(before, "slice");
}

TEST(StringTest, AppendsItselfAndPiecesOfItself) {
  String8 text = "ab";
  text += text;
  EXPECT_EQ(text, "abab");
  text += text.charPtr() + 3;
  EXPECT_EQ(text, "ababb");
}

TEST(StringTest, AppendingToTheEmptyStringShares) {
  String8 const text = "slice0";
  String8 sum;
  sum += text;
  EXPECT_EQ(sum.charPtr(), text.charPtr());
}

TEST(StringTest, SumsAreNewStrings) {
  String8 const chip = "chip";
  EXPECT_EQ(chip + "0", "chip0");
  EXPECT_EQ(chip + chip, "chipchip");
  EXPECT_EQ("my" + chip, "mychip");
  EXPECT_EQ(chip + "", chip);
  EXPECT_EQ(chip, "chip");
}

TEST(StringTest, SubstrIsCutAtBothEnds) {
  String8 const text = "Ethernet";
  EXPECT_EQ(text.substr(2, 3), "her");
  EXPECT_EQ(text.substr(5, 100), "net");
  EXPECT_EQ(text.substr(-7, 3), "Eth");
  EXPECT_EQ(text.substr(8, 1), "");
  EXPECT_EQ(text.substr(1LL << 40, 1), "");
  EXPECT_EQ(text.substr(1, 0xFFFFFFFF), "thernet");
}

TEST(StringTest, WholeSubstrShares) {
  String8 const text = "Ethernet";
  EXPECT_EQ(text.substr(0, 8).charPtr(), text.charPtr());
}

TEST(StringTest, IndexBehindTheEndIsZero) {
  String8 const text = "ab";
  EXPECT_EQ(text[1], 'b');
  EXPECT_EQ(text[2], 0);
  EXPECT_EQ(String8()[0], 0);
}

TEST(StringTest, ComparesUnsignedBytesPrefixFirst) {
  EXPECT_LT(String8("a"), String8("b"));
  EXPECT_LT(String8("a"), String8("aa"));
  EXPECT_LT(String8("a"), String8("\xE4"));
  EXPECT_LT(String8(), String8("a"));
  EXPECT_GT(String8("b"), String8("ab"));
  EXPECT_NE(String8("ab"), String8("ac"));
  EXPECT_NE(String8("a\0b", 3), String8("a\0c", 3));
}

TEST(StringTest, RecordsCompareAsTheStringsDo) {
  String8 const a = "a", alsoA = "a", b = "b", ab = "ab";
  EXPECT_TRUE(a.data() == alsoA.data());
  EXPECT_FALSE(a.data() == ab.data());
  EXPECT_TRUE(a.data() < ab.data());
  EXPECT_TRUE(ab.data() < b.data());
  EXPECT_FALSE(b.data() < ab.data());
}

// Known values of the one-at-a-time hash.
TEST(StringTest, HashIsOneAtATime) {
  EXPECT_EQ(String8().hash(), 0u);
  EXPECT_EQ(String8("a").hash(), 0xCA2E9442u);
  EXPECT_EQ(String8("The quick brown fox jumps over the lazy dog").hash(), 0x519E91F5u);
}

TEST(StringTest, BitReverseMirrorsTheWord) {
  EXPECT_EQ(bitReverse(0), 0u);
  EXPECT_EQ(bitReverse(1), 0x80000000u);
  EXPECT_EQ(bitReverse(0x12345678), 0x1E6A2C48u);
  EXPECT_EQ(bitReverse(bitReverse(0xDEADBEEF)), 0xDEADBEEFu);
}

TEST(StringTest, WritesAllItsBytesToAStream) {
  std::ostringstream out;
  out << String8("a\0b", 3) << Name("c");
  EXPECT_EQ(out.str(), std::string("a\0bc", 4));
}

TEST(StringTest, RefusesWhatIsTooLong) {
  if constexpr (sizeof(std::size_t) > sizeof(U32)) {
    auto const size = std::size_t(1) << 32;
    try {
      String8 const text{std::string_view("never read", size)};
      FAIL() << "made a string of " << text.size();
    } catch (RangeException const& refusal) {
      EXPECT_EQ(refusal.message(), "a string can't hold 4294967296 bytes");
    }
  }
  EXPECT_THROW(String8("never read", 0x80000000u), RangeException);
}

TEST(StringTest, CountsAreSafeUnderTheSwitch) {
  ThreadSafe const on;
  String8 const text = "shared";
  auto const copyOften = [&text] {
    for (int i = 0; i < 20000; ++i) String8 const copy = text;
  };
  std::thread one(copyOften), other(copyOften);
  one.join();
  other.join();
  EXPECT_EQ(holders(text), 1u);
}

TEST(StringTest, IteratorWalksToTheEnd) {
  String8 const text = "ab";
  std::string seen;
  for (auto at = text.begin(); !(at == text.end()); ++at) seen += static_cast<char>(*at);
  EXPECT_EQ(seen, "ab");
  EXPECT_EQ(*text.end(), 0);
}

TEST(StringTest, IteratorHoldsItsString) {
  auto at = String8("gone").begin();
  EXPECT_EQ(*at, 'g');
  EXPECT_EQ(at.string(), "gone");
}

TEST(NameTest, IsAStringInAnotherRole) {
  EXPECT_EQ(Name("slice0").stringValue(), "slice0");
  EXPECT_EQ(Name("slice0").hash(), String8("slice0").hash());
  EXPECT_LT(Name("slice0"), Name("slice1"));
  EXPECT_FALSE((std::is_convertible_v<Name, String8>));
  EXPECT_TRUE(Name().empty());
}

TEST(FormatTest, TakesAllOfPrintf) {
  EXPECT_EQ(format("%d", -5), "-5");
  EXPECT_EQ(format("%lld %s", 1LL << 40, "text"), "1099511627776 text");
  EXPECT_EQ(format("%15s|%-4u|%08.3f", "Name", 7u, 1.5), "           Name|7   |0001.500");
  EXPECT_EQ(format("%s", ""), "");
}

TEST(FormatTest, LinesLongerThanTheStackBufferAreWhole) {
  for (std::size_t size : {255u, 256u, 257u, 5000u}) {
    std::string const longText(size, 'x');
    EXPECT_EQ(format("%s", longText.c_str()).view(), longText);
  }
}

}  // namespace
}  // namespace Mox
