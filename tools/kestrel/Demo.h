// The main job from end to end, told while it happens.
#pragma once

#include <iosfwd>

namespace kestrel {

/// Brings the built-in chip up, and tells what happens and what comes of it.  `colour` marks
/// headings for a terminal.
void printDemo(bool colour, std::ostream& out);

}  // namespace kestrel
