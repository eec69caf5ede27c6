// The rules on one type of a schema.
#include "tools/schemac/TypeChecker.h"

#include "tools/schemac/DefaultChecker.h"
#include "tools/schemac/ElementChecker.h"

#include <algorithm>
#include <iterator>

namespace schemac {

namespace {

// How many attributes one level of inheritance has.
constexpr long long levelSize = 128;

// Rows of these shapes hold or hand on what they are given, whatever it is.
constexpr std::string_view shapesOfAnything = "param field computed operation";

}  // namespace

void TypeChecker::run() {
  base();
  constructor();
  keyOption();
  content();
  numbers();
  bound();
  for (Row const& each : type_.rows) row(each);
}

void TypeChecker::base() {
  if (!type_.base) return;
  if (type_.kind != Kind::entity && type_.kind != Kind::value)
    return error(type_.base->at, "only an entity or a value has a base");
  Symbol const* base = uses_.typed(*type_.base, kindName(type_.kind));
  if (base && base->type && base->type->at.line >= type_.at.line)
    error(type_.base->at,
          "the base " + inQuotes(type_.base->name) + " must stand above " + inQuotes(type_.name));
  else if (base && base->type)
    baseParameters(*base->type);
}

void TypeChecker::baseParameters(Type const& base) {
  Arguments handed;
  std::ranges::copy_if(type_.arguments, std::back_inserter(handed),
                       [this](Argument const& each) { return !isParam(each.name); });
  auto const alike = [this](Argument const& a, Argument const& b) {
    return uses_.same(a.type, b.type);
  };
  if (!std::ranges::equal(handed, base.arguments, alike))
    error(type_.base->at, "the parameters that aren't rows of " + inQuotes(type_.name) +
                              " are other than those of " + inQuotes(base.name));
}

// A parameter that is no row of the type goes to the base.
void TypeChecker::constructor() {
  bool constructed = type_.kind == Kind::entity || type_.kind == Kind::object;
  if (!constructed && !type_.arguments.empty())
    return error(type_.at,
                 withArticle(kindName(type_.kind)) + " has no constructor parameters of its own");
  for (Argument const& each : type_.arguments) {
    if (!uses_.known(each.type) || type_.base || isParam(each.name)) continue;
    bool entityName = type_.kind == Kind::entity && each.name == "name";
    if (!entityName)
      error(each.at, "parameter " + inQuotes(each.name) + " has no \"param\" row");
    else if (each.type.name != "Mox::Name")
      error(each.type.at, "the name of an entity is a \"Mox::Name\"");
  }
}

void TypeChecker::keyOption() {
  auto key = type_.options.find("key");
  if (key == type_.options.end()) return;
  std::string const& name = key->second.text;
  if (!argument(name))
    error(key->second.at,
          inQuotes(name) + " is no constructor parameter of " + inQuotes(type_.name));
  Type const* base = symbols_.ownBase(type_);
  if (!base || name == "name" || isParam(name)) return;
  auto baseKey = base->options.find("key");
  if (baseKey == base->options.end() || baseKey->second.text != name)
    error(key->second.at, inQuotes(base->name) + " bears " + inQuotes(name) +
                              ", so it needs the option \"key " + name + "\" too");
}

void TypeChecker::content() {
  bool byHand = true;
  for (char const* option : {"customText", "customParser", "customOrder"}) {
    auto const given = type_.options.find(option);
    byHand = byHand && given != type_.options.end();
    if (given != type_.options.end() && isSingle(symbols_, type_))
      error(given->second.at,
            inQuotes(option) + " is for records, and " + inQuotes(type_.name) + " is one number");
  }
  if (type_.kind == Kind::value && !byHand && !type_.rows.empty() &&
      std::ranges::none_of(type_.rows, isFieldOfValue))
    error(type_.at,
          "a value without fields needs the options \"customText\", \"customParser\" "
          "and \"customOrder\"");
  if (!type_.rows.empty() || type_.base) return;
  if (type_.kind != Kind::entity)
    error(type_.at, withArticle(kindName(type_.kind)) + " needs at least one row");
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
      error(each.at, "number " + number + " of " + inQuotes(each.name) + " is outside of " +
                         std::to_string(first) + " to " + std::to_string(last));
    else if (each.id <= previous)
      error(each.at, "number " + number + " of " + inQuotes(each.name) +
                         (each.id == previous ? " is taken" : " isn't in ascending order"));
    else if (type_.kind == Kind::enumeration && each.id != previous + 1)
      error(each.at, "enumerators count up from 0 without a gap, unlike " + inQuotes(each.name));
    previous = std::max(previous, each.id);
  }
}

void TypeChecker::row(Row const& row) {
  if (type_.kind == Kind::enumeration) return;
  if (row.name.front() >= 'A' && row.name.front() <= 'Z')
    error(row.at, "the name of a row begins with a small letter, unlike " + inQuotes(row.name));
  rowTypes(row);
  param(row);
  counter(row);
  computed(row);
  preset(row);
  checkDefault(uses_, row, diagnostics_);
  checkRange(uses_, type_, row, diagnostics_);
  ElementChecker(uses_, diagnostics_).row(row);
}

void TypeChecker::rowTypes(Row const& row) {
  std::string_view shape = row.shape->name;
  bool counted = shape == "ref" || shape == "refs" || shape == "own" || shape == "owns";
  bool any = hasWord(shapesOfAnything, shape);
  bool record = shape == "field" && type_.kind == Kind::value && !row.range;
  Symbol const* type = nullptr;
  if (row.type) type = uses_.typed(*row.type, any ? anyKind : counted ? countedKinds : plainKinds);
  // A reference needs but a name; everything else needs the whole type.
  bool reference = shape == "ref" || shape == "refs" || shape == "operation";
  // The class is whole where its own reads are compiled.
  bool itself = shape == "param" && type && type->type == &type_;
  if (type && type->type && !reference && !itself && type->type->at.line >= type_.at.line &&
      type->kind != Kind::enumeration)
    error(row.type->at, inQuotes(row.type->name) + " must stand above " + inQuotes(type_.name));
  if (type && row.type->isPointer && (!any || type_.kind == Kind::value))
    error(row.type->at, withArticle(shape) + " can't hold a raw pointer here");
  // The frame's record tables know how to read, write and compare certain types alone.
  if (type && record && !(type->external && type->external->options.count("field")))
    error(row.type->at, inQuotes(row.type->name) + " can't be a field of a value");
  if (shape != "operation" || !row.arguments) return;
  for (Argument const& each : *row.arguments) uses_.known(each.type);
}

// A value adds nothing to its base but a bound of the base's field.
void TypeChecker::bound() {
  if (type_.kind != Kind::value) return;
  auto const isBound = [](Row const& each) { return each.shape->name == "bound"; };
  if (type_.base && (type_.rows.size() != 1 || !isBound(type_.rows.front())))
    return error(type_.at, "a value with a base has a \"bound\" and no other row");
  auto const found = std::ranges::find_if(type_.rows, isBound);
  if (found == type_.rows.end()) return;
  if (!type_.base) return error(found->at, "\"bound\" needs a base, whose field it bounds");
  if (!found->range) error(found->at, "\"bound\" needs a range");
  for (char const* option : {"ordered", "mutable"})
    if (type_.options.count(option))
      error(type_.options.at(option).at, inQuotes(option) + " is the base's to say");
  if (Type const* base = symbols_.ownBase(type_)) boundOf(*base, *found);
}

// The field keeps its name, its type and its number; and nobody else may set it behind the bound.
void TypeChecker::boundOf(Type const& base, Row const& row) {
  if (!isSingle(symbols_, base))
    return error(type_.base->at, "the base " + inQuotes(base.name) + " isn't one number");
  if (base.options.count("mutable"))
    return error(type_.base->at, "the base " + inQuotes(base.name) + " can be set past a bound");
  Row const& field = *std::ranges::find_if(base.rows, isFieldOfValue);
  if (field.name != row.name || field.id != row.id || !uses_.same(*field.type, *row.type))
    error(row.at, inQuotes(row.name) + " isn't the field of " + inQuotes(base.name));
}

void TypeChecker::computed(Row const& row) {
  auto const of = row.options.find("of");
  if (of != row.options.end()) computedOf(row, of->second);
  if (!row.options.count("ofFields")) return;
  if (of != row.options.end())
    return error(of->second.at, "\"of\" and \"ofFields\" are two bodies");
  auto const isField = [](Row const& each) { return each.shape->name == "field"; };
  if (type_.kind != Kind::value || isSingle(symbols_, type_) ||
      std::ranges::none_of(type_.rows, isField))
    error(row.at, inQuotes(row.name) + " needs a value that is a record of fields");
  else if (!uses_.isInteger(*row.type))
    error(row.type->at, "a hash is an integer, unlike " + inQuotes(row.type->name));
}

void TypeChecker::computedOf(Row const& row, Word const& field) {
  auto const isMeant = [&](Row const& each) {
    return each.name == field.text && hasWord("field param", each.shape->name);
  };
  auto const found = std::ranges::find_if(type_.rows, isMeant);
  if (found == type_.rows.end())
    error(field.at, inQuotes(type_.name) + " has no field or parameter " + inQuotes(field.text));
  else if (!uses_.same(*found->type, *row.type) && !holds(uses_, *row.type, *found->type))
    error(row.type->at, inQuotes(row.type->name) + " doesn't hold " + inQuotes(field.text));
}

void TypeChecker::param(Row const& row) {
  if (row.shape->name != "param") return;
  Argument const* parameter = argument(row.name);
  if (!parameter)
    error(row.at, inQuotes(row.name) + " is no constructor parameter of " + inQuotes(type_.name));
  else if (!uses_.same(parameter->type, *row.type))
    error(row.type->at, inQuotes(row.name) + " has another type as constructor parameter");
}

void TypeChecker::counter(Row const& row) {
  if (row.shape->name == "counter" && uses_.find(*row.type) && !uses_.isInteger(*row.type))
    error(row.type->at, "a counter counts in an integer, unlike " + inQuotes(row.type->name));
}

// What a base from elsewhere bears isn't known; one that stands below is reported as that.
void TypeChecker::preset(Row const& row) {
  if (row.shape->name != "preset") return;
  if (!row.defaultValue) error(row.at, "a preset needs a value, unlike " + inQuotes(row.name));
  if (!type_.base) return error(row.at, "a preset needs a base that bears " + inQuotes(row.name));
  auto const isTwin = [&row](Row const& each) {
    return each.name == row.name && each.shape == row.shape;
  };
  if (&*std::ranges::find_if(type_.rows, isTwin) != &row)
    return error(row.at, inQuotes(row.name) + " is preset twice");
  auto const bears = [&row](Row const& each) {
    return each.name == row.name && each.shape->name == "scalar";
  };
  for (Type const* level = &type_; level->base;) {
    Type const* base = symbols_.ownBase(*level);
    if (!base || base->at.line >= level->at.line) return;
    auto const found = std::ranges::find_if(base->rows, bears);
    if (found != base->rows.end() && uses_.same(*found->type, *row.type)) return;
    if (found != base->rows.end())
      return error(row.type->at,
                   inQuotes(row.name) + " has another type in " + inQuotes(base->name));
    level = base;
  }
  error(row.at, "no base has a scalar " + inQuotes(row.name));
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
