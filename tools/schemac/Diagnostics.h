// Errors of a run: collected, sorted, one line each.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace schemac {

/// A place in a text file; line and column count from 1.
struct Position {
  std::string file;
  std::size_t line = 1;
  std::size_t column = 1;
};

/// "file:line:column: error: what".
std::string errorLine(Position const& at, std::string const& what);

/// `text` in double quotes; bytes that don't print as \xNN.
std::string inQuotes(std::string const& text);

/// The errors found so far.
class Diagnostics {
 public:
  void error(Position const& at, std::string const& what);
  bool failed() const { return !errors_.empty(); }
  /// All error lines, file by file as they were first named, each file in order of place.  Behind
  /// 50 lines of one run the rest is only counted.
  std::string text() const;

 private:
  struct Error {
    std::size_t file;
    Position at;
    std::string what;
  };
  std::size_t fileNumber(std::string const& file);

  std::vector<std::string> files_;
  std::vector<Error> errors_;
};

}  // namespace schemac
