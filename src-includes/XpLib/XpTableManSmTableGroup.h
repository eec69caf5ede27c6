// Tables that one manager gets together: the list that names them, and the steps of an operation
// on such a group.
#pragma once

#include "Xdk/TblCtxPerIdx.h"
#include "XpLib/XpTableManSm.h"
#include "XpLib/XpTableManSmChecks.h"
#include "XpLib/XpTableManSmManagers.h"
#include "XpLib/XpTableManSmTables.h"

#include <array>
#include <vector>

namespace Kestrel::xpTableManSm {

/// A record for each table that the manager is to get, and the words that the records point at,
/// each of which holds a table's first context.
class TableList {
 public:
  TableList() = default;
  ~TableList();
  TableList(TableList const&) = delete;
  TableList& operator=(TableList const&) = delete;

  /// The word of a place of the group, 0 to 7; null until it is filled.
  xpTableContext*& word(U32 place) { return words_[place]; }

  /// A zeroed record behind the others.
  xpTblCtxPerIdx& append();
  /// Makes the record that of the table at `place`.
  void placeIs(xpTblCtxPerIdx& record, U32 place);

  /// The list as the SDK takes it.
  std::vector<xpTblCtxPerIdx*>& records() { return records_; }
  /// Lets go of the records without freeing them.
  void recordsDelAll() { records_.clear(); }

 private:
  std::array<xpTableContext*, 8> words_ = {};
  std::vector<xpTblCtxPerIdx*> records_;  // owned
};

/// The number of copies that the tables of a group have so far, 0 before the first, when one more
/// has `perTableCopyNum`, which isn't 0.  Ends the process by an assertion when that is above 2 or
/// another number.
U32 agreedCopyNum(U32 tblCopyNum, U32 perTableCopyNum, Operation const& in,
                  int line = __builtin_LINE());

/// One operation's work on a group, table by table; `i` is a table's place in the group.
template <class Layer, class Manager>
class GroupRun {
 public:
  /// Finds the manager, which must be there.  Manager and row outlive the run.
  GroupRun(TableManSm& sm, TableGroup<Layer, Manager> const& group, Operation const& in,
           int line = __builtin_LINE())
      : sm_(sm), group_(group), in_(in), manager_(managerOf<Layer, Manager>()) {
    moxAssert(manager_, group.manager, in, line);
  }

  Manager& manager() { return *manager_; }
  TableList& list() { return list_; }

  /// The profile's whole word.
  U32 copyNum(U32 i) const { return sm_.tableProfile()->copyNum[group_.firstId + i]; }
  /// Fills the table's word from the profile.
  xpTableContext* fillWord(U32 i) {
    return list_.word(i) = sm_.tableProfile()->tblCtx[group_.firstId + i];
  }
  /// Enters the table, whose word is filled, into the list.
  void enter(U32 i) { list_.placeIs(list_.append(), i); }

  /// Gives the tables of the list to the manager.
  void add(U8 tblCopyNum, int line = __builtin_LINE()) {
    check(manager_->addDevice(sm_.deviceId().value(), list_.records(), tblCopyNum,
                              TABLE_INIT_WITH_FIXED_INFO),
          group_.call, in_, line);
  }

  void publish(U32 i, U8 tblCopyNum) {
    sm_.doUpdateTableStatus(group_.firstId + i, Mox::format(group_.name, i), &list_.word(i),
                            tblCopyNum, i, plMgrIdOf<Manager>());
  }

 private:
  TableManSm& sm_;
  TableGroup<Layer, Manager> const& group_;
  Operation const& in_;
  Manager* manager_;  // the SDK's
  TableList list_;
};

}  // namespace Kestrel::xpTableManSm
