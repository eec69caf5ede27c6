// Makes generated C++ pleasant to read.
#include "tools/schemac/Layout.h"

#include <algorithm>
#include <sstream>
#include <string_view>

namespace schemac {

namespace {

constexpr std::size_t longest = 100;

std::size_t indentWidth(std::string_view line) {
  return std::min(line.find_first_not_of(' '), line.size());
}

// The best place of `line` behind one of `marks`, outside of quotes and at most `longest`: the
// least nested one, and of several the last; 0 for none.
std::size_t breakBehind(std::string_view line, std::string_view marks) {
  std::size_t best = 0;
  int bestDepth = 0;
  int depth = 0;
  bool quotes = false;
  for (std::size_t i = indentWidth(line); i < std::min(line.size(), longest); ++i) {
    char const c = line[i];
    if (c == '"' && line[i - 1] != '\\') quotes = !quotes;
    if (quotes) continue;
    if (c == ')' || c == '}') --depth;
    if (marks.find(c) != std::string_view::npos && (best == 0 || depth <= bestDepth)) {
      best = i + 1;
      bestDepth = depth;
    }
    if (c == '(' || c == '{') ++depth;
  }
  return best;
}

class Layout {
 public:
  std::string of(std::string const& text) {
    std::istringstream lines(text);
    for (std::string line; std::getline(lines, line);) {
      bool blank = line.empty();
      bool closing = line.substr(indentWidth(line), 1) == "}" && line.rfind("}  //", 0) != 0;
      if (pendingBlank_ && !blank && !closing) out_ += "\n";
      pendingBlank_ = blank && !out_.empty();
      if (!blank) add(line);
    }
    return std::move(out_);
  }

 private:
  void add(std::string const& line) {
    bool verbatim = line.find("//") != std::string::npos || line.compare(0, 1, "#") == 0;
    if (line.size() <= longest || verbatim)
      out_ += line + "\n";
    else if (!addFunction(line))
      addBroken(line);
  }

  // "head { body }" on three lines; false for a line that is something else.
  bool addFunction(std::string const& line) {
    std::size_t const open =
        line.find(") {") != std::string::npos ? line.find(") {") + 2 : line.find(") const {") + 8;
    bool function = open < line.size() && line[open] == '{' && line.size() > open + 3 &&
                    line.compare(line.size() - 2, 2, " }") == 0;
    if (!function) return false;
    std::string const indent(indentWidth(line), ' ');
    add(line.substr(0, open + 1));
    add(indent + "  " + line.substr(open + 2, line.size() - open - 4));
    add(indent + "}");
    return true;
  }

  void addBroken(std::string line) {
    std::string const deeper(indentWidth(line) + 4, ' ');
    while (line.size() > longest) {
      std::size_t at = breakBehind(line, ",");
      if (at == 0) at = breakBehind(line, "({");
      if (at == 0 || at == line.size()) break;
      out_ += line.substr(0, at) + "\n";
      line = deeper + line.substr(line.find_first_not_of(' ', at));
    }
    out_ += line + "\n";
  }

  std::string out_;
  bool pendingBlank_ = false;
};

}  // namespace

std::string layout(std::string const& text) { return Layout().of(text); }

}  // namespace schemac
