// The rules on names: which C++ names a schema makes, and that no two of them meet.
#include "tools/schemac/NameChecker.h"

#include "tools/schemac/RowView.h"

#include <algorithm>
#include <iterator>
#include <set>
#include <vector>

namespace schemac {

namespace {

using Words = std::map<std::string, std::string>;

// `text` with each `$word$` of `words` replaced.
std::string spelled(std::string_view text, Words const& words) {
  std::string result(text);
  for (auto const& [word, meaning] : words) {
    std::string const marked = "$" + word + "$";
    for (std::size_t at = result.find(marked); at != std::string::npos;
         at = result.find(marked, at + meaning.size()))
      result.replace(at, marked.size(), meaning);
  }
  return result;
}

std::vector<std::string> spelled(std::vector<std::string_view> const& texts, Words const& words) {
  std::vector<std::string> result;
  for (std::string_view text : texts) result.push_back(spelled(text, words));
  return result;
}

std::vector<std::string> namesOf(Row const& row) {
  return spelled(wordsOf(row.shape->makes), {{"name", row.name}, {"Name", capitalised(row.name)}});
}

Words wordsFor(Schema const& schema, Type const& type) {
  return {{"Class", type.name}, {"class", uncapitalised(type.name)}, {"module", schema.module}};
}

bool beginsWithCapital(std::string const& name) { return name[0] >= 'A' && name[0] <= 'Z'; }

class NameChecker {
 public:
  NameChecker(Schema const& schema, Symbols const& symbols, Definitions const& definitions,
              Type const& type, Diagnostics& diagnostics)
      : schema_(schema),
        symbols_(symbols),
        definitions_(definitions),
        type_(type),
        diagnostics_(diagnostics) {}

  void run() {
    arguments(type_.arguments);
    for (Row const& row : type_.rows) {
      word(row.name, row.at);
      if (row.arguments) arguments(*row.arguments);
    }
    if (type_.kind == Kind::enumeration) return;
    for (std::string const& name :
         spelled(wordsOf(namesOfKind(type_.kind)), wordsFor(schema_, type_)))
      takenByKind_.insert(name);
    inherit();
    for (Row const& row : type_.rows) made(row);
  }

 private:
  struct Maker {
    std::string row;
    std::string type;  // empty for the type at hand
  };

  // Rows of the bases, as far as the run has their definitions.
  void inherit() {
    std::set<Type const*> seen = {&type_};
    for (Type const* level = baseOf(type_); level && seen.insert(level).second;
         level = baseOf(*level))
      for (Row const& row : level->rows)
        for (std::string const& name : namesOf(row))
          if (name.substr(0, 2) != "::" && name.substr(0, 6) != "Tags::")
            makers_.emplace(name, Maker{row.name, level->name});
  }

  Type const* baseOf(Type const& type) const {
    if (!type.base) return nullptr;
    for (std::string const& name : {qualified(type.space, type.base->name), type.base->name}) {
      auto found = definitions_.find(name);
      if (found != definitions_.end()) return found->second;
    }
    return nullptr;
  }

  void made(Row const& row) {
    if (row.shape->form != Form::call && symbols_.find(type_.space, row.name))
      return error(row, inQuotes(row.name) + " is the name of a type");
    std::vector<std::string> const names = namesOf(row);
    if (auto twin = makers_.find(row.name);
        twin != makers_.end() && twin->second.row == row.name && twin->second.type.empty())
      return error(row, inQuotes(row.name) + " stands twice");
    for (std::string const& name : names)
      if (std::string const fault = faultOf(row, name); !fault.empty())
        return error(row, inQuotes(name) + " of " + inQuotes(row.name) + " " + fault);
    for (std::string const& name : names) makers_[name] = {row.name, ""};
  }

  std::string faultOf(Row const& row, std::string const& name) const {
    auto maker = makers_.find(name);
    if (maker != makers_.end()) {
      std::string const& base = maker->second.type;
      return "is made for " + inQuotes(maker->second.row) +
             (base.empty() ? "" : " of " + inQuotes(base)) + " too";
    }
    if (takenByKind_.count(name))
      return "is a name that each " + std::string(kindName(type_.kind)) + " has already";
    if (name.substr(0, 6) == "Tags::") return faultOfTag(row, name.substr(6));
    if (beginsWithCapital(name) && symbols_.find(type_.space, name)) return "is the name of a type";
    return "";
  }

  // A tag hides what the tags behind it name: classes of nodes, and types without a namespace.
  std::string faultOfTag(Row const& row, std::string const& tag) const {
    if (hasWord(row.shape->tagTypes, tag)) return "has a type of that name itself";
    if (makers_.count(tag))
      return "hides " + inQuotes(tag) + " of " + inQuotes(makers_.at(tag).row);
    Symbol const* type = symbols_.find(type_.space, tag);
    if (type && type->kind == Kind::primitive) return "is the name of a type";
    return "";
  }

  void arguments(Arguments const& arguments) {
    std::set<std::string> names;
    for (Argument const& each : arguments) {
      word(each.name, each.at);
      if (!names.insert(each.name).second)
        diagnostics_.error(each.at, "parameter " + inQuotes(each.name) + " twice");
      if (symbols_.find(type_.space, each.name))
        diagnostics_.error(each.at, inQuotes(each.name) + " is the name of a type");
    }
  }

  void word(std::string const& name, Position const& at) {
    if (isReserved(name)) diagnostics_.error(at, inQuotes(name) + " is a reserved word of C++");
  }

  void error(Row const& row, std::string const& what) { diagnostics_.error(row.at, what); }

  Schema const& schema_;
  Symbols const& symbols_;
  Definitions const& definitions_;
  Type const& type_;
  Diagnostics& diagnostics_;
  std::set<std::string> takenByKind_;
  std::map<std::string, Maker> makers_;  // by the name that is made
};

class NamespaceChecker {
 public:
  NamespaceChecker(Schema const& schema, Symbols const& symbols, Diagnostics& diagnostics)
      : schema_(schema), symbols_(symbols), diagnostics_(diagnostics) {}

  void run() {
    for (std::string const& name :
         spelled(wordsOf(namesOfKind(Kind::enumeration)), {{"module", schema_.module}}))
      takers_.emplace(name, "what is generated");
    space();
    for (Type const& type : schema_.types) typeName(type);
    for (Type const& type : schema_.types)
      if (type.kind == Kind::enumeration && !isTwin(type))
        for (Row const& row : type.rows) enumerator(type, row);
  }

 private:
  static std::string firstSpace(std::string const& name) { return name.substr(0, name.find("::")); }

  // A namespace inside of another one would hide those that stand outside.
  void space() {
    outer_ = {"std", "frame", firstSpace(schema_.space)};
    for (std::string const& name : symbols_.names())
      if (name.find("::") != std::string::npos) outer_.insert(firstSpace(name));
    bool inner = false;
    for (std::string left = schema_.space; !left.empty(); inner = true) {
      std::string const segment = firstSpace(left);
      left.erase(0, std::min(segment.size() + 2, left.size()));
      if (isReserved(segment))
        diagnostics_.error(schema_.spaceAt, inQuotes(segment) + " is a reserved word of C++");
      else if (inner && outer_.count(segment))
        diagnostics_.error(schema_.spaceAt, inQuotes(schema_.space) +
                                                " hides the outer namespace " + inQuotes(segment));
      outer_.insert(segment);
    }
  }

  // A type that is declared twice is reported as that.
  bool isTwin(Type const& type) const {
    Symbol const* symbol = symbols_.find(type.space, type.name);
    return !symbol || symbol->type != &type;
  }

  void typeName(Type const& type) {
    if (isTwin(type)) return;
    if (!beginsWithCapital(type.name))
      return error(type.at,
                   "the name of a type begins with a capital, unlike " + inQuotes(type.name));
    if (outer_.count(type.name))
      return error(type.at, inQuotes(type.name) + " is the name of a namespace");
    Symbol const* global = symbols_.find("", type.name);
    if (global && global->type != &type)
      return error(type.at, inQuotes(qualified(type.space, type.name)) + " hides the type " +
                                inQuotes(type.name));
    for (Kind kind : {Kind::entity, Kind::object, Kind::value})
      if (hasWord(namesOfKind(kind), type.name))
        return error(type.at, inQuotes(type.name) + " is a name that each " +
                                  std::string(kindName(kind)) + " has already");
    Words const words = wordsFor(schema_, type);
    std::vector<std::string> names = spelled(wordsOf(namesOfType), words);
    if (type.kind == Kind::enumeration)
      std::ranges::copy(spelled(wordsOf(namesOfEnum), words), std::back_inserter(names));
    for (std::string const& name : names)
      if (auto [taker, added] = takers_.emplace(name, inQuotes(type.name));
          !added && taker->second != inQuotes(type.name))
        return error(type.at, inQuotes(name) + " of " + inQuotes(type.name) + " is made for " +
                                  taker->second + " too");
  }

  void enumerator(Type const& type, Row const& row) {
    if (symbols_.find(type.space, row.name))
      return error(row.at, inQuotes(row.name) + " is the name of a type");
    std::string const owner = inQuotes(type.name);
    auto [taker, added] = takers_.emplace(row.name, owner);
    if (added) return;
    error(row.at,
          inQuotes(row.name) + (taker->second == owner ? " stands twice"
                                                       : " is made for " + taker->second + " too"));
  }

  void error(Position const& at, std::string const& what) { diagnostics_.error(at, what); }

  Schema const& schema_;
  Symbols const& symbols_;
  Diagnostics& diagnostics_;
  std::set<std::string> outer_;                // namespaces that the generated code names
  std::map<std::string, std::string> takers_;  // by name, who has it in the schema's namespace
};

}  // namespace

void checkNames(Schema const& schema, Symbols const& symbols, Definitions const& definitions,
                Type const& type, Diagnostics& diagnostics) {
  NameChecker(schema, symbols, definitions, type, diagnostics).run();
}

void checkNamespace(Schema const& schema, Symbols const& symbols, Diagnostics& diagnostics) {
  NamespaceChecker(schema, symbols, diagnostics).run();
}

}  // namespace schemac
