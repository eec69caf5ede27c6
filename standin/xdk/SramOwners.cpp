// The register of blocks.
#include "standin/xdk/SramOwners.h"

#include <algorithm>

namespace xdksim {
namespace {

/// Copies of one table may lie on the same blocks.
bool mayShare(TableCopy const& one, TableCopy const& other) {
  return one.table == other.table || (one.declaresShared && other.declaresShared);
}

}  // namespace

std::optional<SramOverlap> SramOwners::put(TableCopy const& copy,
                                           std::vector<SramRun> const& runs) {
  for (SramRun const& run : runs) {
    for (SramBlock const& block : sramBlocks(run)) {
      auto& owners = owners_[block];
      auto const other = std::ranges::find_if_not(
          owners, [&copy](TableCopy const& owner) { return mayShare(owner, copy); });
      if (other != owners.end()) return SramOverlap{block, *other, copy};
      owners.push_back(copy);
    }
  }
  return {};
}

}  // namespace xdksim
