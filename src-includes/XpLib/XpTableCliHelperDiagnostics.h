// How the module of reports speaks: its traces, and the assertions that end the process.
#pragma once

#include "Mox/Trace.h"

namespace Kestrel::xpTableCliHelper {

/// How the module names its source, in traces and assertions.
inline constexpr char const* sourcePath = "src-includes/XpLib/XpTableCliHelper";

/// The module's hold on the facility "XpTableCliHelper".
Mox::TraceHandle const& _defaultTraceHandle();

/// Traces the start of a report, at level 8.
void traceReport(char const* operation, int line = __builtin_LINE());
/// Likewise, of a report on one table.
void traceTableReport(char const* operation, U32 tableId, int line = __builtin_LINE());

/// Ends the process by the assertion `text` of the operation with that signature unless `ok`.
void moxAssert(bool ok, char const* text, char const* signature, int line = __builtin_LINE());

}  // namespace Kestrel::xpTableCliHelper
