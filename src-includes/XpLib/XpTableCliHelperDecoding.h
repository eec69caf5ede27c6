// From a table's contexts to the memory that the table takes.
//
// Only whole blocks count: every division drops its remainder, and a run of less than a block ends
// one below its start.  Pools, starts and ends are taken modulo 256.
#pragma once

#include "XpLib/XpTableCliHelper.h"
#include "XpXdk/TableContextEntry.h"

#include <vector>

namespace Kestrel {

/// Adds the chunks of one copy of a table to `memory`; neither pointer may be null.  A copy without
/// entries adds none, and is traced at level 7 unless it is of type LPM.
///
/// A code of no table type ends the process by the assertion "false", and so does a hash entry that
/// is wider than a row unless key and value are of 256 bits each.  Nothing else of a context is
/// checked: in the other types an entry wider than a row, and in any type with entries a width of 0
/// or no way at all, is a division by zero, and so doesn't come here.
void updateTableMemoryPerCopy(TableMemCollection::Ptr& memory,
                              XpXdk::TableContextEntry::PtrConst& entry, U8 copy);

namespace xpTableCliHelper {

/// Runs of memory as the contexts of a table tell them: in their order, and as often as they do.
struct Chunks {
  U32 tableId;
  std::vector<TableSramChunk> sram;
  std::vector<TableTcamChunk> tcam;
  std::vector<TableIsmeChunk> isme;
};

/// The runs of all copies of the table, with the traces and assertions of
/// `updateTableMemoryPerCopy`.
Chunks tableChunks(XpXdk::TableContextEntry const& entry);

/// The memory of all copies of the table, which are at most 256.
TableMemCollection::Ptr tableMemory(XpXdk::TableContextEntry::PtrConst& entry);

/// Rows of each kind of memory, summed in 32 bits and signed, as they are printed.
struct MemoryRows {
  S32 sram;
  S32 tcam;
  S32 isme;
};

/// The rows that the chunks of the memory stand for.
MemoryRows numRows(TableMemCollection const& memory);

}  // namespace xpTableCliHelper

}  // namespace Kestrel
