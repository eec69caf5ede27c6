// The last calls, kept for the moment in which the process aborts.
#pragma once

#include "Mox/Integers.h"
#include "standin/xdk/CallLog.h"

#include <array>
#include <atomic>
#include <string>

namespace xdksim {

/// The lines of the call log of the last 256 calls.  A signal handler may ask for them at any
/// moment: it reads no line that is being written.  Buffers are used again, so that a call
/// allocates nothing once they have grown.
class History {
 public:
  static constexpr U32 room = 256;

  /// A call begins; what it answers isn't known until it does.
  void callBegins(ManagerId manager, Call call, CallArguments const& arguments,
                  xpTableProfile const* tables);
  /// The call that has begun ends.
  void callEnds(XP_STATUS status);
  /// The line of the last call that has ended; valid until the next ends.  There must be one.
  std::string const& last() const { return lines_[placeBehind(next_, room)]; }

  /// Writes "simulated SDK: the last <n> calls:" and their lines, oldest first, to standard error;
  /// a call that hasn't ended has "?" as its status.  Nothing before the first call.  A signal
  /// handler may call it.
  void tell() const noexcept;

 private:
  // One place more than there are lines to tell: the next line is written there.
  static constexpr U32 numPlaces = room + 1;
  static U32 placeBehind(U32 place, U32 steps) { return (place + steps) % numPlaces; }

  std::array<std::string, numPlaces> lines_;
  std::atomic<U32> next_ = 0;   // place of the next line
  std::atomic<U32> count_ = 0;  // lines behind one another in front of it
  std::string current_;         // the call that has begun, but for its status
  std::atomic<bool> isInside_ = false;
};

}  // namespace xdksim
