// A position in the tokens of a schema, and the small pieces of its grammar.
#include "tools/schemac/Cursor.h"

#include <algorithm>

namespace schemac {

namespace {

bool isDigit(char c) { return c >= '0' && c <= '9'; }

bool isQualifiedName(std::string_view word) {
  std::size_t colon = word.find("::");
  if (colon == std::string_view::npos) return isName(word);
  return isName(word.substr(0, colon)) && isQualifiedName(word.substr(colon + 2));
}

bool isNumber(std::string_view word) {
  return !word.empty() && word.size() <= 9 && std::ranges::all_of(word, isDigit);
}

std::string described(Token const& token) {
  if (token.kind == Token::Kind::newline) return "the end of the line";
  if (token.kind == Token::Kind::end) return "the end of the file";
  if (token.kind == Token::Kind::doc) return "documentation";
  return inQuotes(token.text);
}

}  // namespace

bool isName(std::string_view word) {
  auto isNameByte = [](char c) {
    return isDigit(c) || (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '_';
  };
  return !word.empty() && !isDigit(word.front()) && std::ranges::all_of(word, isNameByte);
}

bool Cursor::isWord(std::string_view word) const {
  return is(Token::Kind::word) && peek().text == word;
}

bool Cursor::isMark(std::string_view mark) const {
  return is(Token::Kind::mark) && peek().text == mark;
}

Token const& Cursor::peekNext() const { return tokens_[std::min(index_ + 1, tokens_.size() - 1)]; }

Token Cursor::take() {
  Token token = peek();
  if (!is(Token::Kind::end)) ++index_;
  return token;
}

bool Cursor::takeIfMark(std::string_view mark) {
  bool found = isMark(mark);
  if (found) take();
  return found;
}

bool Cursor::takeIfWord(std::string_view word) {
  bool found = isWord(word);
  if (found) take();
  return found;
}

Token Cursor::takeKind(Token::Kind kind, std::string const& what) {
  if (!is(kind)) fail(what);
  return take();
}

void Cursor::takeMark(std::string_view mark) {
  if (!takeIfMark(mark)) fail(inQuotes(std::string(mark)));
}

Word Cursor::name(std::string const& what) {
  if (!is(Token::Kind::word) || !isName(peek().text)) fail(what);
  Token token = take();
  return {token.text, token.at};
}

Word Cursor::qualifiedName(std::string const& what) {
  if (!is(Token::Kind::word) || !isQualifiedName(peek().text)) fail(what);
  Token token = take();
  return {token.text, token.at};
}

long long Cursor::number(std::string const& what) {
  if (!is(Token::Kind::word) || !isNumber(peek().text)) fail(what);
  return std::stoll(take().text);
}

Word Cursor::textOrWord(std::string const& what) {
  if (!is(Token::Kind::word) && !is(Token::Kind::text)) fail(what);
  Token token = take();
  return {token.text, token.at};
}

TypeUse Cursor::typeUse(std::string const& what) {
  TypeUse use;
  use.at = peek().at;
  use.isConst = takeIfWord("const");
  use.name = qualifiedName(what).text;
  use.isPointer = takeIfMark("*");
  return use;
}

Arguments Cursor::arguments() {
  Arguments result;
  takeMark("(");
  skipNewlines();
  while (!takeIfMark(")")) {
    if (!result.empty()) takeMark(",");
    skipNewlines();
    Word argument = name("an argument name");
    result.push_back(
        {argument.text, typeUse("the type of " + inQuotes(argument.text)), argument.at});
    skipNewlines();
  }
  return result;
}

Range Cursor::range() {
  Range result;
  result.at = peek().at;
  std::string const what = "a range such as 0..127";
  if (!is(Token::Kind::word)) fail(what);
  std::string const& text = peek().text;
  std::size_t dots = text.find("..");
  if (dots == std::string::npos || !isNumber(text.substr(0, dots)) ||
      !isNumber(text.substr(dots + 2)))
    fail(what);
  result.least = std::stoll(text.substr(0, dots));
  result.most = std::stoll(text.substr(dots + 2));
  take();
  if (!takeIfWord("else")) fail("\"else\" and the message of the range");
  result.message = takeKind(Token::Kind::text, "the message of the range in quotes").text;
  return result;
}

void Cursor::skipLine() {
  while (!is(Token::Kind::newline) && !is(Token::Kind::end)) take();
  if (is(Token::Kind::newline)) take();
}

void Cursor::skipNewlines() {
  while (is(Token::Kind::newline)) take();
}

void Cursor::fail(std::string const& expected) const {
  throw LineError{peek().at, "expected " + expected + ", found " + described(peek())};
}

}  // namespace schemac
