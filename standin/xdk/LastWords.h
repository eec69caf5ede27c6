// Text that follows when the process aborts.
#pragma once

#include "Mox/Integers.h"

#include <csignal>
#include <string_view>

namespace xdksim {

/// While it lives, an abort of the process, or its signal from outside, calls `speak` before it is
/// handled as it was before: by default the process ends.  Whoever says why the process aborts has
/// done so by then, so the text stands behind it.  One at a time.
class LastWords {
 public:
  /// `speak` runs in a signal handler, which may come at any moment: it hands text and numbers that
  /// are whole at every moment to `say`, and does no more.
  explicit LastWords(void (*speak)());
  /// The former handler is back, unless another one has come since.
  ~LastWords();
  LastWords(LastWords const&) = delete;
  LastWords& operator=(LastWords const&) = delete;

  /// Writes to standard error, past all buffers.
  static void say(std::string_view text) noexcept;
  static void say(U32 number) noexcept;

 private:
  static void handle(int signal);

  static void (*speak_)();
  static struct sigaction former_;
};

}  // namespace xdksim
