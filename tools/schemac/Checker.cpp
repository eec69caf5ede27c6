// What a schema must keep to beyond its grammar: the rules on whole files.
#include "tools/schemac/Checker.h"

#include "tools/schemac/DefaultChecker.h"
#include "tools/schemac/NameChecker.h"
#include "tools/schemac/TypeChecker.h"

#include <set>

namespace schemac {

namespace {

class Checker {
 public:
  Checker(Schema const& builtin, std::vector<Schema> const& schemas, Diagnostics& diagnostics)
      : builtin_(builtin), diagnostics_(diagnostics) {
    for (Schema const& schema : schemas)
      for (Type const& type : schema.types)
        definitions_.emplace(qualified(type.space, type.name), &type);
    for (Extern const& type : builtin.externs) builtinNames_.insert(type.name);
  }

  void file(Schema const& schema) {
    Position const top{schema.file, 1, 1};
    if (schema.module.empty()) diagnostics_.error(top, "this file names no module");
    if (!schema.module.empty() && !modules_.insert(schema.module).second)
      diagnostics_.error(top, "module " + inQuotes(schema.module) + " stands in another file too");
    externs(schema);
    for (Type const& type : schema.types) declared(type);
    Symbols const symbols(builtin_, schema);
    checkNamespace(schema, symbols, diagnostics_);
    for (Type const& type : schema.types) {
      checkNames(schema, symbols, definitions_, type, diagnostics_);
      TypeChecker(symbols, type, diagnostics_).run();
    }
  }

 private:
  void externs(Schema const& schema) {
    local_ = builtinNames_;
    for (Extern const& type : schema.externs) {
      if (!local_.insert(type.name).second)
        diagnostics_.error(type.at, inQuotes(type.name) + " is declared twice");
      if (type.kind != Kind::primitive && !type.options.count("header"))
        diagnostics_.error(type.at, inQuotes(type.name) + " names no header");
      auto range = type.options.find("range");
      if (range != type.options.end() && !boundsIn(range->second.text))
        diagnostics_.error(range->second.at, "expected a range such as 0..127, found " +
                                                 inQuotes(range->second.text));
      auto wire = type.options.find("wire");
      if (wire != type.options.end() && !hasWord("1 2 4 8", wire->second.text))
        diagnostics_.error(wire->second.at,
                           "expected 1, 2, 4 or 8 bytes, found " + inQuotes(wire->second.text));
    }
  }

  void declared(Type const& type) {
    std::string name = qualified(type.space, type.name);
    if (!local_.insert(name).second || !defined_.insert(name).second)
      diagnostics_.error(type.at, inQuotes(name) + " is declared twice");
  }

  Schema const& builtin_;
  Diagnostics& diagnostics_;
  std::set<std::string> builtinNames_;
  std::set<std::string> local_;    // known in the file at hand
  std::set<std::string> defined_;  // defined in any file of the run
  std::set<std::string> modules_;
  Definitions definitions_;
};

}  // namespace

void check(Schema const& builtin, std::vector<Schema> const& schemas, Diagnostics& diagnostics) {
  Checker checker(builtin, schemas, diagnostics);
  for (Schema const& schema : schemas) checker.file(schema);
}

}  // namespace schemac
