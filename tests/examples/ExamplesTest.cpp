// The examples run to their end and print what they printed before.
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <string>

namespace {

class ExamplesTest : public testing::TestWithParam<char const*> {};

/// What a program prints on standard output, and how it ends.
std::string session(std::string const& program) {
  std::FILE* const out = popen(program.c_str(), "r");
  if (!out) return program + " can't be started";
  std::string text;
  char piece[4096];
  while (std::size_t const size = std::fread(piece, 1, sizeof piece, out)) text.append(piece, size);
  return text + "-> " + std::to_string(pclose(out)) + '\n';
}

TEST_P(ExamplesTest, SaysTheSameAgain) {
  std::string const name = GetParam();
  std::string const path = KESTREL_SOURCE_DIR "/tests/examples/" + name + ".txt";
  std::ifstream in(path);
  std::string const expected((std::istreambuf_iterator<char>(in)), {});
  std::string const printed = session(KESTREL_BINARY_DIR "/bin/example_" + name);
  if (std::getenv("KESTREL_WRITE_TRANSCRIPTS")) std::ofstream(path) << printed;
  EXPECT_EQ(printed, expected) << "KESTREL_WRITE_TRANSCRIPTS=1 writes " << path << " anew";
}

INSTANTIATE_TEST_SUITE_P(Programs, ExamplesTest, testing::Values("bringup", "slice"),
                         [](auto const& program) { return program.param; });

}  // namespace
