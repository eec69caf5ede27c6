// The managers that have no table: static ones, and those of the quality of service, which are the
// only ones to be taken down again.
#include "Xdk/LayerMgrs.h"
#include "Xdk/PlatformLayers.h"
#include "Xdk/SingletonMgrs.h"
#include "XpLib/XpTableManSmChecks.h"
#include "XpLib/XpTableManSmInitType.h"
#include "XpLib/XpTableManSmManagers.h"
#include "XpLib/XpTableManSmTrace.h"

namespace Kestrel {

using namespace xpTableManSm;

namespace {

template <class Layer, class Manager>
void addStaticManager(TableManSm const& sm, char const* manager, Operation const& in,
                      int line = __builtin_LINE()) {
  auto* const found = managerOf<Layer, Manager>();
  moxAssert(found, manager, in, line);
  found->addDevice(sm.deviceId().value(), xdkInitType(&sm));  // Deliberate: no status stops it.
}

template <class Manager>
void startManager(TableManSm const& sm, U32 xpDeviceId, char const* initCall, char const* addCall,
                  Operation const& in, int line = __builtin_LINE()) {
  check(Manager::instance()->init(), initCall, in, line);
  check(Manager::instance()->addDevice(xpDeviceId, xdkInitType(&sm)), addCall, in, line);
}

}  // namespace

void TableManSm::doCreateStaticTables() {
  static constinit Operation here("doCreateStaticTables",
                                  "void Kestrel::TableManSm::doCreateStaticTables()");
  traceEntry(here, deviceId().value());
  addStaticManager<xpIfPl, xpPortConfigMgr>(*this, "portConfigMgr", here);
  addStaticManager<xpAcmPl, xpAcmBankMgr>(*this, "acmBankMgr", here);
  addStaticManager<xpAcmPl, xpAcmRsltMgr>(*this, "acmRsltMgr", here);
  addStaticManager<xpIfPl, xpEgressFilterMgr>(*this, "egressFilterMgr", here);
  addStaticManager<xpIfPl, xpTrunkResolutionMgr>(*this, "trunkResolutionMgr", here);
}

// A manager is up before the next one is touched.
void TableManSm::doCreateQosTables() {
  static constinit Operation here("doCreateQosTables",
                                  "void Kestrel::TableManSm::doCreateQosTables()");
  traceEntry(here, deviceId().value());
  U32 const xpDeviceId = deviceId().value();
  startManager<xpAqmMgr>(*this, xpDeviceId, "((xpAqmMgr::instance()->init()))",
                         "((xpAqmMgr::instance()->addDevice( xpDeviceId, xdkInitType( this ) )))",
                         here);
  startManager<xpLanzMgr>(*this, xpDeviceId, "((xpLanzMgr::instance()->init()))",
                          "((xpLanzMgr::instance()->addDevice( xpDeviceId, xdkInitType( this ) )))",
                          here);
  startManager<xpQueueCounterMgr>(
      *this, xpDeviceId, "((xpQueueCounterMgr::instance()->init()))",
      "((xpQueueCounterMgr::instance()->addDevice( xpDeviceId, xdkInitType( this ) )))", here);
  startManager<xpPortIngressQosMgr>(
      *this, xpDeviceId, "((xpPortIngressQosMgr::instance()->init()))",
      "((xpPortIngressQosMgr::instance()->addDevice( xpDeviceId, xdkInitType( this ) )))", here);
  startManager<xpSchedulerMgr>(
      *this, xpDeviceId, "((xpSchedulerMgr::instance()->init()))",
      "((xpSchedulerMgr::instance()->addDevice( xpDeviceId, xdkInitType( this ) )))", here);
  startManager<xpShaperMgr>(
      *this, xpDeviceId, "((xpShaperMgr::instance()->init()))",
      "((xpShaperMgr::instance()->addDevice( xpDeviceId, xdkInitType( this ) )))", here);
  startManager<xpCpuStormControlMgr>(
      *this, xpDeviceId, "((xpCpuStormControlMgr::instance()->init()))",
      "((xpCpuStormControlMgr::instance()->addDevice( xpDeviceId, xdkInitType( this ) )))", here);
  startManager<xpEgressQosMapMgr>(
      *this, xpDeviceId, "((xpEgressQosMapMgr::instance()->init()))",
      "((xpEgressQosMapMgr::instance()->addDevice( xpDeviceId, xdkInitType( this ) )))", here);
  startManager<xpPolicerMgr>(
      *this, xpDeviceId, "((xpPolicerMgr::instance()->init()))",
      "((xpPolicerMgr::instance()->addDevice( xpDeviceId, xdkInitType( this ) )))", here);
  startManager<xpControlPlanePolicingMgr>(
      *this, xpDeviceId, "((xpControlPlanePolicingMgr::instance()->init()))",
      "((xpControlPlanePolicingMgr::instance()->addDevice( xpDeviceId, xdkInitType( this ) )))",
      here);
  startManager<xpFlowControlMgr>(
      *this, xpDeviceId, "((xpFlowControlMgr::instance()->init()))",
      "((xpFlowControlMgr::instance()->addDevice( xpDeviceId, xdkInitType( this ) )))", here);
}

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
