// The check behind an owned scalar's mutator.
#include "frame/Own.h"

#include "Mox/Exception.h"

namespace frame {

void requireChild(Mox::Entity const* child) {
  if (!child) Mox::throwRangeException("null ValidPtr");
}

}  // namespace frame
