// Reports that can't be drawn are refused ahead.
#pragma once

#include "XpSystem/ChipStatus.h"
#include "tools/kestrel/Lint.h"

#include <optional>

namespace kestrel {

/// Throws `UsageFault`, with lint's line, if the report on all tables of the status, or on the one
/// with that id, would stop at a context otherwise than by the library's assertion: if it would
/// divide by zero or read past an array, or if its contract gives the count of blocks no end. Where
/// an assertion comes first, it may come.
void refuseWhatStops(Report report, XpSystem::ChipStatus const& status,
                     std::optional<U32> tableId = std::nullopt);

}  // namespace kestrel
