// The tables that finish the path of a packet: tunnels, virtual interfaces, IP transformation and
// header modification.
#include "Xdk/Vif.h"
#include "XpLib/XpTableManSmSingleTable.h"
#include "XpLib/XpTableManSmTableGroup.h"
#include "XpLib/XpTableManSmTrace.h"

#include <algorithm>

namespace Kestrel {

using namespace xpTableManSm;

namespace {

// Enters the table with all that its record has, and publishes it at once: the manager gets it
// later.
void addIvifTable(TableManSm& sm, TunnelTable const& table, TableList& list) {
  U32 const place = static_cast<U32>(list.records().size());
  list.word(place) = sm.tableProfile()->tblCtx[table.id];
  xpTblCtxPerIdx& record = list.append();
  list.placeIs(record, place);
  record.numCopies = static_cast<U8>(sm.tableProfile()->copyNum[table.id]);
  record.tableIdForMgr = table.tableIdForMgr;
  sm.doUpdateTableStatus(table.id, table.name, &list.word(place), record.numCopies,
                         table.tableIdForMgr, plMgrIdOf<xpTunnelIvifMgr>());
}

}  // namespace

// A device has the two tables of end points and networks, or the one that combines them.
void TableManSm::doCreateTunnelTables() {
  static constinit Operation here("doCreateTunnelTables",
                                  "void Kestrel::TableManSm::doCreateTunnelTables()");
  traceEntry(here, deviceId().value());
  createTable(*this, tunnelInfo, here);

  auto* const tunIvifMgr = managerOf<xpTunnelPl, xpTunnelIvifMgr>();
  moxAssert(tunIvifMgr, "tunIvifMgr", here);
  U8 const tunIvifTblCopyNum = static_cast<U8>(tableProfile()->copyNum[tunnelIvif.id]);
  TableList tables;
  addIvifTable(*this, tunnelIvif, tables);
  if (static_cast<U8>(tableProfile()->copyNum[localVtepVni.id]) == 0) {
    addIvifTable(*this, localVtep, tables);
    addIvifTable(*this, vni, tables);
  } else {
    addIvifTable(*this, localVtepVni, tables);
  }
  check(tunIvifMgr->addDevice(deviceId().value(), tables.records(), tunIvifTblCopyNum,
                              TABLE_INIT_WITH_FIXED_INFO),
        "((tunIvifMgr->addDevice( deviceId().value(), tnlTblCtxPerIdx, tunIvifTblCopyNum, "
        "TABLE_INIT_WITH_FIXED_INFO )))",
        here);
  // Deliberate: this group's records stay allocated, a few words a bring-up.
  tables.recordsDelAll();
}

// Tables without copies are left out; contexts aren't looked at.
void TableManSm::doCreateVifTables() {
  static constinit Operation here("doCreateVifTables",
                                  "void Kestrel::TableManSm::doCreateVifTables()");
  traceEntry(here, deviceId().value());
  GroupRun run(*this, vif, here);
  U32 tblCopyNum = 0;
  for (U32 i = 0; i < vif.size; ++i) {
    U32 const perTableCopyNum = run.copyNum(i);
    if (perTableCopyNum == 0) continue;
    tblCopyNum = agreedCopyNum(tblCopyNum, perTableCopyNum, here);
    run.fillWord(i);
    run.enter(i);
  }
  moxAssert(!run.list().records().empty(), "index", here);
  run.add(static_cast<U8>(tblCopyNum));
  for (U32 i = 0; i < vif.size; ++i) {
    if (run.copyNum(i) != 0) run.publish(i, static_cast<U8>(tblCopyNum));
  }

  // The interface that stands for no port gets an empty entry.
  xpVifEntry vifEntry;
  U32 nullPortVifId = 0;
  xpAllocatorMgr::instance(0)->getNullPortVif(nullPortVifId);  // Deliberate: its status is ignored.
  check(run.manager().writeEntry(deviceId().value(), nullPortVifId, XP_INGRESS, &vifEntry),
        "((vifMgr->writeEntry( deviceId().value(), nullPortVifId, XP_INGRESS, &vifEntry)))", here);
}

void TableManSm::doCreateIpXformTables() {
  static constinit Operation here("doCreateIpXformTables",
                                  "void Kestrel::TableManSm::doCreateIpXformTables()");
  traceEntry(here, deviceId().value());
  createTable(*this, sipXform, here);
  createTable(*this, dipXform, here);
}

// All records go to the manager, but those behind the first table without copies stay zero.  The
// largest number of copies in front of it serves all.
void TableManSm::doCreateHeaderModTables() {
  static constinit Operation here("doCreateHeaderModTables",
                                  "void Kestrel::TableManSm::doCreateHeaderModTables()");
  traceEntry(here, deviceId().value());
  GroupRun run(*this, headerMod, here);
  for (U32 i = 0; i < headerMod.size; ++i) run.list().append();
  U8 tblCopyNum = 0;
  for (U32 i = 0; i < headerMod.size; ++i) {
    U8 const perTableCopyNum = static_cast<U8>(run.copyNum(i));
    if (perTableCopyNum == 0) break;
    tblCopyNum = std::max(tblCopyNum, perTableCopyNum);
    run.fillWord(i);
    run.list().placeIs(*run.list().records()[i], i);
  }
  run.add(tblCopyNum);
  check(run.manager().loadDefaultValue(deviceId().value()),
        "((hdrModMgr->loadDefaultValue( devId )))", here);
  for (U32 i = 0; i < headerMod.size; ++i) run.publish(i, tblCopyNum);
}

}  // namespace Kestrel
