// Quotes come and go here, and percent signs.
#include "tools/kestrel/model/PlainText.h"

#include "Mox/Strep.h"

#include <algorithm>
#include <charconv>

namespace kestrel {

namespace {

constexpr std::string_view nothing = "''";

bool beginsQuoted(std::string_view text) {
  return !text.empty() && (text.front() == '\'' || text.front() == '"');
}

bool standsForItself(unsigned char byte) {
  return (byte >= '0' && byte <= '9') || (byte >= 'A' && byte <= 'Z') ||
         (byte >= 'a' && byte <= 'z') || std::string_view("-._~").find(byte) != std::string::npos;
}

/// The byte of the two digits in front of `text`.
char byteOf(std::string_view text) {
  unsigned byte = 0;
  char const* const end = text.data() + std::min<std::size_t>(text.size(), 2);
  auto const read = std::from_chars(text.data(), end, byte, 16);
  if (read.ec != std::errc() || read.ptr != text.data() + 2)
    throw Mox::RangeException("a \"%\" needs two hexadecimal digits");
  return static_cast<char>(byte);
}

/// The value of the text form, for which the user has typed `text`.
GenericIf::Ptr parsed(MoxType const& type, Mox::String8 const& form, std::string const& text) {
  try {
    return type.genericIf(form, false);
  } catch (Mox::RangeException const& fault) {
    std::string complaint = "no " + nameOf(type) + " \"" + text + '"';
    // Enumerations complain of a name with nothing but their own.
    bool const saysMore = textOf(fault.message()) != nameOf(type);
    if (saysMore) complaint += " (" + textOf(fault.message()) + ")";
    throw Mox::RangeException(Mox::String8(complaint));
  }
}

}  // namespace

std::string plainText(GenericIf const& value) {
  MoxType const* const type = value.type();
  if (auto const* const held = heldAs<Mox::String8>(value)) return textOf(*held);
  if (type == Mox::Name::_fwkType())
    return textOf(static_cast<Mox::Name const*>(value.voidPtrIs(type))->stringValue());
  std::string const text = textOf(value.strRep());
  bool const quoted = type->isEnumType() && beginsQuoted(text);
  return quoted ? text.substr(1, text.size() - 2) : text;
}

GenericIf::Ptr fromPlainText(MoxType const& type, std::string const& text) {
  Mox::String8 const given(text);
  bool const quoted = isText(type) || type.isEnumType();
  return parsed(type, quoted ? Mox::valueToStrep(given) : given, text);
}

GenericIf::Ptr fromText(MoxType const& type, std::string const& text) {
  return beginsQuoted(text) ? parsed(type, Mox::String8(text), text) : fromPlainText(type, text);
}

std::string encoded(std::string_view name) {
  if (name.empty()) return std::string(nothing);
  std::string step;
  for (unsigned char const byte : name)
    if (standsForItself(byte))
      step += static_cast<char>(byte);
    else
      step += textOf(Mox::format("%%%02X", byte));
  return step;
}

std::string decoded(std::string_view step) {
  if (step == nothing) return "";
  std::string name;
  for (std::size_t at = 0; at < step.size(); ++at) {
    bool const code = step[at] == '%';
    name += code ? byteOf(step.substr(at + 1)) : step[at];
    if (code) at += 2;
  }
  return name;
}

}  // namespace kestrel
