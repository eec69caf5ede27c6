// Bring-up and reports of the default profile.
//
// Run:   cmake --preset release -DKESTREL_BENCH=ON && cmake --build --preset release
//        build/release/bin/bench_ReportBench
// Read:  BringUp is a whole bring-up with the SDK's call log off, the removal of the former tables
//        included, as in an agent that takes its tables up anew; it is to stay below 2 ms.  Summary
//        is the report's text; it is to stay below 100 us.  SummaryFloor is what formatting that
//        many lines costs alone: the rest of Summary is walking and decoding.  SramMap is the
//        grouping of tables on blocks, which reports of the SRAM begin with.  Only a Release build
//        counts.
#include "Kestrel/ChipStatus.h"
#include "XpLib/Config/LpmTreadCfg.h"
#include "XpLib/XpTableCliHelper.h"
#include "XpLib/XpTableCliHelperSramMap.h"
#include "XpLib/XpTableCliHelperStatus.h"
#include "XpLib/XpTableManSm.h"
#include "standin/xdk/Sim.h"

#include <benchmark/benchmark.h>

namespace {

/// The chip of the default profile.
struct Chip {
  xdksim::Sim sdk;
  Mox::Ptr<Kestrel::ChipStatus> status = Kestrel::chipStatusFactory("chip");
  Mox::Ptr<XpLib::Config::LpmTreadCfg> treads = new XpLib::Config::LpmTreadCfg("treads");

  Mox::Ptr<Kestrel::TableManSm> bringUp() {
    return Kestrel::tableManSmFactory(XpXdk::XpDeviceId(0), status, XpXdk::xpDeviceLdePipeMode3,
                                      true, treads);
  }
  Mox::Ptr<XpSystem::ChipStatus> toolStatus() const {
    Mox::Ptr<XpSystem::ChipStatus> const result = new XpSystem::ChipStatus("chip");
    Kestrel::tableContextFrom(*result, *status);
    return result;
  }
};

void BringUp(benchmark::State& state) {
  Chip chip;
  for (auto _ : state) benchmark::DoNotOptimize(chip.bringUp());
  state.counters["tables"] = chip.status->tableContextEntryCount();
}
BENCHMARK(BringUp)->Unit(benchmark::kMicrosecond);

void Summary(benchmark::State& state) {
  Chip chip;
  auto const tables = chip.bringUp();
  auto const reports = Kestrel::tableCliHelperFactory(chip.toolStatus());
  for (auto _ : state) benchmark::DoNotOptimize(reports->displayAllDynamicTablesSummary());
  state.counters["tables"] = chip.status->tableContextEntryCount();
}
BENCHMARK(Summary)->Unit(benchmark::kMicrosecond);

void SummaryFloor(benchmark::State& state) {
  Chip chip;
  auto const tables = chip.bringUp();
  U32 const numLines = chip.status->tableContextEntryCount();
  for (auto _ : state) {
    Mox::String8 text;
    for (U32 line = 0; line < numLines; ++line)
      text += Mox::format("%15s %6s %7d %8d %8d %8d\n", "PORTVLAN_IVIF", "DIRECT", 1, 65536, 0, 0);
    benchmark::DoNotOptimize(text);
  }
  state.counters["tables"] = numLines;
}
BENCHMARK(SummaryFloor)->Unit(benchmark::kMicrosecond);

void SramMap(benchmark::State& state) {
  Chip chip;
  auto const tables = chip.bringUp();
  auto const status = chip.toolStatus();
  for (auto _ : state) {
    auto const names = Kestrel::tableCollectionFactory();
    auto const map = Kestrel::tableSramMemoryMapFactory();
    Kestrel::buildSramMap(*status, *names, *map);
    benchmark::DoNotOptimize(map->tableIdCount());
  }
}
BENCHMARK(SramMap)->Unit(benchmark::kMicrosecond);

}  // namespace

BENCHMARK_MAIN();
