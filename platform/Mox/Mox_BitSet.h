// The flag word of a notifiee.
#pragma once

#include "Mox/Integers.h"

namespace Mox {

// Bits of an adapter's flag word.
inline constexpr U32 registeredWhenDeactivated = 0x80000;  ///< it was, when it was switched off
inline constexpr U32 outboundEnabled = 0x4000000;  ///< without it nothing is written to a log

}  // namespace Mox

/// The flag word of a notifiee.  What its bits mean is the business of the notifiee's kind.
class Mox_BitSet {
 public:
  constexpr Mox_BitSet() = default;
  constexpr explicit Mox_BitSet(U32 bits) : bits_(bits) {}

  constexpr U32 bits() const { return bits_; }
  constexpr bool has(U32 mask) const { return (bits_ & mask) != 0; }

  constexpr bool operator==(Mox_BitSet const& other) const = default;
  constexpr bool operator!=(Mox_BitSet const& other) const = default;

 private:
  U32 bits_ = 0;
};
