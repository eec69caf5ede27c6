// The tables of access control.
#include "XpLib/XpTableManSmSingleTable.h"
#include "XpLib/XpTableManSmTableGroup.h"
#include "XpLib/XpTableManSmTrace.h"

namespace Kestrel {

using namespace xpTableManSm;

namespace {

// Exactly -1: what else is negative goes to the manager, though it isn't published.
bool isInUse(xpTableContext const* context) { return context && context->first != -1; }

}  // namespace

// The table of source ports is published before the manager of the other is asked for.
void TableManSm::doCreateL4PortTables() {
  static constinit Operation here("doCreateL4PortTables",
                                  "void Kestrel::TableManSm::doCreateL4PortTables()");
  traceEntry(here, deviceId().value());
  createTable(*this, l4SrcPort, here);
  createTable(*this, l4DstPort, here);
}

// The one operation without a trace.  The first table's number of copies serves all, and all go to
// the manager, also those that the device lacks.
void TableManSm::doCreateAaclMgksTables() {
  static constinit Operation here("doCreateAaclMgksTables",
                                  "void Kestrel::TableManSm::doCreateAaclMgksTables()");
  GroupRun run(*this, mgks, here);
  U8 const numTblCopies = static_cast<U8>(run.copyNum(0));
  for (U32 i = 0; i < mgks.size; ++i) {
    run.fillWord(i);
    run.enter(i);
  }
  run.add(numTblCopies);
  for (U32 i = 0; i < mgks.size; ++i) run.publish(i, numTblCopies);
}

// Copies are compared before the context is looked at, so also those of a table that isn't in use.
void TableManSm::doCreateAaclMgTables() {
  static constinit Operation here("doCreateAaclMgTables",
                                  "void Kestrel::TableManSm::doCreateAaclMgTables()");
  traceEntry(here, deviceId().value());
  GroupRun run(*this, aaclMg, here);
  U32 tblCopyNum = 0;
  for (U32 i = 0; i < aaclMg.size; ++i) {
    U32 const perTableCopyNum = run.copyNum(i);
    if (perTableCopyNum == 0) continue;
    tblCopyNum = agreedCopyNum(tblCopyNum, perTableCopyNum, here);
    if (isInUse(run.fillWord(i))) run.enter(i);
  }
  moxAssert(!run.list().records().empty(), "index", here);
  run.add(static_cast<U8>(tblCopyNum));
  for (U32 i = 0; i < aaclMg.size; ++i) {
    if (isInUse(run.list().word(i))) run.publish(i, static_cast<U8>(tblCopyNum));
  }
}

// The device comes in one call and its tables in a second.  The first table's number of copies
// serves all.
void TableManSm::doCreateIAclTables() {
  static constinit Operation here("doCreateIAclTables",
                                  "void Kestrel::TableManSm::doCreateIAclTables()");
  traceEntry(here, deviceId().value());
  U8 const numTblCopies = static_cast<U8>(tableProfile()->copyNum[iacl.firstId]);
  traceText(1, here, [&](std::ostream& text) {
    text << here.name << " DeviceId " << U32(deviceId().value())
         << " Number of IACL TCAM Table Copies : " << U32(numTblCopies);
  });

  GroupRun run(*this, iacl, here);
  for (U32 i = 0; i < iacl.size; ++i) {
    run.fillWord(i);
    run.enter(i);
  }
  xpIaclMgr& iaclMgr = run.manager();
  check(iaclMgr.addDevice(deviceId().value()), "((iaclMgr->addDevice( deviceId().value() )))",
        here);
  check(iaclMgr.createTable(deviceId().value(), run.list().records(), numTblCopies,
                            TABLE_INIT_WITH_FIXED_INFO),
        iacl.call, here);
  for (U32 i = 0; i < iacl.size; ++i) run.publish(i, numTblCopies);
}

}  // namespace Kestrel
