// Template files: their heads, and how parts are cut.
#include "tools/schemac/Files.h"
#include "tools/schemac/Library.h"

#include <functional>
#include <gtest/gtest.h>

namespace schemac {

namespace {

namespace fs = std::filesystem;

std::string fault(std::function<void()> const& action) {
  try {
    action();
  } catch (TemplateError const& error) {
    return errorLine(error.at, error.what);
  }
  return "";
}

// A folder of its own for one test.
class LibraryTest : public testing::Test {
 protected:
  LibraryTest() { writeIfChanged(folder_ / "builtin.schema", "extern primitive U8\n"); }
  ~LibraryTest() override { fs::remove_all(folder_); }

  void file(std::string const& path, std::string const& text) {
    writeIfChanged(folder_ / path, text);
  }
  std::string faultOfLoading() {
    return fault([this] { loadLibrary(folder_); });
  }

  std::string const name_ = testing::UnitTest::GetInstance()->current_test_info()->name();
  fs::path const folder_ = fs::path(testing::TempDir()) / ("schemac-" + name_);
};

TEST_F(LibraryTest, PartsOfAShapeMayStandInSeveralFiles) {
  file("parts/frame/scalar.tmpl", "@@ a\nx\n");
  file("parts/log/scalar.tmpl", "@@ b\ny\n");
  Library const library = loadLibrary(folder_);
  EXPECT_TRUE(library.find("scalar", "a"));
  EXPECT_TRUE(library.find("scalar", "b"));
  EXPECT_FALSE(library.find("scalar", "c"));
}

TEST_F(LibraryTest, FilesOfAKindComeInTheOrderOfTheirNames) {
  file("entity/B.tmpl", "@output b\n");
  file("entity/A.tmpl", "@# About A.\n@output a if root\nbody\n");
  auto const files = loadLibrary(folder_).files.at("entity");
  ASSERT_EQ(files.size(), 2u);
  EXPECT_EQ(files[0].condition, "root");
  EXPECT_FALSE(files[0].negated);
  EXPECT_EQ(files[1].condition, "");
}

TEST_F(LibraryTest, AnOutputMayBeBoundToTheAbsenceOfAName) {
  FileTemplate const file = parseFileTemplate("@output a if not closed\n", {"t", 1, 1});
  EXPECT_EQ(file.condition, "closed");
  EXPECT_TRUE(file.negated);
}

TEST_F(LibraryTest, RefusesATemplateWithoutOutput) {
  file("enum/A.tmpl", "@# About A.\nclass A;\n");
  EXPECT_EQ(faultOfLoading(), (folder_ / "enum/A.tmpl").string() +
                                  ":2:1: error: a template begins with \"@output PATH\"");
}

TEST_F(LibraryTest, RefusesAPartThatStandsTwice) {
  file("parts/a/scalar.tmpl", "@@ a\nx\n");
  file("parts/b/scalar.tmpl", "@@ a\ny\n");
  EXPECT_EQ(faultOfLoading(),
            (folder_ / "parts/b/scalar.tmpl").string() + ":2:1: error: part \"a\" stands twice");
}

TEST_F(LibraryTest, RefusesTextOutsideOfParts) {
  file("parts/scalar.tmpl", "@# Fine.\n\nnot fine\n@@ a\n");
  EXPECT_EQ(faultOfLoading(),
            (folder_ / "parts/scalar.tmpl").string() + ":3:1: error: text outside of a part");
}

TEST_F(LibraryTest, RefusesAShapeLikeAnUnknownOne) {
  file("parts/scalar.tmpl", "@like oops\n@@ a\n");
  EXPECT_EQ(faultOfLoading(), (folder_ / "parts").string() +
                                  ":1:1: error: \"scalar\" is like \"oops\", which has no parts");
}

TEST_F(LibraryTest, RefusesAShapeThatIsLikeItself) {
  file("parts/a.tmpl", "@like b\n@@ p\n");
  file("parts/b.tmpl", "@like a\n@@ q\n");
  EXPECT_EQ(faultOfLoading(),
            (folder_ / "parts").string() + ":1:1: error: \"a\" is like itself in the end");
}

TEST_F(LibraryTest, RefusesAFolderWithoutBuiltinTypes) {
  fs::remove(folder_ / "builtin.schema");
  EXPECT_EQ(faultOfLoading(),
            (folder_ / "builtin.schema").string() + ":1:1: error: can't read this file");
}

TEST_F(LibraryTest, ErrorsInPartsNameTheLineOfTheFile) {
  file("parts/scalar.tmpl", "@@ a\n\n\nfine\n$oops\n");
  EXPECT_EQ(faultOfLoading(), (folder_ / "parts/scalar.tmpl").string() +
                                  ":5:1: error: \"$\" without its closing \"$\"");
}

}  // namespace

}  // namespace schemac
