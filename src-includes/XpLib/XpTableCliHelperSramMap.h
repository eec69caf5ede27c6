// Which tables lie on which block of the SRAM.
#pragma once

#include "XpLib/XpTableCliHelper.h"
#include "XpLib/XpTableCliHelperMemory.h"
#include "XpSystem/ChipStatus.h"

#include <string_view>
#include <vector>

namespace Kestrel::xpTableCliHelper {

/// The letters of the groups, in the order in which a drawing meets them.
inline constexpr std::string_view groupLetters =
    "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz";

/// The groups of tables in pools 0 to 7, blocks 0 to 63, as they stand when it is made.
///
/// Tables are grouped block by block: two that share some blocks only form a group of two on these,
/// and are alone on the others.  All copies of a table count as the table.  A run that ends below
/// its start has no block; one of no blocks at block 0 ends at 255 and takes the whole pool.
///
/// Groups have numbers, so that each is held once however many blocks it lies on, and a larger one
/// as what it has beside a smaller.
class SramMap {
 public:
  explicit SramMap(XpSystem::ChipStatus const& chipStatus);

  /// The number of the group that lies on a block; 0 where there is none.
  U32 groupAt(U32 pool, U32 block) const { return groupAt_[pool][block]; }
  /// The tables of a group, which have come into it in the order of the walk.  Group 0 is the empty
  /// one; no two are equal.
  SharedTableGroup group(U32 number) const;
  /// Groups that have a number.  One that later tables have made larger everywhere lies nowhere.
  U32 numGroups() const { return static_cast<U32>(groups_.size()); }

 private:
  /// A table beside the tables of another group.
  struct Group {
    U32 others;
    U32 tableId;
  };

  void enterTable(XpXdk::TableContextEntry const& entry);
  U32 withTable(U32 group, U32 tableId, U32 firstOfTable);

  std::vector<Group> groups_{{0, 0}};
  U32 groupAt_[numPools][blocksPerPool] = {};
};

}  // namespace Kestrel::xpTableCliHelper
