// The fields and tags of everyShape::Knob.  Made by schemac from everyShape.schema.
#pragma once

#include <cstddef>

#include "everyShape/Knob.h"
#include "frame/Record.h"

namespace everyShape {

struct Knob::Fields {
  static constexpr frame::FieldRow rows[] = {
      {"turn", offsetof(Knob, turn_), frame::FieldType::u8},
  };
  static constexpr frame::RecordTable table{"Knob", "Value('everyShape::Knob', ** {",
      " Value ( 'everyShape::Knob' , ** {", rows};
};

}  // namespace everyShape
