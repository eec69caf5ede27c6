// Access by number: what it costs to read and write one attribute, and to walk a collection.
//
// Run:  build/release/bin/bench_Access --benchmark_repetitions=9
//           --benchmark_report_aggregates_only=true --benchmark_enable_random_interleaving=true
// Read: compare medians of one run, as ratios. `floor` is a switch over numbers behind a call
//       into a shared library. Ours include the interface that is handed out or taken in. Bounds:
//       by number ahead of each peer that is there (cmake says which aren't), aim 2.5 ns; by name
//       at most 12 ns; a walk through the interface, key and value of each element looked at, at
//       most 5 times the typed one.
#include "Kestrel/Kestrel.h"
#include "XpLib/XpTableCliHelper.h"
#include "bench/floor/Floor.h"

#include <benchmark/benchmark.h>
#ifdef KESTREL_PEER_QT
#include "bench/peers/QtCounters.h"

#include <QMetaProperty>
#endif
#ifdef KESTREL_PEER_RTTR
#include <rttr/registration>
#endif

namespace {

using Mox::GenericIf;

constexpr Mox::AttributeId fecCorrected = 258;

struct Counters {
  Kestrel::FecCounters::Ptr entity = new Kestrel::FecCounters("fec0");
  GenericIf::Ptr face = entity->fwkType()->genericIf_(entity.ptr(), false);
};

void floorRead(benchmark::State& state) {
  floor_::Numbered numbered;
  U32 id = fecCorrected;
  for (auto _ : state) {
    benchmark::DoNotOptimize(id);
    benchmark::DoNotOptimize(floor_::read(numbered, id));
  }
}
BENCHMARK(floorRead);

void floorWrite(benchmark::State& state) {
  floor_::Numbered numbered;
  U32 id = fecCorrected;
  U32 value = 0;
  for (auto _ : state) {
    benchmark::DoNotOptimize(id);
    floor_::write(numbered, id, ++value);
  }
}
BENCHMARK(floorWrite);

void readByNumber(benchmark::State& state) {
  Counters const counters;
  Mox::AttributeId id = fecCorrected;
  for (auto _ : state) {
    benchmark::DoNotOptimize(id);
    benchmark::DoNotOptimize(Mox::primitiveIn<U32>(counters.face->attributeOp({id})));
  }
}
BENCHMARK(readByNumber);

void writeByNumber(benchmark::State& state) {
  Counters const counters;
  Mox::AttributeId id = fecCorrected;
  U32 value = 0;
  for (auto _ : state) {
    benchmark::DoNotOptimize(id);
    counters.face->attributeOp({id, GenericIf::opWrite}, GenericIf::notGiven,
                               Mox::primitiveIf(++value, false));
  }
}
BENCHMARK(writeByNumber);

void readByName(benchmark::State& state) {
  Counters const counters;
  Mox::String8 name = "fecCorrected";
  for (auto _ : state) {
    benchmark::DoNotOptimize(name);
    benchmark::DoNotOptimize(
        Mox::primitiveIn<U32>(counters.face->attributeOp({counters.face->attributeId(name)})));
  }
}
BENCHMARK(readByName);

void writeByName(benchmark::State& state) {
  Counters const counters;
  Mox::String8 name = "fecCorrected";
  U32 value = 0;
  for (auto _ : state) {
    benchmark::DoNotOptimize(name);
    counters.face->attributeOp({counters.face->attributeId(name), GenericIf::opWrite},
                               GenericIf::notGiven, Mox::primitiveIf(++value, false));
  }
}
BENCHMARK(writeByName);

constexpr U32 elements = 4096;

Kestrel::TableCollection::Ptr namedTables() {
  Kestrel::TableCollection::Ptr const tables = Kestrel::tableCollectionFactory();
  for (U32 id = 0; id < elements; ++id) tables->tableNameIs(id, Mox::format("table%u", id));
  return tables;
}

Kestrel::XpPortList::Ptr listedPorts() {
  Kestrel::XpPortList::Ptr const list = new Kestrel::XpPortList("ports");
  for (U32 port = 0; port < elements; ++port)
    list->portsIs(Mox::format("Ethernet%u", port), (port & 1) != 0);
  return list;
}

void walkTyped(benchmark::State& state) {
  auto const tables = namedTables();
  for (auto _ : state)
    for (auto at = tables->tableNameIterator(); at; ++at) {
      benchmark::DoNotOptimize(at.key());
      benchmark::DoNotOptimize(at.value().size());
    }
  state.SetItemsProcessed(static_cast<S64>(state.iterations()) * elements);
}
BENCHMARK(walkTyped);

void walkByNumber(benchmark::State& state) {
  auto const tables = namedTables();
  auto const face = tables->fwkType()->genericIf_(tables.ptr(), false);
  Mox::AttributeId const id = face->attributeId("tableName");
  for (auto _ : state)
    for (auto at = face->attributeIteratorConst(id); at; ++at) {
      benchmark::DoNotOptimize(Mox::primitiveIn<U32>(at.key()));
      benchmark::DoNotOptimize(Mox::primitiveIn<Mox::String8>(at.obj()).size());
    }
  state.SetItemsProcessed(static_cast<S64>(state.iterations()) * elements);
}
BENCHMARK(walkByNumber);

void walkNamesTyped(benchmark::State& state) {
  auto const list = listedPorts();
  for (auto _ : state)
    for (auto at = list->portsIterator(); at; ++at) {
      benchmark::DoNotOptimize(at.key().size());
      benchmark::DoNotOptimize(at.value());
    }
  state.SetItemsProcessed(static_cast<S64>(state.iterations()) * elements);
}
BENCHMARK(walkNamesTyped);

void walkNamesByNumber(benchmark::State& state) {
  auto const list = listedPorts();
  auto const face = list->fwkType()->genericIf_(list.ptr(), false);
  Mox::AttributeId const id = face->attributeId("ports");
  for (auto _ : state)
    for (auto at = face->attributeIteratorConst(id); at; ++at) {
      benchmark::DoNotOptimize(Mox::primitiveIn<Mox::String8>(at.key()).size());
      benchmark::DoNotOptimize(Mox::primitiveIn<bool>(at.obj()));
    }
  state.SetItemsProcessed(static_cast<S64>(state.iterations()) * elements);
}
BENCHMARK(walkNamesByNumber);

#ifdef KESTREL_PEER_QT

void qtMetacallRead(benchmark::State& state) {
  QtCounters counters;
  int index = QtCounters::staticMetaObject.indexOfProperty("fecCorrected");
  unsigned value = 0;
  void* arguments[] = {&value};
  for (auto _ : state) {
    benchmark::DoNotOptimize(index);
    counters.qt_metacall(QMetaObject::ReadProperty, index, arguments);
    benchmark::DoNotOptimize(value);
  }
}
BENCHMARK(qtMetacallRead);

void qtMetacallWrite(benchmark::State& state) {
  QtCounters counters;
  int index = QtCounters::staticMetaObject.indexOfProperty("fecCorrected");
  unsigned value = 0;
  void* arguments[] = {&value};
  for (auto _ : state) {
    benchmark::DoNotOptimize(index);
    ++value;
    counters.qt_metacall(QMetaObject::WriteProperty, index, arguments);
  }
}
BENCHMARK(qtMetacallWrite);

void qtIndexRead(benchmark::State& state) {
  QtCounters counters;
  int const index = QtCounters::staticMetaObject.indexOfProperty("fecCorrected");
  QMetaProperty const property = QtCounters::staticMetaObject.property(index);
  for (auto _ : state) benchmark::DoNotOptimize(property.read(&counters).toUInt());
}
BENCHMARK(qtIndexRead);

void qtIndexWrite(benchmark::State& state) {
  QtCounters counters;
  int const index = QtCounters::staticMetaObject.indexOfProperty("fecCorrected");
  QMetaProperty const property = QtCounters::staticMetaObject.property(index);
  unsigned value = 0;
  for (auto _ : state) property.write(&counters, ++value);
}
BENCHMARK(qtIndexWrite);

void qtNameRead(benchmark::State& state) {
  QtCounters counters;
  for (auto _ : state) benchmark::DoNotOptimize(counters.property("fecCorrected").toUInt());
}
BENCHMARK(qtNameRead);

void qtNameWrite(benchmark::State& state) {
  QtCounters counters;
  unsigned value = 0;
  for (auto _ : state) counters.setProperty("fecCorrected", ++value);
}
BENCHMARK(qtNameWrite);

#endif

#ifdef KESTREL_PEER_RTTR

struct RttrCounters {
  U32 fecCorrected = 0;
  U32 fecUncorrected = 0;
  bool fecLocked = false;
};

RTTR_REGISTRATION {
  rttr::registration::class_<RttrCounters>("RttrCounters")
      .property("fecCorrected", &RttrCounters::fecCorrected)
      .property("fecUncorrected", &RttrCounters::fecUncorrected)
      .property("fecLocked", &RttrCounters::fecLocked);
}

void rttrCachedRead(benchmark::State& state) {
  RttrCounters counters;
  auto const property = rttr::type::get<RttrCounters>().get_property("fecCorrected");
  for (auto _ : state) benchmark::DoNotOptimize(property.get_value(counters).get_value<U32>());
}
BENCHMARK(rttrCachedRead);

void rttrCachedWrite(benchmark::State& state) {
  RttrCounters counters;
  auto const property = rttr::type::get<RttrCounters>().get_property("fecCorrected");
  U32 value = 0;
  for (auto _ : state) property.set_value(counters, ++value);
}
BENCHMARK(rttrCachedWrite);

void rttrNameRead(benchmark::State& state) {
  RttrCounters counters;
  auto const type = rttr::type::get<RttrCounters>();
  for (auto _ : state)
    benchmark::DoNotOptimize(
        type.get_property("fecCorrected").get_value(counters).get_value<U32>());
}
BENCHMARK(rttrNameRead);

void rttrNameWrite(benchmark::State& state) {
  RttrCounters counters;
  auto const type = rttr::type::get<RttrCounters>();
  U32 value = 0;
  for (auto _ : state) type.get_property("fecCorrected").set_value(counters, ++value);
}
BENCHMARK(rttrNameWrite);

#endif

}  // namespace

BENCHMARK_MAIN();
