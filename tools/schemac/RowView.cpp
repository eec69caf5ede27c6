// The names that templates see, made from rows, arguments and type uses.
#include "tools/schemac/RowView.h"

#include "tools/schemac/Markdown.h"

#include <algorithm>

namespace schemac {

namespace {

std::string withFirst(std::string_view name, char from, char to) {
  std::string result(name);
  if (!result.empty() && result[0] >= from && result[0] <= from + 25)
    result[0] = static_cast<char>(result[0] - from + to);
  return result;
}

std::string optionText(Options const& options, std::string const& name) {
  auto found = options.find(name);
  return found == options.end() ? "" : found->second.text;
}

void addRange(Scope& scope, Row const& row) {
  auto& range = scope.lists["range"];
  if (!row.range) return;
  Scope& bounds = range.emplace_back();
  bounds.texts["least"] = std::to_string(row.range->least);
  bounds.texts["most"] = std::to_string(row.range->most);
  bounds.texts["message"] = row.range->message;
}

// The header with the interface of the type that `header` declares.
std::string reflectHeader(std::string const& header) {
  return header.substr(0, header.rfind(".h")) + ".reflect.h";
}

}  // namespace

std::string capitalised(std::string_view name) { return withFirst(name, 'a', 'A'); }
std::string uncapitalised(std::string_view name) { return withFirst(name, 'A', 'a'); }

void addOptions(Scope& scope, std::string_view place, Options const& given) {
  for (Option const& option : options()) {
    if (!hasWord(option.places, place)) continue;
    std::string const name(option.name);
    if (option.takes == Option::Takes::nothing)
      scope.flag(name, given.count(name) != 0);
    else
      scope.texts[name] = optionText(given, name);
  }
}

void addDoc(Scope& scope, std::vector<std::string> const& doc) {
  auto& lines = scope.lists["doc"];
  auto const markdown = markdownLines(doc);
  for (std::size_t i = 0; i < doc.size(); ++i) {
    auto& texts = lines.emplace_back().texts;
    texts["line"] = doc[i];
    texts["spaced"] = doc[i].empty() ? "" : " " + doc[i];
    texts["markdown"] = markdown[i];
  }
}

std::optional<TypeUse> Names::keyType(Type const& type, Row const& row) const {
  if (row.key || !row.by) return row.key;
  return *Symbols::attributeType(*symbols.find(type.space, *row.type)->type, row.by->text);
}

Arguments Names::arguments(Type const& type, Row const& row) const {
  if (row.arguments) return *row.arguments;
  if (!row.shape->takesArguments) return {};
  return symbols.find(type.space, *row.type)->type->arguments;
}

bool Names::isElement(Type const& type) const {
  return std::ranges::any_of(schema.types, [&](Type const& owner) {
    return std::ranges::any_of(owner.rows, [&](Row const& row) {
      return row.shape->name == "owns" && !row.options.count("node") &&
             symbols.find(owner.space, *row.type)->type == &type;
    });
  });
}

Scope Names::rowScope(Type const& type, Row const& row) const {
  Scope scope;
  scope.shape = row.shape->name;
  scope.texts["name"] = row.name;
  scope.texts["Name"] = capitalised(row.name);
  scope.texts["id"] = row.id == noNumber ? "" : std::to_string(row.id);
  scope.texts["shape"] = row.shape->name;
  for (Shape const& shape : shapes()) {
    scope.flag("is" + capitalised(shape.name), &shape == row.shape);
    addOptions(scope, shape.name, row.options);
  }
  addDoc(scope, row.doc);
  auto& valueType = scope.lists["type"];
  if (row.type) valueType.push_back(useScope(type, *row.type));
  auto& key = scope.lists["key"];
  if (auto use = keyType(type, row)) key.push_back(useScope(type, *use));
  scope.texts["by"] = row.by ? row.by->text : "";
  scope.texts["default"] = defaultText(type, row);
  scope.texts["defaultCode"] = markdownCode(scope.texts["default"]);
  addRange(scope, row);
  auto& args = scope.lists["args"];
  auto& others = scope.lists["otherArgs"];
  for (Argument const& argument : arguments(type, row)) {
    args.push_back(argumentScope(type, argument));
    if (!row.by || argument.name != row.by->text) others.push_back(args.back());
  }
  return scope;
}

std::string Names::defaultText(Type const& type, Row const& row) const {
  if (!row.defaultValue) return "";
  std::string const& text = row.defaultValue->text;
  Symbol const& symbol = *symbols.find(type.space, *row.type);
  if (isText(symbol)) return "\"" + text + "\"";
  // A member of the class may bear the enumerator's name.
  if (symbol.kind == Kind::enumeration)
    return symbolScope(type, symbol).texts.at(selfName) + "::" + text;
  return text;
}

Scope Names::argumentScope(Type const& type, Argument const& argument) const {
  Scope scope;
  scope.shape = "argument";
  scope.texts["name"] = argument.name;
  scope.texts["Name"] = capitalised(argument.name);
  scope.lists["type"].push_back(useScope(type, argument.type));
  return scope;
}

Scope Names::useScope(Type const& type, TypeUse const& use) const {
  Scope scope = symbolScope(type, *symbols.find(type.space, use));
  scope.flag("isConst", use.isConst);
  scope.flag("isPointer", use.isPointer);
  return scope;
}

Scope Names::symbolScope(Type const& type, Symbol const& symbol) const {
  Options const& given = symbol.external ? symbol.external->options : symbol.type->options;
  std::string const as = symbol.external ? optionText(given, "as") : "";
  std::string const spelled = as.empty() ? symbol.name : as;
  bool near = as.empty() && symbol.space == type.space;
  Scope scope;
  scope.shape = "type";
  scope.texts[selfName] = near ? symbol.shortName : spelled;
  scope.texts["full"] = spelled;
  scope.texts["short"] = symbol.shortName;
  scope.texts["anchor"] = markdownAnchor(symbol.name);
  scope.texts["typeSpace"] = symbol.space;
  scope.texts["header"] = symbol.header;
  scope.texts["reflectHeader"] = reflectHeader(symbol.header);
  scope.texts["text"] = symbol.external ? optionText(given, "text") : "";
  if (scope.texts["text"].empty()) scope.texts["text"] = spelled;
  for (Kind kind : {Kind::primitive, Kind::value, Kind::enumeration, Kind::entity, Kind::object})
    scope.flag("is" + capitalised(kindName(kind)), kind == symbol.kind);
  scope.flag("isCounted", symbol.kind == Kind::entity || symbol.kind == Kind::object);
  for (char const* option : {"zero", "field"})
    scope.texts[option] = symbol.external ? optionText(given, option) : "";
  scope.flag("integer", given.count("integer") != 0);
  scope.flag("byReference", given.count("byReference") != 0);
  scope.flag("hasDescriptor", symbol.kind != Kind::object && symbol.kind != Kind::primitive);
  scope.flag("isConst", false);
  scope.flag("isPointer", false);
  scope.flag("isMox", symbol.kind == Kind::primitive || symbol.space == "Mox");
  scope.flag("isOwn", symbol.type != nullptr);
  return scope;
}

}  // namespace schemac
