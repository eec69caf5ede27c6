// The end of the process on a broken invariant.
#pragma once

namespace Mox {

/// Writes "prog: file:line: function: Assertion `text' failed." to standard error and aborts,
/// whatever `NDEBUG` says.  All four are strings and numbers that the caller passes: nothing is
/// made from the source.
[[noreturn]] void assertionFailed(char const* text, char const* file, int line,
                                  char const* function);

}  // namespace Mox
