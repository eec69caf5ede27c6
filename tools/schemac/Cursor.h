// A position in the tokens of a schema, and the small pieces of its grammar.
#pragma once

#include "tools/schemac/Lexer.h"
#include "tools/schemac/Schema.h"

#include <string>
#include <vector>

namespace schemac {

/// Thrown when a line can't be read any further.
struct LineError {
  Position at;
  std::string what;
};

/// True for a word that C++ could take as a name: letters, digits, underscores.
bool isName(std::string_view word);

/// Reads tokens one after the other.  Every `take` and every piece throws `LineError` when
/// something else stands there.
class Cursor {
 public:
  explicit Cursor(std::vector<Token> tokens) : tokens_(std::move(tokens)) {}

  Token const& peek() const { return tokens_[index_]; }
  bool is(Token::Kind kind) const { return peek().kind == kind; }
  bool isWord(std::string_view word) const;
  bool isMark(std::string_view mark) const;
  /// The token after the present one; the last one at the end.
  Token const& peekNext() const;

  /// Takes the mark or word if it stands here.
  bool takeIfMark(std::string_view mark);
  bool takeIfWord(std::string_view word);
  Token take();
  Token takeKind(Token::Kind kind, std::string const& what);
  void takeMark(std::string_view mark);

  /// A plain name.  `what` says what is expected, such as "an attribute name".
  Word name(std::string const& what);
  /// Names joined by "::".
  Word qualifiedName(std::string const& what);
  /// A decimal number of at most nine digits, without a sign.
  long long number(std::string const& what);
  /// What stands between quotes, or a word.
  Word textOrWord(std::string const& what);
  TypeUse typeUse(std::string const& what);
  /// "(name type, name type)"; may run over several lines.
  Arguments arguments();
  /// "0..127 else "message"".
  Range range();

  /// Goes behind the end of this line, whatever is left on it.
  void skipLine();

  [[noreturn]] void fail(std::string const& expected) const;

 private:
  void skipNewlines();

  std::vector<Token> tokens_;
  std::size_t index_ = 0;
};

}  // namespace schemac
