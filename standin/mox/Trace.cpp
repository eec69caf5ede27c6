// The facilities of the process, what is enabled, and the emission of lines.
#include "Mox/Trace.h"

#include "standin/mox/TracePattern.h"

#include <cstdio>
#include <map>
#include <memory>
#include <string>
#include <vector>

namespace Mox {

std::ostream* coverageStream_ = nullptr;

namespace {

struct Setting {
  TracePattern pattern;
  bool on;
};

// Everything that tracing knows in this process.  Never destroyed: traces may come from destructors
// that run at the very end.
struct Tracing {
  std::map<String8, std::unique_ptr<TraceFacility>> facilities;
  std::vector<Setting> settings;  // in the order given, for facilities to come
  TraceSink sink;
};

Tracing& tracing() {
  static auto* const state = new Tracing;
  return *state;
}

void apply(Setting const& setting, TraceFacility& facility) {
  TracePattern const& pattern = setting.pattern;
  if (!pattern.matches(facility.name().view())) return;
  if (setting.on) {
    facility.levelsIs((facility.enabled() ? facility.levels() : 0) | pattern.levels);
    facility.enabledIs(true);
  } else {
    facility.levelsIs(facility.levels() & ~pattern.levels);
    if (facility.levels() == 0) facility.enabledIs(false);
  }
}

void applyToAll(Setting const& setting) {
  for (auto const& [name, facility] : tracing().facilities) apply(setting, *facility);
  tracing().settings.push_back(setting);
}

std::unique_ptr<TraceFacility> newFacility(String8 const& name, bool enabled) {
  auto facility = std::make_unique<TraceFacility>(name);
  facility->enabledIs(enabled);
  facility->levelsIs(enabled ? 1 : 0);
  for (Setting const& setting : tracing().settings) apply(setting, *facility);
  return facility;
}

void writeToStandardError(std::string line) {
  line += '\n';
  std::fwrite(line.data(), 1, line.size(), stderr);
}

}  // namespace

TraceFacility* traceFacility(String8 const& name) {
  auto const found = tracing().facilities.find(name);
  return found == tracing().facilities.end() ? nullptr : found->second.get();
}

TraceHandle::TraceHandle(String8 name, bool enabled) {
  auto& facility = tracing().facilities[name];
  if (!facility) facility = newFacility(name, enabled);
  facility_ = facility.get();
}

void traceEnable(String8 const& pattern) { applyToAll({TracePattern(pattern), true}); }
void traceDisable(String8 const& pattern) { applyToAll({TracePattern(pattern), false}); }

TraceSink traceSinkIs(TraceSink sink) { return std::exchange(tracing().sink, std::move(sink)); }

void traceHelper(TraceFacility* facility, String8 const& object, std::stringstream& text, int level,
                 bool traced, char const* file, int line, char const* function) {
  std::ostringstream whole;
  whole << facility->name() << ' ' << level << ' ' << file << ':' << line << ' ' << function << ' '
        << object << ": " << text.view();
  if (coverageStream_) *coverageStream_ << whole.view() << '\n';
  if (!traced) return;
  if (TraceSink const sink = tracing().sink)
    sink(whole.view());
  else
    writeToStandardError(whole.str());
}

}  // namespace Mox
