// Primitives: their descriptors, and their interfaces.
#pragma once

#include "Mox/MoxType.h"

#include <atomic>
#include <concepts>
#include <type_traits>

namespace Mox {

template <class T, class... Others>
concept AnyOf = (std::same_as<T, Others> || ...);

/// A type that the runtime itself has interfaces of.  `void*` is any memory, for operations that
/// hand records of others on; it has no text but "None".
template <class T>
concept Primitive = AnyOf<T, bool, U8, S8, U16, U32, S32, U64, double, String8, Name, void*>;

template <class T>
class PrimitiveIf;

/// Primitives: their descriptors, by the names that schemas use ("U8", "bool", "Mox::String"), and
/// their interfaces.
template <class T>
struct Builtin {
  /// Small ones are passed in a register.
  using Passed = std::conditional_t<std::is_scalar_v<T>, T, T const&>;

  static MoxType* _fwkType() {
    if (MoxType* const type = type_.load(std::memory_order_acquire)) [[likely]]
      return type;
    return makeType();
  }
  /// The interface of a value.  They come and go without the heap: one of each type, once its user
  /// has let it go, serves again.
  static GenericIf::Ptr genericIf(Passed value, bool isConst);
  /// The value that `face` holds; raises `TypeException` with `name` unless that is a `T`.
  static Passed required(GenericIf const* face, char const* name) {
    // Before the type is made, no interface is of it.
    auto const* held = GenericIf::heldBy(face, type_.load(std::memory_order_acquire));
    if (!held) [[unlikely]]
      held = requiredOther(face, name);
    return *static_cast<T const*>(held);
  }

 private:
  static MoxType* makeType();
  /// A new one, held once for the caller.
  // No pointer object comes back, for it would have an address, and couldn't be kept in a register.
  static GenericIf* makeIf(Passed value, bool isConst);
  static void const* requiredOther(GenericIf const* face, char const* name);

  static std::atomic<MoxType*> type_;
  /// What is read and let go again and again: one interface stays, with what it held last.
  static PrimitiveIf<T>* spare_;
};

/// `void` has no values.
template <>
struct Builtin<void> {
  static MoxType* _fwkType();
};

/// The interface of a primitive.
template <class T>
class PrimitiveIf : public GenericIf {
 public:
  PrimitiveIf(T const& value, bool isConst);

  // A value has nothing to observe: its next use mustn't find whom somebody had it observe.
  void notifierIs(Mox::Ptr<PtrInterface const> const&) override {}
  void mox_bitSetIs(Mox_BitSet) override {}

  Ptr clone() override;
  String8 strRep() const override;

  /// Hands this interface out with another value, held by its keeper and the caller; false, and
  /// nothing done, where somebody else holds it or its flags aren't those of a new one.
  bool servesAgain(typename Builtin<T>::Passed value, bool isConst) {
    constexpr U32 kept = ReferenceWord::notificationActive | 1;
    if (referenceWord() != kept) return false;
    // Stored, not counted up: the new word doesn't wait for the one that was compared.
    referenceWord_ = ReferenceWord(kept + 1);
    value_ = value;
    isConstIs(isConst);
    return true;
  }

 private:
  T value_;
};

// With the spare one in sight: each read by number hands one out.  `makeIf` keeps none where the
// sanitizer looks on.
template <class T>
inline GenericIf::Ptr Builtin<T>::genericIf(Passed value, bool isConst) {
  PrimitiveIf<T>* const spare = spare_;
  if (spare && !ReferenceWord::threadSafe && spare->servesAgain(value, isConst)) [[likely]]
    return Ptr<GenericIf>::adopt(spare);
  return Ptr<GenericIf>::adopt(makeIf(value, isConst));
}

extern template struct Builtin<bool>;
extern template struct Builtin<U8>;
extern template struct Builtin<S8>;
extern template struct Builtin<U16>;
extern template struct Builtin<U32>;
extern template struct Builtin<S32>;
extern template struct Builtin<U64>;
extern template struct Builtin<double>;
extern template struct Builtin<String8>;
extern template struct Builtin<Name>;
extern template struct Builtin<void*>;

/// The interface of a copy of `value`; see `Builtin::genericIf`.
template <Primitive T>
GenericIf::Ptr primitiveIf(T const& value, bool isConst) {
  return Builtin<T>::genericIf(value, isConst);
}

/// The value that `face` holds: a number by value, a text or name by a reference that is good while
/// the caller holds `face`.  Raises `TypeException` "wrong type for 'value'" unless that is a `T`.
template <Primitive T, class Face>
requires std::derived_from<std::remove_const_t<Face>, GenericIf>
typename Builtin<T>::Passed primitiveIn(Ptr<Face> const& face) {
  return Builtin<T>::required(face.ptr(), "value");
}

}  // namespace Mox
