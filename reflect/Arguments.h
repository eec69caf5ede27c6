// Arguments of operations and constructors, from interfaces to what they hold.
#pragma once

#include "reflect/Row.h"

#include <vector>

namespace reflect {

/// Arguments whose types have been checked, each by the address of what is held; they live as long
/// as this does.
class Arguments {
 public:
  /// Of a call of the operation of `row`: all of them.  One alone is `value` itself, several stand
  /// in a `List_`, none is null or an empty list.
  Arguments(Row const& row, GenericIf::PtrConst const& value);
  /// Of a constructor: as many of `wanted` as `list` has entries, null for the others.  `type`
  /// names what is made.
  Arguments(std::span<Argument const> wanted, GenericIf::PtrConst const& list, char const* type);

  void const* const* held() const noexcept { return held_.data(); }

 private:
  // Takes as many as there are; raises `UnknownArgException` with `name` for more.
  void take(std::span<Argument const> wanted, char const* name);

  GenericIf::List_::Entries entries_;  // keeps what is held
  std::vector<void const*> held_;
};

/// Assigns the entries of `list` to the fields of `record` in order: those rows that can be
/// written.
void assignFields(std::span<Row const> rows, GenericIf::PtrConst const& list, void* record,
                  char const* type);

}  // namespace reflect
