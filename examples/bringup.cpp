// A small agent: brings a simulated chip up, hears of each table, and prints the summary.
//
// On a switch the SDK is the chip's; here `xdksim::Sim` stands in for it, and is all that an agent
// wouldn't have.
#include "Kestrel/ChipStatus.h"
#include "XpLib/Config/LpmTreadCfg.h"
#include "XpLib/XpTableCliHelper.h"
#include "XpLib/XpTableCliHelperStatus.h"
#include "XpLib/XpTableManSm.h"
#include "standin/xdk/Sim.h"

#include <iostream>

namespace {

/// Hears what happens in the chip's status.
class TableObserver : public Kestrel::ChipStatus::NotifieeConst {
 public:
  void onTableContextEntry(U32 tableId) override {
    if (auto const entry = notifier()->tableContextEntry(tableId))
      std::cout << "table " << tableId << " is " << entry->tableName() << '\n';
    else
      std::cout << "table " << tableId << " is gone\n";
  }
};

}  // namespace

int main() {
  xdksim::Sim const sdk;
  auto const status = Kestrel::chipStatusFactory("chip0");

  // A notifiee hears as long as somebody holds it.
  Mox::Ptr<TableObserver> const observer = new TableObserver;
  observer->notifierIs(status);
  observer->isRegisteredNotifieeIs(true);

  // The factory runs the whole bring-up, and the process ends in it if the SDK refuses a table.
  Mox::Ptr<XpLib::Config::LpmTreadCfg> const treads = new XpLib::Config::LpmTreadCfg("treads");
  auto const tables = Kestrel::tableManSmFactory(XpXdk::XpDeviceId(0), status,
                                                 XpXdk::xpDeviceLdePipeMode3, true, treads);

  // Reports look at the status of the platform's tools, which refers to the published entries.
  Mox::Ptr<XpSystem::ChipStatus> const toolStatus = new XpSystem::ChipStatus("chip0");
  Kestrel::tableContextFrom(*toolStatus, *status);
  auto const reports = Kestrel::tableCliHelperFactory(toolStatus);
  std::cout << reports->displayAllDynamicTablesSummary();
}
