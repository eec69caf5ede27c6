// The call log: one line for each operation that is called on a manager.
#pragma once

#include "Xdk/TblCtxPerIdx.h"
#include "Xdk/Types.h"
#include "standin/xdk/Managers.h"

#include <functional>
#include <iosfwd>
#include <string>
#include <string_view>
#include <vector>

class xpTableProfile;

namespace xdksim {

/// What a call was told; an operation uses those that its row names.
struct CallArguments {
  U32 device = 0;
  xpTableContext* const* table = nullptr;
  std::vector<xpTblCtxPerIdx*> const* list = nullptr;
  U32 copies = 0;
  U32 mode = 0;
  U32 init = 0;
  U32 vif = 0;
  U32 direction = 0;
};

/// Takes one line, without its end.  Others may write to the same place between the calls.
using CallLog = std::function<void(std::string_view line)>;

/// Writes each line to `out`, which must outlive the log, and flushes it.
CallLog streamLog(std::ostream& out);

/// Appends "xpBdMgr[0]::addDevice device=0 table=31 copies=1 mode=1 -> ", all but the status. Table
/// ids are looked up in `tables`, the profile of the device; a context that isn't in it, or no
/// profile, shows "?".
void appendCall(std::string& line, ManagerId manager, Call call, CallArguments const& arguments,
                xpTableProfile const* tables);

}  // namespace xdksim
