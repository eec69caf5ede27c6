// How published tables come to where the reports look for them.
#pragma once

#include "Kestrel/ChipStatus.h"
#include "XpSystem/ChipStatus.h"

namespace Kestrel {

/// Makes `tableContext` of `status` refer to the entries that `published` holds at this moment,
/// under the same ids, and to no others.  They are entered in the order of the source, and shared
/// with it: what changes in an entry shows in both.
void tableContextFrom(XpSystem::ChipStatus& status, ChipStatus& published);

}  // namespace Kestrel
