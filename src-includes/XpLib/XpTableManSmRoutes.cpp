// The tables of routes and hosts.  Both tables of a pair go to their managers before either is
// published.
#include "XpLib/XpTableManSmSingleTable.h"
#include "XpLib/XpTableManSmTrace.h"
#include "XpLib/XpTableManSmTreads.h"

namespace Kestrel {

using namespace xpTableManSm;

// The first copy of each table takes its treads from the plan; other copies keep the SDK's.
void TableManSm::doCreateLpmTables() {
  static constinit Operation here("doCreateLpmTables",
                                  "void Kestrel::TableManSm::doCreateLpmTables()");
  traceEntry(here, deviceId().value());
  TableRun v4(*this, lpmV4, here);
  doUpdateLpmTblCtx(lpmV4.id, v4.tblCtx(), lpmTreadCfg());
  v4.add();
  TableRun v6(*this, lpmV6, here);
  doUpdateLpmTblCtx(lpmV6.id, v6.tblCtx(), lpmTreadCfg());
  v6.add();
  v4.publish();
  v6.publish();
}

void TableManSm::doCreateHostTables() {
  static constinit Operation here("doCreateHostTables",
                                  "void Kestrel::TableManSm::doCreateHostTables()");
  traceEntry(here, deviceId().value());
  TableRun v4(*this, v4Host, here);
  v4.add();
  TableRun v6(*this, v6Host, here);
  v6.add();
  v4.publish();
  v6.publish();
}

}  // namespace Kestrel
