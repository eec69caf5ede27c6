// The types that a schema can name.
#pragma once

#include "tools/schemac/Schema.h"

#include <map>
#include <string>
#include <vector>

namespace schemac {

/// A type known in a schema: one of its own, one that stands elsewhere, or a built-in one.
struct Symbol {
  Kind kind = Kind::primitive;
  std::string name;                  ///< the full name, as the schema has it
  std::string space;                 ///< its namespace, maybe empty
  std::string shortName;             ///< the name in its namespace
  std::string header;                ///< of its declaration; empty where it needs none
  Type const* type = nullptr;        ///< the definition, if it is one of the schema's own
  Extern const* external = nullptr;  ///< the declaration, if it isn't
};

/// True for a type whose values are texts.
bool isText(Symbol const& type);

/// All types of one schema and of the built-in schema, by full name.  Points into both.
class Symbols {
 public:
  Symbols(Schema const& builtin, Schema const& schema);

  /// The type that `name` means inside of namespace `space`, or null.  A name is looked up in
  /// `space`, then in the namespaces around it.
  Symbol const* find(std::string space, std::string const& name) const;
  Symbol const* find(std::string const& space, TypeUse const& use) const {
    return find(space, use.name);
  }
  /// The full names of all types.
  std::vector<std::string> names() const;
  /// The definition of the base of `type`, if that is one of the schema's own.
  Type const* ownBase(Type const& type) const;
  /// The attribute `name` of `type` that may serve as a key: its type, or null.
  static TypeUse const* attributeType(Type const& type, std::string const& name);

 private:
  void addExterns(Schema const& schema);

  std::map<std::string, Symbol> symbols_;
};

/// True for a row that the constructor of a value takes: a field, or the bound of an inherited one.
bool isFieldOfValue(Row const& row);

/// True for a value that is one number, so that its text is that number's: an integer with a range,
/// or one called `value`.
bool isSingle(Symbols const& symbols, Type const& type);

/// "Kestrel/FecCounters" for `FecCounters` in namespace `Kestrel`: its place among generated files.
std::string outputPath(std::string const& space, std::string const& name);

}  // namespace schemac
