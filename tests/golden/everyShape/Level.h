// everyShape::Level.  Made by schemac from everyShape.schema.
#pragma once

#include "Mox/Mox.h"

namespace everyShape {

/// A bounded integer.
class Level : public Mox::BoundedInteger<Level, U8, 9> {
 public:
  using BoundedInteger::BoundedInteger;
  static constexpr char const* rangeMessage = "Level::value < 0 or > 9 not allowed";

  U32 hash() const;

  Mox::MoxType const* fwkType() const;
  static Mox::MoxType* _fwkType();
};

}  // namespace everyShape
