// Each file in transcripts/ is a session with the tool: its commands run again and must say the
// same.
//
// A line "$ kestrel ..." is a command, run in profiles/; below it stand its standard output, its
// standard error with "! " in front of each line, and "-> " with its status, unless that is 0.
// Source lines in complaints, and sizes of types, which differ between word sizes, stand as "N".
// To write the files anew, for the eyes of a reviewer: KESTREL_WRITE_TRANSCRIPTS=1.
#include "tests/tool/ToolRun.h"

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <string_view>

namespace tool {

namespace {

/// A file or folder beside this one.
std::string under(std::string const& path) {
  std::string whole = KESTREL_SOURCE_DIR "/tests/tool/";
  return whole.append(path);
}
constexpr std::string_view prompt = "$ kestrel ";

using Lines = std::vector<std::string>;

/// `line` with "N" for the number between `before` and `behind`.
std::string strike(std::string line, std::string_view before, std::string_view behind) {
  for (std::size_t at = line.find(before); at != line.npos; at = line.find(before, at + 1)) {
    std::size_t const digits = at + before.size();
    std::size_t const end = std::min(line.find_first_not_of("0123456789", digits), line.size());
    if (end > digits && line.compare(end, behind.size(), behind) == 0)
      line.replace(digits, end - digits, "N");
  }
  return line;
}

std::string withoutNumbers(std::string line) {
  line = strike(line, "XpTableManSm:", "");
  line = strike(line, "XpTableCliHelper:", "");
  line = strike(line, "\"size\": ", "");
  return strike(line, ", ", " bytes");
}

void append(std::string& session, char const* mark, std::string const& text) {
  for (std::string const& line : linesOf(text)) session += mark + withoutNumbers(line) + '\n';
  if (!text.empty() && text.back() != '\n') session += "(no line end)\n";
}

std::string sessionOf(Lines const& commands) {
  std::string session;
  for (std::string const& command : commands) {
    Outcome const outcome = kestrel(command, under("profiles"));
    session += (session.empty() ? "" : "\n") + std::string(prompt) + command + '\n';
    append(session, "", outcome.out);
    append(session, "! ", outcome.err);
    if (outcome.status != 0) session += "-> " + std::to_string(outcome.status) + '\n';
  }
  return session;
}

Lines commandsIn(std::string const& session) {
  Lines commands;
  for (std::string const& line : linesOf(session))
    if (line.starts_with(prompt)) commands.push_back(line.substr(prompt.size()));
  return commands;
}

Lines transcripts() {
  Lines names;
  for (auto const& file : std::filesystem::directory_iterator(under("transcripts")))
    names.push_back(file.path().stem().string());
  std::ranges::sort(names);
  return names;
}

class TranscriptTest : public testing::TestWithParam<std::string> {};

TEST_P(TranscriptTest, SaysTheSameAgain) {
  std::string const path = under("transcripts/" + GetParam() + ".txt");
  std::string const expected = contentOf(path);
  Lines const commands = commandsIn(expected);
  ASSERT_FALSE(commands.empty()) << path;
  std::string const session = sessionOf(commands);
  if (session == expected) return;
  if (std::getenv("KESTREL_WRITE_TRANSCRIPTS")) {
    std::ofstream(path) << session;
    FAIL() << path << " is written anew: read the difference";
  }
  EXPECT_EQ(session, expected) << "KESTREL_WRITE_TRANSCRIPTS=1 writes " << path << " anew";
}

INSTANTIATE_TEST_SUITE_P(Sessions, TranscriptTest, testing::ValuesIn(transcripts()),
                         [](auto const& session) { return session.param; });

}  // namespace

}  // namespace tool
