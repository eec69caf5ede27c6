// Bring-up, and reports of the default profile and of the fullest one.
//
// Run:  build/release/bin/bench_Reports --benchmark_repetitions=9
//           --benchmark_enable_random_interleaving=true --benchmark_report_aggregates_only=true
// Read: medians. `bringUp` is a whole cold bring-up with the SDK's call log off, the removal of the
//       former tables included, as in an agent that takes its tables up anew: below 1 ms.
//       `<report>/default` is the report on all tables of the default profile: the summary below
//       100 us, the detail below 150 us, the graph of the SRAM below 300 us. `<report>/fullest` is
//       the same where 62 tables of all types take all 512 blocks, some of them shared by two:
//       below 1 ms each.
//       `summaryFloor` is what formatting the summary's lines costs alone: the rest of `summary`
//       is walking and decoding. `sramMap` is the grouping of tables on blocks, which the graph
//       begins with. `sramGraphFloor` is what it costs to put the finished graph together in a
//       `std::string`, piece by piece: two blanks and eight times a letter for each cell, and
//       `sramGraphCharacters` what its text costs character by character. The graph of the default
//       profile takes at most four times either; that of the fullest has a legend of forty groups
//       to find, and keeps below four times the pieces.
#include "Kestrel/ChipStatus.h"
#include "XpLib/Config/LpmTreadCfg.h"
#include "XpLib/XpTableCliHelper.h"
#include "XpLib/XpTableCliHelperSramMap.h"
#include "XpLib/XpTableManSm.h"
#include "standin/xdk/Profile.h"
#include "standin/xdk/Sim.h"

#include <algorithm>
#include <benchmark/benchmark.h>
#include <cctype>
#include <string>
#include <string_view>
#include <vector>

namespace {

using Status = XpSystem::ChipStatus::Ptr;

Mox::Ptr<XpLib::Config::LpmTreadCfg> treadsOf(xdksim::LpmTreadCfg const& plan) {
  Mox::Ptr<XpLib::Config::LpmTreadCfg> const treads = new XpLib::Config::LpmTreadCfg("treads");
  for (auto const& [index, tread] : plan.treadV4) treads->treadV4Is(index, tread);
  for (auto const& [index, tread] : plan.treadV6) treads->treadV6Is(index, tread);
  treads->treadV4ValidIs(plan.treadV4Valid);
  treads->treadV6ValidIs(plan.treadV6Valid);
  return treads;
}

void bringUp(benchmark::State& state) {
  xdksim::Sim const sdk;
  auto const status = Kestrel::chipStatusFactory("chip");
  auto const treads = treadsOf(sdk.profile().lpmTreadCfg);
  for (auto _ : state)
    benchmark::DoNotOptimize(Kestrel::tableManSmFactory(XpXdk::XpDeviceId(0), status,
                                                        XpXdk::xpDeviceLdePipeMode3, true, treads));
  state.counters["tables"] = status->tableContextEntryCount();
}
BENCHMARK(bringUp)->Unit(benchmark::kMicrosecond);

/// A status with all tables of the profile, as if each had been published.
Status statusOf(xdksim::Profile const& profile) {
  Status const status = new XpSystem::ChipStatus("chip");
  for (auto const& [tableId, table] : profile.tables) {
    std::string const name = "TABLE_" + std::to_string(tableId);
    Mox::Ptr<XpXdk::TableContextEntry> const entry =
        new XpXdk::TableContextEntry(tableId, name.c_str());
    std::visit(
        [&entry, copies = table.copyNum](auto const& contexts) {
          for (U32 copy = 0; copy < copies; ++copy)
            entry->xpTblContextIs(static_cast<U8>(copy), &contexts[copy]);
        },
        table.contexts);
    status->tableContextIs(entry);
  }
  return status;
}

Status defaultStatus() { return statusOf(xdksim::defaultProfile()); }

/// A way in each pool, all from the same block on.
xpHashTableContext hashAt(U32 block, U32 blocksPerWay) {
  xpHashTableContext context;
  context.numOfEntries = 8 * 1024 * blocksPerWay;
  context.keySize = context.valueSize = 128;
  context.numOfWays = 8;
  for (U32 pool = 0; pool < 8; ++pool) {
    context.poolId[pool] = pool;
    context.rowBlkStartId[pool] = block;
  }
  return context;
}

xpNhTableContext nextHopsAt(U32 block, U32 blocksPerWay) {
  xpNhTableContext context;
  context.numEntries = 8 * 1024 * blocksPerWay;
  context.entryWidth = 256;
  context.poolBitmap = 0xFF;
  std::ranges::fill(context.rowBlkStartId, block);
  return context;
}

/// Four prefix tables of a block in each pool, one behind the other, and the given tiles.
xpLpmTableContext routesAt(U32 block, U8 tileBitmap) {
  xpLpmTableContext context;
  for (U32 slot = 0; slot < 32; ++slot)
    context.prefixTable[slot] = {1, 1024, 256, slot, slot / 4, block + slot % 4};
  context.nhiTable.poolBitmap = 0xFF;
  std::ranges::fill(context.nhiTable.tileBitmap, tileBitmap);
  return context;
}

xpDirectTableContext directAt(U32 pool, U32 block, U32 blocks) {
  xpDirectTableContext context;
  context.numOfEntries = 1024 * blocks;
  context.entryWidth = 256;
  context.poolId = pool;
  context.rowBlkStartId = block;
  return context;
}

xpMatchTableContext match() {
  xpMatchTableContext context;
  context.numDb = 1;
  return context;
}

xpIsmeTableContext isme() {
  xpIsmeTableContext context;
  context.numOfEntries = 4096;
  context.tileStartId = 0;
  return context;
}

template <class Context>
void add(xdksim::Profile& profile, U32 tableId, std::vector<Context> copies) {
  U32 const copyNum = static_cast<U32>(copies.size());
  profile.tables[tableId] = xdksim::tableOf(std::move(copies), copyNum);
}

/// Tables 0 to 61; between them they take blocks 0 to 63 of every pool:
///
///    0-15  16 pairs of direct tables, of which the second shares half of the first one's blocks
///   16-27  six hash tables of two copies
///   28-35  a hash table                    44-47  the next-hop table
///   36-43  two hash tables, shared         48-63  two LPM tables
xdksim::Profile fullestProfile() {
  xdksim::Profile profile;
  add(profile, 0, std::vector{hashAt(28, 8)});
  for (U32 id : {4, 5}) add(profile, id, std::vector{hashAt(36, 8)});
  for (U32 i = 0; i < 6; ++i)
    add(profile, 36 + i, std::vector{hashAt(16 + 2 * i, 1), hashAt(17 + 2 * i, 1)});
  add(profile, 50, std::vector{routesAt(48, 0)});
  add(profile, 51, std::vector{routesAt(52, 0x80)});
  add(profile, 52, std::vector{nextHopsAt(44, 4)});
  for (U32 id : {12, 33, 34, 60, 61}) add(profile, id, std::vector{isme()});
  for (U32 id : {42, 43, 44, 45, 46, 47, 53, 54, 55, 56, 57, 58, 59})
    add(profile, id, std::vector{match()});
  U32 direct = 0;
  for (U32 id = 0; id < 62; ++id) {
    if (profile.tables.contains(id)) continue;
    U32 const pair = direct / 2;
    U32 const blocks = direct % 2 == 0 ? 8 : 4;
    add(profile, id, std::vector{directAt(pair / 2, pair % 2 * 8, blocks)});
    ++direct;
  }
  return profile;
}

Status fullestStatus() { return statusOf(fullestProfile()); }

using Report = Mox::String8 (Kestrel::TableCliHelper::*)();

void report(benchmark::State& state, Report display, Status (*make)()) {
  Status const status = make();
  auto const reports = Kestrel::tableCliHelperFactory(status);
  for (auto _ : state) benchmark::DoNotOptimize((reports.ptr()->*display)());
  state.counters["tables"] = status->tableContextCount();
  state.counters["bytes"] = (reports.ptr()->*display)().size();
}
void summary(benchmark::State& state, Status (*make)()) {
  report(state, &Kestrel::TableCliHelper::displayAllDynamicTablesSummary, make);
}
void detail(benchmark::State& state, Status (*make)()) {
  report(state, &Kestrel::TableCliHelper::displayAllDynamicTablesDetail, make);
}
void sramGraph(benchmark::State& state, Status (*make)()) {
  report(state, &Kestrel::TableCliHelper::displaySramAllocationGraph, make);
}

void summaryFloor(benchmark::State& state, Status (*make)()) {
  U32 const numLines = make()->tableContextCount();
  for (auto _ : state) {
    Mox::String8 text;
    for (U32 line = 0; line < numLines; ++line)
      text += Mox::format("%15s %6s %7d %8d %8d %8d\n", "PORTVLAN_IVIF", "DIRECT", 1, 65536, 0, 0);
    benchmark::DoNotOptimize(text);
  }
}

void sramMap(benchmark::State& state, Status (*make)()) {
  Status const status = make();
  for (auto _ : state) {
    Kestrel::xpTableCliHelper::SramMap const map(*status);
    benchmark::DoNotOptimize(map.numGroups());
  }
}

/// The pieces that the grid of a graph is written in: margins and ends of lines, and for each cell
/// two blanks, and eight times its letter, or once where it has none.  The lines around the grid
/// are a piece each.
std::vector<std::string> piecesOf(std::string_view graph) {
  std::vector<std::string> pieces;
  auto const take = [&pieces, &graph](std::size_t size) {
    pieces.emplace_back(graph.substr(0, size));
    graph.remove_prefix(size);
  };
  auto const takeLine = [&graph, &take] { take(graph.find('\n') + 1); };
  takeLine();
  while (!graph.starts_with("Legends")) {
    if (graph.starts_with('\n')) {
      take(1);
      continue;
    }
    take(8);
    for (U32 pool = 0; pool < 8; ++pool) {
      take(2);
      bool const isLetter = std::isalpha(static_cast<unsigned char>(graph.front())) != 0;
      for (U32 i = 0; i < (isLetter ? 8u : 1u); ++i) take(isLetter ? 1 : 8);
    }
    take(1);
  }
  while (!graph.empty()) takeLine();
  return pieces;
}

void sramGraphFloor(benchmark::State& state, Status (*make)()) {
  auto const graph = Kestrel::tableCliHelperFactory(make())->displaySramAllocationGraph();
  auto const pieces = piecesOf(graph.view());
  for (auto _ : state) {
    std::string text;
    for (std::string const& piece : pieces) text += piece;
    benchmark::DoNotOptimize(text);
  }
  state.counters["pieces"] = static_cast<double>(pieces.size());
}

void sramGraphCharacters(benchmark::State& state, Status (*make)()) {
  auto const graph = Kestrel::tableCliHelperFactory(make())->displaySramAllocationGraph();
  for (auto _ : state) {
    std::string text;
    for (char character : graph.view()) text += character;
    benchmark::DoNotOptimize(text);
  }
  state.counters["bytes"] = graph.size();
}

BENCHMARK_CAPTURE(summary, default, &defaultStatus)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(summary, fullest, &fullestStatus)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(summaryFloor, default, &defaultStatus)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(summaryFloor, fullest, &fullestStatus)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(detail, default, &defaultStatus)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(detail, fullest, &fullestStatus)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(sramMap, default, &defaultStatus)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(sramMap, fullest, &fullestStatus)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(sramGraph, default, &defaultStatus)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(sramGraph, fullest, &fullestStatus)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(sramGraphFloor, default, &defaultStatus)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(sramGraphFloor, fullest, &fullestStatus)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(sramGraphCharacters, default, &defaultStatus)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(sramGraphCharacters, fullest, &fullestStatus)->Unit(benchmark::kMicrosecond);

}  // namespace

BENCHMARK_MAIN();
