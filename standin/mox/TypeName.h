// Names of C++ types in messages.
#pragma once

#include "Mox/String8.h"

#include <typeinfo>

namespace Mox {

/// The type's name as the source spells it; strings are "Mox::String".
String8 typeName(std::type_info const& type);

}  // namespace Mox
