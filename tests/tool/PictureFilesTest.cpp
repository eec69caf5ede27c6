// Pictures as files: when they are there, and what stands on the streams then.
#include "tests/tool/ToolRun.h"

#include <algorithm>
#include <cstdlib>
#include <gtest/gtest.h>

namespace tool {

namespace {

class PictureFilesTest : public testing::Test {
 protected:
  Outcome in(std::string const& command) const { return kestrel(command, folder_.path()); }
  std::string file(std::string const& name) const { return contentOf(folder_.path() + '/' + name); }
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

// A link of the folder's own: one that was replaced would be a loss to the machine.
TEST_F(PictureFilesTest, StandardOutputIsAFileTooAndItsLinkStays) {
  std::filesystem::path const link = folder_.path() + "/out";
  std::filesystem::create_symlink("/proc/self/fd/1", link);
  Outcome const outcome = in("report sram --svg out");
  EXPECT_TRUE(outcome.out.starts_with("<svg")) << outcome.out;
  EXPECT_TRUE(outcome.err.empty()) << outcome.err;
  EXPECT_EQ(outcome.status, 0);
  EXPECT_TRUE(std::filesystem::is_symlink(link));
}

TEST_F(PictureFilesTest, FileBehindALinkIsReplacedAndTheLinkStays) {
  folder_.has("old.svg", "before");
  std::filesystem::path const link = folder_.path() + "/link.svg";
  std::filesystem::create_symlink("old.svg", link);
  EXPECT_EQ(in("report sram --svg link.svg").status, 0);
  EXPECT_TRUE(file("old.svg").starts_with("<svg"));
  EXPECT_TRUE(std::filesystem::is_symlink(link));
}

TEST_F(PictureFilesTest, LinkToWhatIsNotThereYetLeadsThere) {
  std::filesystem::create_symlink("new.svg", folder_.path() + "/link.svg");
  EXPECT_EQ(in("report sram --svg link.svg").status, 0);
  EXPECT_TRUE(std::filesystem::is_symlink(folder_.path() + "/link.svg"));
  EXPECT_EQ(files(), (Names{"link.svg", "new.svg"}));
}

TEST_F(PictureFilesTest, LinkThatLeadsNowhereIsAComplaintAndStays) {
  std::filesystem::create_symlink("loop.svg", folder_.path() + "/loop.svg");
  std::filesystem::create_symlink("nowhere/new.svg", folder_.path() + "/lost.svg");
  EXPECT_EQ(in("report sram --svg loop.svg").err,
            "kestrel: error: loop.svg: cannot be written: Too many levels of symbolic links\n");
  EXPECT_EQ(in("report sram --svg lost.svg").err,
            "kestrel: error: lost.svg: cannot be written: No such file or directory\n");
  EXPECT_TRUE(std::filesystem::is_symlink(folder_.path() + "/loop.svg"));
  EXPECT_TRUE(std::filesystem::is_symlink(folder_.path() + "/lost.svg"));
}

TEST_F(PictureFilesTest, TwoLinksToOneFileAreWrongUsage) {
  std::filesystem::create_symlink("new.svg", folder_.path() + "/a");
  std::filesystem::create_symlink("new.svg", folder_.path() + "/b");
  EXPECT_EQ(in("report sram --svg a --html b").status, 2);
  EXPECT_EQ(files(), (Names{"a", "b"}));
}

TEST_F(PictureFilesTest, LongNameIsANameLikeAnyOther) {
  std::string const name(255, 'x');
  EXPECT_EQ(in("report sram --svg " + name).status, 0);
  EXPECT_EQ(files(), Names{name});
}

TEST_F(PictureFilesTest, NoneIsLeftByAReaderThatGoesEarly) {
  std::string const command = "cd " + folder_.path() +
                              " && " KESTREL_BINARY_DIR
                              "/bin/kestrel report sram --svg /dev/stdout --html page.html "
                              "2>/dev/null | head -c 1 >/dev/null";
  EXPECT_EQ(std::system(command.c_str()), 0);
  EXPECT_EQ(files(), Names());
}

TEST_F(PictureFilesTest, NoneIsLeftByALimitOfSize) {
  std::string const command = "cd " + folder_.path() +
                              " && ulimit -f 20 && " KESTREL_BINARY_DIR
                              "/bin/kestrel report sram --svg big.svg 2>err";
  EXPECT_NE(std::system(command.c_str()), 0);
  EXPECT_EQ(file("err"), "kestrel: error: big.svg: cannot be written: File too large\n");
  EXPECT_EQ(files(), Names{"err"});
}

TEST_F(PictureFilesTest, NoneIsLeftWhereOneCannotBeWritten) {
  folder_.has("old.svg", "before");
  EXPECT_EQ(in("report sram --svg old.svg --html nowhere/new.html").status, 1);
  EXPECT_EQ(in("report sram --svg old.svg --html /dev/full").status, 1);
  EXPECT_EQ(files(), Names{"old.svg"});
  EXPECT_EQ(file("old.svg"), "before");
}

TEST_F(PictureFilesTest, NoneIsLeftByARefusedReport) {
  EXPECT_EQ(in("report sram --svg new.svg --profile " KESTREL_SOURCE_DIR
               "/tests/tool/profiles/endless.json")
                .status,
            2);
  EXPECT_EQ(files(), Names());
}

TEST_F(PictureFilesTest, NoneIsLeftByARunThatEndsByAssertion) {
  folder_.has("empty.json", "{}");
  EXPECT_EQ(in("report sram --svg new.svg --profile empty.json").status, 134);
  EXPECT_EQ(files(), Names{"empty.json"});
}

}  // namespace

}  // namespace tool
