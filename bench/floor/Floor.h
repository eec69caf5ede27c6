// The floors of the benches of mutators and of access by number: the least that the same promises
// can cost, in a library of its own.
#pragma once

#include "Mox/PtrInterface.h"

#include <cstddef>
#include <vector>

namespace floor_ {

/// Somebody who hears of a change.
class Listener : public Mox::PtrInterface {
 public:
  virtual void onChange() = 0;
};

/// A plain struct with a version, behind a call into a shared library.
struct Plain {
  U32 value = 0;
  U32 version = 0;
  std::vector<Listener*> listeners;
};

/// Compare, store, step the version.
void valueIs(Plain& plain, U32 value);

/// The same, and a hand-written loop over the listeners with the promises of a real delivery: a
/// snapshot on the stack, each member held by a counted reference, each call inside a catch,
/// members that only the snapshot still holds passed over.
void valueIsAndTell(Plain& plain, U32 value);

/// Seven numbers, of which `id`, from 258 on, names one: a switch, and nothing around the value.
struct Numbered {
  U32 value[7] = {};
};
U32 read(Numbered const& numbered, U32 id);
void write(Numbered& numbered, U32 id, U32 value);

/// How many exceptions listeners have raised: keeps the catch alive.
std::size_t failures();

}  // namespace floor_
