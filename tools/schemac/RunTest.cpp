// Whole runs: command line, outputs, exit codes.
#include "tools/schemac/CommandLine.h"
#include "tools/schemac/Files.h"
#include "tools/schemac/Run.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <sstream>

namespace schemac {

namespace {

namespace fs = std::filesystem;

// A folder of its own with small templates, and what a run in it says.
class RunTest : public testing::Test {
 protected:
  RunTest() {
    fs::remove_all(folder_);
    file("templates/builtin.schema", "extern primitive U8 integer\n");
    file("templates/entity/Header.tmpl", "@output $header$\nclass $Class$ : $schema$\n");
    file("templates/module/Module.tmpl", "@output $modulePath$.h if not closed\n$module$\n");
    file("templates/set/All.tmpl", "@output all\n$each typeNames$$fullName$$join$,$end$\n");
    file("a.schema", "module A\nnamespace N::A\nentity X\nend\nentity Y\nend\n");
    file("b.schema", "module B\nentity Z\nend\n");
  }
  ~RunTest() override { fs::remove_all(folder_); }

  fs::path path(std::string const& name) const { return folder_ / name; }
  void file(std::string const& name, std::string const& text) {
    ASSERT_TRUE(writeIfChanged(path(name), text));
  }
  std::string content(std::string const& name) const {
    return readFile(path(name)).value_or("no such file");
  }

  // Runs with the folders given and the schemas behind them; returns the exit code.
  int compile(std::vector<std::string> const& schemas, std::vector<std::string> options = {}) {
    options.insert(options.end(), {"--out", path("out"), "--templates", path("templates")});
    for (std::string const& schema : schemas) options.push_back(path(schema));
    return run(options);
  }
  int run(std::vector<std::string> const& arguments) {
    out_.str("");
    err_.str("");
    return schemac::run(arguments, "2.7", out_, err_);
  }

  std::string const name_ = testing::UnitTest::GetInstance()->current_test_info()->name();
  fs::path const folder_ = fs::path(testing::TempDir()) / ("schemac-run-" + name_);
  std::ostringstream out_;
  std::ostringstream err_;
};

TEST_F(RunTest, WritesOneFileForEachTypeAndTemplate) {
  EXPECT_EQ(compile({"a.schema", "b.schema"}), 0);
  EXPECT_EQ(content("out/N/A/X.h"), "class X : a.schema\n");
  EXPECT_EQ(content("out/N/A/Y.h"), "class Y : a.schema\n");
  EXPECT_EQ(content("out/N/A/A.h"), "A\n");
  EXPECT_EQ(content("out/Z.h"), "class Z : b.schema\n");
  EXPECT_EQ(out_.str() + err_.str(), "");
}

TEST_F(RunTest, ASecondRunTouchesNothing) {
  compile({"a.schema"});
  auto const past = fs::last_write_time(path("out/N/A/X.h")) - std::chrono::hours(1);
  fs::last_write_time(path("out/N/A/X.h"), past);
  fs::last_write_time(path("out/N/A/A.h"), past);
  file("a.schema", "module B\nnamespace N::A\nentity X\nend\n");
  file("templates/module/Module.tmpl", "@output N/A/A.h\n$module$\n");
  EXPECT_EQ(compile({"a.schema"}), 0);
  EXPECT_EQ(fs::last_write_time(path("out/N/A/X.h")), past);
  EXPECT_NE(fs::last_write_time(path("out/N/A/A.h")), past);
  EXPECT_EQ(content("out/N/A/A.h"), "B\n");
}

TEST_F(RunTest, ListNamesTheFilesAndWritesNone) {
  EXPECT_EQ(compile({"a.schema"}, {"--list"}), 0);
  EXPECT_EQ(out_.str(), path("out/N/A/X.h").string() + "\n" + path("out/N/A/Y.h").string() + "\n" +
                            path("out/N/A/A.h").string() + "\n");
  EXPECT_FALSE(fs::exists(path("out")));
}

TEST_F(RunTest, AConditionLeavesAFileOut) {
  file("b.schema", "closed\nmodule B\nentity Z\nend\n");
  EXPECT_EQ(compile({"b.schema"}, {"--list"}), 0);
  EXPECT_EQ(out_.str(), path("out/Z.h").string() + "\n");
}

TEST_F(RunTest, TheListOfTypesGoesBackwardsInEachSchema) {
  EXPECT_EQ(compile({"a.schema", "b.schema"}, {"--mox-type"}), 0);
  EXPECT_EQ(content("out/all"), "N::A::Y,N::A::X,Z\n");
  EXPECT_EQ(compile({"b.schema", "a.schema"}, {"--mox-type"}), 0);
  EXPECT_EQ(content("out/all"), "Z,N::A::Y,N::A::X\n");
}

TEST_F(RunTest, FaultySchemasWriteNothing) {
  file("b.schema", "module B\nentity Z\n258 scalar x V\nend\n");
  EXPECT_EQ(compile({"a.schema", "b.schema"}), 1);
  EXPECT_EQ(err_.str(), path("b.schema").string() + ":3:14: error: unknown type \"V\"\n");
  EXPECT_FALSE(fs::exists(path("out")));
}

TEST_F(RunTest, ASchemaMustBeReadable) {
  EXPECT_EQ(compile({"none.schema", "templates"}), 1);
  EXPECT_EQ(err_.str(), path("none.schema").string() + ":1:1: error: can't read this file\n" +
                            path("templates").string() + ":1:1: error: can't read this file\n");
}

TEST_F(RunTest, AnOutputMustBeWritable) {
  file("out", "a file where a folder should be");
  EXPECT_EQ(compile({"b.schema"}), 1);
  EXPECT_EQ(err_.str(), path("out/Z.h").string() + ":1:1: error: can't write this file\n" +
                            path("out/B.h").string() + ":1:1: error: can't write this file\n");
}

TEST_F(RunTest, FaultyTemplatesAreReported) {
  file("templates/entity/Header.tmpl", "@output a\n$oops$\n");
  EXPECT_EQ(compile({"b.schema"}), 1);
  EXPECT_EQ(err_.str(),
            path("templates/entity/Header.tmpl").string() + ":2:1: error: unknown name \"oops\"\n");
}

TEST_F(RunTest, NoFileIsWrittenTwice) {
  file("templates/entity/Header.tmpl", "@output same\n");
  EXPECT_EQ(compile({"a.schema"}), 1);
  EXPECT_EQ(err_.str(), path("templates/entity/Header.tmpl").string() +
                            ":1:1: error: \"same\" would be written twice\n");
}

TEST_F(RunTest, ReferenceMakesPagesInPlaceOfClasses) {
  file("templates/reference/module/Page.tmpl", "@output $module$.md\n$module$\n\n\n");
  file("templates/reference/set/All.tmpl",
       "@output all.md\n$each openSchemas$+$module$$end$$each closedSchemas$-$module$$end$\n");
  file("b.schema", "closed\nmodule B\nentity Z\nend\n");
  EXPECT_EQ(compile({"a.schema", "b.schema"}, {"--reference", "--list"}), 0);
  EXPECT_EQ(out_.str(), path("out/A.md").string() + "\n" + path("out/all.md").string() + "\n");
  EXPECT_EQ(compile({"a.schema", "b.schema"}, {"--reference"}), 0);
  EXPECT_EQ(content("out/A.md"), "A\n\n\n");
  EXPECT_EQ(content("out/all.md"), "+A-B\n");
  EXPECT_FALSE(fs::exists(path("out/N")));
}

// `B` is made without a look at `A` elsewhere, so their pages may show names that would meet.
TEST_F(RunTest, APageShowsSchemasThatAreCompiledApart) {
  file("a.schema", "module A\nentity Y\n258 scalar x U8\nend\n");
  file("b.schema",
       "module B\nextern entity Y header \"Y.h\"\nentity Z : Y\n386 scalar x U8\nend\n");
  EXPECT_EQ(compile({"a.schema", "b.schema"}), 1);
  EXPECT_EQ(compile({"a.schema", "b.schema"}, {"--reference"}), 0);
}

TEST_F(RunTest, TheLockFileIsWrittenAlone) {
  EXPECT_EQ(run({"--write-lock", path("lock"), "--templates", path("templates"), path("a.schema")}),
            0);
  EXPECT_NE(content("lock").find("\nmodule A\nN::A::X entity\nN::A::Y entity\n"),
            std::string::npos);
  EXPECT_FALSE(fs::exists(path("out")));
}

TEST_F(RunTest, NothingIsMadeOfSchemasOtherThanTheLockFile) {
  std::string const lock = path("lock").string();
  run({"--write-lock", lock, "--templates", path("templates"), path("a.schema")});
  EXPECT_EQ(compile({"a.schema"}, {"--lock", lock}), 0);
  fs::remove_all(path("out"));
  file("a.schema", "module A\nnamespace N::A\nentity X\n258 scalar x U8\nend\nentity Y\nend\n");
  EXPECT_EQ(compile({"a.schema"}, {"--lock", lock}), 1);
  EXPECT_NE(err_.str().find(path("a.schema").string() +
                            ":4:1: error: \"N::A::X 258 x scalar U8 variable\" is new\n"),
            std::string::npos);
  EXPECT_FALSE(fs::exists(path("out")));
}

TEST_F(RunTest, PathsAreListedWhateverIsLocked) {
  EXPECT_EQ(compile({"b.schema"}, {"--list", "--lock", path("none")}), 0);
}

TEST_F(RunTest, ALockFileMustBeReadable) {
  EXPECT_EQ(compile({"b.schema"}, {"--lock", path("none")}), 1);
  EXPECT_EQ(err_.str(), path("none").string() + ":1:1: error: can't read this file\n");
}

TEST_F(RunTest, HelpAndVersionGoToStandardOutput) {
  EXPECT_EQ(run({"--help"}), 0);
  EXPECT_EQ(out_.str(), usage);
  EXPECT_EQ(run({"--version"}), 0);
  EXPECT_EQ(out_.str(), "schemac 2.7\n");
}

TEST_F(RunTest, WrongUsageSaysWhatIsWrong) {
  auto const says = [this](std::vector<std::string> const& arguments, std::string const& fault) {
    EXPECT_EQ(run(arguments), 2);
    EXPECT_EQ(err_.str(), "schemac: error: " + fault + "\n" + usage);
    EXPECT_EQ(out_.str(), "");
  };
  says({}, "\"--out\" is missing");
  says({"--out", "a"}, "\"--templates\" is missing");
  says({"--out", "a", "--templates", "b"}, "no schema is named");
  says({"--out"}, "\"--out\" needs a folder");
  says({"--templates", ""}, "\"--templates\" needs a folder");
  says({"--fast"}, "unknown option \"--fast\"");
  says({"--lock"}, "\"--lock\" needs a file");
  for (std::string const option : {"--list", "--mox-type", "--reference"})
    says({"--write-lock", "a", option},
         "\"--write-lock\" takes no other option but \"--templates\"");
  says({"--write-lock", "a"}, "\"--templates\" is missing");
  says({"--reference", "--mox-type"},
       "\"--reference\" takes neither \"--mox-type\" nor \"--lock\"");
  says({"--reference", "--lock", "a"},
       "\"--reference\" takes neither \"--mox-type\" nor \"--lock\"");
  says({"a", "a"}, "\"a\" is named twice");
}

}  // namespace

}  // namespace schemac
