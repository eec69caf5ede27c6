// The rules on one type of a schema.
#pragma once

#include "tools/schemac/Diagnostics.h"
#include "tools/schemac/Symbols.h"

#include <string>
#include <string_view>

namespace schemac {

/// Checks one type and its rows.
class TypeChecker {
 public:
  TypeChecker(Symbols const& symbols, Type const& type, Diagnostics& diagnostics)
      : symbols_(symbols), type_(type), diagnostics_(diagnostics) {}

  void run();

 private:
  void base();
  void constructor();
  void keyOption();
  void content();
  void numbers();
  void names();
  void name(std::string const& name, Position const& at);
  void row(Row const& row);
  void rowTypes(Row const& row);
  void param(Row const& row);
  void counter(Row const& row);
  void defaultValue(Row const& row);
  void range(Row const& row);
  void keyOf(Row const& row);
  void childArguments(Row const& row);

  /// The symbol of `use`, which must be of one of `kinds` (as words); null if reported.
  Symbol const* typed(TypeUse const& use, std::string_view kinds);
  Symbol const* known(TypeUse const& use);
  bool same(TypeUse const& a, TypeUse const& b) const;
  Argument const* argument(std::string const& name) const;
  bool isParam(std::string const& name) const;
  long long firstNumber() const;
  void error(Position const& at, std::string const& what) { diagnostics_.error(at, what); }

  Symbols const& symbols_;
  Type const& type_;
  Diagnostics& diagnostics_;
};

}  // namespace schemac
