// What the load of the library costs, the registration of all its types included.
//
// Run:  build/release/bin/bench_Load --benchmark_repetitions=9
//           --benchmark_report_aggregates_only=true
// Read: medians, of wall-clock time. `load` is a `dlopen` of the library in a process that has the
//       runtime, the models and the SDK already; `emptyLoad` is the same of a library that does
//       nothing at load. Their difference is relocation and registration: below 1 ms. Each load
//       takes place in a process of its own, for the types of one process are registered once.
#include <benchmark/benchmark.h>
#include <chrono>
#include <dlfcn.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

double seconds(char const* library) {
  auto const start = std::chrono::steady_clock::now();
  if (!dlopen(library, RTLD_NOW)) return -1;
  return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

/// How long a child process takes for the load; negative when it failed.
double secondsInChild(char const* library) {
  int ends[2];
  if (pipe(ends) != 0) return -1;
  pid_t const child = fork();
  if (child == 0) {
    double const time = seconds(library);
    _exit(write(ends[1], &time, sizeof time) == sizeof time ? 0 : 1);
  }
  close(ends[1]);
  double time = -1;
  if (read(ends[0], &time, sizeof time) != sizeof time) time = -1;
  close(ends[0]);
  waitpid(child, nullptr, 0);
  return time;
}

void measure(benchmark::State& state, char const* library) {
  for (auto _ : state) {
    double const time = secondsInChild(library);
    if (time < 0) {
      state.SkipWithError("the library can't be loaded");
      break;
    }
    state.SetIterationTime(time);
  }
}

void load(benchmark::State& state) { measure(state, "libKestrelTypes.so.1"); }
BENCHMARK(load)->UseManualTime()->MinTime(0.1)->Unit(benchmark::kMicrosecond);

void emptyLoad(benchmark::State& state) { measure(state, "libBenchFloor.so"); }
BENCHMARK(emptyLoad)->UseManualTime()->MinTime(0.1)->Unit(benchmark::kMicrosecond);

}  // namespace

int main(int argc, char** argv) {
  for (char const* library : {"libPlatformModels.so", "libXdk.so"})
    if (!dlopen(library, RTLD_NOW)) return 1;
  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
  benchmark::RunSpecifiedBenchmarks();
}
