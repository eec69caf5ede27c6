// Enumerators by number.
#include "reflect/Enumeration.h"

namespace reflect {

void requireEnumeratorRead(char const* enumeration, GenericIf::AttributeOp op,
                           GenericIf::PtrConst const& index) {
  constexpr Mox::AttributeId enumerator = 1;
  if (op.attrId != enumerator) GenericIf::throwUnknownAttrException(enumeration);
  if (index) GenericIf::throwBadIndexAttrException(enumeration);
  if (op.opId != GenericIf::opRead)
    GenericIf::throwOpNotSupportedException(enumeration, op.opId, false);
}

}  // namespace reflect
