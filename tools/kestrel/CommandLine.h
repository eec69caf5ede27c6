// The tool as a function.
#pragma once

namespace kestrel {

/// Exit statuses of the tool; a failure is all that isn't the user's doing.
enum ExitStatus { success = 0, failure = 1, wrongUsage = 2 };

/// Runs the tool with the arguments of `main` and returns its exit status: results go to standard
/// output, and a complaint, which is one line, to standard error.
int run(int argc, char const* const* argv);

}  // namespace kestrel
