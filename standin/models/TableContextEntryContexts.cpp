// How a published table takes and gives the SDK's contexts.
#include "Mox/Exception.h"
#include "Xdk/TableContext.h"
#include "XpXdk/TableContextEntry.h"
#include "standin/models/ContextBytes.h"

namespace XpXdk {

namespace {

// Copies from `count` on go, each with its notification, and the number ahead of them: who is told
// of a number finds that many copies.
void copiesAre(TableContextEntry& entry, U32 count) {
  U32 const former = entry.tblCopyNum();
  if (former <= count) return;
  entry.tblCopyNumIs(count);
  for (U32 copy = count; copy < former; ++copy) entry.tblContextDel(static_cast<U8>(copy));
}

}  // namespace

void TableContextEntry::xpTblContextIs(U8 copy, xpTableContext const* context) {
  if (copy > tblCopyNum())
    Mox::throwRangeException(Mox::format("table %u has no copy %u yet, ahead of copy %u", tableId(),
                                         tblCopyNum(), U32(copy)));
  // The first context tells the type of all.
  U32 const type = copy == 0 ? context->tableType : tableType();
  Mox::String8 const bytes = contextBytes(type, *context);
  copiesAre(*this, type == tableType() ? copy + 1u : 0);
  tableTypeIs(static_cast<U8>(type));
  tblContextIs(copy, bytes);
  tblCopyNumIs(copy + 1u);
}

void TableContextEntry::xpTblContext(U8 copy, xpTableContext* context, bool) const {
  if (!tblContextIteratorConst().isMemberOf(copy))
    Mox::throwRangeException(
        Mox::format("table %u has no context of copy %u", tableId(), U32(copy)));
  contextOfBytes(tableType(), tblContext(copy), context);
}

}  // namespace XpXdk
