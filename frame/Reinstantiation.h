// Asking for an entity that exists: its constructor parameters must be the same.
#pragma once

#include "Mox/Entity.h"
#include "Mox/Strep.h"

namespace frame {

/// Raises `NameInUseException` "Reinstantiating the entity with name <name> where constructor
/// parameter attribute _<parameter> has a different value of <asked> than the current value of
/// <present> not allowed".
[[noreturn]] void reinstantiated(Mox::String8 const& name, char const* parameter,
                                 Mox::String8 const& asked, Mox::String8 const& present);

/// Compares one constructor parameter of the child called `name`, given as text; raises at a
/// difference.
template <class T>
void requireSame(Mox::String8 const& name, char const* parameter, T const& asked,
                 T const& present) {
  using Mox::valueToStrep;
  if (!(asked == present))
    reinstantiated(name, parameter, valueToStrep(asked), valueToStrep(present));
}

}  // namespace frame
