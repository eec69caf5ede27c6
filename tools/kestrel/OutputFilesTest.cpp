// Files that are there whole or not at all.
#include "tools/kestrel/OutputFiles.h"
#include "tools/kestrel/UsageFault.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <set>

namespace kestrel {

namespace fs = std::filesystem;

namespace {

/// A folder of the test's own, which goes at its end.
class OutputFilesTest : public testing::Test {
 protected:
  OutputFilesTest() : folder_(testing::TempDir() + "kestrel-files-XXXXXX") {
    if (!mkdtemp(folder_.data())) std::abort();
  }
  ~OutputFilesTest() override { fs::remove_all(folder_); }

  std::string in(std::string const& name) const { return folder_ + '/' + name; }
  static std::string content(std::string const& path) {
    std::ifstream file(path);
    return {std::istreambuf_iterator<char>(file), {}};
  }
  std::set<std::string> names() const {
    std::set<std::string> found;
    for (auto const& entry : fs::directory_iterator(folder_))
      found.insert(entry.path().filename().string());
    return found;
  }
  /// What the complaint says.
  static std::string refused(std::vector<OutputFile> const& files) {
    try {
      writeFiles(files);
    } catch (std::runtime_error const& fault) {
      return fault.what();
    }
    return "";
  }

 private:
  std::string folder_;
};

using Names = std::set<std::string>;

TEST_F(OutputFilesTest, AllAreWritten) {
  writeFiles({{in("a"), "one"}, {in("b"), std::string(100000, 'x')}});
  EXPECT_EQ(content(in("a")), "one");
  EXPECT_EQ(content(in("b")).size(), 100000u);
  EXPECT_EQ(names(), (Names{"a", "b"}));
}

TEST_F(OutputFilesTest, FormerFileIsReplacedAndKeepsItsRights) {
  writeFiles({{in("a"), "a long text"}});
  fs::permissions(in("a"), fs::perms(0640));
  writeFiles({{in("a"), "two"}});
  EXPECT_EQ(content(in("a")), "two");
  EXPECT_EQ(fs::status(in("a")).permissions(), fs::perms(0640));
}

TEST_F(OutputFilesTest, NewFileHasTheRightsOfAnyOther) {
  writeFiles({{in("a"), "one"}});
  std::ofstream(in("b")) << "two";
  EXPECT_EQ(fs::status(in("a")).permissions(), fs::status(in("b")).permissions());
}

TEST_F(OutputFilesTest, LinkLeadsToItsFile) {
  writeFiles({{in("a"), "one"}});
  fs::create_symlink("a", in("link"));
  writeFiles({{in("link"), "two"}});
  EXPECT_EQ(content(in("a")), "two");
  EXPECT_TRUE(fs::is_symlink(in("link")));
}

TEST_F(OutputFilesTest, OneThatCannotBeWrittenLeavesNone) {
  writeFiles({{in("a"), "before"}});
  EXPECT_EQ(refused({{in("a"), "behind"}, {in("new"), ""}, {in("nowhere/b"), "two"}}),
            in("nowhere/b") + ": cannot be written: No such file or directory");
  EXPECT_EQ(content(in("a")), "before");
  EXPECT_EQ(names(), Names{"a"});
}

TEST_F(OutputFilesTest, FullDeviceLeavesNone) {
  EXPECT_EQ(refused({{in("a"), "one"}, {"/dev/full", "two"}}),
            "/dev/full: cannot be written: No space left on device");
  EXPECT_EQ(names(), Names());
}

TEST_F(OutputFilesTest, DeviceIsWrittenToAndStays) {
  writeFiles({{"/dev/null", "one"}});
  EXPECT_TRUE(fs::is_character_file("/dev/null"));
}

TEST_F(OutputFilesTest, FolderIsNoFile) {
  EXPECT_EQ(refused({{in("."), "one"}}), in(".") + ": cannot be written: Is a directory");
  EXPECT_EQ(refused({{"", "one"}}), ": cannot be written: No such file or directory");
}

TEST_F(OutputFilesTest, TwoPathsToOneFileAreAMistake) {
  EXPECT_THROW(writeFiles({{in("a"), "one"}, {in("./a"), "two"}}), UsageFault);
  EXPECT_EQ(names(), Names());
}

}  // namespace

}  // namespace kestrel
