// What the hash map costs beside its peers: find, insert, erase, and both walks.
//
// Run:  build/release/bin/bench_Maps --benchmark_repetitions=5
//           --benchmark_enable_random_interleaving=true
//       One cell alone: --benchmark_filter=find/string/64
// Read: the table at the end has nanoseconds for each element, the best of all repetitions, and the
//       ratio that is bounded: ours to std::unordered_map, or to the fastest peer in the run. Rows
//       that miss their bound end in "<<". Machines are noisy: compare within one run.
//       find     each key once in a shuffled order, by a key object of its own; ours takes no count
//       insert   into an empty map that grows, ours after a find as the mutators do
//       erase    by key, in another order, until the map is empty
//       walk     in the map's order, ours by the engine's own walk; keys are dense
//       iterate  the same by our change-proof iterator; for the peers it is their walk
//       Bounds: find 1.25 of the fastest for integer keys up to 256 elements, else 1 of std; insert
//       and erase 0.8 of std; walk 1 of the fastest from 64 elements on with integer keys; iterate
//       3 of std.
#include "Mox/HashMap.h"
#include "Mox/Name.h"

#include <algorithm>
#include <benchmark/benchmark.h>
#include <cstdio>
#include <ctime>
#include <map>
#include <random>
#include <string>
#include <tuple>
#include <unordered_map>
#include <vector>
#if __has_include(<boost/unordered_map.hpp>)
#include <boost/unordered_map.hpp>
#endif
#if __has_include(<absl/container/flat_hash_map.h>)
#include <absl/container/flat_hash_map.h>
#endif

namespace {

// The keys of a map of `size` elements: dense numbers, or names of interfaces.
template <class Key>
struct Keys {
  static Key at(U32 index) { return static_cast<Key>(index); }
};
template <class Text>
Text interfaceName(U32 index) {
  std::string const name =
      "Ethernet" + std::to_string(index / 4 + 1) + "/" + std::to_string(index % 4 + 1);
  return Text(name.c_str());
}
template <>
struct Keys<std::string> {
  static std::string at(U32 index) { return interfaceName<std::string>(index); }
};
template <>
struct Keys<Mox::Name> {
  static Mox::Name at(U32 index) { return interfaceName<Mox::Name>(index); }
};

// Each call makes key objects of its own, as a reader of a command or of a record does.
template <class Key>
std::vector<Key> shuffledKeys(U32 size, U32 seed) {
  std::vector<U32> order(size);
  for (U32 i = 0; i < size; ++i) order[i] = i;
  std::shuffle(order.begin(), order.end(), std::mt19937(seed));
  std::vector<Key> keys;
  for (U32 const index : order) keys.push_back(Keys<Key>::at(index));
  return keys;
}

template <class KeyOf>
struct Ours {
  using Key = KeyOf;
  using Node = Mox::MapNode<Key, U32>;
  Mox::HashMap<Node, Key, U32> map;

  void insert(Key const& key, U32 value) {
    if (!map.find(key)) map.newMember(new Node(key, value));
  }
  void erase(Key const& key) { map.deleteKey(key); }
  U32 find(Key const& key) const { return map.find(key)->value(); }
  U32 walk() const {
    U32 sum = 0;
    map.forEachNode([&sum](Node const& node) { sum += node.value(); });
    return sum;
  }
  U32 iterate() const {
    U32 sum = 0;
    for (auto at = map.iteratorConst(); at; ++at) sum += at.value();
    return sum;
  }
};

template <class Map>
struct Peer {
  using Key = typename Map::key_type;
  Map map;

  void insert(Key const& key, U32 value) { map.emplace(key, value); }
  void erase(Key const& key) { map.erase(key); }
  U32 find(Key const& key) const { return map.find(key)->second; }
  U32 walk() const {
    U32 sum = 0;
    for (auto const& [key, value] : map) sum += value;
    return sum;
  }
  U32 iterate() const { return walk(); }
};

template <class Subject>
Subject filled(U32 size) {
  Subject subject;
  for (auto const& key : shuffledKeys<typename Subject::Key>(size, 1)) subject.insert(key, 1);
  return subject;
}

template <class Subject>
void find(benchmark::State& state, U32 size) {
  auto const subject = filled<Subject>(size);
  auto const keys = shuffledKeys<typename Subject::Key>(size, 2);
  for (auto _ : state)
    for (auto const& key : keys) benchmark::DoNotOptimize(subject.find(key));
  state.SetItemsProcessed(state.iterations() * size);
}

// Small maps are changed many at a time, so that the clock, which counts the process's own time
// alone, doesn't show.
template <class Subject, class Change>
double seconds(std::vector<Subject>& subjects, Change const& change) {
  std::clock_t const start = std::clock();
  for (Subject& subject : subjects) change(subject);
  std::clock_t const end = std::clock();
  benchmark::ClobberMemory();
  return static_cast<double>(end - start) / CLOCKS_PER_SEC;
}

enum class Measured { insert, erase };

template <class Subject>
void change(benchmark::State& state, U32 size, Measured measured) {
  auto const joining = shuffledKeys<typename Subject::Key>(size, 1);
  auto const leaving = shuffledKeys<typename Subject::Key>(size, 2);
  U32 const maps = 4096 / size;
  for (auto _ : state) {
    std::vector<Subject> subjects(maps);
    double const inserting = seconds(subjects, [&joining](Subject& subject) {
      for (auto const& key : joining) subject.insert(key, 1);
    });
    double const erasing = seconds(subjects, [&leaving](Subject& subject) {
      for (auto const& key : leaving) subject.erase(key);
    });
    state.SetIterationTime(measured == Measured::insert ? inserting : erasing);
  }
  state.SetItemsProcessed(state.iterations() * size * maps);
}

template <class Subject>
void walk(benchmark::State& state, U32 size) {
  auto const subject = filled<Subject>(size);
  for (auto _ : state) benchmark::DoNotOptimize(subject.walk());
  state.SetItemsProcessed(state.iterations() * size);
}

template <class Subject>
void iterate(benchmark::State& state, U32 size) {
  auto const subject = filled<Subject>(size);
  for (auto _ : state) benchmark::DoNotOptimize(subject.iterate());
  state.SetItemsProcessed(state.iterations() * size);
}

// One row of the table: who took how many nanoseconds for an element.
struct Cell {
  std::string what;
  std::string key;
  U32 size;
  std::map<std::string, double> best;

  double fastestPeer() const {
    double fastest = best.at("std");
    for (auto const& [who, time] : best)
      if (who != "ours") fastest = std::min(fastest, time);
    return fastest;
  }
  bool integerKey() const { return key != "string"; }
  // The bound, and the time that it is a multiple of.
  std::pair<double, double> bound() const {
    if (what == "find" && integerKey() && size <= 256) return {1.25, fastestPeer()};
    if (what == "find") return {1, best.at("std")};
    if (what == "walk" && integerKey() && size >= 64) return {1, fastestPeer()};
    if (what == "iterate") return {3, best.at("std")};
    if (what == "walk") return {0, best.at("std")};
    return {0.8, best.at("std")};
  }
};

class Table : public benchmark::ConsoleReporter {
 public:
  void ReportRuns(std::vector<Run> const& runs) override {
    ConsoleReporter::ReportRuns(runs);
    for (Run const& run : runs)
      if (run.run_type == Run::RT_Iteration && !run.error_occurred) enterRun(run);
  }

  // The row of a measurement; rows stand in the order in which they were asked for first.
  Cell& cell(std::string const& what, std::string const& key, U32 size) {
    for (Cell& cell : cells_)
      if (std::tie(cell.what, cell.key, cell.size) == std::tie(what, key, size)) return cell;
    return cells_.emplace_back(Cell{what, key, size, {}});
  }

  void print() const {
    std::printf("\n%-8s %-6s %5s %8s %8s %8s %8s   ratio  bound\n", "", "key", "size", "ours",
                "std", "boost", "absl");
    for (Cell const& cell : cells_)
      if (cell.best.contains("ours") && cell.best.contains("std")) printCell(cell);
  }

 private:
  void enterRun(Run const& run) {
    std::vector<std::string> parts(1);
    for (char const c : run.run_name.function_name)
      if (c == '/')
        parts.emplace_back();
      else
        parts.back() += c;
    double const time = 1e9 / run.counters.at("items_per_second");
    double& best = cell(parts[0], parts[1], static_cast<U32>(std::stoul(parts[2]))).best[parts[3]];
    best = best == 0 ? time : std::min(best, time);
  }

  static void printCell(Cell const& cell) {
    std::printf("%-8s %-6s %5u", cell.what.c_str(), cell.key.c_str(), cell.size);
    for (char const* const who : {"ours", "std", "boost", "absl"})
      if (auto const time = cell.best.find(who); time != cell.best.end())
        std::printf(" %8.2f", time->second);
      else
        std::printf(" %8s", "-");
    auto const [bound, time] = cell.bound();
    double const ratio = cell.best.at("ours") / time;
    if (bound > 0)
      std::printf("  %6.2f %6.2f%s\n", ratio, bound, ratio > bound ? " <<" : "");
    else
      std::printf("  %6.2f      -\n", ratio);
  }

  std::vector<Cell> cells_;
};

template <class Subject>
void enter(std::string const& key, U32 size, std::string const& who, Table& table) {
  using State = benchmark::State;
  auto const add = [&key, size, &who, &table](char const* what, auto const& body) {
    table.cell(what, key, size);
    std::string const name = std::string(what) + "/" + key + "/" + std::to_string(size) + "/" + who;
    return benchmark::RegisterBenchmark(name.c_str(), body)->MinTime(0.05);
  };
  add("find", [size](State& state) { find<Subject>(state, size); });
  add("insert", [size](State& state) {
    change<Subject>(state, size, Measured::insert);
  })->UseManualTime();
  add("erase", [size](State& state) {
    change<Subject>(state, size, Measured::erase);
  })->UseManualTime();
  add("walk", [size](State& state) { walk<Subject>(state, size); });
  add("iterate", [size](State& state) { iterate<Subject>(state, size); });
}

template <class Key, class PeerKey>
void enterAll(std::string const& key, U32 largest, Table& table) {
  for (U32 const size : {U32{8}, U32{64}, largest}) {
    enter<Ours<Key>>(key, size, "ours", table);
    enter<Peer<std::unordered_map<PeerKey, U32>>>(key, size, "std", table);
#if __has_include(<boost/unordered_map.hpp>)
    enter<Peer<boost::unordered_map<PeerKey, U32>>>(key, size, "boost", table);
#endif
#if __has_include(<absl/container/flat_hash_map.h>)
    enter<Peer<absl::flat_hash_map<PeerKey, U32>>>(key, size, "absl", table);
#endif
  }
}

}  // namespace

int main(int argc, char** argv) {
  Table table;
  enterAll<U8, U8>("U8", 256, table);
  enterAll<U32, U32>("U32", 4096, table);
  enterAll<Mox::Name, std::string>("string", 4096, table);
  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
  benchmark::RunSpecifiedBenchmarks(&table);
  table.print();
}
