// Primitives: their descriptors, and their interfaces.
#pragma once

#include "Mox/MoxType.h"

#include <concepts>
#include <type_traits>

namespace Mox {

template <class T, class... Others>
concept AnyOf = (std::same_as<T, Others> || ...);

/// A type that the runtime itself has interfaces of.  `void*` is any memory, for operations that
/// hand records of others on; it has no text but "None".
template <class T>
concept Primitive = AnyOf<T, bool, U8, S8, U16, U32, S32, U64, double, String8, Name, void*>;

/// The interface of a primitive.
template <class T>
class PrimitiveIf;

/// Primitives: their descriptors, by the names that schemas use ("U8", "bool", "Mox::String"), and
/// their interfaces.
template <class T>
struct Builtin {
  /// Small ones are passed in a register.
  using Passed = std::conditional_t<std::is_scalar_v<T>, T, T const&>;

  static MoxType* _fwkType() {
    if (MoxType* const type = type_) [[likely]]
      return type;
    return makeType();
  }
  /// The interface of a value.  They come and go without the heap: one of each type, once its user
  /// has let it go, serves again.
  static GenericIf::Ptr genericIf(Passed value, bool isConst);
  /// The value that `face` holds, for as long as it holds it; raises `TypeException` with `name`
  /// unless that is a `T`.
  static T const& required(GenericIf const* face, char const* name) {
    // Before the type is made, no interface is of it.
    return *static_cast<T const*>(GenericIf::requireHeld(face, type_, _fwkType, name));
  }

 private:
  static MoxType* makeType();
  /// A new one, held once for the caller.
  // No pointer object comes back, for it would have an address, and couldn't be kept in a register.
  static GenericIf* makeIf(Passed value, bool isConst);

  static MoxType* type_;
  /// What is read and let go again and again: one interface stays, with what it held last.
  static PrimitiveIf<T>* spare_;
};

/// `void` has no values.
template <>
struct Builtin<void> {
  static MoxType* _fwkType();
};

template <class T>
class PrimitiveIf : public GenericIf {
 public:
  PrimitiveIf(T const& value, bool isConst);

  // A value has nothing to observe: nothing is kept that its next use could find.
  void notifierIs(Mox::Ptr<PtrInterface const> const&) override {}
  void mox_bitSetIs(Mox_BitSet) override {}

  Ptr clone() override;
  String8 strRep() const override;

  /// Hands this interface out with another value, if nobody but the keeper of spares holds it.
  bool servesAgain(typename Builtin<T>::Passed value, bool isConst) {
    constexpr U32 kept = ReferenceWord::notificationActive | 1;
    if (referenceWord() != kept) return false;
    // Stored, not counted up: the count that was dropped last needn't have reached the memory yet.
    referenceWord_ = ReferenceWord(kept + 1);
    value_ = value;
    isConstIs(isConst);
    return true;
  }

 private:
  T value_;
};

// Inline, with the spare one in sight: each read by number hands one out.
template <class T>
GenericIf::Ptr Builtin<T>::genericIf(Passed value, bool isConst) {
  PrimitiveIf<T>* const spare = spare_;
  if (spare && !ReferenceWord::threadSafe && spare->servesAgain(value, isConst)) [[likely]]
    return Ptr<GenericIf>::adopt(spare);
  return Ptr<GenericIf>::adopt(makeIf(value, isConst));
}

template <Primitive T>
GenericIf::Ptr primitiveIf(T const& value, bool isConst) {
  return Builtin<T>::genericIf(value, isConst);
}

/// The value that `face` holds, for as long as it holds it; raises `TypeException` "value" unless
/// that is a `T`.
template <Primitive T, class Face>
T const& primitiveIn(Ptr<Face> const& face) {
  return Builtin<T>::required(face.ptr(), "value");
}

}  // namespace Mox
