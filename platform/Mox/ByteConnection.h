// Primitives out of a run of bytes, in network byte order.
#pragma once

#include "Mox/PtrInterface.h"
#include "Mox/String8.h"

#include <concepts>
#include <string_view>

namespace Mox {

/// Marks the constructors that read a value from a stream.
struct StreamBogon {};

namespace ByteConnection {

/// Reads primitives from bytes that somebody else keeps.  Bytes that aren't there are refused ahead
/// of any allocation: `RangeException` "the stream ends: <n> bytes wanted, <m> left".
class In : public PtrInterface {
 public:
  In() = default;
  explicit In(std::string_view bytes) : left_(bytes) {}

  /// Reads from `bytes` from now on.  They must stay until they are read or replaced.
  void bytesIs(std::string_view bytes) noexcept { left_ = bytes; }
  std::size_t bytesLeft() const noexcept { return left_.size(); }

  U8 nextU8() { return nextInteger<U8>(); }
  S8 nextS8() { return nextInteger<S8>(); }
  U16 nextU16() { return nextInteger<U16>(); }
  S32 nextS32() { return nextInteger<S32>(); }
  U32 nextU32() { return nextInteger<U32>(); }
  U64 nextU64() { return nextInteger<U64>(); }
  /// One byte; all but 0 is true.
  bool nextbool() { return nextU8() != 0; }
  /// As `nextS32`.
  int nextint() { return nextS32(); }
  /// Eight bytes: sign, exponent and fraction by IEEE 754.
  double nextdouble();
  /// Four bytes of length, then as many bytes.
  String8 nextString();

  /// An integer of the width of `T`.
  template <std::integral T>
  T nextInteger() {
    U64 number = 0;
    for (char const byte : take(sizeof(T))) number = number << 8 | static_cast<U8>(byte);
    return static_cast<T>(number);
  }

 private:
  // The next bytes, which are read by that.
  std::string_view take(std::size_t size);

  std::string_view left_;
};

}  // namespace ByteConnection

}  // namespace Mox
