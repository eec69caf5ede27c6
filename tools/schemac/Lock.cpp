// The lock file: what peers and scripts rely on in the schemas of a run, in lines to be reviewed.
#include "tools/schemac/Lock.h"

#include "tools/schemac/LockLines.h"

#include <algorithm>
#include <map>
#include <sstream>

namespace schemac {

namespace {

constexpr char const* head =
    "# What peers and scripts rely on in the schemas; compared with them whenever code is made.\n"
    "# Made by schemac: the target `lock` writes it anew, its difference is read before it goes "
    "in.\n"
    "#\n"
    "#   module NAME\n"
    "#   TYPE KIND [: BASE]\n"
    "#   TYPE (PLACE) ARGUMENT-OF-THE-CONSTRUCTOR TYPE -\n"
    "#   TYPE NUMBER ATTRIBUTE SHAPE [KEY ->] TYPE SIZE\n"
    "#   TYPE NUMBER ENUMERATOR\n"
    "#\n"
    "# SIZE is that of a record's payload in bytes; `-` is for what is in no record.\n"
    "\n";

std::string wholeText(std::vector<LockLine> const& lines) {
  std::string result = head;
  for (LockLine const& line : lines) result += line.text() + "\n";
  return result;
}

struct FileLine {
  std::string text;
  Position at;
};

std::vector<FileLine> linesOf(std::string const& file, std::string const& text) {
  std::vector<FileLine> result;
  std::istringstream in(text);
  for (std::string line; std::getline(in, line);)
    result.push_back({line, {file, result.size() + 1, 1}});
  return result;
}

std::string keyOf(std::string const& line) {
  std::size_t const first = std::min(line.find(' '), line.size());
  return line.substr(0, line.find(' ', first + 1));
}

class Comparison {
 public:
  Comparison(std::string const& file, std::string const& text, std::vector<LockLine> const& schema,
             Diagnostics& diagnostics)
      : file_(file), locked_(linesOf(file, text)), schema_(schema), diagnostics_(diagnostics) {}

  // The first line says what to do, because of many lines the last ones aren't shown.
  void run() {
    diagnostics_.error({file_, 1, 1},
                       "the schema says something else; if that is meant, run "
                       "\"cmake --build TREE --target lock\" and have the difference reviewed");
    bool const less = removed();
    bool const more = addedOrChanged();
    if (!less && !more) misplaced();
  }

 private:
  bool removed() {
    std::map<std::string, LockLine const*> byKey;
    for (LockLine const& line : schema_) byKey[line.key] = &line;
    bool found = false;
    for (FileLine const& line : locked_) {
      if (line.text.empty() || line.text.front() == '#' || byKey.count(keyOf(line.text))) continue;
      diagnostics_.error(line.at, inQuotes(line.text) + " is gone from the schema");
      found = true;
    }
    return found;
  }

  bool addedOrChanged() {
    std::map<std::string, FileLine const*> byKey;
    for (FileLine const& line : locked_) byKey[keyOf(line.text)] = &line;
    bool found = false;
    for (LockLine const& line : schema_) {
      auto const locked = byKey.find(line.key);
      if (locked != byKey.end() && locked->second->text == line.text()) continue;
      diagnostics_.error(line.at, locked == byKey.end() ? inQuotes(line.text()) + " is new"
                                                        : inQuotes(line.text()) + " is locked as " +
                                                              inQuotes(locked->second->text));
      found = true;
    }
    return found;
  }

  // The same lines in another order, or more than lines.
  void misplaced() {
    auto const wanted = linesOf(file_, wholeText(schema_));
    for (std::size_t i = 0; i < locked_.size(); ++i) {
      if (i < wanted.size() && locked_[i].text == wanted[i].text) continue;
      return diagnostics_.error(locked_[i].at, inQuotes(locked_[i].text) + " is out of place");
    }
  }

  std::string const& file_;
  std::vector<FileLine> locked_;
  std::vector<LockLine> const& schema_;
  Diagnostics& diagnostics_;
};

}  // namespace

std::string lockText(Schema const& builtin, std::vector<Schema> const& schemas) {
  return wholeText(lockLines(builtin, schemas));
}

void checkLock(Schema const& builtin, std::vector<Schema> const& schemas, std::string const& file,
               std::string const& text, Diagnostics& diagnostics) {
  std::vector<LockLine> const lines = lockLines(builtin, schemas);
  if (text != wholeText(lines)) Comparison(file, text, lines, diagnostics).run();
}

}  // namespace schemac
