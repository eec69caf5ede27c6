// The check behind a reference collection's mutators.
#include "frame/Refs.h"

namespace frame {

void requireTarget(Mox::Entity const* target, char const* owner, char const* attribute) {
  if (target) return;
  // Deliberate: one quote more than was opened, as every reader of these texts knows it.
  Mox::throwRangeException(Mox::format("null _%s parameter to mutator for %s::%s not allowed\"",
                                       attribute, owner, attribute));
}

}  // namespace frame
