// What an agent of the hardware would find in a slice.
#include "tools/kestrel/model/ModelParts.h"

namespace kestrel {

namespace {

using Kestrel::TxEq;
using Kestrel::XpPortId;
using Kestrel::XpSerdesId;

constexpr Kestrel::XpPortMode modesOfCages[] = {Kestrel::portMode100G, Kestrel::portMode25G,
                                                Kestrel::portMode40G};

U8 cageOf(U8 lane) { return lane / lanesOfCage; }
U8 laneInCage(U8 lane) { return lane % lanesOfCage; }
Mox::String8 cageName(U8 cage) { return Mox::format("Ethernet%u", cage + 1); }
/// Lanes that a port of that mode takes.
U8 lanesOf(Kestrel::XpPortMode mode) { return mode == Kestrel::portMode25G ? 1 : lanesOfCage; }

void layPhy(ModelParts const& parts, U8 lane) {
  XpSerdesId const serdes(lane);
  auto const config = parts.phyConfigs->phyConfigIs(laneName(lane), parts.mdio, "serdes", "1.0",
                                                    lane, serdes, lane, lane, false, false,
                                                    TxEq(-3, 1, 2), TxEq(0, 2, 4), TxEq(0, 0, 4));
  auto const status = parts.phyStatuses->phyStatusIs(laneName(lane), Hardware::Phy::mdioClause45,
                                                     config, nullptr, lane, serdes);
  status->xpSerdesStatusIs("state", lane)->configIs(status->xpSerdesConfigIs("settings", lane));
  status->fecCountersIs("fec");
  parts.hardware()->serdesIs(status);
}

void lightPhy(ModelParts const& parts, U8 lane) {
  auto const status = parts.phy(lane);
  status->bitRateIs(modeOf(lane - laneInCage(lane)) == Kestrel::portMode40G ? 10312 : 25781);
  status->cursorsIs(TxEq(static_cast<S8>(-3), 1, static_cast<U8>(2 + lane % 3)));
  status->eyescoreIs(80 + lane * 7 % 20);
  status->signalOkIs(1);
  status->signalOkValidIs(true);
  status->linkUpIs(true);
  status->xpSerdesStatus()->stateIs(Kestrel::DfeDone);
  status->fecCounters()->fecLockedIs(true);
  status->fecCounters()->fecCorrectedIs(lane * 11u);
  status->fecCounters()->fecSymbolErrorsIs(laneInCage(lane), lane * 3u);
}

void layPhys(ModelParts const& parts) {
  for (U8 lane = 0; lane < lanes; ++lane) {
    layPhy(parts, lane);
    lightPhy(parts, lane);
  }
  for (U8 lane = 0; lane < lanes; ++lane) {
    U8 const first = lane - laneInCage(lane);
    parts.phy(first)->lanePhyStatusIs(laneInCage(lane), parts.phy(lane));
  }
}

void layPortConfig(ModelParts const& parts, U8 lane) {
  auto const port = parts.chipConfig->portHwConfigIs(lane);
  port->physicalPortIdIs(lane);
  port->laneIdIs(laneInCage(lane));
  port->phyConfigIs(parts.phyConfigs->phyConfig(laneName(lane)));
  port->portGroupIs(cageName(cageOf(lane)));
  port->intfName0Is(interfaceName(lane));
  port->speedCapabilitiesIs(Kestrel::portMode25G, true);
  if (laneInCage(lane) == 0) port->speedCapabilitiesIs(Kestrel::portMode100G, true);
}

void layGroup(ModelParts const& parts, U8 cage) {
  auto const group = parts.sliceConfig->xpPortGroupListIs(cageName(cage));
  group->groupsIs("1x100G")->portsIs(cageName(cage), true);
  for (U8 lane = 0; lane < lanesOfCage; ++lane)
    group->groupsIs("4x25G")->portsIs(Mox::format("Ethernet%u/%u", cage + 1, lane + 1), true);
  bool const split = modeOf(cage * lanesOfCage) == Kestrel::portMode25G;
  parts.sliceConfig->xpPortGroupDefaultIs(cageName(cage), split ? "4x25G" : "1x100G");
}

void layChip(ModelParts const& parts) {
  auto const config = parts.chipConfig->chipHwConfigIs("chip0");
  config->hamIs("ham0", 0, 0x100000, "/dev/chip0", "chip0", "pci",
                Inventory::PciAddress(0, 1, 0, 0), Inventory::PciId(1, 0x80), true);
  config->resetIs(parts.reset);
  config->interruptControllerIs(parts.interrupts);
  for (U8 lane = 0; lane < lanes; ++lane)
    config->serdesIs(parts.phyConfigs->phyConfig(laneName(lane)));
  parts.device->deviceTypeIs(XpXdk::xpDeviceTypeXp80);
  parts.chip->deviceTypeIs(XpXdk::xpDeviceTypeXp80);
  parts.chip->deviceSubTypeIs(XpXdk::xpDeviceSubTypeXp80A);
  parts.chip->readyIs(true);
  parts.slice->readyIs(true);
}

void layCoprocessor(ModelParts const& parts) {
  auto const coprocessor =
      parts.coprocessors->coprocessorStatusIs("cop0", Kestrel::CoprocessorId(0));
  coprocessor->hamIs("ham1", Fru::hamTypeMemory, nullptr, 0, 0x1000, "/dev/cop0");
  coprocessor->stateIs(Kestrel::copStateOk);
  coprocessor->genIdInc(1);
}

}  // namespace

Mox::Name laneName(U8 lane) { return Mox::format("phy%u/%u", cageOf(lane), laneInCage(lane)); }

Mox::String8 interfaceName(U8 lane) {
  Mox::String8 const cage = cageName(cageOf(lane));
  bool const whole = modeOf(lane - laneInCage(lane)) != Kestrel::portMode25G;
  return whole ? cage : cage + Mox::format("/%u", laneInCage(lane) + 1);
}

Kestrel::XpPortMode modeOf(U8 lane) {
  auto const mode = modesOfCages[cageOf(lane) % std::size(modesOfCages)];
  return laneInCage(lane) % lanesOf(mode) == 0 ? mode : Kestrel::portModeDisabled;
}

ModelParts::ModelParts(Chip const& up)
    : chip(up.status()), tables(up.tables()), reports(up.reports()) {
  slice->chipStatusIs("chip0");
  layPhys(*this);
  for (U8 lane = 0; lane < lanes; ++lane) {
    layPortConfig(*this, lane);
    if (modeOf(lane) != Kestrel::portModeDisabled) layPort(lane);
  }
  for (U8 cage = 0; cage < cages; ++cage) layGroup(*this, cage);
  layChip(*this);
  layCoprocessor(*this);
}

ModelParts::~ModelParts() {
  for (auto at = phyStatuses->phyStatusIterator(); at; ++at) at.value()->lanePhyStatusDelAll();
}

Kestrel::PortHwStatus::Ptr ModelParts::layPort(U8 lane) const {
  auto const port = hardware()->portStatusIs(XpPortId(lane));
  port->intfNameIs(interfaceName(lane));
  port->phyStatusIs(phy(lane));
  port->portModeIs(modeOf(lane));
  port->portValidIs(phy(lane)->linkUp());
  return port;
}

}  // namespace kestrel
