// Candidates by the same descriptors that the commands go by.
#include "tools/kestrel/model/Candidates.h"

#include "Mox/Builtin.h"
#include "tools/kestrel/model/Call.h"

namespace kestrel {

namespace {

bool leadsOn(Place const& place) {
  return place.kind == Place::Kind::collection || place.isObject();
}

std::vector<std::string> valuesOf(Paths const& paths, MoxType const* type,
                                  std::string const& typed) {
  if (!type) return {};
  if (type->isEnumType()) return enumeratorsOf(*type);
  if (type == Mox::Builtin<bool>::_fwkType()) return {"True", "False"};
  if (!isObject(*type)) return {};
  std::vector<std::string> values = pathsFrom(paths, typed);
  values.push_back("None");
  return values;
}

}  // namespace

std::vector<std::string> pathsFrom(Paths const& paths, std::string const& typed) {
  std::string const whole = typed.starts_with('/') ? typed : "/";
  std::string const above = whole.substr(0, whole.rfind('/') + 1);
  std::vector<std::string> found;
  for (std::string const& step : paths.stepsBelow(paths.requireAt(above)))
    found.push_back(above + step + (leadsOn(paths.at(above + step)) ? "/" : ""));
  return found;
}

std::vector<std::string> operationsAt(Paths const& paths, std::string const& path) {
  Place const place = paths.requireAt(path);
  return place.isObject() ? operationsOf(*place.face->type()) : std::vector<std::string>();
}

std::vector<std::string> valuesAt(Paths const& paths, std::string const& path,
                                  std::string const& typed) {
  Place const place = paths.at(path);
  bool const settable = place.attribute && place.kind != Place::Kind::operation;
  return valuesOf(paths, settable ? place.attribute->type() : nullptr, typed);
}

std::vector<std::string> argumentsAt(Paths const& paths, std::string const& path,
                                     std::string const& operation, std::size_t argument,
                                     std::string const& typed) {
  auto const parameters = parametersOf(operationAt(paths.requireAt(path), operation));
  bool const wanted = argument < parameters.size();
  return valuesOf(paths, wanted ? parameters[argument].descriptor : nullptr, typed);
}

}  // namespace kestrel
