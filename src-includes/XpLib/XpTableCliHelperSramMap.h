// Which tables lie on which block of the SRAM.
#pragma once

#include "XpLib/XpTableCliHelper.h"
#include "XpSystem/ChipStatus.h"

namespace Kestrel {

/// Enters the blocks of all tables of `chipStatus` into the `tableId` of `map`, and the names of
/// the tables that have blocks into `tables`; both are empty before.
///
/// Tables are grouped block by block: two that share some blocks only form a group of two on these,
/// and are alone on the others.  All copies of a table count as the table.  A run that ends below
/// its start has no block; one of no blocks at block 0 ends at 255 and takes all 256.
void buildSramMap(XpSystem::ChipStatus const& chipStatus, TableCollection& tables,
                  TableSramMemoryMap& map);

}  // namespace Kestrel
