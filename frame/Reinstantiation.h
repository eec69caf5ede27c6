// Asking for an entity that exists: its constructor parameters must be the same.
#pragma once

#include "Mox/Entity.h"
#include "Mox/Strep.h"

#include <type_traits>
#include <typeinfo>

namespace frame {

/// Raises `NameInUseException` "Reinstantiating the entity with name <name> where constructor
/// parameter attribute _<parameter> has a different value of <asked> than the current value of
/// <present> not allowed".
[[noreturn]] void reinstantiated(Mox::String8 const& name, char const* parameter,
                                 Mox::String8 const& asked, Mox::String8 const& present);

/// How a parameter is shown: an entity by its type and name, a truth value by the unsigned
/// conversion, as 1 and 0.
template <class T>
Mox::String8 parameterText(T const& value) {
  using Mox::valueToStrep;
  if constexpr (std::is_same_v<T, bool>)
    return valueToStrep(static_cast<unsigned long long>(value));
  else
    return valueToStrep(value);
}

template <class T>
Mox::String8 parameterText(Mox::Ptr<T> const& value) {
  return Mox::valueToStrepOfRawPtr(value.ptr(), typeid(T));
}

/// Compares one constructor parameter of the child under `key`; raises at a difference.
template <class Key, class T>
void requireSame(Key const& key, char const* parameter, T const& asked, T const& present) {
  if (!(asked == present))
    reinstantiated(parameterText(key), parameter, parameterText(asked), parameterText(present));
}

}  // namespace frame
