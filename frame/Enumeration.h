// Enumerations: numbers and names, over one table.
#pragma once

#include "Mox/String8.h"

#include <span>

namespace frame {

/// The names of an enumeration's values, which count from 0.
struct EnumTable {
  char const* name;  ///< "XpPortMode"
  std::span<char const* const> values;
};

/// The name of a value; of a number outside the table "XpPortMode(12)".
Mox::String8 enumText(EnumTable const& table, S32 value);

/// The number itself; raises `RangeException` with the enumeration's bare name for one outside the
/// table.
S32 enumByNumber(EnumTable const& table, U32 number);

/// The value of that name, compared exactly; raises `RangeException` with the enumeration's bare
/// name for one that isn't in the table.
S32 enumByName(EnumTable const& table, Mox::String8 const& name);

/// Reads one quoted name at `at` and advances; raises as `enumByName`, and the runtime's
/// complaints.
S32 enumParse(EnumTable const& table, Mox::String8::IteratorConst& at,
              Mox::String8::IteratorConst const& end);

}  // namespace frame
