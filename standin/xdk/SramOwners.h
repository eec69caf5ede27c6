// Which tables lie on which blocks of the SRAM, as far as they were given to managers.
#pragma once

#include "standin/xdk/Managers.h"
#include "standin/xdk/Placement.h"

#include <map>
#include <optional>
#include <vector>

namespace xdksim {

/// One copy of a table in its manager's hands.
struct TableCopy {
  ManagerId manager;
  U32 table = 0;
  U32 copy = 0;
  bool declaresShared = false;
};

/// Two tables on one block that don't both declare it shared.
struct SramOverlap {
  SramBlock block;
  TableCopy first;
  TableCopy second;
};

class SramOwners {
 public:
  void clear() { owners_.clear(); }
  /// Puts the copy on its blocks, up to the first that another table has and that they don't both
  /// declare shared; that one, if there is one.
  std::optional<SramOverlap> put(TableCopy const& copy, std::vector<SramRun> const& runs);

 private:
  std::map<SramBlock, std::vector<TableCopy>> owners_;
};

}  // namespace xdksim
