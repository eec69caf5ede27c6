// Publication: what a table got, as an entry of the chip's status.
#include "Xdk/LpmTableContext.h"
#include "Xdk/TableContexts.h"
#include "XpLib/XpTableManSm.h"
#include "XpLib/XpTableManSmChecks.h"
#include "XpLib/XpTableManSmTrace.h"

#include <iterator>

namespace Kestrel {

using namespace xpTableManSm;

namespace {

// By table type, the distance from the context of one copy to that of the next; 0 for a code that
// is no type.
constexpr std::size_t contextSteps[] = {
    sizeof(xpMatchTableContext), sizeof(xpHashTableContext), sizeof(xpDirectTableContext), 0, 0, 0,
    sizeof(xpLpmTableContext),   sizeof(xpIsmeTableContext), sizeof(xpNhTableContext),
};

std::size_t contextStep(U32 tableType) {
  return tableType < std::size(contextSteps) ? contextSteps[tableType] : 0;
}

// The context of one copy in the SDK's array, whose elements are of the class of the first.
xpTableContext const* contextOf(xpTableContext const* first, std::size_t step, U8 copy) {
  return reinterpret_cast<xpTableContext const*>(reinterpret_cast<char const*>(first) +
                                                 step * copy);
}

}  // namespace

void TableManSm::doUpdateTableStatus(U32 tableId, Mox::String8 const& tableName, void* xptc,
                                     U8 tblCpyNum, U32 tableIdForMgr, U32 plMgrId) {
  static constinit Operation here(
      "doUpdateTableStatus",
      "void Kestrel::TableManSm::doUpdateTableStatus(U32, Mox::String, void*, U8, U32, U32)");
  // Deliberate: the copy number is one raw byte of the text, and may be a zero.
  traceText(1, here, [&](std::ostream& text) {
    text << "TableManSm::" << here.name << " DeviceId " << U32(deviceId().value()) << " TableId "
         << tableId << " tblCopyNum " << tblCpyNum << " plMgrId " << plMgrId << " tableIdForMgr "
         << tableIdForMgr;
  });
  here.site.log("TableManSm::", here.name, " DeviceId ", deviceId().value(), " TableId ", tableId,
                " tblCopyNum ", tblCpyNum, " plMgrId ", plMgrId, " tableIdForMgr ", tableIdForMgr);

  auto const* const first = *static_cast<xpTableContext**>(xptc);
  if (!first || first->first < 0) return;

  auto const entry = chipStatus()->tableContextEntryIs(tableId, tableName);
  entry->tableIdForMgrIs(tableIdForMgr);
  entry->plMgrIdIs(plMgrId);
  for (U8 copy = 0; copy < tblCpyNum; ++copy) {
    std::size_t const step = contextStep(first->tableType);
    moxAssert(step, "false", here);
    entry->xpTblContextIs(copy, contextOf(first, step, copy));
  }
}

}  // namespace Kestrel
