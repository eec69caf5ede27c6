// The process-wide switch of the reference words.
#include "Mox/ReferenceWord.h"

namespace Mox {

constinit bool ReferenceWord::threadSafe = false;

}  // namespace Mox
