// Which facilities and levels a trace pattern speaks of.
#pragma once

#include "Mox/String8.h"

#include <string_view>

namespace Mox {

/// A pattern such as "Xp*/0-3,7", read.
struct TracePattern {
  /// Throws `RangeException` "trace pattern '<pattern>': <why>".
  explicit TracePattern(String8 const& pattern);

  bool matches(std::string_view facility) const noexcept;

  String8 name;
  U32 levels;
};

}  // namespace Mox
