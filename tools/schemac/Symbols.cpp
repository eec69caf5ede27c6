// The types that a schema can name.
#include "tools/schemac/Symbols.h"

#include <algorithm>

namespace schemac {

namespace {

// "A::B" of "A::B::C"; "" of "A".
std::string enclosing(std::string const& space) {
  std::size_t colon = space.rfind("::");
  return colon == std::string::npos ? "" : space.substr(0, colon);
}

std::string lastName(std::string const& name) {
  std::size_t colon = name.rfind("::");
  return colon == std::string::npos ? name : name.substr(colon + 2);
}

}  // namespace

bool isText(Symbol const& type) {
  return hasWord("String8 Mox::String8 Mox::String Mox::Name", type.name);
}

Symbols::Symbols(Schema const& builtin, Schema const& schema) {
  addExterns(builtin);
  addExterns(schema);
  for (Type const& type : schema.types) {
    std::string name = qualified(type.space, type.name);
    symbols_[name] = {
        type.kind, name,   type.space, type.name, outputPath(type.space, type.name) + ".h",
        &type,     nullptr};
  }
}

void Symbols::addExterns(Schema const& schema) {
  for (Extern const& type : schema.externs) {
    auto header = type.options.find("header");
    symbols_[type.name] = {type.kind,
                           type.name,
                           enclosing(type.name),
                           lastName(type.name),
                           header == type.options.end() ? "" : header->second.text,
                           nullptr,
                           &type};
  }
}

Symbol const* Symbols::find(std::string space, std::string const& name) const {
  for (;; space = enclosing(space)) {
    auto found = symbols_.find(qualified(space, name));
    if (found != symbols_.end()) return &found->second;
    if (space.empty()) return nullptr;
  }
}

std::vector<std::string> Symbols::names() const {
  std::vector<std::string> result;
  for (auto const& [name, symbol] : symbols_) result.push_back(name);
  return result;
}

Type const* Symbols::ownBase(Type const& type) const {
  Symbol const* base = type.base ? find(type.space, *type.base) : nullptr;
  return base ? base->type : nullptr;
}

TypeUse const* Symbols::attributeType(Type const& type, std::string const& name) {
  for (Argument const& argument : type.arguments)
    if (argument.name == name) return &argument.type;
  for (Row const& row : type.rows)
    if (row.name == name && row.type && !row.key && row.shape->form == Form::type)
      return &*row.type;
  return nullptr;
}

bool isFieldOfValue(Row const& row) {
  return row.shape->name == "field" || row.shape->name == "bound";
}

bool isSingle(Symbols const& symbols, Type const& type) {
  auto const isStored = [](Row const& row) { return row.shape->name != "computed"; };
  auto const isNumber = [&](Row const& row) {
    if (!isFieldOfValue(row) || (!row.range && row.name != "value")) return false;
    Symbol const* of = symbols.find(type.space, *row.type);
    return of && of->external && of->external->options.count("integer");
  };
  return type.kind == Kind::value && std::ranges::count_if(type.rows, isStored) == 1 &&
         std::ranges::any_of(type.rows, isNumber);
}

std::string outputPath(std::string const& space, std::string const& name) {
  std::string path = qualified(space, name);
  for (std::size_t colon = path.find("::"); colon != std::string::npos; colon = path.find("::"))
    path.replace(colon, 2, 1, '/');
  return path;
}

}  // namespace schemac
