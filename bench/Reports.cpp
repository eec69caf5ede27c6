// Bring-up and reports of the default profile.
//
// Run:  build/release/bin/bench_Reports --benchmark_repetitions=9
//           --benchmark_report_aggregates_only=true
// Read: medians. `bringUp` is a whole bring-up with the SDK's call log off, the removal of the
//       former tables included, as in an agent that takes its tables up anew: below 2 ms. `summary`
//       is the report's text: below 100 us. `summaryFloor` is what formatting that many lines costs
//       alone: the rest of `summary` is walking and decoding. `sramMap` is the grouping of tables
//       on blocks, which reports of the SRAM begin with.
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

void bringUp(benchmark::State& state) {
  Chip chip;
  for (auto _ : state) benchmark::DoNotOptimize(chip.bringUp());
  state.counters["tables"] = chip.status->tableContextEntryCount();
}
BENCHMARK(bringUp)->Unit(benchmark::kMicrosecond);

void summary(benchmark::State& state) {
  Chip chip;
  auto const tables = chip.bringUp();
  auto const reports = Kestrel::tableCliHelperFactory(chip.toolStatus());
  for (auto _ : state) benchmark::DoNotOptimize(reports->displayAllDynamicTablesSummary());
  state.counters["tables"] = chip.status->tableContextEntryCount();
}
BENCHMARK(summary)->Unit(benchmark::kMicrosecond);

void summaryFloor(benchmark::State& state) {
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
BENCHMARK(summaryFloor)->Unit(benchmark::kMicrosecond);

void sramMap(benchmark::State& state) {
  Chip chip;
  auto const tables = chip.bringUp();
  auto const status = chip.toolStatus();
  for (auto _ : state) {
    Kestrel::xpTableCliHelper::SramMap const map(*status);
    benchmark::DoNotOptimize(map.numGroups());
  }
}
BENCHMARK(sramMap)->Unit(benchmark::kMicrosecond);

}  // namespace

BENCHMARK_MAIN();
