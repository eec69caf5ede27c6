// From one step of a path to the next.
#include "tools/kestrel/model/Place.h"

#include "tools/kestrel/model/PlainText.h"

#include <algorithm>

namespace kestrel {

namespace {

using Kind = Place::Kind;

std::string pathBelow(Place const& place, std::string const& name) {
  return (place.kind == Kind::top ? "/" : place.path + "/") + encoded(name);
}

Place placeBelow(Place const& place, Kind kind, std::string const& name) {
  Place made;
  made.kind = kind;
  made.path = pathBelow(place, name);
  made.above = std::make_shared<Place const>(place);
  made.root = place.root;
  return made;
}

std::vector<std::string> stepsOf(std::string const& path) {
  std::vector<std::string> steps;
  std::size_t at = 1;
  while (at < path.size()) {
    std::size_t const end = std::min(path.find('/', at), path.size());
    steps.push_back(path.substr(at, end - at));
    at = end + 1;
  }
  return steps;
}

std::vector<std::string> keysOf(Place const& place) {
  std::vector<std::string> keys;
  for (auto at = place.holder->attributeIteratorConst(place.attribute->id()); at; ++at)
    keys.push_back(encoded(plainText(*at.key())));
  return keys;
}

bool isMember(Place const& place, GenericIf::PtrConst const& key) {
  return *heldAs<bool>(
      *place.holder->attributeOp({place.attribute->id(), GenericIf::opIsMember}, key));
}

/// Writes what stands there; for a field the value that it stands in.
void put(Place const& place, GenericIf::Ptr const& value) {
  place.holder->attributeOp({place.attribute->id(), GenericIf::opWrite}, place.key, value);
  // The holder of a field is a copy of the value that stands in the place above.
  if (place.holder->type()->isValue()) put(*place.above, place.holder);
}

void write(Place const& place, GenericIf::Ptr const& value) {
  try {
    put(place, value);
  } catch (Mox::OpNotSupportedException const& fault) {
    throw faultAt(place.path, "it can't be set (" + textOf(fault.message()) + ")");
  }
}

UsageFault unreadable(Place const& place) { return faultAt(place.path, "it can't be read"); }

/// What else could be given for a value of the type; empty for most.
std::string alternatives(MoxType const& type) {
  if (type.isEnumType()) return "; " + listed(enumeratorsOf(type));
  return isObject(type) ? "; a path to one or None is wanted" : "";
}

}  // namespace

UsageFault faultAt(std::string const& path, std::string const& complaint) {
  return UsageFault('"' + path + "\": " + complaint);
}

std::string listed(std::vector<std::string> const& names) {
  constexpr std::size_t most = 8;
  if (names.empty()) return "there is none";
  std::string text = names.size() == 1 ? "there is " : "there are ";
  std::size_t const shown = names.size() <= most + 1 ? names.size() : most;
  for (std::size_t at = 0; at < shown; ++at) {
    bool const last = at > 0 && at + 1 == names.size();
    text.append(at == 0 ? "" : last ? " and " : ", ").append(names[at]);
  }
  if (shown < names.size()) text += " and " + std::to_string(names.size() - shown) + " more";
  return text;
}

Place Paths::at(std::string const& path) const {
  if (!path.starts_with('/')) throw faultAt(path, "a path begins with \"/\"");
  Place place;
  for (std::string const& step : stepsOf(path)) {
    if (place.kind == Kind::element && !place.face) throw absent(place);
    place = askedAt(path, [&] { return below(place, step); });
  }
  return place;
}

Place Paths::requireAt(std::string const& path) const {
  Place const place = at(path);
  if (place.kind == Kind::element && !place.face) throw absent(place);
  if (place.kind == Kind::scalar && !place.face) throw unreadable(place);
  return place;
}

std::vector<std::string> Paths::stepsBelow(Place const& place) const {
  std::vector<std::string> steps;
  if (place.kind == Kind::collection) return keysOf(place);
  if (place.kind == Kind::top)
    for (Root const& root : roots_) steps.push_back(encoded(root.name));
  else if (place.face && !isNull(*place.face))
    for (MoxAttr const* const attribute : attributesOf(*place.face->type()))
      steps.push_back(nameOf(*attribute));
  return steps;
}

UsageFault Paths::unknown(Place const& place, std::string const& step,
                          std::string const& complaint) const {
  return faultAt(pathBelow(place, step), complaint + "; " + listed(stepsBelow(place)));
}

UsageFault Paths::absent(Place const& place) const {
  return faultAt(place.path, "no such element; " + listed(stepsBelow(*place.above)));
}

Place Paths::below(Place const& place, std::string const& step) const {
  std::string const name = decoded(step);
  if (place.kind == Kind::top) return rootAt(place, name);
  return place.kind == Kind::collection ? elementAt(place, name) : attributeAt(place, name);
}

Place Paths::rootAt(Place const& top, std::string const& name) const {
  for (Root const& root : roots_) {
    if (root.name != name) continue;
    Place place = placeBelow(top, Kind::root, name);
    place.root = &root;
    place.face = root.face;
    return place;
  }
  throw unknown(top, name, "no such root");
}

Place Paths::attributeAt(Place const& place, std::string const& name) const {
  if (place.kind == Kind::operation) throw faultAt(place.path, "an operation has no parts");
  if (!place.face) throw unreadable(place);
  if (isNull(*place.face)) throw faultAt(place.path, "None has no attributes");
  MoxAttr const* const attribute = attributeOf(*place.face->type(), name);
  if (!attribute && attributesOf(*place.face->type()).empty())
    throw faultAt(place.path, nameOf(*place.face->type()) + " has no parts");
  if (!attribute) throw unknown(place, name, "no such attribute");
  bool const scalar = !attribute->isOperation() && !isCollection(*attribute);
  Kind const kind = attribute->isOperation() ? Kind::operation : Kind::collection;
  Place made = placeBelow(place, scalar ? Kind::scalar : kind, name);
  made.holder = place.face;
  made.attribute = attribute;
  if (scalar) made.face = read(*made.holder, *attribute);
  return made;
}

Place Paths::elementAt(Place const& place, std::string const& key) const {
  Place made = placeBelow(place, Kind::element, key);
  made.holder = place.holder;
  made.attribute = place.attribute;
  try {
    made.key = fromPlainText(*place.attribute->keyType(), key);
  } catch (Mox::RangeException const& complaint) {
    throw unknown(place, key, textOf(complaint.message()));
  }
  if (isMember(place, made.key))
    made.face = made.holder->attributeOp({made.attribute->id()}, made.key);
  return made;
}

GenericIf::Ptr valueOf(Paths const& paths, MoxType const& type, std::string const& text) {
  if (isObject(type) && text.starts_with('/')) return paths.requireAt(text).face;
  try {
    return fromText(type, text);
  } catch (Mox::RangeException const& complaint) {
    throw Mox::RangeException(complaint.message() + Mox::String8(alternatives(type)));
  }
}

void set(Paths const& paths, Place const& place, std::string const& text) {
  if (!place.attribute) throw faultAt(place.path, "it stands for itself and can't be set");
  if (place.kind == Kind::operation) throw faultAt(place.path, "an operation can't be set");
  if (place.attribute->isInstantiating())
    throw faultAt(place.path, "what its owner makes can't be set");
  bool const keyIsMissing = place.kind == Kind::collection && place.attribute->keyAttr().empty();
  if (keyIsMissing) throw faultAt(place.path, "a key must follow");
  askedAt(place.path, [&] { write(place, valueOf(paths, *place.attribute->type(), text)); });
}

}  // namespace kestrel
