// What a build says of the browser in which it tests pictures.
#include "tests/house/Sandbox.h"

#include <gtest/gtest.h>

namespace {

class BrowserTest : public testing::Test {
 protected:
  BrowserTest() {
    tree_.has("CMakeLists.txt",
              "cmake_minimum_required(VERSION 3.25)\n"
              "project(pictures LANGUAGES NONE)\n"
              "include(" KESTREL_SOURCE_DIR "/cmake/Browser.cmake)\n");
  }

  house::Outcome configured(const std::string& options) const {
    return tree_.run("cmake . -G Ninja " + options);
  }

  house::Sandbox tree_;
};

bool says(const house::Outcome& outcome, const std::string& text) {
  return outcome.output.find(text) != std::string::npos;
}

TEST_F(BrowserTest, OneThatIsInstalledIsFound) {
  tree_.hasProgram("chromium", "true");
  const house::Outcome outcome = configured("-DKESTREL_ALL_TESTS=ON");
  EXPECT_EQ(outcome.status, 0) << outcome.output;
  EXPECT_TRUE(says(outcome, "-- Pictures are tested in " + tree_.path())) << outcome.output;
}

TEST_F(BrowserTest, AnyOneCanBeNamed) {
  const house::Outcome outcome = configured("-DKESTREL_BROWSER=/bin/true");
  EXPECT_EQ(outcome.status, 0) << outcome.output;
  EXPECT_TRUE(says(outcome, "-- Pictures are tested in /bin/true")) << outcome.output;
}

TEST_F(BrowserTest, BuildWithoutOneSaysSo) {
  const house::Outcome outcome = configured("-DKESTREL_BROWSER=OFF");
  EXPECT_EQ(outcome.status, 0) << outcome.output;
  EXPECT_TRUE(says(outcome, "-- Pictures aren't tested: no browser")) << outcome.output;
}

TEST_F(BrowserTest, WhereNoTestMayBeLeftOutOneMustBeThere) {
  const house::Outcome outcome = configured("-DKESTREL_BROWSER=OFF -DKESTREL_ALL_TESTS=ON");
  EXPECT_NE(outcome.status, 0);
  EXPECT_TRUE(says(outcome, "no browser to test pictures in")) << outcome.output;
}

}  // namespace
