// The identifiers of the hardware: bounds, texts and streams.
#include "Kestrel/CoprocessorId.h"
#include "Kestrel/XpPortId.h"
#include "Kestrel/XpSerdesId.h"
#include "Mox/TestValues.h"
#include "XpLib/Config/TreadIndex.h"
#include "XpXdk/DeviceId.h"

#include <gtest/gtest.h>
#include <sstream>

namespace Kestrel {
namespace {

using namespace moxtest;
using namespace std::string_literals;

template <class T>
concept OrderedWithNumbers = requires(T const& a) {
  a < 1;
};

constexpr char const* serdesMessage = "XpSerdesId::value < 0 or > 127 not allowed";
constexpr char const* portMessage = "XpPortId::value < 0 or > 132 not allowed";
constexpr char const* coprocessorMessage = "CoprocessorId::value < 0 or > 0 not allowed";

TEST(XpSerdesIdTest, IsZeroTo127) {
  EXPECT_EQ(XpSerdesId().value(), 0);
  EXPECT_EQ(XpSerdesId(127).value(), 127);
  EXPECT_EQ(complaint([] { XpSerdesId(128); }), serdesMessage);
  EXPECT_EQ(complaint([] { XpSerdesId(255); }), serdesMessage);
}

TEST(XpSerdesIdTest, SettingChecks) {
  XpSerdesId serdes(3);
  EXPECT_EQ(complaint([&serdes] { serdes.valueIs(128); }), serdesMessage);
  EXPECT_EQ(serdes, XpSerdesId(3));
  serdes.valueIs(4);
  EXPECT_EQ(serdes, XpSerdesId(4));
}

TEST(XpSerdesIdTest, IsEqualOrNotAndHasNoOrder) {
  EXPECT_TRUE(XpSerdesId(1) == XpSerdesId(1));
  EXPECT_TRUE(XpSerdesId(1) != XpSerdesId(2));
  EXPECT_FALSE(Ordered<XpSerdesId>);
  EXPECT_FALSE(OrderedWithNumbers<XpSerdesId>);
  EXPECT_EQ(XpSerdesId(5).hash(), 5);
}

TEST(XpSerdesIdTest, TextIsTheNumberAndParsesBack) {
  EXPECT_EQ(valueToStrep(XpSerdesId(127)), "127");
  std::ostringstream out;
  out << XpSerdesId(65);
  EXPECT_EQ(out.str(), "65");
  EXPECT_EQ(Mox::strepToValue<XpSerdesId>("127"), XpSerdesId(127));
  EXPECT_EQ(Mox::strepToValue<XpSerdesId>("256"), XpSerdesId(0));
  EXPECT_EQ(parseComplaint<XpSerdesId>("128"), serdesMessage);
  EXPECT_EQ(parseComplaint<XpSerdesId>("-1"), serdesMessage);
  EXPECT_EQ(parseComplaint<XpSerdesId>("12 lanes"), "junk at column 2 deserializing 12 lanes");
  EXPECT_EQ(parseComplaint<XpSerdesId>("lane"),
            "attribute 'value': column 0: expected long long, found 'lane'");
  EXPECT_EQ(parseComplaint<XpSerdesId>("99999999999999999999"),
            "attribute 'value': column 0: 99999999999999999999 is out of range");
}

TEST(XpSerdesIdTest, IsAByteOnAStreamAndAPeersIsNotChecked) {
  EXPECT_EQ(written(XpSerdesId(127)), "\x7F");
  EXPECT_EQ(read<XpSerdesId>("\x7F"), XpSerdesId(127));
  EXPECT_EQ(read<XpSerdesId>("\x80").value(), 128);
  EXPECT_EQ(complaint([] { read<XpSerdesId>(""); }), "the stream ends: 1 bytes wanted, 0 left");
}

TEST(XpPortIdTest, IsZeroTo132OrUnset) {
  EXPECT_EQ(XpPortId(132).value(), 132);
  EXPECT_EQ(complaint([] { XpPortId(133); }), portMessage);
  EXPECT_EQ(XpPortId().value(), 65535);
  EXPECT_EQ(complaint([] { XpPortId(65535); }), portMessage);
}

TEST(XpPortIdTest, UnsetPrintsAndDoesntParseBack) {
  EXPECT_EQ(valueToStrep(XpPortId()), "65535");
  EXPECT_EQ(parseComplaint<XpPortId>("65535"), portMessage);
  EXPECT_EQ(read<XpPortId>(written(XpPortId())), XpPortId());
}

TEST(XpPortIdTest, ParserNarrowsTo16BitsAndThenChecks) {
  EXPECT_EQ(Mox::strepToValue<XpPortId>("132"), XpPortId(132));
  EXPECT_EQ(parseComplaint<XpPortId>("133"), portMessage);
  EXPECT_EQ(Mox::strepToValue<XpPortId>("65541"), XpPortId(5));
  EXPECT_EQ(parseComplaint<XpPortId>("x"),
            "attribute 'value': column 0: expected long long, found 'x'");
}

TEST(XpPortIdTest, ComparesAndHashesAsItsBase) {
  EXPECT_TRUE(XpPortId(1) == XpPortId(1) && XpPortId(1) != XpPortId(2));
  EXPECT_TRUE(XpPortId(1) < XpPortId(2) && XpPortId(1) <= XpPortId(1));
  EXPECT_TRUE(XpPortId(2) > XpPortId(1) && XpPortId(2) >= XpPortId(2));
  EXPECT_LT(XpPortId(132), XpPortId());
  EXPECT_EQ(XpPortId(132).hash(), 132);
  EXPECT_TRUE(XpPortId(3) == Rye::Central::PortId(3));
}

TEST(XpPortIdTest, IsItsBaseOnAStream) {
  EXPECT_EQ(written(XpPortId(132)), "\0\x84"s);
  EXPECT_EQ(read<XpPortId>("\0\x84"s), XpPortId(132));
  EXPECT_EQ(read<XpPortId>("\x01\0"s).value(), 256);
  EXPECT_EQ(complaint([] { read<XpPortId>("a"); }), "the stream ends: 2 bytes wanted, 1 left");
}

TEST(XpPortIdTest, BaseHasNoBound) {
  EXPECT_EQ(Rye::Central::PortId().value(), 65535);
  EXPECT_EQ(Mox::strepToValue<Rye::Central::PortId>("65534").value(), 65534);
}

TEST(CoprocessorIdTest, IsZero) {
  EXPECT_EQ(CoprocessorId(), CoprocessorId(0));
  EXPECT_EQ(complaint([] { CoprocessorId(1); }), coprocessorMessage);
  EXPECT_EQ(complaint([] { CoprocessorId(0xFFFFFFFF); }), coprocessorMessage);
  EXPECT_EQ(CoprocessorId().hash(), 0u);
  EXPECT_FALSE(Ordered<CoprocessorId>);
  EXPECT_FALSE(OrderedWithNumbers<CoprocessorId>);
}

TEST(CoprocessorIdTest, TextAndStream) {
  EXPECT_EQ(valueToStrep(CoprocessorId()), "0");
  EXPECT_EQ(Mox::strepToValue<CoprocessorId>("4294967296"), CoprocessorId(0));
  EXPECT_EQ(parseComplaint<CoprocessorId>("1"), coprocessorMessage);
  EXPECT_EQ(written(CoprocessorId()), "\0\0\0\0"s);
  EXPECT_EQ(read<CoprocessorId>("\0\0\0\x02"s).value(), 2u);
  EXPECT_TRUE(read<CoprocessorId>("\0\0\0\x01"s) != CoprocessorId());
  EXPECT_EQ(complaint([] { read<CoprocessorId>("\0\0"s); }),
            "the stream ends: 4 bytes wanted, 2 left");
}

TEST(ImportedIdentifiersTest, BoundsHaveTheirTexts) {
  EXPECT_EQ(XpXdk::DeviceId(32), XpXdk::DeviceId::null);
  EXPECT_EQ(complaint([] { XpXdk::DeviceId(33); }),
            "DeviceId::value < DeviceId::min or > DeviceId::null not allowed");
  EXPECT_EQ(complaint([] { XpLib::Config::TreadIndex(33); }),
            "TreadIndex::value < TreadIndex::min or > TreadIndex::invalid not allowed");
}

TEST(XpSerdesIdTest, ParserEndsWhereItIsTold) {
  Mox::String8 const text("12345");
  Mox::String8::IteratorConst at = text.begin();
  EXPECT_EQ(XpSerdesId(at, Mox::String8::IteratorConst(text, 2)).value(), 12);
}

}  // namespace
}  // namespace Kestrel
