// Lines in a ring, and the heading above them.
#include "standin/xdk/History.h"

#include "standin/xdk/LastWords.h"

#include <algorithm>

namespace xdksim {

void History::callBegins(ManagerId manager, Call call, CallArguments const& arguments,
                         xpTableProfile const* tables) {
  current_.clear();
  appendCall(current_, manager, call, arguments, tables);
  isInside_ = true;
}

void History::callEnds(XP_STATUS status) {
  isInside_ = false;
  std::string& line = lines_[next_];
  line = current_;
  line += std::to_string(status);
  next_ = placeBehind(next_, 1);
  count_ = std::min(count_ + 1, room);
}

void History::tell() const noexcept {
  U32 const inside = isInside_ ? 1 : 0;
  U32 const ended = std::min<U32>(count_, room - inside);
  if (ended + inside == 0) return;
  LastWords::say("simulated SDK: the last ");
  if (ended + inside > 1) LastWords::say(ended + inside);
  LastWords::say(ended + inside > 1 ? " calls:\n" : "call:\n");
  for (U32 steps = ended; steps > 0; --steps) {
    LastWords::say(lines_[placeBehind(next_, numPlaces - steps)]);
    LastWords::say("\n");
  }
  if (inside == 0) return;
  LastWords::say(current_);
  LastWords::say("?\n");
}

}  // namespace xdksim
