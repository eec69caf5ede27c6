// The rules on collections and children: what can be a key, and what can be owned or referred to.
#pragma once

#include "tools/schemac/TypeUses.h"

namespace schemac {

/// Checks key and element of one row at a time.
class ElementChecker {
 public:
  ElementChecker(TypeUses& uses, Diagnostics& diagnostics)
      : uses_(uses), diagnostics_(diagnostics) {}

  void row(Row const& row);

 private:
  void elementKind(Row const& row);
  void keyAttribute(Row const& row, Symbol const& element);
  void keyFromElsewhere(Row const& row);
  void keyType(Row const& row, TypeUse const& key);
  void valueAsKey(Row const& row, Type const& value, Position const& at);
  void arguments(Row const& row, Symbol const& child);
  void constructorOf(Row const& row, Arguments const& arguments);
  void comparable(Row const& row, Argument const& argument);
  void error(Position const& at, std::string const& what) { diagnostics_.error(at, what); }

  TypeUses& uses_;
  Diagnostics& diagnostics_;
};

}  // namespace schemac
