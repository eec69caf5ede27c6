// Pictures as files: when they are there, and what stands on the streams then.
#include "tests/tool/ToolRun.h"

#include <algorithm>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>

namespace tool {

namespace {

class PictureFilesTest : public testing::Test {
 protected:
  Outcome in(std::string const& command) const { return kestrel(command, folder_.path()); }
  std::string file(std::string const& name) const {
    std::ifstream in(folder_.path() + '/' + name);
    return {std::istreambuf_iterator<char>(in), {}};
  }
  /// The files of the folder, in order.
  std::vector<std::string> files() const {
    std::vector<std::string> names;
    for (auto const& entry : std::filesystem::directory_iterator(folder_.path()))
      names.push_back(entry.path().filename().string());
    std::ranges::sort(names);
    return names;
  }

  Folder folder_;
};

using Names = std::vector<std::string>;

TEST_F(PictureFilesTest, OneOrBothAreWrittenAndNoText) {
  Outcome const one = in("report sram --svg one.svg");
  EXPECT_EQ(one.out + one.err, "");
  EXPECT_EQ(one.status, 0);
  EXPECT_EQ(files(), Names{"one.svg"});
  Outcome const both = in("report sram --html both.html --svg both.svg");
  EXPECT_EQ(both.out + both.err, "");
  EXPECT_EQ(files(), (Names{"both.html", "both.svg", "one.svg"}));
  EXPECT_EQ(file("both.svg"), file("one.svg"));
  EXPECT_TRUE(file("one.svg").starts_with("<svg xmlns="));
  EXPECT_TRUE(file("both.html").starts_with("<!DOCTYPE html>"));
}

TEST_F(PictureFilesTest, FormerFileIsReplaced) {
  folder_.has("sram.svg", std::string(1 << 20, 'x'));
  EXPECT_EQ(in("report sram --svg sram.svg").status, 0);
  EXPECT_TRUE(file("sram.svg").ends_with("</svg>\n"));
}

TEST_F(PictureFilesTest, StandardOutputIsAFileToo) {
  Outcome const outcome = in("report sram --svg /dev/stdout");
  EXPECT_TRUE(outcome.err.empty()) << outcome.err;
  EXPECT_EQ(outcome.status, 0);
}

TEST_F(PictureFilesTest, NoneIsLeftWhereOneCannotBeWritten) {
  folder_.has("old.svg", "before");
  EXPECT_EQ(in("report sram --svg old.svg --html nowhere/new.html").status, 1);
  EXPECT_EQ(in("report sram --svg old.svg --html /dev/full").status, 1);
  EXPECT_EQ(files(), Names{"old.svg"});
  EXPECT_EQ(file("old.svg"), "before");
}

TEST_F(PictureFilesTest, NoneIsLeftByARefusedReport) {
  folder_.has("endless.json",
              R"({"ldePipeMode": 0, "tables": {
                   "19": {"copyNum": 1, "type": "DIRECT", "contexts": [{"first": -1}]},
                   "50": {"type": "LPM", "contexts": [{"first": -1}]},
                   "51": {"type": "LPM", "contexts": [{"first": -1}]},
                   "52": {"copyNum": 1, "type": "NH", "contexts": [
                     {"poolBitmap": 1, "numEntries": 512, "entryWidth": 64}]}}})");
  EXPECT_EQ(in("report sram --svg new.svg --profile endless.json").status, 2);
  EXPECT_EQ(files(), Names{"endless.json"});
}

TEST_F(PictureFilesTest, NoneIsLeftByARunThatEndsByAssertion) {
  folder_.has("empty.json", "{}");
  EXPECT_EQ(in("report sram --svg new.svg --profile empty.json").status, 134);
  EXPECT_EQ(files(), Names{"empty.json"});
}

}  // namespace

}  // namespace tool
