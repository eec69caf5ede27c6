// What is offered for an unfinished command line: by the tool, and in bash.
#include "tests/tool/ToolRun.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace tool {

namespace {

using Lines = std::vector<std::string>;

/// What is offered for the last word of the line; an empty one stands as "".
Lines offered(std::string const& line) { return linesOf(kestrel("complete -- " + line).out); }

bool offers(Lines const& lines, std::string const& word) {
  return std::ranges::find(lines, word) != lines.end();
}

TEST(CompletionTest, CommandsAndOptionsAreThoseOfTheGrammar) {
  EXPECT_EQ(offered("report s"), (Lines{"summary", "sram"}));
  EXPECT_TRUE(offers(offered("\"\""), "watch"));
  EXPECT_FALSE(offers(offered("\"\""), "complete"));
  EXPECT_EQ(offered("watch --st"), (Lines{"--steps", "--strict"}));
  EXPECT_EQ(offered("completion \"\""), Lines{"bash"});
}

TEST(CompletionTest, EachOptionOfTheHelpIsOffered) {
  for (char const* const command : {"get", "report sram", "watch", "call"}) {
    Lines const options = offered(std::string(command) + " -");
    std::string const help = kestrel(std::string(command) + " --help").out;
    EXPECT_GE(options.size(), 8u);
    for (std::string const& option : options)
      EXPECT_NE(help.find(option), help.npos) << command << ' ' << option;
  }
}

TEST(CompletionTest, PathsAreOfferedStepByStep) {
  EXPECT_EQ(offered("get /slice"), (Lines{"/slice0/", "/slice0Config/"}));
  EXPECT_EQ(offered("get \"\"").front(), "/slice0/");
  EXPECT_EQ(offered("tree /slice0/"), (Lines{"/slice0/ready", "/slice0/chipStatus/"}));
  EXPECT_EQ(offered("get /slice0/chipStatus/chip0/portStatus/3"),
            (Lines{"/slice0/chipStatus/chip0/portStatus/30/",
                   "/slice0/chipStatus/chip0/portStatus/31/"}));
  EXPECT_EQ(offered("watch /slice0 /phyStatuses/phyStatus/phy0%2F1"),
            Lines{"/phyStatuses/phyStatus/phy0%2F1/"});
  EXPECT_EQ(offered("get --json /slice0/r"), Lines{"/slice0/ready"});
}

TEST(CompletionTest, ValuesAreThoseOfTheType) {
  EXPECT_EQ(offered("set /slice0/ready \"\""), (Lines{"True", "False"}));
  EXPECT_EQ(offered("set /slice0/chipStatus/chip0/portStatus/12/portMode portMode4"),
            (Lines{"portMode40G", "portMode40G2"}));
  EXPECT_EQ(offered("set /slice0/chipStatus/chip0/portStatus/12/phyStatus N"), Lines{"None"});
  EXPECT_EQ(offered("set /slice0Config/xpPortGroupDefault/Ethernet1 \"\""), Lines{});
  EXPECT_EQ(offered("set /slice0 \"\""), Lines{});
}

TEST(CompletionTest, OperationsAndTheirArgumentsAreOffered) {
  EXPECT_EQ(offered("call /tableManSm doV"), Lines{"doVerifyOrCreateTables"});
  EXPECT_EQ(offered("call /tableManSm doVerifyOrCreateTables \"\""), (Lines{"True", "False"}));
  EXPECT_EQ(offered("call /tableManSm doVerifyOrCreateTables True \"\""), Lines{});
}

TEST(CompletionTest, FilesAreTheShellsToOffer) {
  EXPECT_EQ(offered("trace x"), Lines{"FILE"});
  EXPECT_EQ(offered("get --profile \"\""), Lines{"FILE"});
  EXPECT_EQ(offered("get --profile = \"\""), Lines{"FILE"});
  EXPECT_EQ(offered("watch --steps \"\""), Lines{});
}

TEST(CompletionTest, TheProfileOfTheLineCounts) {
  std::string const profile = KESTREL_SOURCE_DIR "/tests/tool/profiles/types.json";
  EXPECT_EQ(offered("get --profile " + profile + " /chip0/tableContextEntry/3"),
            (Lines{"/chip0/tableContextEntry/32/", "/chip0/tableContextEntry/30/",
                   "/chip0/tableContextEntry/31/"}));
  EXPECT_EQ(offered("get --profile /nowhere /sl"), Lines{});
}

TEST(CompletionTest, WhatMakesNoSenseOffersNothing) {
  for (char const* const line : {"get /nowhere/", "get /slice0 x", "nonsense x", "set /x \"\"",
                                 "call /slice0/ready x", "call /tableManSm doX \"\"",
                                 "get /slice0/%", "profile x", "tree --nonsense /slice0/ready/"})
    EXPECT_EQ(offered(line), Lines{}) << line;
}

/// What bash makes of the line, with "nospace" where no blank follows; the last word may be empty.
Lines inBash(std::string const& words) {
  std::string const script = "exec 2>&1; tool=" KESTREL_BINARY_DIR
                             "/bin/kestrel; source <($tool completion bash); "
                             "compopt() { echo \"$2\"; }; COMP_WORDS=($tool " +
                             words +
                             "); COMP_CWORD=$((${#COMP_WORDS[@]} - 1)); _kestrel; "
                             "printf \"%s\\n\" \"${COMPREPLY[@]}\"; complete -p kestrel";
  using Pipe = std::unique_ptr<std::FILE, int (*)(std::FILE*)>;
  Pipe const pipe(popen(("bash -c '" + script + "'").c_str(), "r"), pclose);
  std::string text;
  char piece[4096];
  while (std::size_t const size = std::fread(piece, 1, sizeof piece, pipe.get()))
    text.append(piece, size);
  return linesOf(text);
}

TEST(CompletionTest, BashAsksTheTool) {
  EXPECT_EQ(inBash("report s"), (Lines{"summary", "sram", "complete -F _kestrel kestrel"}));
}

TEST(CompletionTest, InBashAPathGoesOnBehindItsSlash) {
  EXPECT_EQ(inBash("get /co"),
            (Lines{"nospace", "/coprocessors/", "complete -F _kestrel kestrel"}));
  EXPECT_EQ(inBash("get /slice0/r"), (Lines{"/slice0/ready", "complete -F _kestrel kestrel"}));
}

TEST(CompletionTest, InBashFilesAreBashsOwn) {
  EXPECT_EQ(inBash("trace \"\""), (Lines{"default", "", "complete -F _kestrel kestrel"}));
}

}  // namespace

}  // namespace tool
