// A scratch folder, and shell commands run in it: the language of the tests of the house.
#pragma once

#include <string>

namespace house {

/// What a command said and how it ended.
struct Outcome {
  int status;          ///< Exit status, or 128 + the number of the signal that ended it.
  std::string output;  ///< Standard output and standard error, as they came.
};

/// Runs `command` in a shell, with `folder` as working folder and nothing on standard input.
Outcome runIn(const std::string& folder, const std::string& command);

/// A folder of its own for one test, removed at the end.
class Sandbox {
 public:
  Sandbox();
  ~Sandbox();
  Sandbox(const Sandbox&) = delete;
  Sandbox& operator=(const Sandbox&) = delete;

  const std::string& path() const { return path_; }

  /// Writes a file, with the folders on its way.
  void has(const std::string& name, const std::string& content) const;

  /// Writes a program that comes before the system's of that name in commands of `run`.
  void hasProgram(const std::string& name, const std::string& script) const;

  /// Copies a file of the repository to the same place below this folder.
  void hasOwn(const std::string& name) const;

  Outcome run(const std::string& command) const;

 private:
  std::string path_;
};

/// The repository's path with `name` behind it.
std::string repository(const std::string& name);

}  // namespace house
