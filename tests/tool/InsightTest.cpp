// Traces on standard error, and runs that are recorded, printed, damaged.
#include "tests/tool/ToolRun.h"

#include <algorithm>
#include <csignal>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>

namespace tool {

namespace {

constexpr char const* chipCommands[] = {
    "demo",          "report summary", "report summary --table 0", "report detail", "report sram",
    "report tables", "bringup"};

/// A profile on which the bring-up ends by assertion, at its third table.
constexpr char const* fatal = R"({"ldePipeMode": 0, "sdkStatus": {"xpFdbMgr::addDevice": 5}})";

/// Behind the prompt of the tool's complaints.
std::string complaint(std::string const& text) { return "kestrel: error: " + text + '\n'; }

/// A folder with the records of one bring-up in the file "run".
struct Recorded {
  Folder folder;
  Outcome bringUp = in("bringup --swiftlog run");

  Outcome in(std::string const& command) const { return kestrel(command, folder.path()); }
  std::string path(std::string const& name) const { return folder.path() + '/' + name; }
  /// Puts `bytes` at a place of the file.
  void damage(std::streamoff at, std::string const& bytes) const {
    std::fstream file(path("run"), std::ios::binary | std::ios::in | std::ios::out);
    file.seekp(at) << bytes;
  }
};

/// Where the ring of such a file starts.
constexpr std::streamoff ringAt = 64 + 256 * 1024;

TEST(TraceOptionTest, LeavesStandardOutputAsItIs) {
  for (std::string const command : chipCommands) {
    Outcome const traced = kestrel(command + " --trace Xp*");
    EXPECT_EQ(traced.out, kestrel(command).out) << command;
    EXPECT_TRUE(traced.err.starts_with("XpTableManSm 1 ")) << command << ": " << traced.err;
    EXPECT_EQ(traced.status, 0) << command;
  }
}

TEST(TraceOptionTest, PatternsAddToOneAnother) {
  std::string const both = kestrel("bringup --trace XpTableManSm/1,8").err;
  EXPECT_EQ(kestrel("bringup --trace XpTableManSm/1 --trace XpTableManSm/8").err, both);
  EXPECT_NE(kestrel("bringup --trace XpTableManSm/1").err, both);
}

TEST(TraceOptionTest, OtherFacilitiesStaySilent) {
  EXPECT_EQ(kestrel("bringup --trace XpTableMan").err, "");
}

TEST(TraceOptionTest, LinesHoldPrintableTextAlone) {
  std::string const lines = kestrel("bringup --trace *").err;
  EXPECT_NE(lines.find(" tblCopyNum \\x01 plMgrId "), lines.npos) << lines;
  EXPECT_TRUE(
      std::ranges::all_of(lines, [](char c) { return c == '\n' || (c >= ' ' && c <= '~'); }));
}

TEST(TraceOptionTest, BadPatternIsWrongUsage) {
  for (std::string const command : chipCommands) {
    Outcome const outcome = kestrel(command + " --trace * --trace Xp*/0-32");
    EXPECT_EQ(outcome.out, "") << command;
    EXPECT_EQ(outcome.err, complaint("trace pattern 'Xp*/0-32': '0-32' is no level or range of "
                                     "levels, which are 0 to 31"));
    EXPECT_EQ(outcome.status, 2) << command;
  }
}

TEST(SwiftlogOptionTest, LeavesTheOutputAsItIs) {
  Folder const folder;
  for (std::string const command : chipCommands) {
    Outcome const recorded = kestrel(command + " --swiftlog run", folder.path());
    EXPECT_EQ(recorded.out, kestrel(command).out) << command;
    EXPECT_EQ(recorded.err, "") << command;
    EXPECT_EQ(recorded.status, 0) << command;
  }
}

TEST(SwiftlogOptionTest, FormerFileIsKept) {
  Recorded const run;
  std::string const records = run.in("trace run").out;
  EXPECT_EQ(run.in("bringup --swiftlog run").status, 0);
  EXPECT_EQ(run.in("trace run.1").out, records);
}

TEST(SwiftlogOptionTest, FileThatCannotBeMadeIsAFailure) {
  Outcome const outcome = kestrel("bringup --swiftlog /nowhere/run");
  EXPECT_EQ(outcome.out, "");
  EXPECT_EQ(outcome.err, complaint("Swiftlog: /nowhere/run: No such file or directory"));
  EXPECT_EQ(outcome.status, 1);
}

TEST(SwiftlogOptionTest, WrongUsageMakesNoFile) {
  Folder const folder;
  for (std::string const fault : {"--profile nowhere.json", "--trace /1"}) {
    EXPECT_EQ(kestrel("bringup --swiftlog run " + fault, folder.path()).status, 2);
    EXPECT_FALSE(std::filesystem::exists(folder.path() + "/run")) << fault;
  }
}

TEST(TraceCommandTest, PrintsTheRecords) {
  Recorded const run;
  Outcome const outcome = run.in("trace run");
  EXPECT_TRUE(outcome.out.starts_with("#0 src-includes/XpLib/XpTableManSm:")) << outcome.out;
  EXPECT_NE(outcome.out.find(" TableManSm::doUpdateTableStatus DeviceId 0 TableId 31 tblCopyNum 1 "
                             "plMgrId 6 tableIdForMgr 0\n"),
            std::string::npos);
  EXPECT_EQ(outcome.err, "");
  EXPECT_EQ(outcome.status, 0);
}

TEST(TraceCommandTest, RunThatEndedByAssertionIsRecordedToItsEnd) {
  Recorded const run;
  run.folder.has("fatal.json", fatal);
  EXPECT_EQ(run.in("bringup --swiftlog fatal --profile fatal.json").status, 128 + SIGABRT);
  Outcome const outcome = run.in("trace fatal");
  EXPECT_TRUE(outcome.out.ends_with(" TableManSm::doCreateFdbTable DeviceId 0\n")) << outcome.out;
  EXPECT_EQ(outcome.status, 0);
}

TEST(TraceCommandTest, FileThatIsNotThere) {
  Outcome const outcome = kestrel("trace nowhere");
  EXPECT_EQ(outcome.err, complaint("nowhere: cannot be read: No such file or directory"));
  EXPECT_EQ(outcome.status, 2);
}

TEST(TraceCommandTest, FolderIsNoPlainFile) {
  Outcome const outcome = kestrel("trace /");
  EXPECT_EQ(outcome.err, complaint("/: is no plain file"));
  EXPECT_EQ(outcome.status, 2);
}

TEST(TraceCommandTest, FileOfAnotherKind) {
  Recorded const run;
  run.damage(0, "ELEPHANT");
  Outcome const outcome = run.in("trace run");
  EXPECT_EQ(outcome.out, "");
  EXPECT_EQ(outcome.err, complaint("run: Swiftlog: this is no trace file"));
  EXPECT_EQ(outcome.status, 2);
}

TEST(TraceCommandTest, FileThatIsCutOff) {
  Recorded const run;
  std::filesystem::resize_file(run.path("run"), 1000);
  Outcome const outcome = run.in("trace run");
  EXPECT_EQ(outcome.out, "");
  EXPECT_EQ(outcome.err, complaint("run: Swiftlog: the file has 1000 bytes in place of 1310784"));
  EXPECT_EQ(outcome.status, 2);
}

TEST(TraceCommandTest, RecordsInFrontOfTheDamageArePrinted) {
  Recorded const run;
  constexpr std::streamoff secondRecord = 24;
  constexpr std::streamoff id = 4;
  run.damage(ringAt + secondRecord + id, "\xFF\xFF\xFF\xFF");
  Outcome const outcome = run.in("trace run");
  EXPECT_EQ(std::ranges::count(outcome.out, '\n'), 1);
  EXPECT_TRUE(outcome.out.ends_with(" TableManSm::handleInitialized DeviceId 0\n")) << outcome.out;
  EXPECT_EQ(outcome.err, complaint("run: Swiftlog: the record at position 24 has no descriptor"));
  EXPECT_EQ(outcome.status, 2);
}

TEST(TraceCommandTest, FullDeviceIsAFailure) {
  Recorded const run;
  EXPECT_EQ(kestrel("trace run", run.folder.path(), "/dev/full").status, 1);
}

}  // namespace

}  // namespace tool
