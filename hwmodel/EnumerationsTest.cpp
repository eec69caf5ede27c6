// The enumerations of the hardware: all names and numbers, and what is neither.
#include "Kestrel/ConnectionType.h"
#include "Kestrel/CoprocessorState.h"
#include "Kestrel/DfeMode.h"
#include "Kestrel/XpPortMode.h"
#include "Kestrel/XpPortPcsMode.h"
#include "Kestrel/XpSerdesSmState.h"
#include "Mox/TestValues.h"

#include <gtest/gtest.h>
#include <sstream>

namespace Kestrel {
namespace {

using namespace moxtest;
using namespace std::string_literals;

/// Asks all operations of enumeration `E`, which has these names in this order.
template <class E>
struct Enumeration {
  char const* name;
  E (*byNumber)(U32);
  E (*byName)(Mox::String8 const&);
  std::vector<char const*> names;

  void checkAll() const {
    for (U32 number = 0; number < names.size(); ++number) check(number, names[number]);
    U32 const behind = static_cast<U32>(names.size());
    EXPECT_EQ(complaint([&] { byNumber(behind); }), name);
    EXPECT_EQ(complaint([&] { byNumber(0xFFFFFFFF); }), name);
    for (char const* unknown : {"", "nonsense", " "})
      EXPECT_EQ(complaint([&] { byName(unknown); }), name);
    EXPECT_EQ(stringValue(static_cast<E>(behind)), Mox::format("%s(%u)", name, behind));
    EXPECT_EQ(stringValue(static_cast<E>(-1)), Mox::format("%s(-1)", name));
    EXPECT_EQ(complaint([&] { Mox::strepToValue<E>(valueToStrep(static_cast<E>(behind))); }), name);
  }

 private:
  void check(U32 number, char const* text) const {
    E const value = byNumber(number);
    EXPECT_EQ(static_cast<U32>(value), number);
    EXPECT_EQ(byName(text), value);
    EXPECT_EQ(stringValue(value), text);
    EXPECT_EQ(valueToStrep(value), Mox::format("'%s'", text));
    EXPECT_EQ(Mox::strepToValue<E>(valueToStrep(value)), value);
    std::ostringstream out;
    out << value;
    EXPECT_EQ(out.str(), text);
  }
};

TEST(EnumerationsTest, CoprocessorState) {
  Enumeration<CoprocessorState>{"CoprocessorState",
                                CoprocessorStateInstance,
                                CoprocessorStateInstance,
                                {"copStateUninitialized", "copStateFailed", "copStateOk"}}
      .checkAll();
}

TEST(EnumerationsTest, DfeMode) {
  Enumeration<DfeMode>{
      "DfeMode", DfeModeInstance, DfeModeInstance, {"NoDfeTune", "FullDfeTune", "CtleOnlyTune"}}
      .checkAll();
  EXPECT_EQ(stringValue(static_cast<DfeMode>(7)), "DfeMode(7)");
}

TEST(EnumerationsTest, ConnectionTypeKeepsItsSpelling) {
  Enumeration<ConnectionType>{
      "ConnectionType",
      ConnectionTypeInstance,
      ConnectionTypeInstance,
      {"OnBoardChipConnetion", "LimitingXcvrConnection", "LinearXcvrDirectConnection"}}
      .checkAll();
  EXPECT_EQ(complaint([] { ConnectionTypeInstance("OnBoardChipConnection"); }), "ConnectionType");
}

TEST(EnumerationsTest, XpPortPcsMode) {
  Enumeration<XpPortPcsMode>{"XpPortPcsMode",
                             XpPortPcsModeInstance,
                             XpPortPcsModeInstance,
                             {"portPcsModeR", "portPcsModeX", "portPcsModeSGMII"}}
      .checkAll();
}

TEST(EnumerationsTest, XpSerdesSmState) {
  Enumeration<XpSerdesSmState>{"XpSerdesSmState",
                               XpSerdesSmStateInstance,
                               XpSerdesSmStateInstance,
                               {"Idle", "StopDfe", "DfeStartTune", "DfeTuning", "DfeDone"}}
      .checkAll();
  EXPECT_EQ(complaint([] { XpSerdesSmStateInstance("idle"); }), "XpSerdesSmState");
}

TEST(EnumerationsTest, XpPortMode) {
  Enumeration<XpPortMode>{
      "XpPortMode",
      XpPortModeInstance,
      XpPortModeInstance,
      {"portModeDisabled", "portMode1GBaseX", "portMode1GBaseR", "portMode1G", "portMode10G",
       "portMode25G", "portMode40G", "portMode40G2", "portMode50G", "portMode100G"}}
      .checkAll();
  EXPECT_EQ(XpPortModeInstance(9), portMode100G);
  EXPECT_EQ(stringValue(static_cast<XpPortMode>(12)), "XpPortMode(12)");
}

TEST(EnumerationsTest, TextBehindTheNameIsJunkAndANameNeedsQuotes) {
  EXPECT_EQ(parseComplaint<DfeMode>("'NoDfeTune'x"),
            "junk at column 11 deserializing 'NoDfeTune'x");
  EXPECT_EQ(parseComplaint<DfeMode>("NoDfeTune"),
            "column 0: expected Mox::String, found 'NoDfeTune'");
}

TEST(EnumerationsTest, AStreamHasTheNumberInFourBytes) {
  Mox::Ptr<Mox::NboAttrLog::Out> const out = new Mox::NboAttrLog::Out;
  out << portMode100G << Idle;
  EXPECT_EQ(out->bytes(), "\0\0\0\x09\0\0\0\0"s);
}

}  // namespace
}  // namespace Kestrel
