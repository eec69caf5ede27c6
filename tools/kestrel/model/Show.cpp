// What stands at a place, line by line.
#include "tools/kestrel/model/Show.h"

#include "tools/kestrel/model/PlainText.h"

#include <ostream>

namespace kestrel {

namespace {

std::string operationText(MoxAttr const& operation) {
  return "operation " + signatureOf(operation);
}

void printAttribute(GenericIf& face, MoxAttr const& attribute, std::ostream& out) {
  auto const line = [&](std::string const& text) {
    out << nameOf(attribute) << ": " << text << '\n';
  };
  if (attribute.isOperation())
    line(operationText(attribute));
  else if (isCollection(attribute))
    line(countText(face, attribute));
  else if (auto const value = read(face, attribute))
    line(textOf(value->strRep()));
}

void printElements(GenericIf& face, MoxAttr const& collection, std::ostream& out) {
  for (auto at = face.attributeIteratorConst(collection.id()); at; ++at)
    out << encoded(plainText(*at.key())) << ": " << at.obj()->strRep() << '\n';
}

}  // namespace

std::string lineAt(Place const& place) {
  switch (place.kind) {
    case Place::Kind::operation:
      return operationText(*place.attribute);
    case Place::Kind::collection:
      return countText(*place.holder, *place.attribute);
    default:
      return textOf(place.face->strRep());
  }
}

void print(Place const& place, Roots const& roots, std::ostream& out) {
  if (place.kind == Place::Kind::top)
    for (Root const& root : roots) out << encoded(root.name) << ": " << root.face->strRep() << '\n';
  else if (place.kind == Place::Kind::collection)
    printElements(*place.holder, *place.attribute, out);
  else if (place.face)
    print(*place.face, out);
  else
    out << lineAt(place) << '\n';
}

void print(GenericIf& face, std::ostream& out) {
  if (!isObject(*face.type()) || isNull(face)) {
    out << face.strRep() << '\n';
    return;
  }
  for (MoxAttr const* const attribute : attributesOf(*face.type()))
    printAttribute(face, *attribute, out);
}

}  // namespace kestrel
