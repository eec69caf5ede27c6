// The main job from end to end, told while it happens.
#pragma once

#include "tools/kestrel/Chip.h"

#include <iosfwd>

namespace kestrel {

/// Brings the chip of `profile` up, and tells what happens and what comes of it.  `colour` marks
/// headings for a terminal.
void printDemo(xdksim::Profile const& profile, bool colour, std::ostream& out);

}  // namespace kestrel
