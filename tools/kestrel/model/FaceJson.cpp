// From interfaces to JSON, by the descriptors of their types.
#include "tools/kestrel/model/FaceJson.h"

#include "tools/kestrel/model/PlainText.h"

#include <cmath>
#include <optional>

namespace kestrel {

namespace {

/// Json of the first of the types that the value is of.
template <class First, class... Others>
std::optional<Json> numberOf(GenericIf const& face) {
  if (First const* const number = heldAs<First>(face)) return Json(*number);
  if constexpr (sizeof...(Others) > 0)
    return numberOf<Others...>(face);
  else
    return std::nullopt;
}

bool isUtf8(std::string const& text) {
  try {
    return !Json(text).dump().empty();
  } catch (nlohmann::json::type_error const&) {
    return false;
  }
}

/// Each byte as the character of its number.
std::string widened(std::string const& bytes) {
  std::string text;
  for (unsigned char const byte : bytes) {
    constexpr unsigned ascii = 0x80;
    if (byte >= ascii) text += static_cast<char>(0xC0 | byte >> 6);
    text += static_cast<char>(byte < ascii ? byte : 0x80 | (byte & 0x3F));
  }
  return text;
}

std::string jsonText(std::string const& text) { return isUtf8(text) ? text : widened(text); }

Json elementsOf(GenericIf& face, MoxAttr const& collection) {
  Json elements = Json::object();
  for (auto at = face.attributeIteratorConst(collection.id()); at; ++at)
    elements[jsonText(plainText(*at.key()))] = jsonOf(*at.obj());
  return elements;
}

Json operationOf(MoxAttr const& operation) { return {{"operation", signatureOf(operation)}}; }

/// A record has its fields alone.
Json attributesAsJson(GenericIf& face) {
  Json json = Json::object();
  bool const isRecord = face.type()->isValue();
  for (MoxAttr const* const attribute : attributesOf(*face.type())) {
    if (isRecord && isComputed(*attribute)) continue;
    if (attribute->isOperation())
      json[nameOf(*attribute)] = operationOf(*attribute);
    else if (isCollection(*attribute))
      json[nameOf(*attribute)] = elementsOf(face, *attribute);
    else if (auto const value = read(face, *attribute))
      json[nameOf(*attribute)] = jsonOf(*value);
  }
  return json;
}

Json valueJson(GenericIf& face) {
  if (auto const number = numberOf<bool, U8, S8, U16, U32, S32, U64>(face)) return *number;
  if (double const* const number = heldAs<double>(face); number && std::isfinite(*number))
    return *number;
  MoxType const& type = *face.type();
  if (MoxAttr const* const field = onlyField(type)) return jsonOf(*read(face, *field));
  bool const record = type.isValue() && !type.isEnumType();
  return record ? attributesAsJson(face) : Json(jsonText(plainText(face)));
}

}  // namespace

Json jsonOf(GenericIf& face) {
  std::string const text = textOf(face.strRep());
  bool const none = text == "None" && !isText(*face.type()) && !face.type()->isValue();
  if (none) return nullptr;
  return isObject(*face.type()) ? Json(jsonText(text)) : valueJson(face);
}

Json jsonAt(Place const& place, Roots const& roots) {
  Json json;
  switch (place.kind) {
    case Place::Kind::top:
      for (Root const& root : roots) json[root.name] = jsonOf(*root.face);
      return json;
    case Place::Kind::collection:
      return elementsOf(*place.holder, *place.attribute);
    case Place::Kind::operation:
      return operationOf(*place.attribute);
    default:
      return place.isObject() ? attributesAsJson(*place.face) : jsonOf(*place.face);
  }
}

}  // namespace kestrel
