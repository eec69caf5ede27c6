// From a request to what it asks for.
#include "tools/kestrel/Commands.h"

#include "standin/xdk/ProfileWriter.h"
#include "tools/kestrel/BringUp.h"
#include "tools/kestrel/Completion.h"
#include "tools/kestrel/Demo.h"
#include "tools/kestrel/PrintLint.h"
#include "tools/kestrel/RequestedChip.h"
#include "tools/kestrel/Types.h"

#include <cstdlib>
#include <cstring>
#include <ostream>
#include <unistd.h>

namespace kestrel {

namespace {

bool wantsColour() {
  char const* const terminal = std::getenv("TERM");
  return isatty(STDOUT_FILENO) != 0 && !std::getenv("NO_COLOR") && terminal &&
         std::strcmp(terminal, "dumb") != 0;
}

}  // namespace

ExitStatus demo(Request const& request, std::ostream& out) {
  Insight const insight(request.insight);
  printDemo(wantsColour(), out);
  return success;
}

ExitStatus bringUp(Request const& request, std::ostream& out) {
  Chip chip = chipFor(request);
  Insight const insight(request.insight);
  if (request.down)
    printBringUpAndDown(chip, out);
  else
    printBringUp(chip, out);
  return success;
}

ExitStatus lint(Request const& request, std::ostream& out) {
  std::vector<Finding> const findings = findingsOf(profileOf(request));
  if (request.json)
    printFindingsAsJson(findings, out);
  else
    printFindings(findings, out);
  return findings.empty() ? success : failure;
}

ExitStatus profile(Request const&, std::ostream& out) {
  out << xdksim::writeProfile(xdksim::defaultProfile());
  return success;
}

ExitStatus trace(Request const& request, std::ostream& out) {
  printTraceFile(request.traceFile, out);
  return success;
}

ExitStatus types(Request const& request, std::ostream& out) {
  if (request.json)
    printTypesAsJson(out);
  else
    printTypes(out);
  return success;
}

ExitStatus complete(Request const& request, std::ostream& out) {
  for (std::string const& word : completionsOf(request.words)) out << word << '\n';
  return success;
}

ExitStatus completion(Request const&, std::ostream& out) {
  out << bashCompletion;
  return success;
}

}  // namespace kestrel
