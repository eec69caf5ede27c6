// The chip that the user has asked for.
#pragma once

#include "tools/kestrel/Chip.h"
#include "tools/kestrel/Commands.h"

namespace kestrel {

/// The asked profile, or the built-in one.  Throws `UsageFault` for a bad one.
xdksim::Profile profileOf(Request const& request);

/// A chip of the asked profile, started as asked, not yet up.  Throws likewise.
Chip chipFor(Request const& request);

}  // namespace kestrel
