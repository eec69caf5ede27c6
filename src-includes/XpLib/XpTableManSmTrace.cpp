// What the operations of the table manager leave in traces.
#include "XpLib/XpTableManSmTrace.h"

namespace Kestrel::xpTableManSm {

Mox::TraceHandle const& _defaultTraceHandle() {
  static Mox::TraceHandle const handle("XpTableManSm", false);
  return handle;
}

void traceEntry(Operation& in, U8 deviceId) {
  traceText(1, in, [&in, deviceId](std::ostream& text) {
    text << "TableManSm::" << in.name << " DeviceId " << U32(deviceId);
  });
  in.site.log("TableManSm::", in.name, " DeviceId ", deviceId);
}

}  // namespace Kestrel::xpTableManSm
