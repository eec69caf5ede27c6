// Table contexts as byte strings: the fields of a record in network byte order, in the order of the
// record, without its virtual-table word and without gaps, so that a string means the same in
// processes of any word size.
#pragma once

#include "Mox/String8.h"
#include "Xdk/TableContext.h"

namespace XpXdk {

/// The fields of `context`.  Throws `RangeException` when it isn't of the class that `tableType`
/// stands for, or when that is no type.
Mox::String8 contextBytes(U32 tableType, xpTableContext const& context);

/// Fills `context` with the fields that `bytes` hold.  Throws likewise, and when the bytes are more
/// or fewer than the fields of the class take; `context` is left alone then.
void contextOfBytes(U32 tableType, Mox::String8 const& bytes, xpTableContext* context);

}  // namespace XpXdk
