// The base of the table contexts: the head that every context record has.
#pragma once

#include "Mox/Integers.h"

// Records lie back to back in arrays at steps that are multiples of 4 and not of 8, so no record,
// its virtual-table word included, may ask for more than 4-byte alignment, also where a pointer
// takes 8 bytes.
#pragma pack(push, 4)

/// One copy of a table, as the SDK placed it on the chip.  The head takes 16 bytes in both word
/// sizes, so that the records behind it have one layout in both.
class xpTableContext {
 public:
  xpTableContext() = default;
  explicit xpTableContext(U32 type) : tableType(type) {}
  xpTableContext(xpTableContext const&) = default;
  xpTableContext& operator=(xpTableContext const&) = default;
  virtual ~xpTableContext() = default;

  /// Negative while the table isn't in use; a fresh record holds -1.
  S32 first = -1;
  /// The code of the record's class: 0 MATCH, 1 HASH, 2 DIRECT, 6 LPM, 7 ISME, 8 NH.
  U32 tableType = 0;

 private:
  U32 : (8 - sizeof(void*)) * 8;  // makes up for the shorter virtual-table word of 32 bit
};

#pragma pack(pop)

static_assert(sizeof(xpTableContext) == 16 && alignof(xpTableContext) == 4);
