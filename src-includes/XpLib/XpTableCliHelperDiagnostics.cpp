// Traces and assertions in the name of the module.
#include "XpLib/XpTableCliHelperDiagnostics.h"

#include "Mox/Assert.h"
#include "Mox/TraceAt.h"

#include <ostream>

namespace Kestrel::xpTableCliHelper {

namespace {

constexpr int reportLevel = 8;

}  // namespace

Mox::TraceHandle const& _defaultTraceHandle() {
  static Mox::TraceHandle const handle("XpTableCliHelper", false);
  return handle;
}

void traceReport(char const* operation, int line) {
  Mox::traceAt(_defaultTraceHandle(), reportLevel, {sourcePath, operation, line},
               [operation](std::ostream& text) { text << "TableCliHelper::" << operation; });
}

void traceTableReport(char const* operation, U32 tableId, int line) {
  Mox::traceAt(_defaultTraceHandle(), reportLevel, {sourcePath, operation, line},
               [operation, tableId](std::ostream& text) {
                 text << "TableCliHelper::" << operation << " tableId " << tableId;
               });
}

void moxAssert(bool ok, char const* text, char const* signature, int line) {
  if (!ok) Mox::assertionFailed(text, sourcePath, line, signature);
}

}  // namespace Kestrel::xpTableCliHelper
