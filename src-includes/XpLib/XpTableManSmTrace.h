// What the operations of the table manager leave in traces.
#pragma once

#include "Mox/TraceAt.h"
#include "XpLib/XpTableManSmOperation.h"

namespace Kestrel::xpTableManSm {

/// The module's one handle, named "XpTableManSm"; made on first use and kept.
Mox::TraceHandle const& _defaultTraceHandle();

/// Writes a line of text at `level` of the module's handle, if anybody wants it.
template <std::invocable<std::ostream&> Write>
void traceText(int level, Operation const& in, Write const& write) {
  Mox::traceAt(_defaultTraceHandle(), level, Mox::TraceSite(sourcePath, in.name, in.line), write);
}

/// The entry of an operation, in the form that most have: text "TableManSm::<name> DeviceId <n>" at
/// level 1, and the same as a record.
void traceEntry(Operation& in, U8 deviceId);

}  // namespace Kestrel::xpTableManSm
