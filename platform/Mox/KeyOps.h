// What a collection asks of its keys: a hash, equality, an order.
#pragma once

#include "Mox/Integers.h"
#include "Mox/String8.h"

#include <concepts>
#include <cstring>
#include <type_traits>

namespace Mox {

/// A key that is a number: an integer, a `bool`, an enumeration.
template <class Key>
concept NumberKey = std::is_integral_v<Key> || std::is_enum_v<Key>;

/// A key that hashes itself: strings, names, records.
template <class Key>
concept HashedKey = requires(Key const& key) {
  { key.hash() } -> std::convertible_to<U32>;
};

/// A value with one field.
template <class Key>
concept SingleFieldKey = requires(Key const& key) {
  static_cast<U32>(key.value());
};

/// A string by representation: its hash is worth keeping.
template <class Key>
concept StringKey = HashedKey<Key> && requires(Key const& key) {
  { key.view() } -> std::same_as<std::string_view>;
};

/// Byte-wise equality.  Keys are short: words read in place beat a call that is made for any
/// length.
inline bool sameBytes(std::string_view a, std::string_view b) noexcept {
  std::size_t const size = a.size();
  if (size != b.size()) return false;
  auto const sameAt = [&a, &b]<class Word>(std::size_t index, Word) noexcept {
    Word x;
    Word y;
    std::memcpy(&x, a.data() + index, sizeof x);
    std::memcpy(&y, b.data() + index, sizeof y);
    return x == y;
  };
  if (size >= 8) {
    for (std::size_t index = 0; index + 8 < size; index += 8)
      if (!sameAt(index, U64())) return false;
    return sameAt(size - 8, U64());
  }
  if (size >= 4) return sameAt(0, U32()) && sameAt(size - 4, U32());
  return std::memcmp(a.data(), b.data(), size) == 0;
}

/// Hash, equality and order of a collection's keys.  A single-field value without a public order is
/// ordered by its number.  Specialise it for a key whose order isn't the collection's.
template <class Key>
struct KeyOps {
  /// A number's low 32 bits; `hash()` of a key that has one; the number of a single-field value.
  static U32 hash(Key const& key) noexcept {
    if constexpr (NumberKey<Key>)
      return static_cast<U32>(key);
    else if constexpr (HashedKey<Key>)
      return key.hash();
    else {
      static_assert(SingleFieldKey<Key>, "a key is a number, or has hash() or value()");
      return static_cast<U32>(key.value());
    }
  }

  static bool equals(Key const& a, Key const& b) noexcept {
    if constexpr (StringKey<Key>)
      return sameBytes(a.view(), b.view());
    else
      return a == b;
  }
  static bool less(Key const& a, Key const& b) noexcept {
    if constexpr (requires { a < b; })
      return a < b;
    else
      return a.value() < b.value();
  }
};

}  // namespace Mox
