// The hash of strings.
#pragma once

#include "Mox/Integers.h"

#include <string_view>

namespace Mox {

/// One-at-a-time over the bytes, as `OneAtATime` tells it; 0 for the empty string.  Names in a
/// switch share their first bytes ("Ethernet..."), so each thread remembers how far the hash has
/// come behind the first 8 bytes of a few strings.
[[gnu::visibility("hidden")]] U32 stringHash(std::string_view text) noexcept;

}  // namespace Mox
