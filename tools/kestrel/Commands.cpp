// From a request to what it asks for.
#include "tools/kestrel/Commands.h"

#include "standin/xdk/ProfileReader.h"
#include "standin/xdk/ProfileWriter.h"
#include "tools/kestrel/BringUp.h"
#include "tools/kestrel/Demo.h"
#include "tools/kestrel/Report.h"
#include "tools/kestrel/Types.h"
#include "tools/kestrel/UsageFault.h"

#include <cstdlib>
#include <cstring>
#include <ostream>
#include <unistd.h>

namespace kestrel {

namespace {

xdksim::Profile profileOf(Request const& request) {
  if (!request.profile) return xdksim::defaultProfile();
  try {
    return xdksim::readProfileFile(*request.profile);
  } catch (xdksim::ProfileFault const& fault) {
    throw UsageFault(fault.what());
  }
}

/// A chip of the asked profile, not yet up.
Chip chipFor(Request const& request) {
  return Chip(profileOf(request), request.profile.value_or("the built-in profile"), request.sdk);
}

bool wantsColour() {
  char const* const terminal = std::getenv("TERM");
  return isatty(STDOUT_FILENO) != 0 && !std::getenv("NO_COLOR") && terminal &&
         std::strcmp(terminal, "dumb") != 0;
}

}  // namespace

void demo(Request const& request, std::ostream& out) {
  Insight const insight(request.insight);
  printDemo(xdksim::defaultProfile(), wantsColour(), out);
}

void reportSummary(Request const& request, std::ostream& out) {
  Chip chip = chipFor(request);
  Insight const insight(request.insight);
  chip.bringUp();
  if (request.tableId)
    printTableSummary(chip, *request.tableId, out);
  else
    printSummary(chip, out);
}

void reportTables(Request const& request, std::ostream& out) {
  Chip chip = chipFor(request);
  Insight const insight(request.insight);
  chip.bringUp();
  printTables(chip, out);
}

void bringUp(Request const& request, std::ostream& out) {
  Chip chip = chipFor(request);
  Insight const insight(request.insight);
  printBringUp(chip, out);
}

void profile(Request const&, std::ostream& out) {
  out << xdksim::writeProfile(xdksim::defaultProfile());
}

void trace(Request const& request, std::ostream& out) { printTraceFile(request.traceFile, out); }

void types(Request const& request, std::ostream& out) {
  if (request.json)
    printTypesAsJson(out);
  else
    printTypes(out);
}

}  // namespace kestrel
