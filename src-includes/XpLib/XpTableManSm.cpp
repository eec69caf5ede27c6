// The table manager's life, and the order of the bring-up.
#include "XpLib/XpTableManSm.h"

#include "Xdk/Device.h"
#include "Xdk/SingletonMgrs.h"
#include "XpLib/XpTableManSmChecks.h"
#include "XpLib/XpTableManSmInitType.h"
#include "XpLib/XpTableManSmTrace.h"

namespace Kestrel {

using namespace xpTableManSm;

// Held by itself meanwhile: a reference that the bring-up hands out and gets back isn't the last.
TableManSm::TableManSm(XpXdk::XpDeviceId deviceId, Mox::Ptr<ChipStatus> const& chipStatus,
                       XpXdk::XpDeviceLdePipeMode ldePipeMode, bool coldStartNeeded,
                       Mox::Ptr<XpLib::Config::LpmTreadCfg> const& lpmTreadCfg)
    : deviceId_(deviceId),
      chipStatus_(chipStatus),
      ldePipeMode_(ldePipeMode),
      coldStartNeeded_(coldStartNeeded),
      lpmTreadCfg_(lpmTreadCfg) {
  referenceWord_.inc();
  handleInitialized();
  referenceWord_.dec();
}

TableManSm::~TableManSm() { moxDoZombieReactors(true); }

Mox::Ptr<TableManSm> TableManSm::TableManSmIs(
    XpXdk::XpDeviceId deviceId, Mox::Ptr<ChipStatus> const& chipStatus,
    XpXdk::XpDeviceLdePipeMode ldePipeMode, bool coldStartNeeded,
    Mox::Ptr<XpLib::Config::LpmTreadCfg> const& lpmTreadCfg) {
  Mox::Ptr<TableManSm> const sm =
      new TableManSm(deviceId, chipStatus, ldePipeMode, coldStartNeeded, lpmTreadCfg);
  sm->hasNotificationActiveIs(true);
  return sm;
}

Mox::Ptr<TableManSm> tableManSmFactory(XpXdk::XpDeviceId deviceId,
                                       Mox::Ptr<ChipStatus> const& chipStatus,
                                       XpXdk::XpDeviceLdePipeMode ldePipeMode, bool coldStartNeeded,
                                       Mox::Ptr<XpLib::Config::LpmTreadCfg> const& lpmTreadCfg) {
  return TableManSm::TableManSmIs(deviceId, chipStatus, ldePipeMode, coldStartNeeded, lpmTreadCfg);
}

void TableManSm::hasNotificationActiveIs(bool active) {
  if (active == hasNotificationActive()) return;
  Mox::PtrInterface::hasNotificationActiveIs(active);
}

void TableManSm::moxDoZombieReactors(bool on) {
  if (on == moxMarkedForDeletion()) return;
  moxMarkedForDeletionIs(on);
}

Mox::ActivityConfig* TableManSm::moxFwkActivity() { return nullptr; }
Mox::ActivityConfig const* TableManSm::moxFwkActivity() const { return nullptr; }

void TableManSm::handleInitialized() {
  static constinit Operation here("handleInitialized",
                                  "void Kestrel::TableManSm::handleInitialized()");
  traceEntry(here, deviceId().value());

  tableProfileIs(xpDeviceMgr::instance()->getDeviceObj(deviceId().value())->getTableProfile());
  moxAssert(tableProfile(), "tableProfile()", here);
  // Ahead of the tables: what a broken-off bring-up leaves must be taken down in full.
  initializedIs(true);
  doVerifyOrCreateTables(false);
}

bool TableManSm::doVerifyOrCreateTables(bool warmRestart) {
  static constinit Operation here("doVerifyOrCreateTables",
                                  "bool Kestrel::TableManSm::doVerifyOrCreateTables(bool)");
  traceText(8, here, [&](std::ostream& text) {
    text << here.signature << " warmRestart " << (warmRestart ? 1 : 0);
  });
  here.site.log(here.signature, " warmRestart ", warmRestart);
  if (warmRestart) return true;

  chipStatus()->tableContextEntryDelAll();

  // In this order, which is part of the contract.
  doCreateStaticTables();
  doCreateBdTables();
  if (ldePipeMode() == XpXdk::xpDeviceLdePipeMode3) {
    doCreateL4PortTables();
    doCreateAaclMgksTables();
    doCreateAaclMgTables();
    doCreateTunnelTables();
    doCreateIpXformTables();
  }
  doCreateFdbTable();
  doCreateRouteMcTable();
  doCreatePimTable();
  doCreatePortVlanTable();
  doCreateMdtTable();
  doCreateHeaderModTables();
  doCreateVifTables();
  doCreateControlMacTable();
  doCreateLpmTables();
  doCreateNhTables();
  doCreateHostTables();
  doCreateQosTables();
  doCreateIAclTables();

  auto* const eaclMgr = xpEgressAclMgr::instance();
  eaclMgr->init();  // Deliberate: no status of it stops the bring-up.
  check(eaclMgr->addDevice(deviceId().value(), xdkInitType(this)),
        "((eaclMgr->addDevice( deviceId().value(), xdkInitType( this ) )))", here);
  return true;
}

}  // namespace Kestrel
