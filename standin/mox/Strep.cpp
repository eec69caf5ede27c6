// Text forms: from values to text.
#include "Mox/Strep.h"

#include "Mox/MoxType.h"
#include "standin/mox/TypeName.h"

#include <array>
#include <charconv>
#include <memory>
#include <string>

namespace Mox {

namespace {

template <class Number>
String8 shortest(Number value) {
  std::array<char, 32> digits;
  auto const written = std::to_chars(digits.data(), digits.data() + digits.size(), value);
  return std::string_view(digits.data(), written.ptr - digits.data());
}

// What stands behind the backslash for a byte; 0 for a byte that has no letter.
char escapeLetter(char byte) noexcept {
  switch (byte) {
    case '\'':
    case '\\':
      return byte;
    case '\n':
      return 'n';
    case '\t':
      return 't';
    case '\r':
      return 'r';
    default:
      return 0;
  }
}

bool isControl(char byte) noexcept {
  auto const code = static_cast<unsigned char>(byte);
  return code < 0x20 || code == 0x7F;
}

void appendEscaped(std::string& text, char byte) {
  if (char const letter = escapeLetter(byte)) {
    text += {'\\', letter};
  } else if (isControl(byte)) {
    constexpr char digits[] = "0123456789abcdef";
    text += {'\\', 'x', digits[byte >> 4 & 0xF], digits[byte & 0xF]};
  } else {
    text += byte;
  }
}

String8 quoted(std::string_view bytes) {
  std::string text = "'";
  for (char const byte : bytes) appendEscaped(text, byte);
  return std::string_view(text += '\'');
}

String8 typeNameOf(PtrInterface const& object, std::type_info const& declared) {
  MoxType const* const type = object.fwkType();
  return type ? type->fullTypeName().stringValue() : typeName(declared);
}

}  // namespace

String8 valueToStrep(bool value) { return value ? "True" : "False"; }
String8 valueToStrep(long long value) { return shortest(value); }
String8 valueToStrep(unsigned long long value) { return shortest(value); }
String8 valueToStrep(double value) { return shortest(value); }
String8 valueToStrep(String8 const& value) { return quoted(value.view()); }
String8 valueToStrep(Name const& value) { return quoted(value.view()); }
String8 valueToStrep(char const* value) { return valueToStrep(String8(value)); }

String8 valueToStrepOfRawPtr(Entity const* object, std::type_info const& type) {
  if (!object) return "None";
  return "Entity(" + valueToStrep(typeNameOf(*object, type)) + ", " +
         valueToStrep(object->fullName()) + ")";
}

String8 valueToStrepOfRawPtr(PtrInterface const* object, std::type_info const& type) {
  if (!object) return "None";
  return "Object(" + valueToStrep(typeNameOf(*object, type)) + ")";
}

}  // namespace Mox
