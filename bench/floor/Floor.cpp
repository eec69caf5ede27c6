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

U32 read(Numbered const& numbered, U32 id) {
  switch (id) {
    case 258:
      return numbered.value[0];
    case 259:
      return numbered.value[1];
    case 262:
      return numbered.value[4];
    case 263:
      return numbered.value[5];
    case 264:
      return numbered.value[6];
    default:
      return 0;
  }
}

void write(Numbered& numbered, U32 id, U32 value) {
  switch (id) {
    case 258:
      numbered.value[0] = value;
      return;
    case 259:
      numbered.value[1] = value;
      return;
    case 262:
      numbered.value[4] = value;
      return;
    case 263:
      numbered.value[5] = value;
      return;
    case 264:
      numbered.value[6] = value;
      return;
    default:
      return;
  }
}

std::size_t failures() { return failed; }

}  // namespace floor_
