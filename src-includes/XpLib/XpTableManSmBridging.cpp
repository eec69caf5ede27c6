// The bridging, multicast, port-VLAN and next-hop tables.
#include "XpLib/XpTableManSmSingleTable.h"
#include "XpLib/XpTableManSmTrace.h"

namespace Kestrel {

using namespace xpTableManSm;

// The ingress table is published before the egress manager is asked for.
void TableManSm::doCreateBdTables() {
  static constinit Operation here("doCreateBdTables",
                                  "void Kestrel::TableManSm::doCreateBdTables()");
  traceEntry(here, deviceId().value());
  createTable(*this, ingressBd, here);
  createTable(*this, egressBd, here);
}

void TableManSm::doCreateFdbTable() {
  static constinit Operation here("doCreateFdbTable",
                                  "void Kestrel::TableManSm::doCreateFdbTable()");
  traceEntry(here, deviceId().value());
  createTable(*this, fdb, here);
}

void TableManSm::doCreateRouteMcTable() {
  static constinit Operation here("doCreateRouteMcTable",
                                  "void Kestrel::TableManSm::doCreateRouteMcTable()");
  traceEntry(here, deviceId().value());
  createTable(*this, routeMc, here);
}

// The table is created and not published.
void TableManSm::doCreatePimTable() {
  static constinit Operation here("doCreatePimTable",
                                  "void Kestrel::TableManSm::doCreatePimTable()");
  traceEntry(here, deviceId().value());
  TableRun(*this, pim, here).add();
}

void TableManSm::doCreatePortVlanTable() {
  static constinit Operation here("doCreatePortVlanTable",
                                  "void Kestrel::TableManSm::doCreatePortVlanTable()");
  traceEntry(here, deviceId().value());
  createTable(*this, portVlan, here);
}

void TableManSm::doCreateMdtTable() {
  static constinit Operation here("doCreateMdtTable",
                                  "void Kestrel::TableManSm::doCreateMdtTable()");
  traceEntry(here, deviceId().value());
  createTable(*this, mdt, here);
}

// No device is without a next-hop table.  The trace is one for development: its own level, no
// record.
void TableManSm::doCreateNhTables() {
  static constinit Operation here("doCreateNhTables",
                                  "void Kestrel::TableManSm::doCreateNhTables()");
  traceText(8, here, [](std::ostream& text) { text << here.signature; });
  TableRun run(*this, nextHop, here);
  moxAssert(run.tblCopyNum(), "nhTblCopyNum", here);
  run.add();
  run.publish();
}

}  // namespace Kestrel
