// Where a context lies in the SRAM of the chip.
//
// An SRAM row is 256 bits wide and holds as many whole entries as fit; a block is 1,024 rows and a
// tile 8 blocks.  Only whole blocks count: every division drops its remainder.
#pragma once

#include "Xdk/TableContexts.h"

#include <compare>
#include <vector>

namespace xdksim {

constexpr U32 sramPools = 8;
constexpr U32 sramRowWidth = 256;  ///< bits
constexpr U32 sramTileBlocks = 8;

/// Whether a row holds an entry of so many bits, other than one of two rows.
inline bool fitsRow(U32 width) { return width >= 1 && width <= sramRowWidth; }

/// Bits of an entry, which is a key and a value.
inline U32 entryWidth(xpHashTableContext const& context) {
  return U32{context.keySize} + context.valueSize;
}

/// Ways of a next-hop table.  All 32 bits of its bitmap count, though nothing lies beyond the
/// pools.
U32 numWays(xpNhTableContext const& context);

/// Blocks of a pool, which it has from 0 on: 48 in pools 0 to 3, 64 in pools 4 to 7, none where
/// there is no such pool.
U32 sramPoolBlocks(U32 pool);

/// What of a context lies in a run, and what numbers it: nothing, the way, the pool, the slot of
/// the prefix table, the tile.
enum class SramPart : U8 { all, way, poolWay, prefixTable, tile };

/// Row blocks of one pool that lie one behind the other.  Pool and start are what the context says,
/// be they on the chip or not.
struct SramRun {
  SramPart part;
  U32 number;
  U32 pool;
  U32 start;
  U32 blocks;  ///< may be 0

  /// The last block, as the SDK's callers count: in 8 bits, and one below the start of a run of no
  /// block, which is 255 where that is 0.
  U8 end() const { return static_cast<U8>(start + blocks - 1); }

  bool operator==(SramRun const&) const = default;
};

/// A block that the chip has.
struct SramBlock {
  U32 pool;
  U32 block;

  auto operator<=>(SramBlock const&) const = default;
};

/// The blocks of the chip that the run takes, in ascending order; what goes past the pool's last
/// block isn't among them.
std::vector<SramBlock> sramBlocks(SramRun const& run);

/// The runs of one copy of a table, which is of the class that its object was made of, in the order
/// of the record: ways, pools, or slots and behind them tiles.  None for a copy without entries,
/// and none for what can't be placed: an entry that is wider than a row and not of two rows, or of
/// no width; no way at all, or more than the record has room for.
///
/// Whether the table is in use isn't asked here.
std::vector<SramRun> sramRuns(xpTableContext const& context);

/// Whether the context says that others lie on its blocks.  A block on which several tables lie is
/// declared shared if each of their contexts on it says so.  Copies of one table that lie on the
/// same blocks aren't meant.
bool declaresShared(xpTableContext const& context);

/// Whether a table is in use, by its first copy: a negative first field says that it isn't.
inline bool isInUse(xpTableContext const& firstCopy) { return firstCopy.first >= 0; }

}  // namespace xdksim
