// everyShape::Level.  Made by schemac from everyShape.schema.
#pragma once

#include <ostream>

#include "Mox/Mox.h"

namespace everyShape {

/// A bounded number.
class Level {
 public:
  class _Type;
  class GenericIf_;

  Level() = default;
  /// A number above 9 raises `RangeException` "Level::value < 0 or > 9 not allowed".
  explicit Level(U8 number);
  /// Reads a decimal number at `at` and advances.  It is narrowed to `U8` ahead of the check.
  Level(Mox::String8::IteratorConst& at, Mox::String8::IteratorConst const& end);
  /// Reads what a peer has written; its range isn't checked.
  Level(Mox::NboAttrLog::In* in, Mox::StreamBogon);

  U8 value() const { return value_; }

  U32 hash() const;

  bool operator==(Level const& other) const { return value_ == other.value_; }

  Mox::MoxType const* fwkType() const;
  static Mox::MoxType* _fwkType();

 private:
  U8 value_ = 0;
};

Mox::String8 valueToStrep(Level const& value);
std::ostream& operator<<(std::ostream& out, Level const& value);
Mox::Ptr<Mox::NboAttrLog::Out> const& operator<<(Mox::Ptr<Mox::NboAttrLog::Out> const& out,
    Level const& value);

}  // namespace everyShape
