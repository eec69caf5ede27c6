// Values with one integer: their parser and their bound.
#pragma once

#include "Mox/Strep.h"

namespace frame {

/// Reads the decimal number of field `name` at `at` and advances.  The number is narrowed to the
/// field; the complaint about what is none names the field.
template <std::integral Number>
Number singleParse(Mox::String8::IteratorConst& at, Mox::String8::IteratorConst const& end,
                   char const* name) {
  return static_cast<Number>(Mox::sequenceToAttribute<long long>(at, end, name));
}

/// Raises `RangeException` with `message` unless `value` is at most `most`; a negative one, which
/// arrives here as a great one, never is.
inline void requireAtMost(U64 value, U64 most, char const* message) {
  if (value > most) Mox::throwRangeException(message);
}

}  // namespace frame
