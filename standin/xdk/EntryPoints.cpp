// The SDK's operations, each of which hands its call to the simulated SDK that lives.
#include "Xdk/Xdk.h"
#include "standin/xdk/Misuse.h"
#include "standin/xdk/Sim.h"

using xdksim::Call;
using xdksim::Reach;
using xdksim::Sim;

namespace {

/// A layer of the process; it has no state.
template <class Layer, Reach reach>
Layer* layer() {
  struct SimLayer final : Layer {
    xpPrimitiveMgr* getPrimitiveMgr(U32 plMgrId) override {
      return Sim::current().manager(reach, plMgrId);
    }
  };
  static SimLayer one;
  return &one;
}

/// The one manager of its class.
template <class Manager>
Manager* theOne() {
  static Manager one;
  return &one;
}

}  // namespace

xpIfPl* xpIfPl::instance() { return layer<xpIfPl, Reach::ifPl>(); }
xpL2Pl* xpL2Pl::instance() { return layer<xpL2Pl, Reach::l2Pl>(); }
xpL3Pl* xpL3Pl::instance() { return layer<xpL3Pl, Reach::l3Pl>(); }
xpAclPl* xpAclPl::instance() { return layer<xpAclPl, Reach::aclPl>(); }
xpAcmPl* xpAcmPl::instance() { return layer<xpAcmPl, Reach::acmPl>(); }
xpMcastPl* xpMcastPl::instance() { return layer<xpMcastPl, Reach::mcastPl>(); }
xpTunnelPl* xpTunnelPl::instance() { return layer<xpTunnelPl, Reach::tunnelPl>(); }

xpDeviceMgr* xpDeviceMgr::instance() {
  static xpDeviceMgr one;
  return &one;
}

xpDevice* xpDeviceMgr::getDeviceObj(U32 deviceId) { return &Sim::current().device(deviceId); }

xpTableProfile* xpDevice::getTableProfile() { return Sim::current().takeTableProfile(*this); }

xpPrimitiveMgr::~xpPrimitiveMgr() = default;

U32 xpPrimitiveMgr::getNewPlMgrId() { return Sim::current().newPlMgrId(); }

XP_STATUS xpPrimitiveMgr::addDevice(U32 devId, xpTableContext** tblCtx, U8 tblCopyNum,
                                    XP_TABLE_MODE_T mode) {
  return Sim::current().call(
      *this, Call::addTable,
      {.device = devId, .table = tblCtx, .copies = tblCopyNum, .mode = mode});
}

XP_STATUS xpPrimitiveMgr::addDevice(U32 devId, std::vector<xpTblCtxPerIdx*>& tblCtxPerIdx,
                                    U8 tblCopyNum, XP_TABLE_MODE_T mode) {
  return Sim::current().call(
      *this, Call::addTables,
      {.device = devId, .list = &tblCtxPerIdx, .copies = tblCopyNum, .mode = mode});
}

XP_STATUS xpPrimitiveMgr::addDevice(U32 devId) {
  return Sim::current().call(*this, Call::addDevice, {.device = devId});
}

XP_STATUS xpPrimitiveMgr::addDevice(U32 devId, xpInitType_t type) {
  return Sim::current().call(*this, Call::addWithInit, {.device = devId, .init = type});
}

XP_STATUS xpPrimitiveMgr::loadDefaultValue(U32 devId) {
  return Sim::current().call(*this, Call::loadDefaultValue, {.device = devId});
}

XP_STATUS xpIaclMgr::createTable(U32 devId, std::vector<xpTblCtxPerIdx*>& tblCtxPerIdx,
                                 U8 tblCopyNum, XP_TABLE_MODE_T mode) {
  return Sim::current().call(
      *this, Call::createTable,
      {.device = devId, .list = &tblCtxPerIdx, .copies = tblCopyNum, .mode = mode});
}

XP_STATUS xpVifMgr::writeEntry(U32 devId, U32 vifId, xpDirection_t direction, xpVifEntry* entry) {
  if (!entry) xdksim::misuse("xpVifMgr::writeEntry gets no entry");
  return Sim::current().call(*this, Call::writeEntry,
                             {.device = devId, .vif = vifId, .direction = direction});
}

xpAllocatorMgr* xpAllocatorMgr::instance(U32 scope) {
  if (scope != 0) xdksim::misuse("it has no allocator " + std::to_string(scope) + ", only 0");
  static xpAllocatorMgr one;
  return &one;
}

XP_STATUS xpAllocatorMgr::getNullPortVif(U32& vifId) {
  vifId = 7;
  return 0;
}

XP_STATUS xpSingletonMgr::init() { return Sim::current().call(*this, Call::init, {}); }

XP_STATUS xpSingletonMgr::removeDevice(U32 devId) {
  return Sim::current().call(*this, Call::removeDevice, {.device = devId});
}

XP_STATUS xpDeInitMgr::deInit() { return Sim::current().call(*this, Call::deInit, {}); }

xpAqmMgr* xpAqmMgr::instance() { return theOne<xpAqmMgr>(); }
xpLanzMgr* xpLanzMgr::instance() { return theOne<xpLanzMgr>(); }
xpQueueCounterMgr* xpQueueCounterMgr::instance() { return theOne<xpQueueCounterMgr>(); }
xpPortIngressQosMgr* xpPortIngressQosMgr::instance() { return theOne<xpPortIngressQosMgr>(); }
xpSchedulerMgr* xpSchedulerMgr::instance() { return theOne<xpSchedulerMgr>(); }
xpShaperMgr* xpShaperMgr::instance() { return theOne<xpShaperMgr>(); }
xpCpuStormControlMgr* xpCpuStormControlMgr::instance() { return theOne<xpCpuStormControlMgr>(); }
xpEgressQosMapMgr* xpEgressQosMapMgr::instance() { return theOne<xpEgressQosMapMgr>(); }
xpPolicerMgr* xpPolicerMgr::instance() { return theOne<xpPolicerMgr>(); }
xpControlPlanePolicingMgr* xpControlPlanePolicingMgr::instance() {
  return theOne<xpControlPlanePolicingMgr>();
}
xpFlowControlMgr* xpFlowControlMgr::instance() { return theOne<xpFlowControlMgr>(); }
xpEgressAclMgr* xpEgressAclMgr::instance() { return theOne<xpEgressAclMgr>(); }
