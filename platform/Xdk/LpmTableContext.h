// The context record of the longest-prefix-match tables: prefix tables and next-hop index.
#pragma once

#include "Xdk/TableContext.h"

#pragma pack(push, 4)

/// One prefix table of an LPM table, in one run of row blocks.
struct xpLpmPrefixTable {
  U8 valid = 0;  ///< not 0 while the slot is in use
  U32 numOfEntries = 0;
  U32 entryWidth = 0;     ///< bits
  U32 tread = 0;          ///< placement number; 16 where it takes none of the tread plan
  U32 poolId = 0;         ///< SRAM pool
  U32 rowBlkStartId = 0;  ///< first row block
};

/// The next-hop index of an LPM table, in whole tiles of 8 row blocks.
struct xpLpmNhiTable {
  U32 poolBitmap = 0;  ///< bit n: tiles in pool n, 0 to 7
  U32 numEntries = 0;
  U8 tileBitmap[8] = {};  ///< by pool; bit t: tile t of that pool
  U32 pairPerEntry = 0;
  U32 nhWidth = 0;  ///< bits
};

/// A longest-prefix-match table in SRAM.
class xpLpmTableContext : public xpTableContext {
 public:
  static constexpr U32 code = 6;
  xpLpmTableContext() : xpTableContext(code) {}

  U32 searchDataWidth = 0;  ///< bits
  U8 vrfIdWidth = 0;        ///< bits
  xpLpmPrefixTable prefixTable[32];
  xpLpmNhiTable nhiTable;
  U8 unlisted[156] = {};  // the SDK's own; keeps the record at its step
};

#pragma pack(pop)

static_assert(sizeof(xpLpmTableContext) == 972 && alignof(xpLpmTableContext) == 4);
