// How long a run is recorded.
#include "tools/kestrel/Insight.h"
#include "tools/kestrel/UsageFault.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <string>
#include <unistd.h>

namespace kestrel {

namespace {

/// The name of a file of this process alone, which goes at the end.
struct Scratch {
  ~Scratch() { std::filesystem::remove(path); }
  std::string const path = testing::TempDir() + "kestrel-insight-" + std::to_string(getpid());
};

TEST(InsightTest, RecordsEndWithIt) {
  Scratch const file;
  {
    Insight const insight({{}, file.path});
    EXPECT_NE(Swiftlog::theTraceFile, nullptr);
  }
  EXPECT_EQ(Swiftlog::theTraceFile, nullptr);
}

TEST(InsightTest, NothingIsRecordedUnasked) {
  Insight const insight({});
  EXPECT_EQ(Swiftlog::theTraceFile, nullptr);
}

TEST(InsightTest, BadPatternMakesNoFile) {
  Scratch const file;
  InsightRequest const request = {{"InsightTest/1", "InsightTest/x"}, file.path};
  EXPECT_THROW(Insight{request}, UsageFault);
  EXPECT_FALSE(std::filesystem::exists(file.path));
}

}  // namespace

}  // namespace kestrel
