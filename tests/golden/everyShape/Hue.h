// everyShape::Hue.  Made by schemac from everyShape.schema.
#pragma once

#include <ostream>

#include "Mox/Mox.h"

namespace everyShape {

/// A number that is whatever its storage holds.
class Hue {
 public:
  class _Type;
  class GenericIf_;

  Hue() = default;
  explicit Hue(U16 number);
  /// Reads a decimal number at `at` and advances.  It is narrowed to `U16`.
  Hue(Mox::String8::IteratorConst& at, Mox::String8::IteratorConst const& end);
  /// Reads what a peer has written.
  Hue(Mox::NboAttrLog::In* in, Mox::StreamBogon);

  U16 value() const { return value_; }

  /// Reads as the number.
  U16 hash() const { return value_; }

  bool operator==(Hue const& other) const { return value_ == other.value_; }
  bool operator<(Hue const& other) const { return value_ < other.value_; }
  bool operator<=(Hue const& other) const { return !(other < *this); }
  bool operator>(Hue const& other) const { return other < *this; }
  bool operator>=(Hue const& other) const { return !(*this < other); }

  Mox::MoxType const* fwkType() const;
  static Mox::MoxType* _fwkType();

 private:
  U16 value_ = 65535;
};

Mox::String8 valueToStrep(Hue const& value);
std::ostream& operator<<(std::ostream& out, Hue const& value);
Mox::Ptr<Mox::NboAttrLog::Out> const& operator<<(Mox::Ptr<Mox::NboAttrLog::Out> const& out,
    Hue const& value);

}  // namespace everyShape
