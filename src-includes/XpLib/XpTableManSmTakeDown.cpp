// What is taken down again: the managers of the quality of service, and access control at the
// egress.
#include "Xdk/SingletonMgrs.h"
#include "XpLib/XpTableManSm.h"
#include "XpLib/XpTableManSmChecks.h"
#include "XpLib/XpTableManSmTrace.h"

namespace Kestrel {

using namespace xpTableManSm;

// Deliberate: not the order of the bring-up, and not its reverse; the table managers and the static
// ones stay up, and so does what is published.
void TableManSm::doPrepareToDie() {
  static constinit Operation here("doPrepareToDie", "void Kestrel::TableManSm::doPrepareToDie()");
  traceEntry(here, deviceId().value());
  if (!initialized()) return;
  U32 const xpDeviceId = deviceId().value();
  check(xpAqmMgr::instance()->removeDevice(xpDeviceId),
        "((xpAqmMgr::instance()->removeDevice( xpDeviceId )))", here);
  check(xpAqmMgr::instance()->deInit(), "((xpAqmMgr::instance()->deInit()))", here);
  check(xpLanzMgr::instance()->removeDevice(xpDeviceId),
        "((xpLanzMgr::instance()->removeDevice( xpDeviceId )))", here);
  check(xpLanzMgr::instance()->deInit(), "((xpLanzMgr::instance()->deInit()))", here);
  check(xpQueueCounterMgr::instance()->removeDevice(xpDeviceId),
        "((xpQueueCounterMgr::instance()->removeDevice( xpDeviceId )))", here);
  // Deliberate: removed twice.  The SDK answers the second with a tolerated status.
  check(xpQueueCounterMgr::instance()->removeDevice(xpDeviceId),
        "((xpQueueCounterMgr::instance()->removeDevice( xpDeviceId )))", here);
  check(xpPortIngressQosMgr::instance()->removeDevice(xpDeviceId),
        "((xpPortIngressQosMgr::instance()->removeDevice( xpDeviceId )))", here);
  check(xpSchedulerMgr::instance()->removeDevice(xpDeviceId),
        "((xpSchedulerMgr::instance()->removeDevice( xpDeviceId )))", here);
  check(xpShaperMgr::instance()->removeDevice(xpDeviceId),
        "((xpShaperMgr::instance()->removeDevice( xpDeviceId )))", here);
  check(xpCpuStormControlMgr::instance()->removeDevice(xpDeviceId),
        "((xpCpuStormControlMgr::instance()->removeDevice( xpDeviceId )))", here);
  check(xpEgressAclMgr::instance()->removeDevice(xpDeviceId),
        "((xpEgressAclMgr::instance()->removeDevice( xpDeviceId )))", here);
  check(xpPolicerMgr::instance()->removeDevice(xpDeviceId),
        "((xpPolicerMgr::instance()->removeDevice( xpDeviceId )))", here);
  check(xpPolicerMgr::instance()->deInit(), "((xpPolicerMgr::instance()->deInit()))", here);
  check(xpControlPlanePolicingMgr::instance()->removeDevice(xpDeviceId),
        "((xpControlPlanePolicingMgr::instance()->removeDevice( xpDeviceId )))", here);
  check(xpControlPlanePolicingMgr::instance()->deInit(),
        "((xpControlPlanePolicingMgr::instance()->deInit()))", here);
  check(xpEgressQosMapMgr::instance()->removeDevice(xpDeviceId),
        "((xpEgressQosMapMgr::instance()->removeDevice( xpDeviceId )))", here);
  check(xpEgressQosMapMgr::instance()->deInit(), "((xpEgressQosMapMgr::instance()->deInit()))",
        here);
  check(xpFlowControlMgr::instance()->removeDevice(xpDeviceId),
        "((xpFlowControlMgr::instance()->removeDevice( xpDeviceId )))", here);
  check(xpFlowControlMgr::instance()->deInit(), "((xpFlowControlMgr::instance()->deInit()))", here);
  initializedIs(false);
}

}  // namespace Kestrel
