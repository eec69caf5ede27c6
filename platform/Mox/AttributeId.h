// Attribute numbers.
#pragma once

#include "Mox/Integers.h"

namespace Mox {

/// Number of an attribute, unique within one type.  On the attribute log it travels signed, where a
/// negative number is a deletion.
using AttributeId = U32;

}  // namespace Mox
