// The words of the language: kinds of types, shapes of rows, options, and where each may stand.
#include "tools/schemac/Vocabulary.h"

#include <algorithm>
#include <array>

namespace schemac {

namespace {

constexpr std::array<std::string_view, 5> kindNames = {"primitive", "value", "enum", "entity",
                                                       "object"};

constexpr Shape shapeTable[] = {
    {.name = "param", .blocks = "entity object", .form = Form::type},
    {.name = "scalar", .blocks = "entity", .form = Form::type, .takesDefault = true},
    {.name = "counter", .blocks = "entity", .form = Form::type, .takesDefault = true},
    {.name = "map", .blocks = "entity value object", .form = Form::mapping},
    {.name = "ref", .blocks = "entity", .form = Form::type},
    {.name = "refs", .blocks = "entity", .form = Form::keyed},
    {.name = "own", .blocks = "entity", .form = Form::type, .takesArguments = true},
    {.name = "owns", .blocks = "entity", .form = Form::element, .takesArguments = true},
    {.name = "computed", .blocks = "entity value object", .form = Form::type},
    {.name = "field",
     .blocks = "value object",
     .form = Form::type,
     .takesDefault = true,
     .takesRange = true},
    {.name = "operation", .blocks = "entity object", .form = Form::call},
    {.name = "enumerator", .blocks = "enum", .form = Form::nothing},
};

constexpr Option optionTable[] = {
    {"header", "extern", Option::Takes::text},
    {"as", "extern", Option::Takes::text},
    {"text", "extern", Option::Takes::text},
    {"integer", "extern"},
    {"zero", "extern", Option::Takes::text},
    {"field", "extern", Option::Takes::text},
    {"byReference", "extern value"},
    {"key", "entity", Option::Takes::word},
    {"root", "entity object"},
    {"creator", "object"},
    {"stateMachine", "object"},
    {"ordered", "value map refs"},
    {"mutable", "value"},
    {"customText", "value"},
    {"customParser", "value"},
    {"customOrder", "value"},
    {"custom", "scalar counter map ref refs own owns"},
    {"keepFirst", "owns"},
    {"node", "owns"},
    {"const", "operation"},
    {"ofFields", "computed"},
};

constexpr std::string_view reservedWords =
    "alignas alignof and asm auto bool break case catch char class concept const constexpr "
    "continue decltype default delete do double else enum explicit export extern false float for "
    "friend goto if inline int long mutable namespace new noexcept not nullptr operator or private "
    "protected public register requires return short signed sizeof static struct switch template "
    "this throw true try typedef typeid typename union unsigned using virtual void volatile while "
    "xor";

}  // namespace

std::string_view kindName(Kind kind) { return kindNames[static_cast<std::size_t>(kind)]; }

std::optional<Kind> kindNamed(std::string_view word) {
  auto found = std::find(kindNames.begin(), kindNames.end(), word);
  if (found == kindNames.end()) return std::nullopt;
  return static_cast<Kind>(found - kindNames.begin());
}

std::span<Shape const> shapes() { return shapeTable; }

Shape const* shapeNamed(std::string_view name) {
  for (Shape const& shape : shapeTable)
    if (shape.name == name) return &shape;
  return nullptr;
}

Shape const* plainShape(Kind kind) {
  if (kind == Kind::value) return shapeNamed("field");
  if (kind == Kind::enumeration) return shapeNamed("enumerator");
  return nullptr;
}

std::span<Option const> options() { return optionTable; }

Option const* optionAt(std::string_view place, std::string_view name) {
  for (Option const& option : optionTable)
    if (option.name == name && hasWord(option.places, place)) return &option;
  return nullptr;
}

bool hasWord(std::string_view words, std::string_view word) {
  while (!words.empty()) {
    std::size_t length = std::min(words.find(' '), words.size());
    if (words.substr(0, length) == word) return true;
    words.remove_prefix(std::min(length + 1, words.size()));
  }
  return false;
}

bool isReserved(std::string_view word) { return hasWord(reservedWords, word); }

}  // namespace schemac
