// Look-ups in an enumeration's table of names.
#include "frame/Enumeration.h"

#include "Mox/Exception.h"
#include "Mox/Strep.h"

namespace frame {

Mox::String8 enumText(EnumTable const& table, S32 value) {
  if (value >= 0 && static_cast<U32>(value) < table.values.size()) return table.values[value];
  return Mox::format("%s(%d)", table.name, value);
}

S32 enumByNumber(EnumTable const& table, U32 number) {
  if (number >= table.values.size()) Mox::throwRangeException(table.name);
  return static_cast<S32>(number);
}

S32 enumByName(EnumTable const& table, Mox::String8 const& name) {
  for (U32 number = 0; number < table.values.size(); ++number)
    if (name.view() == table.values[number]) return static_cast<S32>(number);
  Mox::throwRangeException(table.name);
}

S32 enumParse(EnumTable const& table, Mox::String8::IteratorConst& at,
              Mox::String8::IteratorConst const& end) {
  Mox::String8 name;
  Mox::sequenceToValue(at, end, &name);
  return enumByName(table, name);
}

}  // namespace frame
