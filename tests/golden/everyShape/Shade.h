// everyShape::Shade.  Made by schemac from everyShape.schema.
#pragma once

#include <ostream>

#include "Mox/Mox.h"
#include "everyShape/Hue.h"

namespace everyShape {

/// A number with the bound of a narrower type.
class Shade : public Hue {
 public:
  class _Type;
  class GenericIf_;

  Shade() = default;
  /// A number above 359 raises `RangeException` "Shade::value < 0 or > 359 not allowed".
  explicit Shade(U16 number);
  /// Reads a decimal number at `at` and advances.  It is narrowed to `U16` ahead of the check.
  Shade(Mox::String8::IteratorConst& at, Mox::String8::IteratorConst const& end);
  /// Reads what a peer has written; its range isn't checked.
  Shade(Mox::NboAttrLog::In* in, Mox::StreamBogon bogon);

  Mox::MoxType const* fwkType() const;
  static Mox::MoxType* _fwkType();
};

}  // namespace everyShape
