// Exceptions that reach nobody: without a word, they would be lost.
#pragma once

#include "Mox/String8.h"

namespace Mox {

/// Writes the exception in flight into the trace "MoxNotification" at level 0: "<who> raised: ...".
[[gnu::visibility("hidden")]] void traceLostException(String8 const& who);

}  // namespace Mox
