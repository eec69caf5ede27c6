// Enumerators by number.
#pragma once

#include "reflect/Faces.h"

namespace reflect {

/// Raises what `GenericIf::attributeOp` does unless `op` reads the one attribute of an enumeration,
/// the enumerator itself, which has the number 1.
void requireEnumeratorRead(char const* enumeration, GenericIf::AttributeOp op,
                           GenericIf::PtrConst const& index);

}  // namespace reflect
