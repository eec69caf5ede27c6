// A small fixed set of bits in one word.
#pragma once

#include "Mox/Assert.h"

#include <limits>
#include <type_traits>

namespace Mox {

/// `bits` bits in a `Word`, all clear at first.  A position that is out of range ends the process
/// through the assertion "pos>=0 && pos<bits".
template <int bits, class Word>
class BitSet {
  static_assert(std::is_unsigned_v<Word> && bits > 0 && bits <= std::numeric_limits<Word>::digits,
                "the bits must fit the word");

 public:
  constexpr BitSet() = default;

  constexpr void set(int pos) {
    require(pos, "void Mox::BitSet<bits, Word>::set(int)");
    word_ = static_cast<Word>(word_ | bit(pos));
  }
  constexpr void reset(int pos) {
    require(pos, "void Mox::BitSet<bits, Word>::reset(int)");
    word_ = static_cast<Word>(word_ & ~bit(pos));
  }
  constexpr bool isSet(int pos) const {
    require(pos, "bool Mox::BitSet<bits, Word>::isSet(int) const");
    return (word_ & bit(pos)) != 0;
  }
  constexpr bool empty() const noexcept { return word_ == 0; }
  /// All bits, position 0 lowest.
  constexpr Word word() const noexcept { return word_; }

  constexpr bool operator==(BitSet const&) const = default;

 private:
  static constexpr Word bit(int pos) noexcept { return static_cast<Word>(Word{1} << pos); }
  static constexpr void require(int pos, char const* function, int line = __builtin_LINE()) {
    if (!(pos >= 0 && pos < bits)) [[unlikely]]
      assertionFailed("pos>=0 && pos<bits", "/usr/include/Mox/BitSet.h", line, function);
  }

  Word word_ = 0;
};

}  // namespace Mox
