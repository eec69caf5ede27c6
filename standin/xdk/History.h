// The last calls, kept for the moment in which the process aborts.
#pragma once

#include "Mox/Integers.h"
#include "standin/xdk/CallLog.h"

#include <array>
#include <string>

namespace xdksim {

/// The lines of the call log of the last 256 calls.  Their text is made as the calls come, because
/// a signal handler may do no more than write it; buffers are used again, so that a call allocates
/// nothing once they have grown.
class History {
 public:
  static constexpr U32 room = 256;

  /// Enters a call, with "?" as its status: what it answers isn't known until it does.
  void callBegins(ManagerId manager, Call call, CallArguments const& arguments,
                  xpTableProfile const* tables);
  /// Gives the last call its status.
  void callEnds(XP_STATUS status);
  /// The last call's line; valid until the next begins.  There must be one.
  std::string const& last() const;

  /// Writes "simulated SDK: the last <n> calls:" and their lines, oldest first, to standard error;
  /// nothing before the first call.  A signal handler may call it.
  void tell() const noexcept;

 private:
  std::string& lineOf(U64 call) { return lines_[call % room]; }
  std::string const& lineOf(U64 call) const { return lines_[call % room]; }

  std::array<std::string, room> lines_;
  std::string heading_;
  std::size_t statusAt_ = 0;  // place of the status in the last line
  U64 numCalls_ = 0;
};

}  // namespace xdksim
