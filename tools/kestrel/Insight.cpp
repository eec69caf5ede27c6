// Traces on, and trace files read.
#include "tools/kestrel/Insight.h"

#include "Mox/Exception.h"
#include "Mox/Trace.h"
#include "Swiftlog/Reader.h"
#include "standin/xdk/Json.h"
#include "tools/kestrel/UsageFault.h"

#include <cerrno>
#include <cstring>
#include <filesystem>
#include <iostream>
#include <string_view>
#include <unistd.h>

namespace kestrel {

namespace {

void enable(std::string const& pattern) {
  try {
    Mox::traceEnable(Mox::String8(pattern));
  } catch (Mox::RangeException const& fault) {
    throw UsageFault(fault.what());
  }
}

// Sites write copy numbers as bytes: a terminal would obey them, and a search stop at them.
void showLine(std::string_view line) { std::cerr << xdksim::printable(line, line.size()) << '\n'; }

// The reader tells neither why a file can't be opened nor that it is none.
void checkReadable(std::string const& file) {
  if (access(file.c_str(), R_OK) != 0)
    throw UsageFault(file + ": cannot be read: " + std::strerror(errno));
  if (!std::filesystem::is_regular_file(file)) throw UsageFault(file + ": is no plain file");
}

}  // namespace

Insight::Insight(InsightRequest const& request) {
  Mox::traceSinkIs(showLine);
  for (std::string const& pattern : request.patterns) enable(pattern);
  if (!request.swiftlog) return;
  file_.emplace(Mox::String8(*request.swiftlog));
  Swiftlog::theTraceFileIs(&*file_);
}

void printTraceFile(std::string const& file, std::ostream& out) {
  checkReadable(file);
  try {
    Swiftlog::Reader(Mox::String8(file)).print(out);
  } catch (Mox::RangeException const& fault) {
    out << std::flush;  // the good records stand before the complaint
    throw UsageFault(file + ": " + fault.what());
  }
}

}  // namespace kestrel
