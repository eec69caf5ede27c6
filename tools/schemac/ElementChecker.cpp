// The rules on collections and children: what can be a key, and what can be owned or referred to.
#include "tools/schemac/ElementChecker.h"

#include <algorithm>

namespace schemac {

namespace {

// Parameters of these names would meet those of the generated comparison.
constexpr std::string_view namesInComparison = "child key";

constexpr std::string_view typesWithoutHash = "double float VoidPtr";

bool hasKey(Type const& type, Word const& attribute) {
  auto key = type.options.find("key");
  return key != type.options.end() && key->second.text == attribute.text;
}

bool isOwning(Row const& row) { return row.shape->takesArguments; }
bool isKeptByKey(Row const& row) { return row.shape->name == "owns"; }

// Whether a child that exists is asked for its constructor parameters.
bool isCompared(Row const& row) {
  return isKeptByKey(row) ? !row.options.count("keepFirst") : row.options.count("compared") != 0;
}

// Ordered collections alone do without a hash.
bool isHashed(Row const& row) { return !row.options.count("ordered"); }

}  // namespace

void ElementChecker::row(Row const& row) {
  elementKind(row);
  if (row.key) keyType(row, *row.key);
  Symbol const* element = row.by || isOwning(row) ? uses_.find(*row.type) : nullptr;
  if (!element) return;
  if (row.by && element->type) keyAttribute(row, *element);
  if (row.by && !element->type) keyFromElsewhere(row);
  if (isOwning(row)) arguments(row, *element);
}

// The key of an object can't be asked for, nor can an object have a parent.
void ElementChecker::elementKind(Row const& row) {
  if (!row.by && !isOwning(row)) return;
  Symbol const* element = uses_.find(*row.type);
  if (element && element->kind == Kind::object)
    error(row.type->at, inQuotes(row.type->name) + " is an object, and an entity is needed");
  if (isOwning(row) && row.type->isConst) error(row.type->at, "a child can't be \"const\"");
}

void ElementChecker::keyFromElsewhere(Row const& row) {
  if (isKeptByKey(row) && !row.options.count("node"))
    error(row.type->at,
          inQuotes(row.type->name) + " stands elsewhere, so it needs the option \"node\"");
  if (!row.key)
    error(row.by->at, "the type of key " + inQuotes(row.by->text) + " must be given, as " +
                          inQuotes(row.type->name) + " stands elsewhere");
}

void ElementChecker::keyAttribute(Row const& row, Symbol const& element) {
  TypeUse const* key = Symbols::attributeType(*element.type, row.by->text);
  auto const& parameters = element.type->arguments;
  bool first = !parameters.empty() && parameters.front().name == row.by->text;
  if (!key)
    return error(row.by->at,
                 inQuotes(row.type->name) + " has no attribute " + inQuotes(row.by->text));
  if (isKeptByKey(row) && !first)
    error(row.by->at, inQuotes(row.by->text) + " isn't the first constructor parameter of " +
                          inQuotes(row.type->name));
  else if (isKeptByKey(row) && !row.options.count("node") && !hasKey(*element.type, *row.by))
    error(row.by->at, inQuotes(row.type->name) + " needs the option \"key " + row.by->text +
                          "\" to be held here");
  else if (row.key && !uses_.same(*row.key, *key))
    error(row.key->at, inQuotes(row.by->text) + " has another type in " + inQuotes(row.type->name));
  else if (!row.key)
    keyType(row, {key->name, key->isConst, key->isPointer, row.by->at});
}

void ElementChecker::keyType(Row const& row, TypeUse const& key) {
  Symbol const* type = uses_.typed(key, plainKinds);
  if (!type) return;
  if (key.isPointer) return error(key.at, "a key can't be a raw pointer");
  if (isHashed(row) && hasWord(typesWithoutHash, type->name))
    return error(key.at, "a key needs a hash, and " + inQuotes(key.name) + " has none");
  if (type->kind == Kind::value && type->type) valueAsKey(row, *type->type, key.at);
}

void ElementChecker::valueAsKey(Row const& row, Type const& value, Position const& at) {
  auto const isBounded = [](Row const& each) { return each.range && each.name == "value"; };
  if (std::ranges::any_of(value.rows, isBounded)) return;
  auto const isHash = [this](Row const& each) {
    return (each.name == "hash" || each.name == "value") && !each.key && each.type &&
           uses_.isInteger(*each.type);
  };
  if (!value.options.count("ordered"))
    error(at, "a key needs an order, so " + inQuotes(value.name) + " needs the option \"ordered\"");
  else if (isHashed(row) && std::ranges::none_of(value.rows, isHash))
    error(at, "a key needs a hash, so " + inQuotes(value.name) +
                  " needs an integer \"hash\" or \"value\"");
}

void ElementChecker::arguments(Row const& row, Symbol const& child) {
  if (!row.arguments) {
    if (child.type) return constructorOf(row, child.type->arguments);
    return error(row.at, "the constructor parameters of " + inQuotes(row.type->name) +
                             " must be given, as it stands elsewhere");
  }
  bool allKnown = true;
  for (Argument const& each : *row.arguments) allKnown = uses_.known(each.type) && allKnown;
  if (!allKnown) return;
  auto const alike = [this](Argument const& a, Argument const& b) {
    return a.name == b.name && uses_.same(a.type, b.type);
  };
  if (child.type && !std::ranges::equal(*row.arguments, child.type->arguments, alike))
    return error(row.at, inQuotes(row.type->name) + " has other constructor parameters");
  bool keyFirst = !row.arguments->empty() && row.by && row.arguments->front().name == row.by->text;
  if (!child.type && row.by && !keyFirst)
    return error(row.by->at,
                 "key " + inQuotes(row.by->text) + " isn't the first constructor parameter");
  constructorOf(row, *row.arguments);
}

void ElementChecker::constructorOf(Row const& row, Arguments const& arguments) {
  if (isCompared(row))
    for (Argument const& each : arguments) comparable(row, each);
  if (isKeptByKey(row)) return;
  Symbol const* first = arguments.empty() ? nullptr : uses_.find(arguments.front().type);
  if (!first || first->name != "Mox::Name")
    error(row.type->at,
          "the first constructor parameter of a child is its \"Mox::Name\", unlike "
          "that of " +
              inQuotes(row.type->name));
}

void ElementChecker::comparable(Row const& row, Argument const& argument) {
  if (row.by && argument.name == row.by->text) return;
  Symbol const* type = uses_.find(argument.type);
  if (!type) return;
  std::string const remedy = ", so " + inQuotes(row.name) +
                             (isKeptByKey(row) ? " needs the option \"keepFirst\""
                                               : " can't have the option \"compared\"");
  if (argument.type.isPointer || type->name == "VoidPtr")
    error(row.at, "parameter " + inQuotes(argument.name) +
                      " is a raw pointer, which isn't compared" + remedy);
  else if (hasWord(namesInComparison, argument.name))
    error(row.at,
          "parameter " + inQuotes(argument.name) + " can't be compared under that name" + remedy);
}

}  // namespace schemac
