// Text tracing: what is counted, what is formatted, where it goes.
#include "Mox/Exception.h"
#include "Mox/TraceAt.h"

#include <gtest/gtest.h>
#include <iomanip>
#include <sstream>
#include <string>

namespace Mox {
namespace {

// Takes the lines and the coverage of a test, and a facility of its own.
class TraceTest : public testing::Test {
 protected:
  TraceTest()
      : former_(traceSinkIs([this](std::string_view line) { lines.append(line) += '|'; })) {}
  ~TraceTest() override {
    traceDisable(name());
    coverageStream_ = nullptr;
    traceSinkIs(former_);
  }

  // Passes a site at `level`; true when it wrote.
  bool pass(TraceHandle const& handle, int level) {
    bool written = false;
    traceAt(handle, level, TraceSite("src-includes/XpLib/File", "doIt", 17),
            [&written](std::ostream& out) {
              written = true;
              out << "text " << 1;
            });
    return written;
  }

  static String8 name() { return testing::UnitTest::GetInstance()->current_test_info()->name(); }

  std::string lines;
  std::ostringstream coverage;

 private:
  TraceSink former_;
};

TEST_F(TraceTest, HandlesOfOneNameShareTheFacility) {
  TraceHandle const one(name(), false), other(name(), true);
  EXPECT_EQ(one.facility(), other.facility());
  EXPECT_EQ(traceFacility(name()), one.facility());
  EXPECT_EQ(one.facility()->name(), name());
  EXPECT_EQ(traceFacility("nobody named this"), nullptr);
}

TEST_F(TraceTest, DisabledSiteCountsOneAndFormatsNothing) {
  TraceHandle const handle(name(), false);
  EXPECT_FALSE(pass(handle, 1));
  EXPECT_EQ(handle.facility()->hits(), 1u);
  EXPECT_EQ(lines, "");
}

TEST_F(TraceTest, EnabledSiteCountsTwoWhateverItsLevel) {
  TraceHandle const handle(name(), false);
  traceEnable(name() + "/1");
  EXPECT_TRUE(pass(handle, 1));
  EXPECT_FALSE(pass(handle, 2));
  EXPECT_EQ(handle.facility()->hits(), 4u);
}

TEST_F(TraceTest, LineTellsFacilityLevelSiteAndObject) {
  TraceHandle const handle("Line", false);
  traceEnable("Line/8");
  pass(handle, 8);
  traceDisable("Line");
  EXPECT_EQ(lines, "Line 8 src-includes/XpLib/File:17 doIt <unknown>: text 1|");
}

TEST_F(TraceTest, TextKeepsItsRawBytes) {
  TraceHandle const handle("Raw", true);
  std::stringstream text;
  text << "copies " << U8(1) << '\0';
  traceHelper(handle.facility(), "chip0", text, 0, true, "f", 2, "g");
  using namespace std::string_literals;
  EXPECT_EQ(lines, "Raw 0 f:2 g chip0: copies \x01\0|"s);
}

TEST_F(TraceTest, StreamHasPrecisionTwelve) {
  TraceHandle const handle(name(), true);
  traceAt(handle, 0, TraceSite("f", "g", 1), [](std::ostream& out) { out << 1.0 / 3; });
  EXPECT_NE(lines.find(": 0.333333333333|"), lines.npos) << lines;
}

TEST_F(TraceTest, SiteKnowsItsLine) {
  TraceSite const site("f", "g");
  EXPECT_EQ(site.line, __LINE__ - 1);
}

TEST_F(TraceTest, CoverageFormatsEverySiteAndLeavesTheSinkAlone) {
  TraceHandle const handle("Covered", false);
  coverageStream_ = &coverage;
  EXPECT_TRUE(pass(handle, 7));
  EXPECT_EQ(coverage.str(), "Covered 7 src-includes/XpLib/File:17 doIt <unknown>: text 1\n");
  EXPECT_EQ(lines, "");
  EXPECT_EQ(handle.facility()->hits(), 1u);
}

TEST_F(TraceTest, EnabledSiteGoesToBoth) {
  TraceHandle const handle(name(), true);
  coverageStream_ = &coverage;
  pass(handle, 0);
  EXPECT_EQ(lines.size(), coverage.str().size());
}

TEST_F(TraceTest, HandleThatStartsEnabledShowsLevelZeroAlone) {
  TraceHandle const handle(name(), true);
  EXPECT_TRUE(pass(handle, 0));
  EXPECT_FALSE(pass(handle, 1));
}

TEST_F(TraceTest, EnablingHoldsForFacilitiesToCome) {
  traceEnable("*ToCome/3-5");
  TraceHandle const handle("facilityToCome", false);
  EXPECT_EQ(handle.facility()->levels(), 0x38u);
  traceDisable("facilityToCome");
  EXPECT_FALSE(handle.facility()->enabled());
}

TEST_F(TraceTest, DisablingHoldsForFacilitiesToCome) {
  traceDisable("quiet");
  TraceHandle const handle("quiet", true);
  EXPECT_FALSE(handle.facility()->enabled());
}

TEST_F(TraceTest, DisablingLevelsKeepsTheOthers) {
  TraceHandle const handle(name(), false);
  traceEnable(name() + "/1,2");
  traceDisable(name() + "/2");
  EXPECT_TRUE(pass(handle, 1));
  EXPECT_FALSE(pass(handle, 2));
}

TEST_F(TraceTest, DisabledFacilityForgetsItsLevels) {
  TraceHandle const handle(name(), false);
  traceEnable(name() + "/1");
  handle.facility()->enabledIs(false);
  traceEnable(name() + "/2");
  EXPECT_EQ(handle.facility()->levels(), 4u);
}

TEST_F(TraceTest, PatternWithoutLevelsMeansAll) {
  TraceHandle const handle(name(), false);
  traceEnable(name());
  EXPECT_TRUE(pass(handle, 0) && pass(handle, 31));
  EXPECT_FALSE(pass(handle, 32) || pass(handle, -1));
}

TEST_F(TraceTest, BadPatternChangesNothing) {
  TraceHandle const handle(name(), false);
  EXPECT_THROW(traceEnable(name() + "/1,x"), RangeException);
  EXPECT_FALSE(handle.facility()->enabled());
}

TEST_F(TraceTest, LinesGoToStandardErrorWithoutASink) {
  TraceHandle const handle("Plain", true);
  traceSinkIs({});
  testing::internal::CaptureStderr();
  pass(handle, 0);
  EXPECT_EQ(testing::internal::GetCapturedStderr(),
            "Plain 0 src-includes/XpLib/File:17 doIt <unknown>: text 1\n");
}

}  // namespace
}  // namespace Mox
