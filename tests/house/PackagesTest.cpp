// Seeing to packages, with a package database and an installer of the test's own.
#include "tests/house/Sandbox.h"

#include <gtest/gtest.h>

namespace {

class PackagesTest : public testing::Test {
 protected:
  PackagesTest() {
    tree_.hasProgram("apt-get", "echo \"apt-get $*\"");
    user("0");
  }

  void user(const std::string& id) { tree_.hasProgram("id", "echo " + id); }

  // Lines of the database as dpkg-query prints them: state|name, names provided.
  void database(const std::string& lines) {
    tree_.has("database", lines);
    tree_.hasProgram("dpkg-query", "cat '" + tree_.path() + "/database'");
  }

  house::Outcome need(const std::string& groups) {
    return tree_.run(house::repository("cmake/install-packages.sh") + " " + groups);
  }

  house::Sandbox tree_;
};

TEST_F(PackagesTest, NothingMissingDoesNothing) {
  database("installed|clang, c-compiler\n");
  EXPECT_EQ(need("clang").output, "");
}

TEST_F(PackagesTest, RootInstallsWhatIsMissing) {
  database("installed|clang-format-14, \n");
  EXPECT_EQ(need("check clang 32").output,
            "Installing: clang g++-multilib\n"
            "apt-get update -q\n"
            "apt-get install -y --no-install-recommends clang g++-multilib\n");
}

TEST_F(PackagesTest, AnybodyElseGetsTheCommand) {
  user("1000");
  database("");
  const house::Outcome outcome = need("32");
  EXPECT_EQ(outcome.status, 1);
  EXPECT_EQ(outcome.output,
            "Packages are missing.  Run this, then try again:\n"
            "  sudo apt-get install -y --no-install-recommends g++-multilib\n");
}

TEST_F(PackagesTest, AProvidedPackageCounts) {
  database("installed|clang-16, clang (= 16.0)\n");
  EXPECT_EQ(need("clang").output, "");
}

TEST_F(PackagesTest, ARemovedPackageIsMissing) {
  database("config-files|clang, \n");
  EXPECT_NE(need("clang").output, "");
}

TEST_F(PackagesTest, UnknownGroupIsAMistake) {
  const house::Outcome outcome = need("nonsense");
  EXPECT_EQ(outcome.status, 2);
  EXPECT_NE(outcome.output.find("no group \"nonsense\""), std::string::npos);
}

}  // namespace
