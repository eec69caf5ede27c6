// Reads the contexts of a table from JSON.
#pragma once

#include "standin/xdk/JsonCursor.h"
#include "standin/xdk/Profile.h"

namespace xdksim {

/// Appends a context for each element of the list at `cursor`, in the records that `contexts`
/// holds.  A context that a profile lists is in use unless it says otherwise.
void readContexts(JsonCursor const& cursor, Contexts& contexts);

}  // namespace xdksim
