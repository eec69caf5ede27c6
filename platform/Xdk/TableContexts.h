// The context records of the hash, direct, match, ISME and next-hop tables.
#pragma once

#include "Xdk/TableContext.h"

// The bytes named `unlisted` are the SDK's own.  They keep each record at its step.
#pragma pack(push, 4)

/// A table in ternary memory: `numDb` databases from `startDb` on.
class xpMatchTableContext : public xpTableContext {
 public:
  static constexpr U32 code = 0;
  xpMatchTableContext() : xpTableContext(code) {}

  U32 numDb = 0;      ///< databases; 0 for an empty table
  U16 keySize = 0;    ///< bits
  U16 valueSize = 0;  ///< bits
  U8 startDb = 0;     ///< first database
  U8 unlisted[27] = {};
};

/// A hash table in SRAM, one run of row blocks for each way.
class xpHashTableContext : public xpTableContext {
 public:
  static constexpr U32 code = 1;
  xpHashTableContext() : xpTableContext(code) {}

  U32 numOfEntries = 0;       ///< entries over all ways; 0 for an empty table
  U16 keySize = 0;            ///< bits
  U16 valueSize = 0;          ///< bits
  U8 numOfWays = 0;           ///< ways in use, the first of the arrays below
  U32 poolId[8] = {};         ///< SRAM pool by way
  U32 rowBlkStartId[8] = {};  ///< first row block by way
  U32 shared = 0;             ///< not 0 where the memory is shared with another table
};

/// A table in SRAM that is read by index, in one run of row blocks.
class xpDirectTableContext : public xpTableContext {
 public:
  static constexpr U32 code = 2;
  xpDirectTableContext() : xpTableContext(code) {}

  U32 numOfEntries = 0;            ///< 0 for an empty table
  U16 entryWidth = 0;              ///< bits
  U32 poolId = 0xFFFFFFFF;         ///< SRAM pool; all ones while none is set
  U32 rowBlkStartId = 0xFFFFFFFF;  ///< first row block; all ones while none is set
  U8 unlisted[24] = {};
};

/// A table in the ISME memory, in tiles of 4096 entries.
class xpIsmeTableContext : public xpTableContext {
 public:
  static constexpr U32 code = 7;
  xpIsmeTableContext() : xpTableContext(code) {}

  U32 ismeNum = 0;
  U32 ldeNum = 0;
  U32 numOfEntries = 0;          ///< 0 for an empty table
  U32 tileStartId = 0xFFFFFFFF;  ///< first tile; all ones while none is set
  U8 unlisted[36] = {};
};

/// The next-hop table in SRAM, one run of row blocks in each pool of the bitmap.
class xpNhTableContext : public xpTableContext {
 public:
  static constexpr U32 code = 8;
  xpNhTableContext() : xpTableContext(code) {}

  U32 poolBitmap = 0;         ///< bit n: a way in pool n, 0 to 7
  U32 entryWidth = 0;         ///< bits
  U32 numEntries = 0;         ///< entries over all ways; 0 for an empty table
  U32 rowBlkStartId[8] = {};  ///< first row block by pool
  U8 unlisted[92] = {};
};

#pragma pack(pop)

// An array of contexts is stepped through by these sizes.
static_assert(sizeof(xpMatchTableContext) == 52 && alignof(xpMatchTableContext) == 4);
static_assert(sizeof(xpHashTableContext) == 96 && alignof(xpHashTableContext) == 4);
static_assert(sizeof(xpDirectTableContext) == 56 && alignof(xpDirectTableContext) == 4);
static_assert(sizeof(xpIsmeTableContext) == 68 && alignof(xpIsmeTableContext) == 4);
static_assert(sizeof(xpNhTableContext) == 152 && alignof(xpNhTableContext) == 4);
