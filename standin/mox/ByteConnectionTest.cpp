// Primitives on a stream: their bytes, both ways, and streams that end too early.
#include "Mox/BoundedIntegers.h"
#include "Mox/TestValues.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <string>

namespace Mox {
namespace {

using namespace std::string_literals;
using moxtest::complaint;
using moxtest::reading;
using moxtest::written;

enum Gear : S32 { park, reverse = -1, third = 3 };

TEST(ByteConnectionTest, IntegersGoMostSignificantByteFirst) {
  EXPECT_EQ(written(U8(0xFE)), "\xFE");
  EXPECT_EQ(written(S8(-3)), "\xFD");
  EXPECT_EQ(written(U16(0x0102)), "\x01\x02");
  EXPECT_EQ(written(S16(-2)), "\xFF\xFE");
  EXPECT_EQ(written(U32(0x01020304)), "\x01\x02\x03\x04");
  EXPECT_EQ(written(S32(-2)), "\xFF\xFF\xFF\xFE");
  EXPECT_EQ(written(U64(0x0102030405060708)), "\x01\x02\x03\x04\x05\x06\x07\x08");
}

TEST(ByteConnectionTest, OthersGoByTheirIntegers) {
  EXPECT_EQ(written(true), "\x01");
  EXPECT_EQ(written(false), "\0"s);
  EXPECT_EQ(written(1.0), "\x3F\xF0\0\0\0\0\0\0"s);
  EXPECT_EQ(written(String8("ab")),
            "\0\0\0\x02"
            "ab"s);
  EXPECT_EQ(written(String8()), "\0\0\0\0"s);
  EXPECT_EQ(written(Name("c")),
            "\0\0\0\x01"
            "c"s);
}

TEST(ByteConnectionTest, AnEnumerationGoesAsItsNumber) {
  EXPECT_EQ(written(third), "\0\0\0\x03"s);
  EXPECT_EQ(written(reverse), "\xFF\xFF\xFF\xFF");
}

TEST(ByteConnectionTest, ABoundedIntegerGoesAsItsStorage) {
  EXPECT_EQ(written(U1(1)), "\x01");
  EXPECT_EQ(written(U4(15)), "\x0F");
  EXPECT_EQ(written(U6(63)), "\x3F");
  EXPECT_EQ(written(U22(0x3FFFFF)), "\0\x3F\xFF\xFF"s);
}

TEST(ByteConnectionTest, ABoundedIntegerFromAPeerIsNotChecked) {
  EXPECT_EQ(U4(reading("\xFF").ptr(), StreamBogon()).value(), 255);
  EXPECT_EQ(U22(reading("\xFF\0\0\x01"s).ptr(), StreamBogon()).value(), 0xFF000001);
}

TEST(ByteConnectionTest, ReadsWhatWasWritten) {
  Ptr<NboAttrLog::Out> const out = new NboAttrLog::Out;
  out << U8(255) << S8(-128) << U16(65535) << S32(-2147483647 - 1) << U32(4294967295) << ~U64(0)
      << true << S32(-7) << -0.1 << String8("a\0b") << Name("n");
  auto const in = reading(out->bytes());
  EXPECT_EQ(in->nextU8(), 255);
  EXPECT_EQ(in->nextS8(), -128);
  EXPECT_EQ(in->nextU16(), 65535);
  EXPECT_EQ(in->nextS32(), -2147483647 - 1);
  EXPECT_EQ(in->nextU32(), 4294967295);
  EXPECT_EQ(in->nextU64(), ~U64(0));
  EXPECT_TRUE(in->nextbool());
  EXPECT_EQ(in->nextint(), -7);
  EXPECT_EQ(in->nextdouble(), -0.1);
  EXPECT_EQ(in->nextString(), String8("a\0b"));
  EXPECT_EQ(in->nextString(), "n");
  EXPECT_EQ(in->bytesLeft(), 0u);
}

TEST(ByteConnectionTest, BytesOfAStringAreAny) {
  Ptr<NboAttrLog::Out> const out = new NboAttrLog::Out;
  out << String8("a\0\xFF", 3);
  EXPECT_EQ(reading(out->bytes())->nextString(), String8("a\0\xFF", 3));
}

TEST(ByteConnectionTest, DoublesKeepTheirBits) {
  double const infinity = std::numeric_limits<double>::infinity();
  EXPECT_EQ(reading(written(-infinity))->nextdouble(), -infinity);
  EXPECT_TRUE(std::signbit(reading(written(-0.0))->nextdouble()));
}

TEST(ByteConnectionTest, AllButZeroIsTrue) {
  EXPECT_TRUE(reading("\x80")->nextbool());
  EXPECT_FALSE(reading("\0"s)->nextbool());
}

TEST(ByteConnectionTest, ReadingPastTheEndIsRefused) {
  EXPECT_EQ(complaint([] { reading("")->nextU8(); }), "the stream ends: 1 bytes wanted, 0 left");
  EXPECT_EQ(complaint([] { reading("")->nextbool(); }), "the stream ends: 1 bytes wanted, 0 left");
  EXPECT_EQ(complaint([] { reading("a")->nextU16(); }), "the stream ends: 2 bytes wanted, 1 left");
  EXPECT_EQ(complaint([] { reading("abc")->nextU32(); }),
            "the stream ends: 4 bytes wanted, 3 left");
  EXPECT_EQ(complaint([] { reading("abc")->nextint(); }),
            "the stream ends: 4 bytes wanted, 3 left");
  EXPECT_EQ(complaint([] { reading("abcdefg")->nextdouble(); }),
            "the stream ends: 8 bytes wanted, 7 left");
}

TEST(ByteConnectionTest, AStringLongerThanWhatIsLeftIsRefused) {
  EXPECT_EQ(complaint([] { reading("\0\0\0"s)->nextString(); }),
            "the stream ends: 4 bytes wanted, 3 left");
  EXPECT_EQ(complaint([] { reading("\0\0\0\x02z"s)->nextString(); }),
            "the stream ends: 2 bytes wanted, 1 left");
  EXPECT_EQ(complaint([] { reading("\xFF\xFF\xFF\xFFz")->nextString(); }),
            "the stream ends: 4294967295 bytes wanted, 1 left");
}

TEST(ByteConnectionTest, BytesCanBeReplaced) {
  Ptr<NboAttrLog::In> const in = new NboAttrLog::In;
  EXPECT_EQ(in->bytesLeft(), 0u);
  in->bytesIs("ab");
  EXPECT_EQ(in->nextU8(), 'a');
  in->bytesIs("c");
  EXPECT_EQ(in->nextU8(), 'c');
  EXPECT_EQ(in->bytesLeft(), 0u);
}

TEST(ByteConnectionTest, OutKeepsWhatIsWrittenUntilItIsTaken) {
  Ptr<NboAttrLog::Out> const out = new NboAttrLog::Out;
  out << U8('a') << U8('b');
  EXPECT_EQ(out->bytes(), "ab");
  out->clear();
  out << U8('c');
  EXPECT_EQ(out->bytes(), "c");
}

}  // namespace
}  // namespace Mox
