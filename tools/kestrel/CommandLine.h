// The tool as a function.
#pragma once

namespace kestrel {

/// Runs the tool with the arguments of `main` and returns its exit status: results go to standard
/// output, and a complaint, which is one line, to standard error.
int run(int argc, char const* const* argv);

}  // namespace kestrel
