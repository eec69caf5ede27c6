// A small agent without a chip: lays a slice out as entities, hears what changes in it, and prints
// it as text.
#include "Kestrel/Kestrel.h"

#include <iostream>

namespace {

using Kestrel::XpPortId;
using Kestrel::XpSerdesId;

constexpr U8 lanes = 4;

/// All that an agent keeps of one slice.  Directories and slices are roots; what they own goes with
/// them.
struct Slice {
  Mox::Ptr<Kestrel::SliceHwConfig> config = Kestrel::sliceHwConfigFactory("slice0");
  Mox::Ptr<Kestrel::SliceHwStatus> status = Kestrel::sliceHwStatusFactory("slice0");
  Mox::Ptr<Kestrel::AllChipHwConfig> chip = Kestrel::allChipHwConfigFactory("chip0");
  Mox::Ptr<Kestrel::PhyXp80ConfigDir> phyConfigs = Kestrel::phyXp80ConfigDirFactory("phys");
  Mox::Ptr<Kestrel::PhyXp80StatusDir> phyStatuses = Kestrel::phyXp80StatusDirFactory("phys");
  Mox::Ptr<Kestrel::CoprocessorStatusDir> coprocessors =
      Kestrel::coprocessorStatusDirFactory("coprocessors");
};

/// Hears what becomes of one port.
class PortObserver : public Kestrel::PortHwStatus::NotifieeConst {
 public:
  void onPortMode() override { tell() << "runs as " << notifier()->portMode() << '\n'; }
  void onPhyStatus() override { tell() << "has PHY " << notifier()->phyStatus()->name() << '\n'; }

 private:
  std::ostream& tell() const { return std::cout << "port " << notifier()->portId().value() << ' '; }
};

/// Hears of the signal of one PHY lane.
class SignalObserver : public Kestrel::PhyXp80Status::NotifieeConst {
 public:
  void onSignalOk() override {
    std::cout << notifier()->name() << (notifier()->signalOk() ? " has" : " has lost")
              << " its signal, change " << notifier()->signalOkChanges() << '\n';
  }
};

/// Hears which coprocessors there are.
class CoprocessorObserver : public Kestrel::CoprocessorStatusDir::NotifieeConst {
 public:
  void onCoprocessorStatus(Mox::Name name) override {
    std::cout << "coprocessor " << name
              << (notifier()->coprocessorStatus(name) ? " is there\n" : " is gone\n");
  }
};

/// A notifiee hears as long as somebody holds it.
template <class Observer, class Entity>
Mox::Ptr<Observer> observe(Mox::Ptr<Entity> const& entity) {
  Mox::Ptr<Observer> const observer = new Observer;
  observer->notifierIs(entity);
  observer->isRegisteredNotifieeIs(true);
  return observer;
}

Mox::Name laneName(U8 lane) { return Mox::format("phy0/%u", lane); }

void layPhysOut(Slice const& slice) {
  Mox::Ptr<MdioOpal::OpalDesc> const opal = new MdioOpal::OpalDesc("mdio0");
  for (U8 lane = 0; lane < lanes; ++lane) {
    XpSerdesId const serdes(lane);
    auto const config = slice.phyConfigs->phyConfigIs(
        laneName(lane), opal, "serdes", "1.0", lane, serdes, lane, lane, false, false,
        Kestrel::TxEq(-3, 1, 2), Kestrel::TxEq(0, 2, 4), Kestrel::TxEq(0, 0, 4));
    auto const status = slice.phyStatuses->phyStatusIs(laneName(lane), Hardware::Phy::mdioClause45,
                                                       config, nullptr, lane, serdes);
    status->fecCountersIs("fec");
    auto const settings = status->xpSerdesConfigIs("serdes", lane);
    status->xpSerdesStatusIs("serdes", lane)->configIs(settings);
  }
}

void layChipOut(Slice const& slice) {
  auto const hardware = slice.chip->chipHwConfigIs("chip0");
  hardware->hamIs("ham0", 0, 0x100000, "/dev/chip0", "chip0", "pci",
                  Inventory::PciAddress(0, 1, 0, 0), Inventory::PciId(1, 0x80), true);
  auto const status = slice.status->chipStatusIs("chip0");
  for (U8 lane = 0; lane < lanes; ++lane) {
    hardware->serdesIs(slice.phyConfigs->phyConfig(laneName(lane)));
    status->serdesIs(slice.phyStatuses->phyStatus(laneName(lane)));
  }
}

void layPortsOut(Slice const& slice) {
  auto const group = slice.config->xpPortGroupListIs("group0");
  for (U8 lane = 0; lane < lanes; ++lane) {
    Mox::String8 const interface = Mox::format("Ethernet1/%u", lane + 1);
    if (lane == 0) group->groupsIs("1x100G")->portsIs(interface, true);
    group->groupsIs("4x25G")->portsIs(interface, true);
    auto const port = slice.chip->portHwConfigIs(lane);
    port->laneIdIs(lane);
    port->phyConfigIs(slice.phyConfigs->phyConfig(laneName(lane)));
    port->portGroupIs(group->name().stringValue());
    port->intfName0Is(interface);
    port->speedCapabilitiesIs(Kestrel::portMode25G, true);
  }
  slice.config->xpPortGroupDefaultIs("group0", "4x25G");
}

/// What an agent of the hardware would find out.
void bringUp(Slice const& slice) {
  auto const chip = slice.status->chipStatus("chip0");
  for (U8 lane = 0; lane < lanes; ++lane) {
    auto const port = chip->portStatusIs(XpPortId(lane));
    auto const observer = observe<PortObserver>(port);
    auto const phy = slice.phyStatuses->phyStatus(laneName(lane));
    auto const signal = observe<SignalObserver>(phy);
    port->phyStatusIs(phy);
    port->portModeIs(Kestrel::portMode25G);
    phy->signalOkChangesInc(1);
    phy->signalOkIs(1);
    phy->xpSerdesStatus()->stateIs(Kestrel::DfeDone);
  }
}

void printPortGroups(Kestrel::SliceHwConfig& config) {
  for (auto group = config.xpPortGroupListIterator(); group; ++group) {
    std::cout << "  " << group.key() << ", by default "
              << config.xpPortGroupDefault(group.key().stringValue()) << '\n';
    for (auto list = group.node()->groupsIterator(); list; ++list) {
      std::cout << "    " << list.key() << ':';
      for (auto port = list.node()->portsIterator(); port; ++port) std::cout << ' ' << port.key();
      std::cout << '\n';
    }
  }
}

void printPort(Kestrel::PortHwConfig const& config, Kestrel::PortHwStatus const& status) {
  auto const phy = status.phyStatus();
  std::cout << "  port " << config.portId() << ": " << config.intfName0() << ", "
            << status.portMode() << ", serdes " << phy->serdesId() << ' '
            << phy->xpSerdesStatus()->state() << ", equaliser " << config.phyConfig()->txEq10()
            << '\n';
}

void print(Slice const& slice) {
  std::cout << slice.config->name() << '\n';
  printPortGroups(*slice.config);
  for (auto chip = slice.status->chipStatusIterator(); chip; ++chip) {
    std::cout << "  " << chip.key() << " at " << slice.chip->chipHwConfig()->ham()->path() << '\n';
    for (auto port = chip.node()->portStatusIterator(); port; ++port)
      printPort(*slice.chip->portHwConfig(port.key().value()), *port.node());
  }
  for (auto cop = slice.coprocessors->coprocessorStatusIterator(); cop; ++cop)
    std::cout << "  coprocessor " << cop.key() << ": " << cop.node()->state() << ", generation "
              << cop.node()->genId() << '\n';
}

}  // namespace

int main() {
  Slice const slice;
  auto const observer = observe<CoprocessorObserver>(slice.coprocessors);
  layPhysOut(slice);
  layChipOut(slice);
  layPortsOut(slice);
  bringUp(slice);
  auto const cop = slice.coprocessors->coprocessorStatusIs("cop0", Kestrel::CoprocessorId(0));
  cop->hamIs("ham1", Fru::hamTypeMemory, nullptr, 0, 0x1000, "/dev/cop0");
  cop->stateIs(Kestrel::copStateOk);
  cop->genIdInc(1);
  std::cout << '\n';
  print(slice);

  // A name stands for one configuration.
  try {
    slice.phyStatuses->phyStatusIs(laneName(0), Hardware::Phy::mdioClause22, nullptr, nullptr, 0,
                                   XpSerdesId(0));
  } catch (Mox::NameInUseException const& refusal) {
    std::cout << '\n' << refusal.what() << '\n';
  }
}
