// One simulated chip: its profile laid out in the records of the SDK.
#pragma once

#include "Xdk/Device.h"
#include "Xdk/TableProfile.h"
#include "standin/xdk/Profile.h"

#include <map>
#include <optional>

namespace xdksim {

/// The contexts of a table stand in one array, with fresh contexts behind those that the profile
/// lists, so that no operation reads past it: as many elements as the largest low byte of any copy
/// number, and at least 2.
class SimDevice : public xpDevice {
 public:
  explicit SimDevice(Profile profile);

  Profile const& profile() const { return profile_; }
  xpTableProfile& tableProfile() { return tableProfile_; }
  /// The table whose array of contexts begins there, or none.
  std::optional<U32> tableAt(xpTableContext const* first) const;
  /// The context of one copy; null behind the array's end.
  xpTableContext const* context(U32 tableId, U32 copy) const;
  bool tableProfileNull() const { return tableProfileNull_; }
  void tableProfileNullIs(bool isNull) { tableProfileNull_ = isNull; }

 private:
  void layOut(U32 tableId, Table const& table, std::size_t room);

  Profile profile_;
  std::map<U32, Contexts> arrays_;  // what `tableProfile_` points at
  xpTableProfile tableProfile_;
  bool tableProfileNull_ = false;
};

}  // namespace xdksim
