// A position in bytes that nobody has checked.
#pragma once

#include "Mox/Exception.h"

#include <cstddef>
#include <cstring>
#include <span>

namespace Swiftlog {

/// Raises the complaint of a reader: "Swiftlog: " and `what`.
[[noreturn]] inline void refuse(Mox::String8 const& what) {
  Mox::throwRangeException("Swiftlog: " + what);
}

/// Takes values off the front of some bytes, and complains of the thing that they are where they
/// end.
class Cursor {
 public:
  Cursor(std::span<std::byte const> bytes, Mox::String8 const& thing)
      : bytes_(bytes), thing_(thing) {}

  std::span<std::byte const> take(std::size_t size) {
    if (size > bytes_.size()) refuse(thing_ + " is cut short");
    auto const taken = bytes_.first(size);
    bytes_ = bytes_.subspan(size);
    return taken;
  }
  template <class Value>
  Value take() {
    Value value;
    std::memcpy(&value, take(sizeof value).data(), sizeof value);
    return value;
  }
  Mox::String8 text(U16 length) {
    auto const bytes = take(length);
    return Mox::String8(reinterpret_cast<char const*>(bytes.data()), length);
  }
  bool empty() const noexcept { return bytes_.empty(); }
  Mox::String8 const& thing() const noexcept { return thing_; }

 private:
  std::span<std::byte const> bytes_;
  Mox::String8 thing_;
};

}  // namespace Swiftlog
