// The table types by name, code and record.
#pragma once

#include "standin/xdk/Profile.h"

#include <optional>
#include <string_view>

namespace xdksim {

/// "HASH" for 1, null for a code without class.
char const* tableTypeName(U32 code);
std::optional<U32> tableTypeCode(std::string_view name);

/// An empty array of the records that a code stands for.
Contexts contextsOf(U32 code);

}  // namespace xdksim
