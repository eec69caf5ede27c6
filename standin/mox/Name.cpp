// Names on a stream.
#include "Mox/Name.h"

#include <ostream>

namespace Mox {

std::ostream& operator<<(std::ostream& out, Name const& name) { return out << name.stringValue(); }

}  // namespace Mox
