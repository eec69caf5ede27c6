// Primitives: their descriptors, and their interfaces.
#pragma once

#include "Mox/MoxType.h"

namespace Mox {

/// Descriptors of the primitives, by the names that schemas use ("U8", "bool", "Mox::String").
template <class T>
struct Builtin {
  static MoxType* _fwkType();
};

template <class T, class... Others>
concept AnyOf = (std::same_as<T, Others> || ...);

/// A type that the runtime itself has interfaces of.  `void*` is any memory, for operations that
/// hand records of others on; it has no text but "None".
template <class T>
concept Primitive = AnyOf<T, bool, U8, S8, U16, U32, S32, U64, double, String8, Name, void*>;

/// The interface of a primitive.  Small ones come and go without the heap: one of each type, once
/// its user has let it go, serves again.
template <Primitive T>
GenericIf::Ptr primitiveIf(T const& value, bool isConst);

}  // namespace Mox
