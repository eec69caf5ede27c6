// The bodies that the schema of every shape leaves to the hand.
#include "everyShape/Every.h"

namespace everyShape {

void Every::oddIs(U32 value) { odd_ = value | 1; }

}  // namespace everyShape
