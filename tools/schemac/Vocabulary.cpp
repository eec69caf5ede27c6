// The words of the language: kinds of types, shapes of rows, options, and where each may stand.
#include "tools/schemac/Vocabulary.h"

#include <algorithm>
#include <array>

namespace schemac {

namespace {

constexpr std::array<std::string_view, 5> kindNames = {"primitive", "value", "enum", "entity",
                                                       "object"};

constexpr std::string_view mapMakes =
    "$name$ $name$Is new$Name$ $name$Del $name$DelAll $name$Notify $name$Count $name$Iterator "
    "$name$IteratorConst $name$_ Mox$Name$ $Name$Map NotifieeConst::on$Name$ "
    "NotifieeConst::on$Name$moxImmediate Tags::$Name$";

constexpr Shape shapeTable[] = {
    {.name = "param", .blocks = "entity object", .form = Form::type, .makes = "$name$ $name$_"},
    {.name = "scalar",
     .blocks = "entity",
     .form = Form::type,
     .takesDefault = true,
     .makes = "$name$ $name$Is $name$_ NotifieeConst::on$Name$ Tags::$Name$",
     .tagTypes = "Owner Value"},
    {.name = "counter",
     .blocks = "entity",
     .form = Form::type,
     .takesDefault = true,
     .makes = "$name$ $name$Is $name$Inc $name$_ NotifieeConst::on$Name$ Tags::$Name$",
     .tagTypes = "Owner Value"},
    {.name = "map",
     .blocks = "entity value object",
     .form = Form::mapping,
     .makes = mapMakes,
     .tagTypes = "Owner Key Value Node"},
    {.name = "ref",
     .blocks = "entity",
     .form = Form::type,
     .makes = "$name$ $name$Is $name$_ NotifieeConst::on$Name$ Tags::$Name$",
     .tagTypes = "Owner Value"},
    {.name = "refs",
     .blocks = "entity",
     .form = Form::keyed,
     .makes = mapMakes,
     .tagTypes = "Owner Key Value Node"},
    {.name = "own",
     .blocks = "entity",
     .form = Form::type,
     .takesArguments = true,
     .makes = "$name$ $name$Is new$Name$ $name$Del $name$_ NotifieeConst::on$Name$ Tags::$Name$ "
              "::$name$Args",
     .tagTypes = "Owner Child Value"},
    {.name = "owns",
     .blocks = "entity",
     .form = Form::element,
     .takesArguments = true,
     .makes = "$name$ $name$Is new$Name$ $name$Del $name$DelAll $name$Notify $name$Count "
              "$name$Iterator $name$IteratorConst $name$_ Mox$Name$ $Name$Map "
              "NotifieeConst::on$Name$ NotifieeConst::on$Name$moxImmediate "
              "Tags::$Name$ ::$name$Args",
     .tagTypes = "Owner Child Key Node"},
    {.name = "computed", .blocks = "entity value object", .form = Form::type, .makes = "$name$"},
    {.name = "field",
     .blocks = "value object",
     .form = Form::type,
     .takesDefault = true,
     .takesRange = true,
     .makes = "$name$ $name$Is $name$_"},
    {.name = "bound", .blocks = "value", .form = Form::type, .takesRange = true},
    {.name = "operation",
     .blocks = "entity object",
     .form = Form::call,
     .numbering = Numbering::maybe,
     .makes = "$name$ ::$name$Args ::$name$Arguments"},
    {.name = "preset",
     .blocks = "entity",
     .form = Form::type,
     .numbering = Numbering::never,
     .takesDefault = true},
    {.name = "enumerator", .blocks = "enum", .form = Form::nothing, .makes = "$name$"},
};

constexpr std::string_view entityNames =
    // What the header makes of every entity, and what its bodies look up.
    "$Class$ Ptr PtrConst NotifieeConst Notifiee _Type GenericIf_ Tags fwkType _fwkType "
    "moxNotifiees "
    "notifiees_ moxKey moxNext_ attributeRows $class$Type moxInit$module$ ::constructorArgs "
    "Tags::Tags Tags::Mox Tags::NotifieeConst "
    // Mox::Entity
    "name parent parentIs parentAttr parentAttrId parentAttrIdIs uriPath fullName attributeString "
    "moxNotifieeAdapterIs handleParent moxNboAttrLogSa moxHasAttrLogInterface "
    "moxNboAttrLogSaForMsgChannel moxNboAttrLogSaIs moxNboAttrLogSaDel MoxNboAttrLogSa version "
    "readCount moxFlags moxName moxVersionInc moxRead moxParentGone "
    // Mox::PtrInterface
    "hasNotificationActiveIs moxAuditErrors auditErrors zeroReferencesIs referencesInc "
    "referencesDec references referenceWord referenceWord_ enableThreadSafePointers handleZeroRef "
    "hasNotificationActive moxMarkedForDeletion moxMarkedForDeletionIs "
    // The observers of both.
    "NotifieeConst::onParent NotifieeConst::onVersion NotifieeConst::onAttribute "
    "NotifieeConst::onNotification NotifieeConst::onCollectionNotification "
    "NotifieeConst::onNotificationException NotifieeConst::onZeroReferences";

constexpr std::string_view objectNames =
    "$Class$ Ptr PtrConst NotifieeConst Notifiee _Type GenericIf_ Tags fwkType _fwkType "
    "$class$Type "
    "moxInit$module$ ::constructorArgs Tags::Tags Tags::Mox moxDoZombieReactors moxFwkActivity "
    // Mox::PtrInterface
    "hasNotificationActiveIs moxAuditErrors auditErrors zeroReferencesIs referencesInc "
    "referencesDec references referenceWord referenceWord_ enableThreadSafePointers handleZeroRef "
    "hasNotificationActive moxMarkedForDeletion moxMarkedForDeletionIs";

constexpr std::string_view valueNames =
    "$Class$ _Type GenericIf_ Fields Tags fwkType _fwkType $class$Type moxInit$module$ "
    "Tags::Tags Tags::Mox";

constexpr std::string_view enumNames =
    "stringValue valueToStrep sequenceToValue moxInit$module$ moxModule$module$ names table Type "
    "constructorArgs attributeRows attributeCache used alphabetical types thisModule";

constexpr Option optionTable[] = {
    {"header", "extern", Option::Takes::text},
    {"as", "extern", Option::Takes::text},
    {"text", "extern", Option::Takes::text},
    {"integer", "extern"},
    {"range", "extern", Option::Takes::text},
    {"zero", "extern", Option::Takes::text},
    {"field", "extern", Option::Takes::text},
    {"wire", "extern", Option::Takes::text},
    {"byReference", "extern value"},
    {"key", "entity", Option::Takes::word},
    {"root", "entity object"},
    {"virtual", "entity"},
    {"creator", "object"},
    {"stateMachine", "object"},
    {"ordered", "value map refs"},
    {"mutable", "value"},
    {"customText", "value"},
    {"customParser", "value"},
    {"customOrder", "value"},
    {"custom", "scalar counter map ref refs own owns"},
    {"compared", "own"},
    {"quiet", "own"},
    {"keepFirst", "owns"},
    {"node", "owns"},
    {"const", "operation"},
    {"ofFields", "computed"},
    {"of", "computed", Option::Takes::word},
};

constexpr std::string_view reservedWords =
    "alignas alignof and and_eq asm auto bitand bitor bool break case catch char char8_t "
    "char16_t char32_t class compl concept const const_cast consteval constexpr constinit "
    "continue co_await co_return co_yield decltype default delete do double dynamic_cast else "
    "enum explicit export extern false float for friend goto if inline int long mutable "
    "namespace new noexcept not not_eq nullptr operator or or_eq private protected public "
    "register reinterpret_cast requires return short signed sizeof static static_assert "
    "static_cast struct switch template this thread_local throw true try typedef typeid "
    "typename union unsigned using virtual void volatile wchar_t while xor xor_eq";

// Macros of the standard headers that generated code sees, as far as a schema could mean them.
constexpr std::string_view macros = "EOF NULL assert errno offsetof stderr stdin stdout";

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

std::string_view namesOfKind(Kind kind) {
  if (kind == Kind::entity) return entityNames;
  if (kind == Kind::object) return objectNames;
  return kind == Kind::value ? valueNames : enumNames;
}

std::vector<std::string_view> wordsOf(std::string_view words) {
  std::vector<std::string_view> result;
  while (!words.empty()) {
    std::size_t const length = std::min(words.find(' '), words.size());
    result.push_back(words.substr(0, length));
    words.remove_prefix(std::min(length + 1, words.size()));
  }
  return result;
}

bool hasWord(std::string_view words, std::string_view word) {
  return std::ranges::count(wordsOf(words), word) != 0;
}

bool isReserved(std::string_view word) {
  return hasWord(reservedWords, word) || hasWord(macros, word);
}

}  // namespace schemac
