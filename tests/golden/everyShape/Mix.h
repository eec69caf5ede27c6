// everyShape::Mix.  Made by schemac from everyShape.schema.
#pragma once

#include <ostream>

#include "Mox/Mox.h"

namespace everyShape {

/// Two bytes, a signed one and a text: a record with every kind of field.
class Mix {
 public:
  class _Type;
  class GenericIf_;
  struct Fields;
  struct Tags;

  Mix() = default;
  Mix(U8 small, S8 below, U16 medium, U32 large, Mox::String8 const& text);
  /// Reads the text form at `at`, keys in any order, and advances.  What the text leaves out keeps
  /// its default.
  Mix(Mox::String8::IteratorConst& at, Mox::String8::IteratorConst const& end);
  /// Reads the fields in order, as a peer has written them.
  Mix(Mox::NboAttrLog::In* in, Mox::StreamBogon);

  U8 small() const { return small_; }

  S8 below() const { return below_; }

  U16 medium() const { return medium_; }

  U32 large() const { return large_; }

  Mox::String8 text() const { return text_; }

  U32 hash() const;

  bool operator==(Mix const& other) const;
  bool operator<(Mix const& other) const;
  bool operator<=(Mix const& other) const { return !(other < *this); }
  bool operator>(Mix const& other) const { return !(*this <= other); }
  bool operator>=(Mix const& other) const { return !(*this < other); }

  Mox::MoxType const* fwkType() const;
  static Mox::MoxType* _fwkType();

 private:
  U8 small_ = 0;
  S8 below_ = 0;
  U16 medium_ = 0;
  U32 large_ = 0;
  Mox::String8 text_{};
};

Mox::String8 valueToStrep(Mix const& value);
std::ostream& operator<<(std::ostream& out, Mix const& value);
Mox::Ptr<Mox::NboAttrLog::Out> const& operator<<(Mox::Ptr<Mox::NboAttrLog::Out> const& out,
    Mix const& value);

}  // namespace everyShape
