// Lines in a ring, and the heading above them.
#include "standin/xdk/History.h"

#include "standin/xdk/LastWords.h"

#include <algorithm>

namespace xdksim {

void History::callBegins(ManagerId manager, Call call, CallArguments const& arguments,
                         xpTableProfile const* tables) {
  std::string& line = lineOf(numCalls_++);
  line.clear();
  appendCall(line, manager, call, arguments, tables);
  statusAt_ = line.size();
  line += '?';
  if (numCalls_ > room) return;
  heading_ = "simulated SDK: the last ";
  heading_ += numCalls_ == 1 ? "call:\n" : std::to_string(numCalls_) + " calls:\n";
}

void History::callEnds(XP_STATUS status) {
  std::string& line = lineOf(numCalls_ - 1);
  line.resize(statusAt_);
  line += std::to_string(status);
}

std::string const& History::last() const { return lineOf(numCalls_ - 1); }

void History::tell() const noexcept {
  if (numCalls_ == 0) return;
  LastWords::say(heading_);
  for (U64 call = numCalls_ - std::min<U64>(numCalls_, room); call < numCalls_; ++call) {
    LastWords::say(lineOf(call));
    LastWords::say("\n");
  }
}

}  // namespace xdksim
