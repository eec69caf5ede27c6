// The rules on one type of a schema.
#include "tools/schemac/TypeChecker.h"

#include <algorithm>
#include <set>

namespace schemac {

namespace {

// How many attributes one level of inheritance has.
constexpr long long levelSize = 128;

constexpr std::string_view anyKind = "primitive value enum entity object";
constexpr std::string_view plainKinds = "primitive value enum";
constexpr std::string_view countedKinds = "entity object";

bool isNumber(std::string const& text) {
  return text.find_first_not_of("0123456789.-") == std::string::npos;
}

bool hasKey(Type const& type, Word const& attribute) {
  auto key = type.options.find("key");
  return key != type.options.end() && key->second.text == attribute.text;
}

std::string joined(std::string_view words) {
  std::string result(words);
  for (std::size_t at = result.find(' '); at != std::string::npos; at = result.find(' ', at + 4))
    result.replace(at, 1, " or ");
  return result;
}

std::string article(std::string_view word) {
  return std::string(word.find_first_of("aeiou") == 0 ? "an " : "a ") + std::string(word);
}

}  // namespace

void TypeChecker::run() {
  name(type_.name, type_.at);
  if (!type_.name.empty() && !(type_.name.front() >= 'A' && type_.name.front() <= 'Z'))
    error(type_.at, "the name of a type begins with a capital, unlike " + quoted(type_.name));
  base();
  constructor();
  keyOption();
  content();
  numbers();
  names();
  for (Row const& each : type_.rows) row(each);
}

void TypeChecker::base() {
  if (!type_.base) return;
  if (type_.kind != Kind::entity) return error(type_.base->at, "only an entity has a base");
  Symbol const* base = typed(*type_.base, "entity");
  if (base && base->type && base->type->at.line >= type_.at.line)
    error(type_.base->at,
          "the base " + quoted(type_.base->name) + " must stand above " + quoted(type_.name));
}

// A parameter that is no row of the type goes to the base.
void TypeChecker::constructor() {
  bool constructed = type_.kind == Kind::entity || type_.kind == Kind::object;
  if (!constructed && !type_.arguments.empty())
    return error(type_.at,
                 article(kindName(type_.kind)) + " has no constructor parameters of its own");
  std::set<std::string> names;
  for (Argument const& each : type_.arguments) {
    name(each.name, each.at);
    if (!names.insert(each.name).second)
      error(each.at, "parameter " + quoted(each.name) + " twice");
    if (!known(each.type) || type_.base || isParam(each.name)) continue;
    bool entityName = type_.kind == Kind::entity && each.name == "name";
    if (!entityName)
      error(each.at, "parameter " + quoted(each.name) + " has no \"param\" row");
    else if (each.type.name != "Mox::Name")
      error(each.type.at, "the name of an entity is a \"Mox::Name\"");
  }
}

void TypeChecker::keyOption() {
  auto key = type_.options.find("key");
  if (key != type_.options.end() && !argument(key->second.text))
    error(key->second.at,
          quoted(key->second.text) + " is no constructor parameter of " + quoted(type_.name));
}

void TypeChecker::content() {
  if (!type_.rows.empty() || type_.base) return;
  if (type_.kind != Kind::entity)
    error(type_.at, article(kindName(type_.kind)) + " needs at least one row");
}

long long TypeChecker::firstNumber() const {
  if (type_.kind == Kind::enumeration) return 0;
  if (type_.kind == Kind::value) return 2;
  if (type_.kind == Kind::object) return 130;
  long long first = 258;
  for (Type const* level = &type_; level && level->base; level = symbols_.ownBase(*level)) {
    first += levelSize;
    Type const* base = symbols_.ownBase(*level);
    if (base && base->at.line >= level->at.line) break;  // reported as a base that stands below
  }
  return first;
}

void TypeChecker::numbers() {
  long long const first = firstNumber();
  long long const last = type_.kind == Kind::enumeration ? 0x7fffffff : first + levelSize - 1;
  long long previous = first - 1;
  for (Row const& each : type_.rows) {
    if (each.id == noNumber) continue;
    std::string const number = std::to_string(each.id);
    if (each.id < first || each.id > last)
      error(each.at, "number " + number + " of " + quoted(each.name) + " is outside of " +
                         std::to_string(first) + " to " + std::to_string(last));
    else if (each.id <= previous)
      error(each.at, "number " + number + " of " + quoted(each.name) +
                         (each.id == previous ? " is taken" : " isn't in ascending order"));
    else if (type_.kind == Kind::enumeration && each.id != previous + 1)
      error(each.at, "enumerators count up from 0 without a gap, unlike " + quoted(each.name));
    previous = std::max(previous, each.id);
  }
}

void TypeChecker::names() {
  std::set<std::string> taken;
  for (Row const& each : type_.rows)
    if (!taken.insert(each.name).second) error(each.at, quoted(each.name) + " stands twice");
}

void TypeChecker::name(std::string const& name, Position const& at) {
  if (isReserved(name)) error(at, quoted(name) + " is a reserved word of C++");
}

void TypeChecker::row(Row const& row) {
  name(row.name, row.at);
  if (type_.kind == Kind::enumeration) return;
  if (row.name.front() >= 'A' && row.name.front() <= 'Z')
    error(row.at, "the name of a row begins with a small letter, unlike " + quoted(row.name));
  rowTypes(row);
  param(row);
  counter(row);
  defaultValue(row);
  range(row);
  keyOf(row);
  childArguments(row);
}

void TypeChecker::rowTypes(Row const& row) {
  std::string_view shape = row.shape->name;
  bool counted = shape == "ref" || shape == "refs" || shape == "own" || shape == "owns";
  bool any = shape == "param" || shape == "field" || shape == "computed" || shape == "operation";
  Symbol const* type = nullptr;
  if (row.type) type = typed(*row.type, any ? anyKind : counted ? countedKinds : plainKinds);
  // A reference needs but a name; everything else needs the whole type.
  bool reference = shape == "ref" || shape == "refs" || shape == "operation";
  if (type && type->type && !reference && type->type->at.line >= type_.at.line)
    error(row.type->at, quoted(row.type->name) + " must stand above " + quoted(type_.name));
  if (row.key) typed(*row.key, plainKinds);
  if (shape != "operation" || !row.arguments) return;
  for (Argument const& each : *row.arguments) known(each.type);
}

void TypeChecker::param(Row const& row) {
  if (row.shape->name != "param") return;
  Argument const* parameter = argument(row.name);
  if (!parameter)
    error(row.at, quoted(row.name) + " is no constructor parameter of " + quoted(type_.name));
  else if (!same(parameter->type, *row.type))
    error(row.type->at, quoted(row.name) + " has another type as constructor parameter");
}

void TypeChecker::counter(Row const& row) {
  Symbol const* type =
      row.shape->name == "counter" ? symbols_.find(type_.space, *row.type) : nullptr;
  if (type && !(type->external && type->external->options.count("integer")))
    error(row.type->at, "a counter counts in an integer, unlike " + quoted(row.type->name));
}

void TypeChecker::defaultValue(Row const& row) {
  Symbol const* type = row.defaultValue ? symbols_.find(type_.space, *row.type) : nullptr;
  if (!type) return;
  std::string const& text = row.defaultValue->text;
  if (type->kind == Kind::entity || type->kind == Kind::object)
    return error(row.defaultValue->at, "a pointer has no default but null");
  if (type->type && type->kind == Kind::enumeration &&
      std::ranges::none_of(type->type->rows, [&](Row const& each) { return each.name == text; }))
    error(row.defaultValue->at, quoted(text) + " is no enumerator of " + quoted(row.type->name));
  if (type->name == "bool" && text != "true" && text != "false")
    error(row.defaultValue->at, "the default of a \"bool\" is true or false");
  bool integer = type->external && type->external->options.count("integer");
  if (integer && (!isNumber(text) || text.find('.') != std::string::npos))
    error(row.defaultValue->at, "the default of an integer is a number, unlike " + quoted(text));
}

void TypeChecker::range(Row const& row) {
  if (!row.range) return;
  Symbol const* type = symbols_.find(type_.space, *row.type);
  if (type && !(type->external && type->external->options.count("integer")))
    error(row.type->at, "only an integer has a range, unlike " + quoted(row.type->name));
  if (row.range->least != 0) error(row.range->at, "a range begins at 0");
  auto stored = [](Row const& each) { return each.shape->name != "computed"; };
  if (type_.kind != Kind::value || std::ranges::count_if(type_.rows, stored) != 1)
    error(row.range->at, "only the one field of a value has a range");
}

void TypeChecker::keyOf(Row const& row) {
  if (!row.by) return;
  Symbol const* element = symbols_.find(type_.space, *row.type);
  if (!element) return;
  if (!element->type) {
    if (row.shape->name == "owns" && !row.options.count("node"))
      error(row.type->at,
            quoted(row.type->name) + " stands elsewhere, so it needs the option \"node\"");
    if (!row.key)
      error(row.by->at, "the type of key " + quoted(row.by->text) + " must be given, as " +
                            quoted(row.type->name) + " stands elsewhere");
    return;
  }
  TypeUse const* key = Symbols::attributeType(*element->type, row.by->text);
  auto const& parameters = element->type->arguments;
  bool first = !parameters.empty() && parameters.front().name == row.by->text;
  if (!key)
    error(row.by->at, quoted(row.type->name) + " has no attribute " + quoted(row.by->text));
  else if (row.shape->name == "owns" && !first)
    error(row.by->at, quoted(row.by->text) + " isn't the first constructor parameter of " +
                          quoted(row.type->name));
  else if (row.shape->name == "owns" && !row.options.count("node") &&
           !hasKey(*element->type, *row.by))
    error(row.by->at, quoted(row.type->name) + " needs the option \"key " + row.by->text +
                          "\" to be held here");
  else if (row.key && !same(*row.key, *key))
    error(row.key->at, quoted(row.by->text) + " has another type in " + quoted(row.type->name));
}

void TypeChecker::childArguments(Row const& row) {
  if (!row.shape->takesArguments) return;
  Symbol const* child = symbols_.find(type_.space, *row.type);
  if (!child) return;
  if (!row.arguments) {
    if (!child->type)
      error(row.at, "the constructor parameters of " + quoted(row.type->name) +
                        " must be given, as it stands elsewhere");
    return;
  }
  bool allKnown = true;
  for (Argument const& each : *row.arguments) allKnown = known(each.type) && allKnown;
  if (!allKnown) return;
  if (child->type) {
    auto alike = [&](Argument const& a, Argument const& b) {
      return a.name == b.name && same(a.type, b.type);
    };
    if (!std::ranges::equal(*row.arguments, child->type->arguments, alike))
      error(row.at, quoted(row.type->name) + " has other constructor parameters");
  } else if (row.by && (row.arguments->empty() || row.arguments->front().name != row.by->text)) {
    error(row.by->at, "key " + quoted(row.by->text) + " isn't the first constructor parameter");
  }
}

Symbol const* TypeChecker::known(TypeUse const& use) {
  Symbol const* found = symbols_.find(type_.space, use);
  if (!found) error(use.at, "unknown type " + quoted(use.name));
  bool counted = found && hasWord(countedKinds, kindName(found->kind));
  if (found && use.isConst && !counted && !use.isPointer)
    error(use.at, "only a reference can be \"const\", and " + quoted(use.name) + " is " +
                      article(kindName(found->kind)));
  return found;
}

Symbol const* TypeChecker::typed(TypeUse const& use, std::string_view kinds) {
  Symbol const* found = known(use);
  if (!found || hasWord(kinds, kindName(found->kind))) return found;
  error(use.at, quoted(use.name) + " is " + article(kindName(found->kind)) + ", and " +
                    article(joined(kinds)) + " is needed");
  return nullptr;
}

bool TypeChecker::same(TypeUse const& a, TypeUse const& b) const {
  return symbols_.find(type_.space, a) == symbols_.find(type_.space, b) && a.isConst == b.isConst &&
         a.isPointer == b.isPointer;
}

Argument const* TypeChecker::argument(std::string const& name) const {
  for (Argument const& each : type_.arguments)
    if (each.name == name) return &each;
  return nullptr;
}

bool TypeChecker::isParam(std::string const& name) const {
  return std::ranges::any_of(type_.rows, [&](Row const& each) {
    return each.name == name && each.shape->name == "param";
  });
}

}  // namespace schemac
