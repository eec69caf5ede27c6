// Numbers as a reader counts them.
#pragma once

#include "Mox/Integers.h"

#include <string>
#include <vector>

namespace kestrel {

/// "3, 4, 16 to 18": ascending numbers, with each run of three or more as its first and last.
std::string rangesText(std::vector<U32> const& numbers);

}  // namespace kestrel
