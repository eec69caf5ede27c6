// The single-table pattern: find the manager, give it the table, publish the table.
#pragma once

#include "Xdk/TableProfile.h"
#include "XpLib/XpTableManSm.h"
#include "XpLib/XpTableManSmChecks.h"
#include "XpLib/XpTableManSmManagers.h"
#include "XpLib/XpTableManSmTables.h"

namespace Kestrel::xpTableManSm {

/// One run of the pattern, kept by an operation for as long as it works on the table.  The steps
/// are called in the order in which they stand here; what lies between them is the operation's.
template <class Layer, class Manager>
class TableRun {
 public:
  /// Finds the manager, which must be there, and reads the profile.  Manager and row outlive the
  /// run.
  TableRun(TableManSm& sm, SingleTable<Layer, Manager> const& table, Operation const& in,
           int line = __builtin_LINE())
      : sm_(sm), table_(table), in_(in), manager_(managerOf<Layer, Manager>(table.index)) {
    moxAssert(manager_, table.manager, in, line);
    tblCopyNum_ = static_cast<U8>(sm.tableProfile()->copyNum[table.id]);
    tblCtx_ = sm.tableProfile()->tblCtx[table.id];
  }
  TableRun(TableRun const&) = delete;
  TableRun& operator=(TableRun const&) = delete;

  /// Copies of the table: the low byte of the profile's word.
  U8 tblCopyNum() const { return tblCopyNum_; }
  /// The first copy's context; null where the device has no such table.
  xpTableContext* tblCtx() const { return tblCtx_; }

  /// Gives the table to the manager, also one of no copies or without context.
  void add(int line = __builtin_LINE()) {
    check(manager_->addDevice(sm_.deviceId().value(), &tblCtx_, tblCopyNum_,
                              TABLE_INIT_WITH_FIXED_INFO),
          table_.call, in_, line);
  }

  void publish() {
    sm_.doUpdateTableStatus(table_.id, table_.name, &tblCtx_, tblCopyNum_, 0,
                            plMgrIdOf<Manager>(table_.index));
  }

 private:
  TableManSm& sm_;
  SingleTable<Layer, Manager> const& table_;
  Operation const& in_;
  xpPrimitiveMgr* manager_;  // the SDK's
  U8 tblCopyNum_;
  xpTableContext* tblCtx_;
};

/// The pattern from end to end.
template <class Layer, class Manager>
void createTable(TableManSm& sm, SingleTable<Layer, Manager> const& table, Operation const& in,
                 int line = __builtin_LINE()) {
  TableRun run(sm, table, in, line);
  run.add(line);
  run.publish();
}

}  // namespace Kestrel::xpTableManSm
