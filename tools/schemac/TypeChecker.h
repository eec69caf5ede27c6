// The rules on one type of a schema.
#pragma once

#include "tools/schemac/Diagnostics.h"
#include "tools/schemac/TypeUses.h"

#include <string>
#include <string_view>

namespace schemac {

/// Checks one type and its rows.
class TypeChecker {
 public:
  TypeChecker(Symbols const& symbols, Type const& type, Diagnostics& diagnostics)
      : symbols_(symbols),
        type_(type),
        uses_(symbols, type, diagnostics),
        diagnostics_(diagnostics) {}

  void run();

 private:
  void base();
  void baseParameters(Type const& base);
  void constructor();
  void keyOption();
  void content();
  void numbers();
  void row(Row const& row);
  void rowTypes(Row const& row);
  void param(Row const& row);
  void counter(Row const& row);
  void boundOf(Type const& base, Row const& row);
  void computed(Row const& row);
  void computedOf(Row const& row, Word const& field);
  void bound();
  void preset(Row const& row);

  Argument const* argument(std::string const& name) const;
  bool isParam(std::string const& name) const;
  long long firstNumber() const;
  void error(Position const& at, std::string const& what) { diagnostics_.error(at, what); }

  Symbols const& symbols_;
  Type const& type_;
  TypeUses uses_;
  Diagnostics& diagnostics_;
};

}  // namespace schemac
