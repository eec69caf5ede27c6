// What a change costs: nobody watching, an equal value, and 1, 3 and 10 observers.
//
// Run:  build/release/bin/bench_Mutators --benchmark_repetitions=9
//           --benchmark_report_aggregates_only=true --benchmark_enable_random_interleaving=true
// Read: compare medians of one run, as ratios; machines are noisy. Each row of ours stands beside
//       its floor: `plain` (compare, store, version step behind a call into a shared library) for
//       changes that nobody watches, `loop` (a hand-written delivery with the same promises) for
//       observers. Bounds: unwatched and equal at most 1.25 of plain; observers at most 1.5
//       (one), 1.4 (three), 1.25 (ten) of loop, and ahead of each peer's signal. `derived` rows are
//       entities whose notifiees stand in the list of a base.
#include "Kestrel/Kestrel.h"
#include "bench/floor/Floor.h"

#include <benchmark/benchmark.h>
#include <vector>
#if __has_include(<boost/signals2.hpp>)
#include <boost/signals2.hpp>
#endif
#if __has_include(<sigc++/sigc++.h>)
#include <sigc++/sigc++.h>
#endif

namespace {

U32 heard = 0;

class FloorListener : public floor_::Listener {
 public:
  void onChange() override { ++heard; }
};

class FecWatcher : public Kestrel::FecCounters::NotifieeConst {
 public:
  void onFecCorrected() override { ++heard; }
};

class ChipWatcher : public Kestrel::ChipStatus::NotifieeConst {
 public:
  void onPortMappingTime() override { ++heard; }
};

template <class Watcher, class Entity>
std::vector<Mox::Ptr<Watcher>> watch(Mox::Ptr<Entity> const& entity, std::size_t count) {
  std::vector<Mox::Ptr<Watcher>> watchers;
  for (std::size_t i = 0; i < count; ++i) {
    watchers.push_back(new Watcher);
    watchers.back()->notifierIs(entity);
    watchers.back()->isRegisteredNotifieeIs(true);
  }
  return watchers;
}

void plainUnwatched(benchmark::State& state) {
  floor_::Plain plain;
  U32 value = 0;
  for (auto _ : state) floor_::valueIs(plain, ++value);
  benchmark::DoNotOptimize(plain.version);
}
BENCHMARK(plainUnwatched);

void unwatched(benchmark::State& state) {
  Kestrel::FecCounters::Ptr const fec = new Kestrel::FecCounters("fec");
  U32 value = 0;
  for (auto _ : state) fec->fecCorrectedIs(++value);
}
BENCHMARK(unwatched);

void plainEqual(benchmark::State& state) {
  floor_::Plain plain;
  for (auto _ : state) floor_::valueIs(plain, 0);
  benchmark::DoNotOptimize(plain.version);
}
BENCHMARK(plainEqual);

void equal(benchmark::State& state) {
  Kestrel::FecCounters::Ptr const fec = new Kestrel::FecCounters("fec");
  for (auto _ : state) fec->fecCorrectedIs(0);
}
BENCHMARK(equal);

void loop(benchmark::State& state) {
  floor_::Plain plain;
  std::vector<Mox::Ptr<FloorListener>> listeners;
  for (int64_t i = 0; i < state.range(0); ++i) {
    listeners.push_back(new FloorListener);
    plain.listeners.push_back(listeners.back().ptr());
  }
  U32 value = 0;
  for (auto _ : state) floor_::valueIsAndTell(plain, ++value);
  benchmark::DoNotOptimize(heard);
}
BENCHMARK(loop)->Arg(1)->Arg(3)->Arg(10);

void observers(benchmark::State& state) {
  Kestrel::FecCounters::Ptr const fec = new Kestrel::FecCounters("fec");
  auto const watchers = watch<FecWatcher>(fec, state.range(0));
  U32 value = 0;
  for (auto _ : state) fec->fecCorrectedIs(++value);
  benchmark::DoNotOptimize(heard);
}
BENCHMARK(observers)->Arg(1)->Arg(3)->Arg(10);

void derivedObservers(benchmark::State& state) {
  Kestrel::ChipStatus::Ptr const chip = new Kestrel::ChipStatus("chip");
  auto const watchers = watch<ChipWatcher>(chip, state.range(0));
  double value = 0;
  for (auto _ : state) chip->portMappingTimeIs(value += 1);
  benchmark::DoNotOptimize(heard);
}
BENCHMARK(derivedObservers)->Arg(1)->Arg(3)->Arg(10);

#if __has_include(<boost/signals2.hpp>)
void boostSignals2(benchmark::State& state) {
  boost::signals2::signal<void()> signal;
  for (int64_t i = 0; i < state.range(0); ++i) signal.connect([] { ++heard; });
  for (auto _ : state) signal();
  benchmark::DoNotOptimize(heard);
}
BENCHMARK(boostSignals2)->Arg(1)->Arg(3)->Arg(10);
#endif

#if __has_include(<sigc++/sigc++.h>)
void tellSigc() { ++heard; }

void sigcSignal(benchmark::State& state) {
  sigc::signal<void> signal;
  for (int64_t i = 0; i < state.range(0); ++i) signal.connect(sigc::ptr_fun(&tellSigc));
  for (auto _ : state) signal();
  benchmark::DoNotOptimize(heard);
}
BENCHMARK(sigcSignal)->Arg(1)->Arg(3)->Arg(10);
#endif

}  // namespace

BENCHMARK_MAIN();
