// everyShape::Knob.  Made by schemac from everyShape.schema.
#pragma once

#include <ostream>

#include "Mox/Mox.h"

namespace everyShape {

/// A record whose fields can be set.
class Knob {
 public:
  class _Type;
  class GenericIf_;
  struct Fields;
  struct Tags;

  Knob() = default;
  /// Reads the text form at `at`, keys in any order, and advances.  What the text leaves out keeps
  /// its default.
  Knob(Mox::String8::IteratorConst& at, Mox::String8::IteratorConst const& end);
  /// Reads the fields in order, as a peer has written them.
  Knob(Mox::NboAttrLog::In* in, Mox::StreamBogon);

  U8 turn() const { return turn_; }
  void turnIs(U8 value) { turn_ = value; }

  U32 hash() const;

  bool operator==(Knob const& other) const;

  Mox::MoxType const* fwkType() const;
  static Mox::MoxType* _fwkType();

 private:
  U8 turn_ = 3;
};

Mox::String8 valueToStrep(Knob const& value);
std::ostream& operator<<(std::ostream& out, Knob const& value);
Mox::Ptr<Mox::NboAttrLog::Out> const& operator<<(Mox::Ptr<Mox::NboAttrLog::Out> const& out,
    Knob const& value);

}  // namespace everyShape
