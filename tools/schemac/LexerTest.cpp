// Tokens of schema files.
#include "tools/schemac/Lexer.h"

#include <gtest/gtest.h>

namespace schemac {

namespace {

// The tokens of `source` but for the closing newline and end, each in brackets; errors behind them.
std::string lexed(std::string const& source) {
  Diagnostics diagnostics;
  auto tokens = lex("s", source, diagnostics);
  tokens.resize(tokens.size() - 2);
  std::string result;
  for (Token const& token : tokens)
    result += "[" + (token.kind == Token::Kind::newline ? "\\n" : token.text) + "]";
  return result + diagnostics.text();
}

TEST(LexerTest, CutsARow) { EXPECT_EQ(lexed("258 map x U8->U32"), "[258][map][x][U8][->][U32]"); }

TEST(LexerTest, KeepsQualifiedNamesPathsAndNumbersWhole) {
  EXPECT_EQ(lexed("A::B Mox/Name.h -3 0.2 0..127"), "[A::B][Mox/Name.h][-3][0.2][0..127]");
}

TEST(LexerTest, OneColonIsAMark) { EXPECT_EQ(lexed("A : B"), "[A][:][B]"); }

TEST(LexerTest, AConstructorIsMarks) {
  EXPECT_EQ(lexed("(a U8,b T*)"), "[(][a][U8][,][b][T][*][)]");
}

TEST(LexerTest, CommentsGo) { EXPECT_EQ(lexed("a # b ///\nc"), "[a][\\n][c]"); }

TEST(LexerTest, DocumentationLosesOneSpaceAndWhatTrails) {
  EXPECT_EQ(lexed("U8///  In seconds. # not a comment  "), "[U8][ In seconds. # not a comment]");
}

TEST(LexerTest, ATextKeepsItsEscapes) { EXPECT_EQ(lexed(R"("a \"b\" \\")"), R"([a \"b\" \\])"); }

TEST(LexerTest, AnEmptyFileHasNoTokens) {
  Diagnostics diagnostics;
  EXPECT_EQ(lex("s", "", diagnostics).size(), 2u);
}

TEST(LexerTest, LinesMayEndInCarriageReturns) { EXPECT_EQ(lexed("a\r\nb"), "[a][\\n][b]"); }

TEST(LexerTest, PlacesCountFromOne) {
  Diagnostics diagnostics;
  auto const tokens = lex("s", "a\n  b", diagnostics);
  EXPECT_EQ(tokens[2].at.line, 2u);
  EXPECT_EQ(tokens[2].at.column, 3u);
}

TEST(LexerTest, RefusesStrayBytes) {
  EXPECT_EQ(lexed("a ; b"), "[a][b]s:1:3: error: stray \";\"\n");
  EXPECT_EQ(lexed(std::string(1, '\0')), "s:1:1: error: stray \"\\x00\"\n");
  EXPECT_EQ(lexed("\xff"), "s:1:1: error: stray \"\\xff\"\n");
}

TEST(LexerTest, RefusesAnOpenText) {
  EXPECT_EQ(lexed("\"abc\nd"), "[\\n][d]s:1:1: error: text without its closing quote\n");
  EXPECT_EQ(lexed("\"abc\\"), "s:1:1: error: text without its closing quote\n");
}

TEST(LexerTest, RefusesOtherEscapes) {
  EXPECT_EQ(lexed("\"a\\n\""), "[a\\n]s:1:1: error: unknown escape \"\\n\"\n");
}

TEST(LexerTest, RefusesDocumentationThatWouldContinueItsLine) {
  EXPECT_EQ(lexed("/// a\\"), "[a\\]s:1:1: error: documentation can't end in a backslash\n");
}

}  // namespace

}  // namespace schemac
