// The commands on paths into the model: nothing here knows its types.
#include "tools/kestrel/BringUp.h"
#include "tools/kestrel/Commands.h"
#include "tools/kestrel/model/Call.h"
#include "tools/kestrel/model/FaceJson.h"
#include "tools/kestrel/model/ModelSession.h"
#include "tools/kestrel/model/PlainText.h"
#include "tools/kestrel/model/Show.h"
#include "tools/kestrel/model/Tree.h"
#include "tools/kestrel/model/Watch.h"

#include <ostream>

namespace kestrel {

namespace {

void printJson(Json const& json, std::ostream& out) { out << json.dump(1) << '\n'; }

/// A text result stands as it is, as reports do.
void printResult(GenericIf& result, std::ostream& out) {
  if (isText(*result.type()))
    out << plainText(result);
  else
    print(result, out);
}

}  // namespace

ExitStatus get(Request const& request, std::ostream& out) {
  ModelSession const session(request);
  Place const place = session.paths().requireAt(request.path);
  askedAt(place.path, [&] {
    if (request.json)
      printJson(jsonAt(place, session.roots()), out);
    else
      print(place, session.roots(), out);
  });
  return success;
}

ExitStatus set(Request const& request, std::ostream& out) {
  ModelSession const session(request);
  Place const place = session.paths().at(request.path);
  set(session.paths(), place, request.value);
  out << lineAt(session.paths().requireAt(place.path)) << '\n';
  return success;
}

ExitStatus tree(Request const& request, std::ostream& out) {
  ModelSession const session(request);
  Place const place = session.paths().requireAt(request.path);
  printTree(place, session.roots(), request.depth.value_or(1), out);
  return success;
}

ExitStatus call(Request const& request, std::ostream& out) {
  ModelSession session(request);
  Place const place = session.paths().requireAt(request.path);
  MoxAttr const& operation = operationAt(place, request.operation);
  GenericIf::Ptr result;
  auto const perform = [&] { result = call(session.paths(), place, operation, request.words); };
  if (request.log)
    printCalls(session.chip(), out, perform);
  else
    perform();
  if (request.json)
    printJson(result ? jsonOf(*result) : nullptr, out);
  else if (result)
    printResult(*result, out);
  return success;
}

ExitStatus watch(Request const& request, std::ostream& out) {
  constexpr U32 usualSteps = 100;
  ModelSession session(request);
  Watch watch(session.paths(), request.batch, out);
  for (std::string const& path : request.words) watch.add(path);
  std::mt19937 random(request.seed.value_or(1));
  for (U32 step = request.steps.value_or(usualSteps); step > 0; --step) {
    session.model().live(random);
    watch.settle();
  }
  return success;
}

}  // namespace kestrel
