// Immutable counted byte strings, and the read position that the parsers work on.
#pragma once

#include "Mox/Integers.h"
#include "Mox/ReferenceWord.h"

#include <array>
#include <compare>
#include <iosfwd>
#include <string_view>
#include <utility>

namespace Mox {

/// An immutable string of `Char`, one pointer to a shared `Data` record.  A null pointer is the
/// empty string, and no empty string allocates.  Copies share the record; its count follows the
/// process's thread-safety switch.  Bytes are counted: a zero among them is a byte like any other.
/// A text longer than `maxSize` throws `RangeException` "a string can't hold <n> bytes".
template <class Char>
class StringN {
 public:
  /// The shared record: reference word, length, the bytes and a closing zero.
  struct Data {
    ReferenceWord references;
    U32 length;

    Char* bytes() noexcept { return reinterpret_cast<Char*>(this + 1); }
    Char const* bytes() const noexcept { return reinterpret_cast<Char const*>(this + 1); }
    std::string_view view() const noexcept {
      return {reinterpret_cast<char const*>(bytes()), length};
    }
    /// Byte-wise, the length first.
    bool operator==(Data const& other) const noexcept { return view() == other.view(); }
    /// Byte-wise, unsigned; a prefix is less than what it begins.
    bool operator<(Data const& other) const noexcept { return view() < other.view(); }
  };

  /// A record without bytes of its own, with the zero that closes it.
  struct NullData : Data {
    Char zero = 0;
  };

  /// A read position: the string and the index of the next byte.  It holds the string.
  class IteratorConst {
   public:
    IteratorConst() = default;
    IteratorConst(StringN const& string, U32 index) : string_(string), index_(index) {}
    /// The byte at the position; 0 at the end.
    Char operator*() const noexcept { return string_[index_]; }
    IteratorConst& operator++() noexcept {
      ++index_;
      return *this;
    }
    U32 index() const noexcept { return index_; }
    void indexIs(U32 index) noexcept { index_ = index; }
    StringN const& string() const noexcept { return string_; }
    bool operator==(IteratorConst const& other) const noexcept { return index_ == other.index_; }

   private:
    StringN string_;
    U32 index_ = 0;
  };

  /// Bytes that a string can hold at most.
  static constexpr U32 maxSize = 0x7FFFFFFF;

  /// The shared empty record.  Its word keeps it alive whatever is counted on it.
  static NullData nullStringData_;

  constexpr StringN() noexcept = default;
  /// From zero-terminated bytes; a null pointer gives the empty string.
  StringN(char const* text);
  StringN(char const* bytes, U32 length) { init(bytes, 0, length); }
  StringN(std::string_view text);
  StringN(StringN const& other) noexcept : data_(other.data_) {
    if (data_) data_->references.inc();
  }
  StringN(StringN&& other) noexcept : data_(std::exchange(other.data_, nullptr)) {}
  ~StringN() { drop(); }

  StringN& operator=(StringN const& other) noexcept {
    if (other.data_) other.data_->references.inc();
    Data* const former = std::exchange(data_, other.data_);
    if (former && former->references.dec()) free(former);
    return *this;
  }
  StringN& operator=(StringN&& other) noexcept;
  StringN& operator=(char const* text);

  /// Makes the string from `length` bytes; `flags` is 0 throughout this library.  What was held is
  /// dropped, after the bytes have been copied.
  void init(char const* bytes, U32 flags, U32 length);

  /// Appends.  Other strings that share the record keep what they had; a record that nobody shares
  /// grows where it stands.
  StringN& operator+=(char const* text);
  StringN& operator+=(StringN const& text);
  StringN operator+(char const* text) const;
  StringN operator+(StringN const& text) const;

  /// Zero-terminated bytes, valid as long as the string.
  char const* charPtr() const noexcept { return reinterpret_cast<char const*>(data().bytes()); }
  U32 size() const noexcept { return data_ ? data_->length : 0; }
  bool empty() const noexcept { return size() == 0; }
  /// The byte at `index`; 0 at and behind the end.
  Char operator[](U32 index) const noexcept {
    return index < size() ? data_->bytes()[index] : Char(0);
  }
  std::string_view view() const noexcept { return data().view(); }
  /// The shared record; `nullStringData_` for a string without one.
  Data const& data() const noexcept { return data_ ? *data_ : nullStringData_; }
  /// Up to `length` bytes from `position`; a position before 0 counts from 0, one behind the end
  /// gives the empty string.
  StringN substr(long long position, U32 length) const;
  /// One-at-a-time over the bytes; 0 for the empty string.  Linear in the bytes the first time that
  /// a record is asked, constant from then on.
  U32 hash() const noexcept {
    if (!data_) return 0;
    U32 const kept = __atomic_load_n(keptHash(data_), __ATOMIC_RELAXED);
    return kept != 0 ? kept : hashAnew();
  }

  IteratorConst begin() const { return IteratorConst(*this, 0); }
  IteratorConst end() const { return IteratorConst(*this, size()); }

  friend bool operator==(StringN const& a, StringN const& b) noexcept {
    return a.data_ == b.data_ || a.data() == b.data();
  }
  friend std::strong_ordering operator<=>(StringN const& a, StringN const& b) noexcept {
    return a.view() <=> b.view();
  }

 private:
  // The hash of a record's bytes, 0 until it is asked for.  It stands ahead of every record that
  // was made, and so not of `nullStringData_`.  Threads that share a record come to the same one.
  static U32* keptHash(Data* data) noexcept { return reinterpret_cast<U32*>(data) - 1; }

  U32 hashAnew() const noexcept;
  void append(std::string_view text);
  void drop() noexcept {
    if (data_ && data_->references.dec()) free(data_);
  }
  static Data* withRoom(Data* data, U32 length);
  static void free(Data* data) noexcept;

  Data* data_ = nullptr;
};

using String8 = StringN<unsigned char>;

String8 operator+(char const* a, String8 const& b);
std::ostream& operator<<(std::ostream& out, String8 const& text);

extern template class StringN<unsigned char>;

/// The one-at-a-time hash, fed piece by piece; all in 32 bits.
class OneAtATime {
 public:
  void add(U8 byte) noexcept {
    // The byte's part apart: it needn't wait for the bytes before.
    hash_ = (hash_ << 10) + (hash_ + byte * 1025u);
    hash_ ^= hash_ >> 6;
  }
  U32 finish() const noexcept {
    U32 hash = hash_ + (hash_ << 3);
    hash ^= hash >> 11;
    return hash + (hash << 15);
  }

 private:
  U32 hash_ = 0;
};

/// The 32 bits of `word` in reversed order.
constexpr U32 bitReverse(U32 word) noexcept {
  word = (word >> 16) | (word << 16);
  word = ((word & 0xFF00FF00) >> 8) | ((word & 0x00FF00FF) << 8);
  word = ((word & 0xF0F0F0F0) >> 4) | ((word & 0x0F0F0F0F) << 4);
  word = ((word & 0xCCCCCCCC) >> 2) | ((word & 0x33333333) << 2);
  return ((word & 0xAAAAAAAA) >> 1) | ((word & 0x55555555) << 1);
}

/// The same of each byte.
inline constexpr std::array<U8, 256> reversedBytes = [] {
  std::array<U8, 256> reversed{};
  for (U32 byte = 0; byte < 256; ++byte) reversed[byte] = static_cast<U8>(bitReverse(byte) >> 24);
  return reversed;
}();

/// Formats by all of printf's rules.  Throws `InternalException` "can't format by <pattern>" where
/// printf itself fails.
String8 format(char const* pattern, ...) __attribute__((format(printf, 1, 2)));

}  // namespace Mox
