// A trace site in one call.
#pragma once

#include "Mox/Trace.h"

#include <concepts>
#include <sstream>

namespace Mox {

/// Where a trace stands; the line is that of the call that makes it.
struct TraceSite {
  constexpr TraceSite(char const* file, char const* function, int line = __builtin_LINE()) noexcept
      : file(file), function(function), line(line) {}

  char const* file;
  char const* function;
  int line;
};

/// Passes a trace site: counts it and, only if somebody wants the line, lets `write` fill a stream
/// of precision 12 and emits that.
template <std::invocable<std::ostream&> Write>
void traceAt(TraceHandle const& handle, int level, TraceSite const& site, Write const& write) {
  TraceFacility* const facility = handle.facility();
  facility->hit();
  bool const traced = facility->isTracing(level);
  if (!traced && !coverageStream_) [[likely]]
    return;
  constexpr int precision = 12;
  std::stringstream text;
  text.precision(precision);
  write(text);
  traceHelper(facility, "<unknown>", text, level, traced, site.file, site.line, site.function);
}

}  // namespace Mox
