// The handler of the signal of an abort.
#include "standin/xdk/LastWords.h"

#include <cerrno>
#include <charconv>
#include <iterator>
#include <unistd.h>

namespace xdksim {

void (*LastWords::speak_)() = nullptr;
struct sigaction LastWords::former_ {};

LastWords::LastWords(void (*speak)()) {
  speak_ = speak;
  struct sigaction own {};
  own.sa_handler = handle;
  sigemptyset(&own.sa_mask);
  sigaction(SIGABRT, &own, &former_);
}

LastWords::~LastWords() {
  struct sigaction now {};
  sigaction(SIGABRT, nullptr, &now);
  if (now.sa_handler == handle) sigaction(SIGABRT, &former_, nullptr);
  speak_ = nullptr;
}

// The signal is blocked in here, so that what is raised comes to the former handler on return.
void LastWords::handle(int signal) {
  if (speak_) speak_();
  sigaction(signal, &former_, nullptr);
  raise(signal);
}

void LastWords::say(std::string_view text) noexcept {
  while (!text.empty()) {
    ssize_t const written = write(STDERR_FILENO, text.data(), text.size());
    if (written > 0)
      text.remove_prefix(static_cast<std::size_t>(written));
    else if (errno != EINTR)
      return;
  }
}

void LastWords::say(U32 number) noexcept {
  char digits[10];
  say({digits, std::to_chars(digits, std::end(digits), number).ptr});
}

}  // namespace xdksim
