// The managers of the quality of service, which have no table in the profile.
#include "Xdk/SingletonMgrs.h"
#include "XpLib/XpTableManSmChecks.h"
#include "XpLib/XpTableManSmInitType.h"
#include "XpLib/XpTableManSmTrace.h"

namespace Kestrel {

using namespace xpTableManSm;

namespace {

template <class Manager>
void startManager(TableManSm const& sm, U32 xpDeviceId, char const* initCall, char const* addCall,
                  Operation const& in, int line = __builtin_LINE()) {
  check(Manager::instance()->init(), initCall, in, line);
  check(Manager::instance()->addDevice(xpDeviceId, xdkInitType(&sm)), addCall, in, line);
}

}  // namespace

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

}  // namespace Kestrel
