// The reference word of counted objects and string data: a 29-bit count below three flag bits.
#pragma once

#include "Mox/Integers.h"

#include <atomic>

namespace Mox {

/// One word that counts references and carries three flags.  Counted objects and string data bear
/// the same word, under the same thread-safety switch.
class ReferenceWord {
 public:
  /// The count proper.
  static constexpr U32 countMask = 0x1FFFFFFF;
  /// The object's notifications are switched on (`hasNotificationActiveIs`).
  static constexpr U32 notificationActive = 0x20000000;
  /// Keeps the object alive whatever the count says.
  static constexpr U32 keptAlive = 0x40000000;
  /// The object is about to be deleted, or parked (`moxMarkedForDeletionIs`).
  static constexpr U32 markedForDeletion = 0x80000000;
  /// An object goes when its word, under this mask, is zero after a decrement.
  static constexpr U32 releaseMask = 0x5FFFFFFF;

  /// While set, every word of the process is changed by atomic read-modify-writes; while clear, by
  /// plain ones.  Set it before the second thread starts, and while no walk of a map is under way.
  static bool threadSafe;

  constexpr explicit ReferenceWord(U32 word = 0) : word_(word) {}

  U32 count() const noexcept { return word_ & countMask; }
  U32 word() const noexcept { return word_; }
  bool has(U32 flag) const noexcept { return (word_ & flag) != 0; }
  /// True when the asker's reference is the only one and nothing else keeps the object: nobody can
  /// be reading it, nor come to hold it.
  bool isSole() const noexcept {
    return (std::atomic_ref(const_cast<U32&>(word_)).load(std::memory_order_acquire) &
            releaseMask) == 1;
  }

  // Inlined, however large the file: each use of a pointer is made of these two.
  [[gnu::always_inline]] void inc() noexcept {
    if (threadSafe) [[unlikely]]
      std::atomic_ref(word_).fetch_add(1, std::memory_order_relaxed);
    else
      ++word_;
  }

  /// One reference fewer; true when that was the last and nothing keeps the object.
  [[gnu::always_inline]] bool dec() noexcept {
    U32 left;
    if (threadSafe) [[unlikely]]
      left = std::atomic_ref(word_).fetch_sub(1, std::memory_order_acq_rel) - 1;
    else
      left = --word_;
    return (left & releaseMask) == 0;
  }

  // For who knows that `threadSafe` is clear, and that the reference isn't the last one.
  void incPlain() noexcept { ++word_; }
  void decPlain() noexcept { --word_; }

  void flagIs(U32 flag, bool on) noexcept {
    if (threadSafe) [[unlikely]] {
      if (on)
        std::atomic_ref(word_).fetch_or(flag);
      else
        std::atomic_ref(word_).fetch_and(~flag);
    } else {
      word_ = on ? word_ | flag : word_ & ~flag;
    }
  }

 private:
  alignas(4) U32 word_;
};

}  // namespace Mox
