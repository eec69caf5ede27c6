// Text forms and parsers of value records, beside the C library's.
//
// Run:  build/release/bin/bench_Values --benchmark_repetitions=9
//           --benchmark_report_aggregates_only=true
// Read: medians. `...Text` is `valueToStrep`, `...Parse` is `strepToValue`, from and to a record of
//       three numbers (txEq) and of nine numbers and a string (dfe). `...Printf` and `...Scanf`
//       print and scan the same characters with one pattern, without quoting the string, without
//       keys in any order and without a type that is known at run time. Each of ours takes at most
//       3 times its peer.
#include "Kestrel/DfeState.h"
#include "Kestrel/TxEq.h"

#include <benchmark/benchmark.h>
#include <cstdio>
#include <string>

namespace {

using Kestrel::DfeState;
using Kestrel::TxEq;

TxEq const txEq(-3, 1, 2);

DfeState dfe() {
  DfeState state;
  state.modeIs(1);
  state.disableIs(0);
  state.stateIs(4);
  state.statusIs(17);
  state.lfIs(8);
  state.hfIs(12);
  state.dcIs(200);
  state.bwIs(3);
  state.gainIs(255);
  state.tapsIs("12,-3,7,0,1");
  return state;
}

template <class Record>
void text(benchmark::State& state, Record const& record) {
  for (auto _ : state) benchmark::DoNotOptimize(valueToStrep(record));
}

template <class Record>
void parse(benchmark::State& state, Record const& record) {
  Mox::String8 const text = valueToStrep(record);
  for (auto _ : state) benchmark::DoNotOptimize(Mox::strepToValue<Record>(text));
}

void txEqText(benchmark::State& state) { text(state, txEq); }
BENCHMARK(txEqText);

void txEqPrintf(benchmark::State& state) {
  char text[256];
  for (auto _ : state) {
    std::snprintf(text, sizeof text,
                  "Value('Kestrel::TxEq', ** {'atten': %d, 'pre': %u, 'post': %u})", txEq.atten(),
                  txEq.pre(), txEq.post());
    benchmark::DoNotOptimize(text);
  }
}
BENCHMARK(txEqPrintf);

void txEqParse(benchmark::State& state) { parse(state, txEq); }
BENCHMARK(txEqParse);

void txEqScanf(benchmark::State& state) {
  std::string const text(valueToStrep(txEq).view());
  for (auto _ : state) {
    S8 atten;
    U8 pre;
    U8 post;
    int const read = std::sscanf(
        text.c_str(),
        " Value ( 'Kestrel::TxEq' , ** { 'atten' : %hhd , 'pre' : %hhu , 'post' : %hhu } )", &atten,
        &pre, &post);
    if (read != 3) state.SkipWithError("the pattern doesn't fit");
    benchmark::DoNotOptimize(TxEq(atten, pre, post));
  }
}
BENCHMARK(txEqScanf);

void dfeText(benchmark::State& state) { text(state, dfe()); }
BENCHMARK(dfeText);

void dfePrintf(benchmark::State& state) {
  DfeState const record = dfe();
  char text[512];
  for (auto _ : state) {
    std::snprintf(
        text, sizeof text,
        "Value('Kestrel::DfeState', ** {'mode': %u, 'disable': %u, 'state': %u, 'status': %u, "
        "'lf': %u, 'hf': %u, 'dc': %u, 'bw': %u, 'gain': %u, 'taps': '%s'})",
        record.mode(), record.disable(), record.state(), record.status(), record.lf(), record.hf(),
        record.dc(), record.bw(), record.gain(), record.taps().charPtr());
    benchmark::DoNotOptimize(text);
  }
}
BENCHMARK(dfePrintf);

void dfeParse(benchmark::State& state) { parse(state, dfe()); }
BENCHMARK(dfeParse);

void dfeScanf(benchmark::State& state) {
  std::string const text(valueToStrep(dfe()).view());
  for (auto _ : state) {
    U8 numbers[9];
    char taps[64];
    int const read = std::sscanf(
        text.c_str(),
        " Value ( 'Kestrel::DfeState' , ** { 'mode' : %hhu , 'disable' : %hhu , 'state' : %hhu , "
        "'status' : %hhu , 'lf' : %hhu , 'hf' : %hhu , 'dc' : %hhu , 'bw' : %hhu , 'gain' : %hhu , "
        "'taps' : '%63[^']' } )",
        &numbers[0], &numbers[1], &numbers[2], &numbers[3], &numbers[4], &numbers[5], &numbers[6],
        &numbers[7], &numbers[8], taps);
    if (read != 10) state.SkipWithError("the pattern doesn't fit");
    benchmark::DoNotOptimize(numbers);
    benchmark::DoNotOptimize(Mox::String8(taps));
  }
}
BENCHMARK(dfeScanf);

}  // namespace

BENCHMARK_MAIN();
