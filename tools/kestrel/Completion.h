// Completion of command lines.
#pragma once

#include <string>
#include <vector>

namespace kestrel {

/// What can stand in the place of the last word, of which some or nothing has been typed: commands,
/// options, and in the commands on paths what the model has.  "FILE" alone stands for the names of
/// files.  None where the words in front can't be made sense of.
std::vector<std::string> completionsOf(std::vector<std::string> const& words);

/// A script that makes bash ask the tool for completions.
extern char const* const bashCompletion;

}  // namespace kestrel
