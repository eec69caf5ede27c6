// Template files, as read.
#include "tools/schemac/Template.h"

#include <algorithm>
#include <sstream>

namespace schemac {

namespace {

std::vector<std::string> wordsIn(std::string_view text) {
  std::istringstream in{std::string(text)};
  std::vector<std::string> result;
  for (std::string word; in >> word;) result.push_back(word);
  return result;
}

std::string indentOf(std::string_view line) {
  return std::string(line.substr(0, std::min(line.find_first_not_of(' '), line.size())));
}

// A text, or the words of a directive or name.
struct Piece {
  bool isText;
  std::string text;  // the text; of a directive line the indentation
  std::vector<std::string> words;
  bool whole;
  Position at;
};

std::vector<Piece> inlinePieces(std::string_view line, Position at) {
  std::vector<Piece> result;
  while (!line.empty()) {
    std::size_t dollar = std::min(line.find('$'), line.size());
    if (dollar != 0) result.push_back({true, std::string(line.substr(0, dollar)), {}, false, at});
    line.remove_prefix(dollar);
    at.column += dollar;
    if (line.empty()) break;
    std::size_t close = line.find('$', 1);
    if (close == std::string_view::npos) throw TemplateError{at, "\"$\" without its closing \"$\""};
    std::string_view inner = line.substr(1, close - 1);
    if (inner.empty())
      result.push_back({true, "$", {}, false, at});
    else
      result.push_back({false, "", wordsIn(inner), false, at});
    line.remove_prefix(close + 1);
    at.column += close + 1;
  }
  return result;
}

std::vector<Piece> pieces(std::string_view source, Position at) {
  std::vector<Piece> result;
  for (; !source.empty(); ++at.line) {
    std::size_t length = std::min(source.find('\n'), source.size() - 1) + 1;
    std::string_view line = source.substr(0, length);
    source.remove_prefix(length);
    std::string indent = indentOf(line);
    if (line.substr(indent.size()).substr(0, 2) == "@#") continue;
    auto words = directiveOf(line);
    if (!words.empty()) {
      result.push_back({false, indent, words, true, at});
      continue;
    }
    auto more = inlinePieces(line, at);
    result.insert(result.end(), more.begin(), more.end());
  }
  return result;
}

class TemplateParser {
 public:
  explicit TemplateParser(std::vector<Piece> pieces) : pieces_(std::move(pieces)) {}

  Nodes all() {
    Nodes result = nodes();
    if (!atEnd()) fail("\"" + here().words[0] + "\" without its opening");
    return result;
  }

 private:
  // Up to the end, or to a piece that closes or divides what is open.
  Nodes nodes() {
    Nodes result;
    while (!atEnd() && !isCloser()) result.push_back(node());
    return result;
  }

  bool isCloser() const {
    if (here().isText || here().words.empty()) return false;
    std::string const& word = here().words[0];
    return word == "end" || word == "else" || word == "join";
  }

  Node node() {
    Piece const& piece = here();
    if (piece.isText) return take(Node::Kind::text, piece.text);
    if (piece.words.empty()) fail("an empty name");
    std::string const& word = piece.words[0];
    if (word == "each") return each();
    if (word == "part") return part();
    if (word == "if") return choice();
    if (word == "blank" && piece.whole) return take(Node::Kind::text, "\n");
    if (piece.whole) fail("unknown directive \"" + word + "\"");
    if (piece.words.size() != 1) fail("a name is one word");
    return take(Node::Kind::value, word);
  }

  Node take(Node::Kind kind, std::string text) {
    Node node;
    node.kind = kind;
    node.text = std::move(text);
    node.at = here().at;
    node.whole = here().whole;
    ++index_;
    return node;
  }

  Node each() {
    Piece const& piece = here();
    std::size_t count = piece.words.size();
    bool spaced = count == 4 && piece.words[3] == "spaced";
    if (count != 2 && count != 3 && !spaced)
      fail("\"each\" takes a list, maybe a part, and maybe \"spaced\"");
    Node node = take(count == 2 ? Node::Kind::each : Node::Kind::parts, piece.words[1]);
    if (count != 2) {
      node.spaced = spaced;
      node.part = piece.words[2];
      node.indent = piece.text;
      return node;
    }
    return closed(std::move(node), "join");
  }

  Node part() {
    Piece const& piece = here();
    std::size_t count = piece.words.size();
    if (count != 2 && count != 3) fail("\"part\" takes a part, and maybe a shape in front of it");
    Node node = take(Node::Kind::part, "");
    node.shape = count == 3 ? piece.words[1] : "";
    node.part = piece.words.back();
    node.indent = piece.text;
    return node;
  }

  Node choice() {
    Piece const& piece = here();
    bool negated = piece.words.size() == 3 && piece.words[1] == "not";
    if (piece.words.size() != 2 && !negated) fail("\"if\" takes a name, or \"not\" and a name");
    Node node = take(Node::Kind::choice, piece.words.back());
    node.negated = negated;
    return closed(std::move(node), "else");
  }

  // The body, maybe `divider` and a second body, and "end".
  Node closed(Node node, std::string const& divider) {
    node.body = nodes();
    if (!atEnd() && here().words[0] == divider) {
      ++index_;
      node.other = nodes();
    }
    if (atEnd()) throw TemplateError{node.at, "no \"end\" closes this"};
    if (here().words[0] != "end") fail("\"" + here().words[0] + "\" in the wrong place");
    ++index_;
    return node;
  }

  bool atEnd() const { return index_ == pieces_.size(); }
  Piece const& here() const { return pieces_[index_]; }
  [[noreturn]] void fail(std::string const& what) const { throw TemplateError{here().at, what}; }

  std::vector<Piece> pieces_;
  std::size_t index_ = 0;
};

}  // namespace

Nodes parseTemplate(std::string_view source, Position at) {
  return TemplateParser(pieces(source, std::move(at))).all();
}

std::vector<std::string> directiveOf(std::string_view line) {
  std::string_view rest = line.substr(indentOf(line).size());
  if (rest.substr(0, 1) != "@") return {};
  return wordsIn(rest.substr(1));
}

}  // namespace schemac
