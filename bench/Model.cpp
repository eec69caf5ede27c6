// What it costs to lay the hardware model out: one port's PHY, and a whole chip.
//
// Run:  build/release/bin/bench_Model --benchmark_repetitions=9
//           --benchmark_report_aggregates_only=true
// Read: medians. `phy` makes the state of a PHY with four lanes and their children, sets what an
//       agent sets, and lets it go: below 20 us. `phyFloor` is as many plain structs of as many
//       bytes, made and let go. `chip` makes and lets go the ports, PHYs, serdes and FEC counters
//       of a chip of 132 ports: below 20 ms; `attributes` counts what it holds, elements of
//       collections each for one, and `MiB` is what the allocator has handed out for it: below 12.
#include "Kestrel/Kestrel.h"

#include <benchmark/benchmark.h>
#include <malloc.h>
#include <memory>
#include <vector>

namespace {

using Kestrel::XpPortId;
using Kestrel::XpSerdesId;

constexpr U16 ports = 132;
constexpr U8 lanesOfAPort = 4;
constexpr U8 fecLanes = 80;
constexpr U32 speedsOfAPort = 1;
constexpr U8 serdesOfTheChip = 128;

Mox::Ptr<Kestrel::PhyXp80Status> newLane(U8 lane) {
  Mox::Ptr<Kestrel::PhyXp80Status> const status = new Kestrel::PhyXp80Status(
      "lane", Hardware::Phy::mdioClause45, nullptr, nullptr, lane, XpSerdesId(lane));
  status->fecCountersIs("fec")->fecLockedIs(true);
  status->xpSerdesStatusIs("serdes", lane)->configIs(status->xpSerdesConfigIs("serdes", lane));
  status->signalOkIs(1);
  status->eyescoreIs(200);
  return status;
}

void phy(benchmark::State& state) {
  for (auto _ : state) {
    auto const port = newLane(0);
    for (U8 lane = 0; lane < lanesOfAPort; ++lane) port->lanePhyStatusIs(lane, newLane(lane));
    benchmark::DoNotOptimize(port.ptr());
  }
}
BENCHMARK(phy)->Unit(benchmark::kMicrosecond);

/// As many bytes as an entity, without anything that makes it one.
template <class Entity>
struct Plain {
  char bytes[sizeof(Entity)] = {};
};

struct PlainLane {
  std::unique_ptr<Plain<Kestrel::PhyXp80Status>> status{new Plain<Kestrel::PhyXp80Status>};
  std::unique_ptr<Plain<Kestrel::FecCounters>> fec{new Plain<Kestrel::FecCounters>};
  std::unique_ptr<Plain<Kestrel::XpSerdesSmStatus>> serdes{new Plain<Kestrel::XpSerdesSmStatus>};
  std::unique_ptr<Plain<Kestrel::XpSerdesSmConfig>> config{new Plain<Kestrel::XpSerdesSmConfig>};
};

void phyFloor(benchmark::State& state) {
  for (auto _ : state) {
    std::vector<PlainLane> lanes(1 + lanesOfAPort);
    benchmark::DoNotOptimize(lanes.data());
  }
}
BENCHMARK(phyFloor)->Unit(benchmark::kMicrosecond);

/// A chip of 132 ports, one PHY and one serdes each.
class Chip {
 public:
  Chip() {
    for (U16 port = 0; port < ports; ++port) {
      layPhyOut(port);
      layPortOut(port);
    }
  }

  /// Attributes of all entities, their bases' included, and elements of their value collections.
  U32 attributes() const {
    U32 const ofEntities[] = {stored(Kestrel::PhyXp80Config::_fwkType()),
                              stored(Kestrel::PhyXp80Status::_fwkType()),
                              stored(Kestrel::FecCounters::_fwkType()),
                              stored(Kestrel::XpSerdesSmConfig::_fwkType()),
                              stored(Kestrel::XpSerdesSmStatus::_fwkType()),
                              stored(Kestrel::PortHwConfig::_fwkType()),
                              stored(Kestrel::PortHwStatus::_fwkType())};
    U32 sum = 2 * fecLanes + speedsOfAPort;
    for (U32 const count : ofEntities) sum += count;
    return ports * sum;
  }

 private:
  /// Without the ones that every entity has, and its key as an element.
  static U32 stored(Mox::MoxType const* type) {
    constexpr Mox::AttributeId firstStored = 258;
    U32 count = 0;
    for (auto const& entry : type->attributeQ()) count += entry.key() >= firstStored;
    return count;
  }

  void layPhyOut(U16 port) {
    Mox::Name const name = Mox::format("phy%u", port);
    auto const lane = static_cast<U8>(port % lanesOfAPort);
    XpSerdesId const serdes(static_cast<U8>(port % serdesOfTheChip));
    configs_->phyConfigIs(name, nullptr, "serdes", "1.0", lane, serdes, lane, lane, false, false,
                          Kestrel::TxEq(), Kestrel::TxEq(), Kestrel::TxEq());
    auto const status = statuses_->phyStatusIs(name, Hardware::Phy::mdioClause45,
                                               configs_->phyConfig(name), nullptr, lane, serdes);
    auto const fec = status->fecCountersIs("fec");
    for (U8 fecLane = 0; fecLane < fecLanes; ++fecLane) {
      fec->fecSymbolErrorsIs(fecLane, 1);
      fec->bipErrorsIs(fecLane, 1);
    }
    auto const settings = status->xpSerdesConfigIs("serdes", lane);
    status->xpSerdesStatusIs("serdes", lane)->configIs(settings);
  }
  void layPortOut(U16 port) {
    Mox::Name const phyName = Mox::format("phy%u", port);
    auto const config = hardware_->portHwConfigIs(port);
    config->phyConfigIs(configs_->phyConfig(phyName));
    config->speedCapabilitiesIs(Kestrel::portMode100G, true);
    hardwareStatus_->portStatusIs(XpPortId(port))->phyStatusIs(statuses_->phyStatus(phyName));
  }

  Mox::Ptr<Kestrel::PhyXp80ConfigDir> configs_ = Kestrel::phyXp80ConfigDirFactory("configs");
  Mox::Ptr<Kestrel::PhyXp80StatusDir> statuses_ = Kestrel::phyXp80StatusDirFactory("statuses");
  Mox::Ptr<Kestrel::AllChipHwConfig> hardware_ = Kestrel::allChipHwConfigFactory("chip");
  Mox::Ptr<Kestrel::ChipHwStatus> hardwareStatus_ = Kestrel::chipHwStatusFactory("chip");
};

void chip(benchmark::State& state) {
  std::size_t const before = mallinfo2().uordblks;
  Chip const kept;
  state.counters["MiB"] = static_cast<double>(mallinfo2().uordblks - before) / (1 << 20);
  state.counters["attributes"] = kept.attributes();
  for (auto _ : state) Chip const made;
}
BENCHMARK(chip)->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
