// What a run lets be seen of its inside: text traces, and the binary trace.
#pragma once

#include "Swiftlog/TraceFile.h"

#include <iosfwd>
#include <optional>
#include <string>
#include <vector>

namespace kestrel {

/// What the user wants to see of the inside.
struct InsightRequest {
  std::vector<std::string> patterns;    ///< of trace facilities and levels
  std::optional<std::string> swiftlog;  ///< a trace file to be made; none for no records
};

/// While it lives, records go to the asked file, which keeps them also if the library ends the
/// process.  Text traces stay enabled for good; they go to standard error, with bytes that aren't
/// printable as "\xNN".
class Insight {
 public:
  /// Throws `UsageFault` for a pattern that can't be read, and what `Swiftlog::TraceFile` throws
  /// for a file that can't be made.
  explicit Insight(InsightRequest const& request);

 private:
  std::optional<Swiftlog::TraceFile> file_;
};

/// Prints the records of a trace file, the oldest first.  Throws `UsageFault` for a file that can't
/// be read or is damaged; the records in front of the damage are out by then.
void printTraceFile(std::string const& file, std::ostream& out);

}  // namespace kestrel
