// everyShape::Dial.  Made by schemac from everyShape.schema.
#pragma once

#include <ostream>

#include "Mox/Mox.h"

namespace everyShape {

/// A bounded number that can be set.
class Dial {
 public:
  class _Type;
  class GenericIf_;

  Dial() = default;
  /// A number above 0 raises `RangeException` "Dial::value < 0 or > 0 not allowed".
  explicit Dial(U32 number);
  /// Reads a decimal number at `at` and advances.  It is narrowed to `U32` ahead of the check.
  Dial(Mox::String8::IteratorConst& at, Mox::String8::IteratorConst const& end);
  /// Reads what a peer has written; its range isn't checked.
  Dial(Mox::NboAttrLog::In* in, Mox::StreamBogon);

  U32 value() const { return value_; }
  /// Checks as the constructor does.
  void valueIs(U32 value) { *this = Dial(value); }

  U32 hash() const { return value_; }

  bool operator==(Dial const& other) const { return value_ == other.value_; }

  Mox::MoxType const* fwkType() const;
  static Mox::MoxType* _fwkType();

 private:
  U32 value_ = 0;
};

Mox::String8 valueToStrep(Dial const& value);
std::ostream& operator<<(std::ostream& out, Dial const& value);
Mox::Ptr<Mox::NboAttrLog::Out> const& operator<<(Mox::Ptr<Mox::NboAttrLog::Out> const& out,
    Dial const& value);

}  // namespace everyShape
