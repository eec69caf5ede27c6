// The fields and tags of everyShape::Mix.  Made by schemac from everyShape.schema.
#pragma once

#include <cstddef>

#include "everyShape/Mix.h"
#include "frame/Record.h"

namespace everyShape {

struct Mix::Fields {
  static constexpr frame::FieldRow rows[] = {
      {"small", offsetof(Mix, small_), frame::FieldType::u8},
      {"below", offsetof(Mix, below_), frame::FieldType::s8},
      {"medium", offsetof(Mix, medium_), frame::FieldType::u16},
      {"large", offsetof(Mix, large_), frame::FieldType::u32},
      {"text", offsetof(Mix, text_), frame::FieldType::string},
  };
  static constexpr frame::RecordTable table{"Mix", "Value('everyShape::Mix', ** {",
      " Value ( 'everyShape::Mix' , ** {", rows};
};

}  // namespace everyShape
