// The rule between the folders: planted includes, and what the check says of them.
#include "tests/house/Sandbox.h"

#include <gtest/gtest.h>

namespace {

// A small repository with one header in each folder, against which includes are planted.
class LayeringTest : public testing::Test {
 protected:
  LayeringTest() {
    for (const char* name : {"platform/Mox/Ptr.h", "frame/Scalar.h", "reflect/Read.h",
                             "attrlog/Gate.h", "hwmodel/Custom.h", "src-includes/XpLib/Reports.h",
                             "standin/mox/Loop.h", "standin/xdk/Sim.h", "standin/models/Part.h",
                             "tools/kestrel/Command.h", "tools/schemac/Lexer.h"}) {
      tree_.has(name, "#pragma once\n");
    }
    tree_.has("platform/Rye.schema",
              "namespace Rye::Central\nentity ChipStatus (name Mox::Name)\n");
    tree_.has("hwmodel/Kestrel.schema",
              "module Txs\nheader Kestrel/All.h\nnamespace Kestrel\nvalue TxEq\n");
  }

  // What the check says when `file` has the one line `#include INCLUDE`; empty where it is content.
  std::string verdict(const std::string& file, const std::string& include) {
    tree_.has(file, "#include " + include + "\n");
    const house::Outcome outcome = check();
    return outcome.status == 0 ? "" : outcome.output;
  }

  house::Outcome check(const std::string& generated = "") {
    return tree_.run(house::repository("tools/check/layering") + " . " + generated);
  }

  house::Sandbox tree_;
};

TEST_F(LayeringTest, LookingDownIsFine) {
  EXPECT_EQ(verdict("hwmodel/A.cpp", "\"attrlog/Gate.h\""), "");
  EXPECT_EQ(verdict("frame/A.cpp", "\"Mox/Ptr.h\""), "");
  EXPECT_EQ(verdict("tools/kestrel/A.cpp", "\"XpLib/Reports.h\""), "");
}

TEST_F(LayeringTest, LookingUpIsRefusedWithFileAndLine) {
  EXPECT_EQ(verdict("frame/A.cpp", "\"hwmodel/Custom.h\""),
            "frame/A.cpp:1: error: \"hwmodel/Custom.h\" is of hwmodel, on which frame must not "
            "stand\n");
}

TEST_F(LayeringTest, ReflectionAndLogDontKnowEachOther) {
  EXPECT_NE(verdict("reflect/A.cpp", "\"attrlog/Gate.h\""), "");
  EXPECT_EQ(verdict("reflect/A.cpp", "\"frame/Scalar.h\""), "");
  EXPECT_NE(verdict("attrlog/A.cpp", "\"reflect/Read.h\""), "");
}

TEST_F(LayeringTest, RuntimeAndSdkStandOnThePlatformAlone) {
  EXPECT_EQ(verdict("standin/mox/A.cpp", "\"Mox/Ptr.h\""), "");
  EXPECT_NE(verdict("standin/mox/A.cpp", "\"frame/Scalar.h\""), "");
  EXPECT_NE(verdict("standin/mox/A.cpp", "\"standin/xdk/Sim.h\""), "");
  EXPECT_NE(verdict("standin/xdk/B.cpp", "\"standin/mox/Loop.h\""), "");
}

TEST_F(LayeringTest, NothingBelowTheToolsSeesTheStandIn) {
  EXPECT_NE(verdict("src-includes/XpLib/A.cpp", "\"standin/xdk/Sim.h\""), "");
  EXPECT_NE(verdict("src-includes/XpLib/A.cpp", "\"standin/models/Part.h\""), "");
  EXPECT_EQ(verdict("src-includes/XpLib/A.cpp", "\"frame/Scalar.h\""), "");
  EXPECT_EQ(verdict("tools/kestrel/A.cpp", "\"standin/xdk/Sim.h\""), "");
}

TEST_F(LayeringTest, TestsSeeAll) {
  EXPECT_EQ(verdict("frame/ScalarTest.cpp", "\"standin/xdk/Sim.h\""), "");
  EXPECT_EQ(verdict("tests/A.cpp", "\"tools/kestrel/Command.h\""), "");
}

TEST_F(LayeringTest, GeneratedHeadersBelongToTheirSchema) {
  EXPECT_EQ(verdict("standin/models/A.cpp", "\"Rye/Central/ChipStatus.h\""), "");
  EXPECT_EQ(verdict("hwmodel/A.cpp", "\"Rye/Central/ChipStatus.h\""), "");
  EXPECT_NE(verdict("attrlog/A.cpp", "\"Rye/Central/ChipStatus.h\""), "");
}

TEST_F(LayeringTest, FilesOfATypeAndOfAModuleGoWithTheSchema) {
  EXPECT_EQ(verdict("src-includes/XpLib/A.cpp", "\"Kestrel/TxEq.tags.h\""), "");
  EXPECT_EQ(verdict("src-includes/XpLib/A.cpp", "\"Kestrel/Txs.module.h\""), "");
  EXPECT_EQ(verdict("src-includes/XpLib/A.cpp", "\"Kestrel/All.h\""), "");
  EXPECT_NE(verdict("standin/models/A.cpp", "\"Kestrel/All.h\""), "");
}

TEST_F(LayeringTest, TheClosedModelsDontKnowTheModule) {
  EXPECT_NE(verdict("standin/models/A.cpp", "\"Kestrel/TxEq.h\""), "");
}

TEST_F(LayeringTest, TheSchemaCompilerStandsAlone) {
  EXPECT_EQ(verdict("tools/schemac/A.cpp", "\"tools/schemac/Lexer.h\""), "");
  EXPECT_NE(verdict("tools/schemac/A.cpp", "\"Mox/Ptr.h\""), "");
}

TEST_F(LayeringTest, UnknownAndRelativePathsAreRefused) {
  EXPECT_EQ(verdict("frame/A.cpp", "\"Scalar.h\""),
            "frame/A.cpp:1: error: \"Scalar.h\" is in no include root\n");
}

TEST_F(LayeringTest, LibraryUsesNoOtherLibrary) {
  EXPECT_EQ(verdict("frame/A.cpp", "<boost/any.hpp>"),
            "frame/A.cpp:1: error: \"boost/any.hpp\" is of another library\n");
  EXPECT_EQ(verdict("frame/A.cpp", "<sys/socket.h>"), "");
  EXPECT_EQ(verdict("standin/xdk/Reader.cpp", "<nlohmann/json.hpp>"), "");
}

TEST_F(LayeringTest, GeneratedFilesAreCheckedWhenNamed) {
  tree_.has("build/generated/Rye/Central/ChipStatus.cpp", "#include \"Kestrel/TxEq.h\"\n");
  EXPECT_EQ(check().status, 0);
  EXPECT_EQ(
      check("build/generated").output,
      "build/generated/Rye/Central/ChipStatus.cpp:1: error: \"Kestrel/TxEq.h\" is of hwmodel, "
      "on which models must not stand\n");
}

TEST_F(LayeringTest, EveryBadLineIsTold) {
  tree_.has("frame/A.cpp", "#include \"Mox/Ptr.h\"\n#include \"x.h\"\n  #  include \"y.h\"\n");
  EXPECT_EQ(check().output,
            "frame/A.cpp:2: error: \"x.h\" is in no include root\n"
            "frame/A.cpp:3: error: \"y.h\" is in no include root\n");
}

TEST_F(LayeringTest, AFolderWithoutSourcesIsAMistake) {
  house::Sandbox empty;
  EXPECT_EQ(empty.run(house::repository("tools/check/layering") + " .").status, 2);
}

}  // namespace
