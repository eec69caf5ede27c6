// Writing of one record.
#pragma once

#include "Mox/Integers.h"

#include <array>
#include <cstddef>
#include <cstring>

namespace Swiftlog {

class TraceFile;

/// A record under construction: the bytes of its arguments, between `startMsg` and `endMsg`.  The
/// record enters the ring whole or not at all.
class RingBuf {
 public:
  /// Bytes of arguments that a record can have.
  static constexpr std::size_t maxArguments = 1024;

  void startMsg(TraceFile* file, int id) noexcept {
    file_ = file;
    id_ = id;
    size_ = 0;
  }
  void put(U8 value) noexcept { put(&value, sizeof value); }
  void put(bool value) noexcept { put(U8(value ? 1 : 0)); }
  void put(U32 value) noexcept { put(&value, sizeof value); }
  /// Enters the record; one with too many arguments is counted as lost.
  void endMsg();

 private:
  void put(void const* bytes, std::size_t size) noexcept {
    if (size_ + size <= maxArguments) std::memcpy(arguments_.data() + size_, bytes, size);
    size_ += size;
  }

  TraceFile* file_ = nullptr;
  int id_ = 0;
  std::size_t size_ = 0;  // may pass the maximum; the bytes behind that are not kept
  std::array<std::byte, maxArguments> arguments_;
};

}  // namespace Swiftlog
