// Makes generated C++ pleasant to read.
#pragma once

#include <string>

namespace schemac {

/// `text` with lines of at most 100 bytes where that is possible, and without idle blank lines.
///
/// A function in one line that is too long gets a line for its body.  Any other long line is broken
/// behind a comma, or failing that behind an opening parenthesis or brace, never inside of quotes;
/// what is broken off stands four deeper.  Comments and directives of the preprocessor stay as they
/// are.  Of several blank lines one is left, and none ahead of the closing brace of a class or
/// function.
std::string layout(std::string const& text);

}  // namespace schemac
