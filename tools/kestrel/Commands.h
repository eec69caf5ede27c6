// The commands of the tool.
#pragma once

#include "Mox/Integers.h"
#include "tools/kestrel/ExitStatus.h"
#include "tools/kestrel/Insight.h"
#include "tools/kestrel/SdkRequest.h"

#include <iosfwd>
#include <optional>
#include <string>
#include <vector>

namespace kestrel {

/// What the user has asked for.  A command looks at the options that it has.
struct Request;

/// Prints to the stream.  All that bring a chip up throw `UsageFault` for a bad profile or trace
/// pattern.
using Command = ExitStatus (*)(Request const&, std::ostream&);

struct Request {
  Command command = nullptr;
  std::optional<std::string> profile;  ///< a file; none for the built-in profile
  std::optional<U32> tableId;          ///< none for all tables
  std::optional<bool> cold;            ///< none: as the profile says
  std::optional<U32> pipeMode;         ///< likewise
  SdkRequest sdk;
  InsightRequest insight;
  std::string traceFile;  ///< to be printed
  bool json = false;
  bool down = false;               ///< take the chip down again
  std::optional<std::string> svg;  ///< files of pictures
  std::optional<std::string> html;

  std::string path = "/";          ///< into the model
  std::string value;               ///< a text to be set
  std::string operation;           ///< to be called
  std::vector<std::string> words;  ///< its arguments; paths to be watched; what is to be completed
  bool log = false;                ///< show the calls of the SDK
  std::string shell;
  std::optional<U32> depth;  ///< levels of a tree
  std::optional<U32> seed;   ///< of what happens
  std::optional<U32> steps;  ///< how much happens
  bool batch = false;        ///< tell of it in batches
};

ExitStatus demo(Request const& request, std::ostream& out);
ExitStatus bringUp(Request const& request, std::ostream& out);
/// Throws `UsageFault` for a profile that can't be read; answers `failure` if it finds something.
ExitStatus lint(Request const& request, std::ostream& out);
ExitStatus profile(Request const& request, std::ostream& out);
/// Throws `UsageFault` for a trace file that can't be read or is damaged.
ExitStatus trace(Request const& request, std::ostream& out);
ExitStatus types(Request const& request, std::ostream& out);

// All throw `UsageFault` also for a table that the chip doesn't have, and for a report that is
// refused (Refusal.h).
ExitStatus reportSummary(Request const& request, std::ostream& out);
ExitStatus reportDetail(Request const& request, std::ostream& out);
/// Writes the pictures that are asked for, or else the text.
ExitStatus reportSram(Request const& request, std::ostream& out);
ExitStatus reportTables(Request const& request, std::ostream& out);

// Commands on paths into the model.  All throw `UsageFault` also for a path that leads nowhere, and
// for what the library refuses; nothing has changed then.
ExitStatus get(Request const& request, std::ostream& out);
/// Prints, in one line, what stands there afterwards.
ExitStatus set(Request const& request, std::ostream& out);
ExitStatus tree(Request const& request, std::ostream& out);
/// Prints the result, behind the calls of the SDK where these are asked for.
ExitStatus call(Request const& request, std::ostream& out);
/// Prints what can stand in the place of the last word, a line each.
ExitStatus complete(Request const& request, std::ostream& out);
/// Prints a script for the shell.
ExitStatus completion(Request const& request, std::ostream& out);
/// Prints what changes while things happen in the hardware.
ExitStatus watch(Request const& request, std::ostream& out);

}  // namespace kestrel
