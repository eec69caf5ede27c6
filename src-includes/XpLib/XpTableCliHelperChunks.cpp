// How many rows a chunk stands for.
#include "XpLib/XpTableCliHelper.h"

namespace Kestrel {

namespace {

constexpr U32 rowsPerUnit = 1024;    // of a block, and of an ISME tile
constexpr U32 unitsPerDatabase = 3;  // of a TCAM database

// Both ends count; in 32 bits, so that an end below the start wraps.
U32 length(U8 start, U8 end) { return U32{end} - start + 1; }

}  // namespace

U32 TableSramChunk::numRows() const { return length(startRowBlkId(), endRowBlkId()) * rowsPerUnit; }

U32 TableTcamChunk::numRows() const {
  return length(startDb(), endDb()) * unitsPerDatabase * rowsPerUnit;
}

U32 TableIsmeChunk::numRows() const { return length(startTileId(), endTileId()) * rowsPerUnit; }

}  // namespace Kestrel
