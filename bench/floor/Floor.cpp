// The floors, written straight down.
#include "bench/floor/Floor.h"

#include <array>

namespace floor_ {

namespace {

std::size_t failed = 0;

void tell(std::vector<Listener*> const& listeners) {
  std::array<Listener*, 16> held;
  std::size_t const count = listeners.size();
  for (std::size_t i = 0; i < count; ++i) {
    held[i] = listeners[i];
    held[i]->referencesInc();
  }
  for (std::size_t i = 0; i < count; ++i) {
    if (i == 0 || held[i]->references() > 1) {
      try {
        held[i]->onChange();
      } catch (...) {
        ++failed;
      }
    }
    held[i]->referencesDec();
  }
}

}  // namespace

void valueIs(Plain& plain, U32 value) {
  if (plain.value == value) return;
  plain.value = value;
  ++plain.version;
}

void valueIsAndTell(Plain& plain, U32 value) {
  if (plain.value == value) return;
  plain.value = value;
  ++plain.version;
  if (!plain.listeners.empty()) tell(plain.listeners);
}

std::size_t failures() { return failed; }

}  // namespace floor_
