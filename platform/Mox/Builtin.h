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

/// Primitives: their descriptors, by the names that schemas use ("U8", "bool", "Mox::String"), and
/// their interfaces.
template <class T>
struct Builtin {
  /// Small ones are passed in a register.
  using Passed = std::conditional_t<std::is_scalar_v<T>, T, T const&>;

  static MoxType* _fwkType();
  /// The interface of a value.  They come and go without the heap: one of each type, once its user
  /// has let it go, serves again.
  static GenericIf::Ptr genericIf(Passed value, bool isConst);
};

/// `void` has no values.
template <>
struct Builtin<void> {
  static MoxType* _fwkType();
};

template <Primitive T>
GenericIf::Ptr primitiveIf(T const& value, bool isConst) {
  return Builtin<T>::genericIf(value, isConst);
}

}  // namespace Mox
