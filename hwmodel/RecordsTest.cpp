// The value records of the hardware: comparison, texts and their complaints, streams.
#include "Kestrel/DfeState.h"
#include "Kestrel/TxEq.h"
#include "Kestrel/XpChipPort.h"
#include "Mox/TestValues.h"

#include <gtest/gtest.h>
#include <sstream>

namespace Kestrel {
namespace {

using namespace moxtest;
using namespace std::string_literals;

/// The complaint about a `TxEq` whose braces hold `fields`, and about all that follows.
std::string txEqComplaint(std::string const& fields) {
  return parseComplaint<TxEq>("Value('Kestrel::TxEq', ** {" + fields);
}

TxEq txEq(std::string const& fields) {
  return Mox::strepToValue<TxEq>(std::string_view("Value('Kestrel::TxEq', ** {" + fields + "})"));
}

DfeState fullDfe() {
  DfeState dfe;
  dfe.modeIs(1);
  dfe.disableIs(2);
  dfe.stateIs(3);
  dfe.statusIs(4);
  dfe.lfIs(5);
  dfe.hfIs(6);
  dfe.dcIs(7);
  dfe.bwIs(8);
  dfe.gainIs(255);
  dfe.tapsIs("1,'2'");
  return dfe;
}

constexpr char const* dfeText =
    "Value('Kestrel::DfeState', ** {'mode': 1, 'disable': 2, 'state': 3, 'status': 4, 'lf': 5, "
    "'hf': 6, 'dc': 7, 'bw': 8, 'gain': 255, 'taps': '1,\\'2\\''})";

TEST(XpChipPortTest, FieldsAndHash) {
  EXPECT_EQ(XpChipPort().devId(), 0);
  EXPECT_EQ(XpChipPort().portId(), 0);
  XpChipPort const port(1, 2);
  EXPECT_EQ(port.devId(), 1);
  EXPECT_EQ(port.portId(), 2);
  EXPECT_EQ(port.hash(), 2);
}

TEST(XpChipPortTest, OrderIsDeviceThenPort) {
  EXPECT_LT(XpChipPort(1, 9), XpChipPort(2, 0));
  EXPECT_LT(XpChipPort(1, 1), XpChipPort(1, 2));
  EXPECT_GT(XpChipPort(2, 0), XpChipPort(1, 9));
  EXPECT_LE(XpChipPort(1, 1), XpChipPort(1, 1));
  EXPECT_GE(XpChipPort(1, 1), XpChipPort(1, 1));
  EXPECT_FALSE(XpChipPort(1, 1) < XpChipPort(1, 1));
  EXPECT_NE(XpChipPort(1, 2), XpChipPort(2, 1));
}

TEST(XpChipPortTest, TextParsesBack) {
  constexpr char const* text = "Value('Kestrel::XpChipPort', ** {'devId': 1, 'portId': 255})";
  EXPECT_EQ(valueToStrep(XpChipPort(1, 255)), text);
  EXPECT_EQ(Mox::strepToValue<XpChipPort>(text), XpChipPort(1, 255));
  EXPECT_EQ(parseComplaint<XpChipPort>("Value('Kestrel::XpChipPort', ** {"),
            "premature end of value type XpChipPort");
  EXPECT_EQ(parseComplaint<XpChipPort>("Value('Kestrel::XpChipPort', ** {'hash': 1})"),
            "XpChipPort has no such attribute: hash");
}

TEST(XpChipPortTest, IsTwoBytesOnAStream) {
  EXPECT_EQ(written(XpChipPort(1, 255)), "\x01\xFF");
  EXPECT_EQ(read<XpChipPort>("\x01\xFF"), XpChipPort(1, 255));
  EXPECT_EQ(complaint([] { read<XpChipPort>("\x01"); }), "the stream ends: 1 bytes wanted, 0 left");
}

TEST(TxEqTest, StartsAtZeroAndHasNoOrder) {
  EXPECT_EQ(TxEq(), TxEq(0, 0, 0));
  EXPECT_TRUE(TxEq(1, 2, 3) == TxEq(1, 2, 3));
  EXPECT_TRUE(TxEq(1, 2, 3) != TxEq(-1, 2, 3));
  EXPECT_TRUE(TxEq(1, 2, 3) != TxEq(1, 3, 3));
  EXPECT_TRUE(TxEq(1, 2, 3) != TxEq(1, 2, 4));
  EXPECT_FALSE(Ordered<TxEq>);
  EXPECT_FALSE(Ordered<DfeState>);
}

TEST(TxEqTest, TextParsesBack) {
  constexpr char const* text = "Value('Kestrel::TxEq', ** {'atten': -3, 'pre': 1, 'post': 2})";
  EXPECT_EQ(valueToStrep(TxEq(-3, 1, 2)), text);
  std::ostringstream out;
  out << TxEq(-3, 1, 2);
  EXPECT_EQ(out.str(), text);
  EXPECT_EQ(Mox::strepToValue<TxEq>(text), TxEq(-3, 1, 2));
  EXPECT_EQ(valueToStrep(TxEq(-128, 255, 0)),
            "Value('Kestrel::TxEq', ** {'atten': -128, 'pre': 255, 'post': 0})");
}

TEST(TxEqTest, KeysComeInAnyOrderOnceOrTwiceOrNot) {
  EXPECT_EQ(txEq("'post': 2, 'atten': -3, 'pre': 1"), TxEq(-3, 1, 2));
  EXPECT_EQ(txEq("'post': 7"), TxEq(0, 0, 7));
  EXPECT_EQ(txEq("'pre': 1, 'pre': 2"), TxEq(0, 2, 0));
  EXPECT_EQ(txEq(""), TxEq());
  EXPECT_EQ(txEq("\"pre\": 1"), TxEq(0, 1, 0));
}

TEST(TxEqTest, NumbersAreNarrowedWithoutACheck) {
  EXPECT_EQ(txEq("'atten': 253, 'pre': 257, 'post': -1"), TxEq(-3, 1, 255));
}

TEST(TxEqTest, WhiteSpaceStandsBetweenTokens) {
  EXPECT_EQ(Mox::strepToValue<TxEq>(
                "\tValue\n( 'Kestrel::TxEq' ,  ** { 'atten' : -3 , 'pre':1,'post' :2 } ) \n"),
            TxEq(-3, 1, 2));
  EXPECT_EQ(Mox::strepToValue<TxEq>("Value('Kestrel::TxEq',**{'pre':1})"), TxEq(0, 1, 0));
}

TEST(TxEqTest, UnknownKeyIsNamed) {
  EXPECT_EQ(txEqComplaint("'main': 1})"), "TxEq has no such attribute: main");
  EXPECT_EQ(txEqComplaint("'Pre': 1})"), "TxEq has no such attribute: Pre");
  EXPECT_EQ(txEqComplaint("'': 1})"), "TxEq has no such attribute: ");
}

TEST(TxEqTest, TextThatStopsWhereAFieldOrTheEndIsDueIsPremature) {
  for (char const* fields : {"", " ", "'pre': 1", "'pre': 1 "})
    EXPECT_EQ(txEqComplaint(fields), "premature end of value type TxEq");
}

TEST(TxEqTest, TextThatStopsElsewhereIsRefusedAtItsEnd) {
  std::string const text = "Value('Kestrel::TxEq', ** {'pre': 1, 'post': 2})";
  for (std::size_t size = 0; size < text.size(); ++size)
    EXPECT_NE(parseComplaint<TxEq>(std::string_view(text).substr(0, size)), "") << size;
  EXPECT_EQ(parseComplaint<TxEq>(""), "column 0: expected 'Value', found the end");
  EXPECT_EQ(parseComplaint<TxEq>("Value("),
            "column 6: expected '\\'Kestrel::TxEq\\'', found the end");
  EXPECT_EQ(txEqComplaint("'pre"), "column 31: expected closing ', found the end");
  EXPECT_EQ(txEqComplaint("'pre'"), "column 32: expected ':', found the end");
  EXPECT_EQ(txEqComplaint("'pre': "),
            "attribute 'pre': column 34: expected long long, found the end");
  EXPECT_EQ(txEqComplaint("'pre': 1,"), "column 36: expected Mox::String, found the end");
  EXPECT_EQ(txEqComplaint("'pre': 1}"), "column 36: expected ')', found the end");
}

TEST(TxEqTest, WrongTokensAreRefused) {
  EXPECT_EQ(parseComplaint<TxEq>("Value('Kestrel::DfeState', ** {})"),
            "column 6: expected '\\'Kestrel::TxEq\\'', found '\\'Kestrel::DfeState\\','...");
  EXPECT_EQ(txEqComplaint("'pre': 1 'post': 2})"),
            "column 36: expected ',', found '\\'post\\': 2})'");
  EXPECT_EQ(txEqComplaint("'pre': 1, })"), "column 37: expected Mox::String, found '})'");
  EXPECT_EQ(txEqComplaint("'pre': 'x'})"),
            "attribute 'pre': column 34: expected long long, found '\\'x\\'})'");
  EXPECT_EQ(txEqComplaint("'pre': 99999999999999999999})"),
            "attribute 'pre': column 34: 99999999999999999999 is out of range");
}

TEST(TxEqTest, TextBehindTheEndIsJunk) {
  EXPECT_EQ(txEqComplaint("})x"), "junk at column 29 deserializing Value('Kestrel::TxEq', ** {})x");
}

TEST(TxEqTest, ParserStopsBehindTheValue) {
  Mox::String8 const text = "Value('Kestrel::TxEq', ** {'pre': 1}) , next";
  auto at = text.begin();
  EXPECT_EQ(TxEq(at, text.end()), TxEq(0, 1, 0));
  EXPECT_EQ(at.index(), 38u);
}

TEST(TxEqTest, IsThreeBytesOnAStream) {
  EXPECT_EQ(written(TxEq(-3, 1, 2)), "\xFD\x01\x02");
  EXPECT_EQ(read<TxEq>("\xFD\x01\x02"), TxEq(-3, 1, 2));
  EXPECT_EQ(complaint([] { read<TxEq>("\xFD\x01"); }), "the stream ends: 1 bytes wanted, 0 left");
}

TEST(DfeStateTest, FieldsAreSetOneByOne) {
  DfeState const empty;
  EXPECT_EQ(empty.gain(), 0);
  EXPECT_EQ(empty.taps(), "");
  DfeState const dfe = fullDfe();
  EXPECT_EQ(dfe.mode(), 1);
  EXPECT_EQ(dfe.gain(), 255);
  EXPECT_EQ(dfe.taps(), "1,'2'");
}

TEST(DfeStateTest, EqualWhenEveryFieldIs) {
  EXPECT_TRUE(fullDfe() == fullDfe());
  DfeState other = fullDfe();
  other.tapsIs("1,'3'");
  EXPECT_TRUE(other != fullDfe());
  other = fullDfe();
  other.gainIs(254);
  EXPECT_TRUE(other != fullDfe());
}

TEST(DfeStateTest, TextParsesBack) {
  EXPECT_EQ(valueToStrep(fullDfe()), dfeText);
  EXPECT_EQ(Mox::strepToValue<DfeState>(dfeText), fullDfe());
  EXPECT_EQ(valueToStrep(DfeState()),
            "Value('Kestrel::DfeState', ** {'mode': 0, 'disable': 0, 'state': 0, 'status': 0, "
            "'lf': 0, 'hf': 0, 'dc': 0, 'bw': 0, 'gain': 0, 'taps': ''})");
}

TEST(DfeStateTest, ComplaintsNameIt) {
  EXPECT_EQ(parseComplaint<DfeState>("Value('Kestrel::DfeState', ** {'lf': 5"),
            "premature end of value type DfeState");
  EXPECT_EQ(parseComplaint<DfeState>("Value('Kestrel::DfeState', ** {'tap': ''})"),
            "DfeState has no such attribute: tap");
  EXPECT_EQ(parseComplaint<DfeState>("Value('Kestrel::DfeState', ** {'taps': 1})"),
            "attribute 'taps': column 39: expected Mox::String, found '1})'");
}

TEST(DfeStateTest, IsNineBytesAndAStringOnAStream) {
  std::string const bytes =
      "\x01\x02\x03\x04\x05\x06\x07\x08\xFF\0\0\0\x05"
      "1,'2'"s;
  EXPECT_EQ(written(fullDfe()), bytes);
  EXPECT_EQ(read<DfeState>(bytes), fullDfe());
  for (std::size_t size = 0; size < bytes.size(); ++size)
    EXPECT_NE(complaint([&] { read<DfeState>(bytes.substr(0, size)); }), "") << size;
  EXPECT_EQ(complaint([&] { read<DfeState>(bytes.substr(0, 14)); }),
            "the stream ends: 5 bytes wanted, 1 left");
}

}  // namespace
}  // namespace Kestrel
