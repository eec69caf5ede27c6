// Words, texts and marks of a schema file.
#include "tools/schemac/Lexer.h"

#include <algorithm>

namespace schemac {

namespace {

bool isLetterOrDigit(char c) {
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '_';
}

class Lexer {
 public:
  Lexer(std::string const& file, std::string_view source, Diagnostics& diagnostics)
      : source_(source), at_{file, 1, 1}, diagnostics_(diagnostics) {}

  std::vector<Token> tokens() {
    while (!rest().empty()) next();
    add(Token::Kind::newline, "");
    add(Token::Kind::end, "");
    return std::move(tokens_);
  }

 private:
  void next() {
    if (starts("\n")) return newline();
    if (starts(" ") || starts("\t") || starts("\r")) return step(1);
    if (starts("#")) return step(lineLength());
    if (starts("///")) return doc();
    if (starts("\"")) return text();
    if (starts("->")) return mark(2);
    if (wordLength() != 0) return word();
    if (std::string_view("(),:=*").find(source_[index_]) != std::string_view::npos) return mark(1);
    diagnostics_.error(at_, "stray " + inQuotes(std::string(1, source_[index_])));
    step(1);
  }

  void newline() {
    add(Token::Kind::newline, "");
    ++index_;
    ++at_.line;
    at_.column = 1;
  }

  void doc() {
    std::string_view line = rest().substr(3, lineLength() - 3);
    if (line.substr(0, 1) == " ") line.remove_prefix(1);
    while (!line.empty() && (line.back() == ' ' || line.back() == '\r')) line.remove_suffix(1);
    // A backslash at the end would make the generated comment swallow the line below it.
    if (line.substr(line.empty() ? 0 : line.size() - 1) == "\\")
      diagnostics_.error(at_, "documentation can't end in a backslash");
    add(Token::Kind::doc, line);
    step(lineLength());
  }

  void text() {
    std::size_t length = 1;
    for (; length < lineLength() && rest()[length] != '"'; ++length) {
      if (rest()[length] == '\\') ++length;
    }
    if (length >= lineLength()) {
      diagnostics_.error(at_, "text without its closing quote");
      return step(lineLength());
    }
    checkEscapes(rest().substr(1, length - 1));
    add(Token::Kind::text, rest().substr(1, length - 1));
    step(length + 1);
  }

  void checkEscapes(std::string_view text) {
    for (std::size_t i = 0; i + 1 < text.size(); ++i) {
      if (text[i] != '\\') continue;
      ++i;
      if (text[i] != '\\' && text[i] != '"')
        diagnostics_.error(at_, "unknown escape " + inQuotes(std::string(text.substr(i - 1, 2))));
    }
  }

  void mark(std::size_t length) {
    add(Token::Kind::mark, rest().substr(0, length));
    step(length);
  }

  void word() {
    std::size_t length = wordLength();
    add(Token::Kind::word, rest().substr(0, length));
    step(length);
  }

  // A word ends in front of documentation and of an arrow that follow it without a space.
  std::size_t wordLength() const {
    std::size_t length = 0;
    for (std::string_view left = rest(); !left.empty(); left = rest().substr(length)) {
      bool path = left.front() == '.' || (left.front() == '/' && left.substr(0, 3) != "///");
      bool minus = left.front() == '-' && left.substr(0, 2) != "->";
      if (left.substr(0, 2) == "::")
        length += 2;
      else if (isLetterOrDigit(left.front()) || path || minus)
        ++length;
      else
        break;
    }
    return length;
  }

  std::string_view rest() const { return source_.substr(index_); }
  bool starts(std::string_view text) const { return rest().substr(0, text.size()) == text; }
  std::size_t lineLength() const { return std::min(rest().find('\n'), rest().size()); }

  void step(std::size_t length) {
    index_ += length;
    at_.column += length;
  }

  void add(Token::Kind kind, std::string_view text) {
    tokens_.push_back({kind, std::string(text), at_});
  }

  std::string_view source_;
  std::size_t index_ = 0;
  Position at_;
  Diagnostics& diagnostics_;
  std::vector<Token> tokens_;
};

}  // namespace

std::vector<Token> lex(std::string const& file, std::string_view source, Diagnostics& diagnostics) {
  return Lexer(file, source, diagnostics).tokens();
}

}  // namespace schemac
