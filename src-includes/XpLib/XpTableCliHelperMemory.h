// How tables lie in the memories: the sizes of these, and the rows that entries take.
//
// An SRAM row holds as many whole entries as fit.
#pragma once

#include "Mox/Integers.h"
#include "Xdk/TableContexts.h"

namespace Kestrel::xpTableCliHelper {

inline constexpr U32 rowWidth = 256;  ///< bits of an SRAM row
inline constexpr U32 numPools = 8;    ///< of the SRAM
inline constexpr U32 numTiles = 8;    ///< of a pool at most, and in every bitmap of tiles
inline constexpr U32 rowsPerBlock = 1024;
inline constexpr U32 blocksPerTile = 8;                         ///< row blocks
inline constexpr U32 blocksPerPool = numTiles * blocksPerTile;  ///< at most
/// Tiles that the chip has of each pool.
inline constexpr U32 tilesOfPool[numPools] = {6, 6, 6, 6, 8, 8, 8, 8};

/// Row blocks that the chip has of a pool; none where there is no such pool.
constexpr U32 blocksOfPool(U32 pool) {
  return pool < numPools ? tilesOfPool[pool] * blocksPerTile : 0;
}

inline bool isSet(U32 bitmap, U32 bit) { return (bitmap >> bit & 1) != 0; }

/// SRAM rows that hold so many entries of a width of up to a row, which isn't checked: the
/// remainder of each division is dropped.
inline U32 rowsOf(U32 entries, U32 width) { return entries / (rowWidth / width); }

/// SRAM rows that hold so many entries of a hash table, each of which is a key and a value.  One
/// that is wider than a row ends the process unless both are of 256 bits: by the assertion
/// "context.keySize == (256)" or "context.valueSize == (256)" of the operation with that signature.
U32 rowsOf(U32 entries, xpHashTableContext const& context, char const* signature);

/// Bits of an entry.
inline U32 entryWidth(xpHashTableContext const& context) {
  return U32{context.keySize} + context.valueSize;
}

/// Ways of a next-hop table.  All 32 bits of its bitmap count, though only 8 pools are there.
U32 numWays(xpNhTableContext const& context);

}  // namespace Kestrel::xpTableCliHelper
