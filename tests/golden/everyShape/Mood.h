// everyShape::Mood.  Made by schemac from everyShape.schema.
#pragma once

#include <ostream>

#include "Mox/Mox.h"

namespace everyShape {

enum Mood : S32 {
  calm = 0,
  tense = 1,
};

/// The enumerator's name; of a number outside the table "Mood(<number>)".
Mox::String8 stringValue(Mood value);
/// The value of that number; raises `RangeException` "Mood" for one outside the table.
Mood MoodInstance(U32 number);
/// The value of that name, compared exactly; raises `RangeException` "Mood" for an unknown one.
Mood MoodInstance(Mox::String8 const& name);
/// The name in single quotes.
Mox::String8 valueToStrep(Mood const& value);
/// Reads one quoted name at `at`, advances, and stores it through `to` too unless that is null.
Mood sequenceToValue(Mox::String8::IteratorConst& at, Mox::String8::IteratorConst const& end,
    Mood* to);
std::ostream& operator<<(std::ostream& out, Mood const& value);
Mox::MoxType* _fwkType_Mood();

}  // namespace everyShape
