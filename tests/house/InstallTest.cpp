// The installed library: found, compiled against and run in both ways.
#include "tests/house/Sandbox.h"

#include <gtest/gtest.h>

namespace {

// Makes a root of the model and reads it.
const char* const consumer = R"(#include "Kestrel/Kestrel.h"
#include "Mox/Mox.h"
#include "Xdk/Xdk.h"

#include <cstdio>

int main() {
  Mox::Ptr<Kestrel::ChipStatus> chip = Kestrel::chipStatusFactory("chip0");
  std::printf("%s %u\n", chip->name().charPtr(), chip->version());
}
)";

const char* const project = R"(cmake_minimum_required(VERSION 3.25)
project(consumer LANGUAGES CXX)
find_package(KestrelTypes 1.0 REQUIRED)
add_executable(consumer consumer.cpp)
target_link_libraries(consumer PRIVATE KestrelTypes::KestrelTypes)
)";

// Installed once for all tests; they only read it.
const house::Sandbox& installed() {
  static const house::Sandbox sandbox;
  static const house::Outcome outcome =
      sandbox.run("cmake --install " KESTREL_BINARY_DIR " --prefix " + sandbox.path());
  EXPECT_EQ(outcome.status, 0) << outcome.output;
  return sandbox;
}

class InstallTest : public testing::Test {
 protected:
  InstallTest() : prefix_(installed().path()) {
    tree_.has("consumer.cpp", consumer);
    tree_.has("CMakeLists.txt", project);
  }

  const std::string prefix_;
  house::Sandbox tree_;
};

TEST_F(InstallTest, CMakeFindsThePackage) {
  const house::Outcome outcome =
      tree_.run("cmake -S . -B out -G Ninja -DCMAKE_PREFIX_PATH=" + prefix_ +
                " >log 2>&1 && cmake --build out >>log 2>&1 && out/consumer || cat log");
  EXPECT_EQ(outcome.output, "chip0 0\n");
}

TEST_F(InstallTest, PkgConfigAnswers) {
  const house::Outcome outcome = tree_.run(
      "export PKG_CONFIG_PATH=" + prefix_ +
      "/lib/pkgconfig; g++ consumer.cpp -o consumer $(pkg-config --cflags --libs kestreltypes) && "
      "LD_LIBRARY_PATH=" +
      prefix_ + "/lib ./consumer");
  EXPECT_EQ(outcome.output, "chip0 0\n");
}

TEST_F(InstallTest, EveryInstalledHeaderCompilesAlone) {
  const house::Outcome outcome =
      tree_.run("cd " + prefix_ +
                "/include/kestreltypes; find . -name '*.h' | xargs -P2 -I{} g++ -std=c++20 -Wall "
                "-Wextra -Wpedantic -Werror -I. -fsyntax-only -include {} -x c++ /dev/null");
  EXPECT_EQ(outcome.output, "");
  EXPECT_EQ(outcome.status, 0);
}

TEST_F(InstallTest, TheLibraryHasItsSoname) {
  EXPECT_EQ(
      tree_
          .run("objdump -p " + prefix_ + "/lib/libKestrelTypes.so | grep -o 'SONAME.*' | tr -s ' '")
          .output,
      "SONAME libKestrelTypes.so.1\n");
}

TEST_F(InstallTest, TheToolRunsFromItsPlace) {
  EXPECT_EQ(tree_.run(prefix_ + "/bin/kestrel --help >/dev/null").status, 0);
}

// The installed stand-in plays the real platform: no file of standin/ or platform/ is used.
TEST_F(InstallTest, TheLibraryConfiguresAgainstAnotherPlatform) {
  const house::Outcome outcome =
      tree_.run("cmake -S " KESTREL_SOURCE_DIR
                " -B out -G Ninja -DKESTREL_STANDIN=OFF "
                "-DKESTREL_TESTS=OFF -DKESTREL_PLATFORM_ROOT=" +
                prefix_ +
                " >log 2>&1 && ninja -C out -t commands KestrelTypes | grep -c "
                "'standin/\\|" KESTREL_SOURCE_DIR "/platform' || tail -20 log");
  EXPECT_EQ(outcome.output.substr(0, 2), "0\n");
}

}  // namespace
