// The commands of the tool.
#pragma once

#include "Mox/Integers.h"
#include "tools/kestrel/Insight.h"
#include "tools/kestrel/SdkRequest.h"

#include <iosfwd>
#include <optional>
#include <string>

namespace kestrel {

/// What the user has asked for.  A command looks at the options that it has.
struct Request;

/// Prints to the stream.  All that bring a chip up throw `UsageFault` for a bad profile or trace
/// pattern.
using Command = void (*)(Request const&, std::ostream&);

struct Request {
  Command command = nullptr;
  std::optional<std::string> profile;  ///< a file; none for the built-in profile
  std::optional<U32> tableId;          ///< none for all tables
  SdkRequest sdk;
  InsightRequest insight;
  std::string traceFile;  ///< to be printed
  bool json = false;
};

void demo(Request const& request, std::ostream& out);
/// Throws `UsageFault` also for a table that the chip doesn't have.
void reportSummary(Request const& request, std::ostream& out);
void reportTables(Request const& request, std::ostream& out);
void bringUp(Request const& request, std::ostream& out);
void profile(Request const& request, std::ostream& out);
/// Throws `UsageFault` for a trace file that can't be read or is damaged.
void trace(Request const& request, std::ostream& out);
void types(Request const& request, std::ostream& out);

}  // namespace kestrel
