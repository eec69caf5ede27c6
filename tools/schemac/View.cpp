// The names that templates see, made from schemas: whole schemas and their types.
#include "tools/schemac/View.h"

#include "tools/schemac/Markdown.h"
#include "tools/schemac/RowView.h"

#include <algorithm>
#include <filesystem>
#include <map>
#include <set>

namespace schemac {

namespace {

// Types that `type` names, each once, by full name.
std::map<std::string, Symbol const*> typesUsed(Names const& names, Type const& type) {
  std::map<std::string, Symbol const*> result;
  auto use = [&](std::optional<TypeUse> const& each) {
    if (!each) return;
    Symbol const* symbol = names.symbols.find(type.space, *each);
    result.emplace(symbol->name, symbol);
  };
  use(type.base);
  for (Argument const& each : type.arguments) use(each.type);
  for (Row const& row : type.rows) {
    use(row.type);
    use(names.keyType(type, row));
    for (Argument const& each : names.arguments(type, row)) use(each.type);
  }
  return result;
}

std::vector<Scope> headerList(std::set<std::string> const& headers) {
  std::vector<Scope> result;
  for (std::string const& header : headers) {
    Scope& scope = result.emplace_back();
    scope.texts[selfName] = header;
    scope.texts["path"] = header;
  }
  return result;
}

// A type that stands below in the schema is only named ahead of this one, so that the headers of
// two types that refer to each other don't include each other.
void addUses(Names const& names, Type const& type, Scope& scope) {
  std::set<std::string> above;
  std::set<std::string> below;
  auto& forwards = scope.lists["forwards"];
  for (auto const& [name, symbol] : typesUsed(names, type)) {
    if (symbol->type == &type || symbol->header.empty()) continue;
    bool later = symbol->type && symbol->type->at.line > type.at.line;
    (later ? below : above).insert(symbol->header);
    if (later) forwards.push_back(names.symbolScope(type, *symbol));
  }
  scope.lists["headers"] = headerList(above);
  scope.lists["bodyHeaders"] = headerList(below);
}

// Each shape that the type's rows have, once, as a scope of that shape.
void addShapesUsed(Type const& type, Scope& scope) {
  auto& used = scope.lists["usedShapes"];
  for (Shape const& shape : shapes()) {
    bool has = std::ranges::any_of(type.rows, [&](Row const& row) { return row.shape == &shape; });
    scope.flag("has" + capitalised(shape.name), has);
    if (has) used.emplace_back().shape = shape.name;
  }
}

// What access by number asks of a type beside its rows.
void addAccess(Type const& type, Scope& scope) {
  auto hasAny = [&](std::string_view names) {
    return std::ranges::any_of(type.rows,
                               [&](Row const& row) { return hasWord(names, row.shape->name); });
  };
  scope.flag("hasCollections", hasAny("map refs owns"));
  scope.flag("hasHooks", hasAny("scalar counter ref own map refs owns"));
  // A name alone is no reason; the parameter of a base is one, for the base's makes another class.
  auto const takesMore = [](Argument const& argument) { return argument.name != "name"; };
  bool const takes = type.kind == Kind::value ? !scope.lists.at("fields").empty()
                                              : type.kind == Kind::entity &&
                                                    std::ranges::any_of(type.arguments, takesMore);
  scope.flag("listConstructed", takes);
}

// The stored fields of a value.  Its constructor takes them, unless each can be set by itself.
void addFields(Names const& names, Type const& type, Scope& scope) {
  auto& fields = scope.lists["fields"];
  auto& range = scope.lists["range"];
  for (Row const& row : type.rows) {
    if (!isFieldOfValue(row)) continue;
    Scope field = names.rowScope(type, row);
    if (row.range) range = field.lists.at("range");
    fields.push_back(std::move(field));
  }
  scope.flag("oneField", fields.size() == 1);
  scope.flag("single", isSingle(names.symbols, type));
  scope.flag("takesFields", !fields.empty() && !type.options.count("mutable"));
}

void addConstructor(Names const& names, Type const& type, Scope& scope) {
  scope.flag("ownKey", false);
  scope.flag("nameKey", false);
  auto& params = scope.lists["params"];
  auto& own = scope.lists["ownParams"];
  auto& base = scope.lists["baseParams"];
  for (Argument const& argument : type.arguments) {
    params.push_back(names.argumentScope(type, argument));
    bool isOwn = std::ranges::any_of(type.rows, [&](Row const& row) {
      return row.name == argument.name && row.shape->name == "param";
    });
    (isOwn ? own : base).push_back(params.back());
  }
  scope.flag("oneParam", params.size() == 1);
  bool takesName = std::ranges::any_of(
      type.arguments, [](Argument const& argument) { return argument.name == "name"; });
  scope.flag("takesName", takesName);
  scope.flag("takesOnlyName", takesName && params.size() == 1);
  auto& key = scope.lists["keyType"];
  auto option = type.options.find("key");
  if (option == type.options.end()) return;
  std::string const& name = option->second.text;
  key.push_back(names.useScope(type, *Symbols::attributeType(type, name)));
  auto isKey = [&](Scope const& param) { return param.texts.at("name") == name; };
  scope.flag("ownKey", std::ranges::any_of(own, isKey));
  scope.flag("nameKey", name == "name");
}

// What the tags of a type call it: its name, unless the tag of a row hides that.
std::string nameInTags(Type const& type) {
  bool hidden = std::ranges::any_of(
      type.rows, [&type](Row const& row) { return capitalised(row.name) == type.name; });
  return hidden ? "::" + qualified(type.space, type.name) : type.name;
}

Scope typeScope(Names const& names, Type const& type) {
  Scope scope;
  scope.shape = kindName(type.kind);
  scope.texts["Class"] = type.name;
  scope.texts["class"] = uncapitalised(type.name);
  scope.texts["owner"] = nameInTags(type);
  scope.texts["fullName"] = qualified(type.space, type.name);
  scope.texts["anchor"] = markdownAnchor(scope.texts["fullName"]);
  scope.texts["kind"] = kindName(type.kind);
  scope.texts["space"] = type.space;
  scope.texts["path"] = outputPath(type.space, type.name);
  scope.texts["header"] = scope.texts["path"] + ".h";
  for (Kind kind : {Kind::value, Kind::enumeration, Kind::entity, Kind::object}) {
    scope.flag("is" + capitalised(kindName(kind)), kind == type.kind);
    addOptions(scope, kindName(kind), type.options);
  }
  auto& base = scope.lists["base"];
  if (type.base) base.push_back(names.useScope(type, *type.base));
  addConstructor(names, type, scope);
  addDoc(scope, type.doc);
  scope.flag("isElement", names.isElement(type));
  for (Row const& row : type.rows) scope.lists["rows"].push_back(names.rowScope(type, row));
  scope.lists["rows"];
  addFields(names, type, scope);
  scope.flag("hasRows", !type.rows.empty());
  addShapesUsed(type, scope);
  addAccess(type, scope);
  addUses(names, type, scope);
  return scope;
}

std::vector<Scope> alphabetical(std::vector<Scope> types) {
  std::ranges::sort(types, {}, [](Scope const& type) { return type.texts.at("Class"); });
  return types;
}

// Types that stand elsewhere and are named in this schema, in the order of their declarations:
// those that serve as a base, or the others.
std::vector<Scope> externsUsed(Schema const& schema, Names const& names, bool asBase) {
  std::map<std::string, Symbol const*> used;
  std::set<std::string> bases;
  for (Type const& type : schema.types) {
    used.merge(typesUsed(names, type));
    if (type.base) bases.insert(names.symbols.find(type.space, *type.base)->name);
  }
  std::vector<Scope> result;
  for (Extern const& type : schema.externs)
    if (used.count(type.name) && bases.count(type.name) == (asBase ? 1 : 0))
      result.push_back(names.symbolScope(schema.types.front(), *used.at(type.name)));
  return result;
}

}  // namespace

Scope viewOf(Schema const& builtin, Schema const& schema) {
  Symbols const symbols(builtin, schema);
  Names const names{symbols, schema};
  Scope scope;
  scope.texts["schema"] = std::filesystem::path(schema.file).filename().string();
  scope.texts["moduleSpace"] = schema.space;
  scope.texts["modulePath"] = outputPath(schema.space, schema.module);
  scope.texts["module"] = schema.module;
  scope.texts["umbrella"] = schema.header;
  scope.flag("closed", schema.closed);
  auto& types = scope.lists["types"];
  for (Type const& type : schema.types) types.push_back(typeScope(names, type));
  scope.lists["reversedTypes"] = {types.rbegin(), types.rend()};
  scope.lists["alphabeticalTypes"] = alphabetical(types);
  scope.lists["externBases"] = externsUsed(schema, names, true);
  scope.lists["externOthers"] = externsUsed(schema, names, false);
  std::set<std::string> externs;
  std::set<std::string> own;
  for (char const* list : {"externBases", "externOthers"})
    for (Scope const& each : scope.lists[list]) externs.insert(each.texts.at("header"));
  for (Scope const& each : scope.lists["types"]) own.insert(each.texts.at("header"));
  scope.lists["externHeaders"] = headerList(externs);
  scope.lists["ownHeaders"] = headerList(own);
  return scope;
}

Scope viewOf(std::vector<Scope> const& schemas) {
  Scope scope;
  for (char const* list : {"openSchemas", "closedSchemas"}) scope.lists[list];
  for (Scope const& schema : schemas)
    scope.lists[schema.texts.at("closed").empty() ? "openSchemas" : "closedSchemas"].push_back(
        schema);
  auto& names = scope.lists["typeNames"];
  for (Scope const& schema : schemas)
    for (Scope const& type : schema.lists.at("reversedTypes"))
      names.emplace_back().texts["fullName"] = type.texts.at("fullName");
  return scope;
}

}  // namespace schemac
