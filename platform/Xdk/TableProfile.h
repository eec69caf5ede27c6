// What the SDK decided on the tables of one device: how many copies, and where they lie.
#pragma once

#include "Xdk/TableContext.h"

/// Table ids of the longest-prefix-match tables.
inline constexpr U32 LPM_V4_TBL_GUID = 50;
inline constexpr U32 LPM_V6_TBL_GUID = 51;

/// Read by table id, 0 to 61.  Both arrays are read directly.
class xpTableProfile {
 public:
  static constexpr U32 numTables = 62;

  xpTableProfile() = default;
  xpTableProfile(xpTableProfile const&) = delete;
  xpTableProfile& operator=(xpTableProfile const&) = delete;
  virtual ~xpTableProfile() = default;

  /// Copies of the table; 0 where the device has no such table.
  U32 copyNum[numTables] = {};
  /// First element of an array of concrete contexts, one a copy; owned by the SDK.  Null where the
  /// device has no such table.
  xpTableContext* tblCtx[numTables] = {};
};

static_assert(sizeof(xpTableProfile) == sizeof(void*) + 62 * sizeof(U32) + 62 * sizeof(void*));
