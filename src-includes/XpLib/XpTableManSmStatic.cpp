// The managers of fixed tables, which the profile doesn't know.
#include "Xdk/LayerMgrs.h"
#include "Xdk/PlatformLayers.h"
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

void TableManSm::doCreateControlMacTable() {
  static constinit Operation here("doCreateControlMacTable",
                                  "void Kestrel::TableManSm::doCreateControlMacTable()");
  traceEntry(here, deviceId().value());
  auto* const controlMacMgr = managerOf<xpIfPl, xpControlMacMgr>();
  moxAssert(controlMacMgr, "controlMacMgr", here);
  check(controlMacMgr->addDevice(deviceId().value(), xdkInitType(this)),
        "((controlMacMgr->addDevice( devId, xdkInitType( this ) )))", here);
}

}  // namespace Kestrel
