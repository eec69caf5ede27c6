// Storage of nodes and bucket arrays, from free lists by size.
#pragma once

#include "Mox/ReferenceWord.h"

#include <cstddef>

namespace Mox {

/// Storage for small objects that come and go.  While the process serves one thread, a block that
/// was given back is kept in a list of its size, up to a bound, and handed out again.  With
/// `enableThreadSafePointers` set every block comes from the heap and returns to it.  Each block is
/// a heap block of its own, so the switch may be thrown between the two calls.
class FreeList {
 public:
  /// Blocks above this size, in bytes, aren't kept.
  static constexpr std::size_t largest = 256;
  /// Bytes kept at most in each list.
  static constexpr std::size_t bytesKept = 256 * 1024;

  /// `size` bytes, aligned for any object.  Throws `std::bad_alloc`.
  static void* take(std::size_t size);
  /// Gives back what `take` gave for the same size.
  static void give(void* block, std::size_t size) noexcept;
  /// Whether blocks are kept at all now.
  static bool keeps() noexcept { return listed && !ReferenceWord::threadSafe; }
  /// Blocks that the list of this size keeps now.
  static std::size_t kept(std::size_t size) noexcept;

 private:
  // The sanitizer must see each block come and go, or it can't tell a use after free.
#if defined(__SANITIZE_ADDRESS__)
  static constexpr bool listed = false;
#elif defined(__has_feature)
#if __has_feature(address_sanitizer)
  static constexpr bool listed = false;
#else
  static constexpr bool listed = true;
#endif
#else
  static constexpr bool listed = true;
#endif
};

}  // namespace Mox
