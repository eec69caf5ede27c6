// The arguments of the program.
#pragma once

#include <optional>
#include <string>
#include <vector>

namespace schemac {

extern char const* const usage;

/// What the user asks for.
struct CommandLine {
  bool help = false;
  bool version = false;
  bool list = false;
  bool moxType = false;
  bool reference = false;
  std::string out;
  std::string templates;
  std::string lock;       ///< compared with
  std::string writeLock;  ///< written
  std::vector<std::string> schemas;
};

/// Reads the arguments behind the program's name.  Instead of a result sets `fault` to what is
/// wrong with them.
std::optional<CommandLine> parseArguments(std::vector<std::string> const& arguments,
                                          std::string& fault);

}  // namespace schemac
