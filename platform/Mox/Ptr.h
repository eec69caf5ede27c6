// The counted strong pointer.
#pragma once

#include "Mox/Integers.h"

#include <cstddef>
#include <type_traits>
#include <utility>

namespace Mox {

/// A strong pointer of one word to a counted object; null is a legal value.  Results are handed
/// back as `Ptr`, arguments taken as `Ptr const&`.  `Ptr<T const>` gives read-only access.
template <class T>
class Ptr {
 public:
  constexpr Ptr() noexcept = default;
  constexpr Ptr(std::nullptr_t) noexcept {}
  Ptr(T* object) noexcept : object_(object) { take(); }
  Ptr(Ptr const& other) noexcept : object_(other.object_) { take(); }
  Ptr(Ptr&& other) noexcept : object_(std::exchange(other.object_, nullptr)) {}
  template <class U>
  requires std::is_convertible_v<U*, T*> Ptr(Ptr<U> const& other)
  noexcept : object_(other.ptr()) { take(); }
  template <class U>
  requires std::is_convertible_v<U*, T*> Ptr(Ptr<U>&& other)
  noexcept : object_(other.release()) {}
  ~Ptr() { drop(object_); }

  Ptr& operator=(Ptr const& other) noexcept {
    ptrAssign(other.object_);
    return *this;
  }
  Ptr& operator=(Ptr&& other) noexcept {
    T* old = std::exchange(object_, std::exchange(other.object_, nullptr));
    drop(old);
    return *this;
  }

  /// Replaces what is held; the new object is taken before the old one is dropped.
  void ptrAssign(T* object) noexcept {
    T* old = std::exchange(object_, object);
    take();
    drop(old);
  }

  /// The same while counts are plain, for an old object that something else holds too: neither the
  /// switch nor the last reference is asked about.  There must be an old one.
  void ptrAssignPlain(T* object) noexcept {
    object_->referencesDecPlain();
    object_ = object;
    if (object) [[likely]]
      object->referencesIncPlain();
  }

  T* ptr() const noexcept { return object_; }
  T* operator->() const noexcept { return object_; }
  T& operator*() const noexcept { return *object_; }
  explicit operator bool() const noexcept { return object_ != nullptr; }

  /// Hands the held reference to the caller, who must drop it.
  T* release() noexcept { return std::exchange(object_, nullptr); }
  /// Takes over a reference that the caller holds.
  static Ptr adopt(T* object) noexcept {
    Ptr p;
    p.object_ = object;
    return p;
  }

 private:
  void take() const noexcept {
    if (object_) object_->referencesInc();
  }
  static void drop(T* object) {
    if (object) object->referencesDec();
  }

  T* object_ = nullptr;
};

template <class T, class U>
bool operator==(Ptr<T> const& a, Ptr<U> const& b) noexcept {
  return a.ptr() == b.ptr();
}
template <class T>
bool operator==(Ptr<T> const& a, std::nullptr_t) noexcept {
  return a.ptr() == nullptr;
}

/// `p` seen as a `T`; null when the object is none.
template <class T, class U>
Ptr<T> ptrCast(Ptr<U> const& p) {
  return Ptr<T>(dynamic_cast<T*>(p.ptr()));
}

}  // namespace Mox
