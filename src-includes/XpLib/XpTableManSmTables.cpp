// From an id to the name in its row.
#include "XpLib/XpTableManSmTables.h"

#include "Mox/Mox.h"

namespace Kestrel::xpTableManSm {

namespace {

template <class Layer, class Manager>
Mox::String8 nameIn(SingleTable<Layer, Manager> const& table, U32 tableId) {
  return table.id == tableId && table.name ? table.name : Mox::String8();
}

// An id below the first wraps, and is past the last.
template <class Layer, class Manager>
Mox::String8 nameIn(TableGroup<Layer, Manager> const& group, U32 tableId) {
  U32 const table = tableId - group.firstId;
  return table < group.size ? Mox::format(group.name, table) : Mox::String8();
}

Mox::String8 nameIn(TunnelTable const& table, U32 tableId) {
  return table.id == tableId ? table.name : Mox::String8();
}

template <class... Rows>
Mox::String8 nameAmong(U32 tableId, Rows const&... rows) {
  for (Mox::String8 const& name : {nameIn(rows, tableId)...})
    if (!name.empty()) return name;
  return Mox::String8();
}

}  // namespace

Mox::String8 publishedName(U32 tableId) {
  return nameAmong(tableId, fdb, portVlan, v4Host, v6Host, routeMc, pim, vif, headerMod, mdt,
                   ingressBd, egressBd, l4SrcPort, l4DstPort, tunnelInfo, aaclMg, iacl, lpmV4,
                   lpmV6, nextHop, mgks, sipXform, dipXform, tunnelIvif, localVtepVni, localVtep,
                   vni);
}

}  // namespace Kestrel::xpTableManSm
