// The integers of few bits, at top level, by the names that descriptors and schemas use.
#pragma once

#include "Mox/NboAttrLog.h"
#include "Mox/Strep.h"

#include <iosfwd>
#include <type_traits>

namespace Mox {

class MoxType;
template <class T>
class BoundedIf;

/// A value of 0 to `maximum` kept in a `Storage`.  `Self` derives from it and gives `rangeMessage`,
/// which a value beyond the maximum raises as `RangeException`.  It converts from and to the raw
/// integer by itself, so it is compared and hashed as that.
template <class Self, class StorageType, StorageType maximum>
class BoundedInteger {
 public:
  using Storage = StorageType;
  static constexpr Storage max = maximum;

  constexpr BoundedInteger() noexcept = default;
  constexpr BoundedInteger(Storage value) : value_(value) { check(); }
  /// Reads a decimal number at the position.  It is narrowed to the storage before the check.
  BoundedInteger(String8::IteratorConst& at, String8::IteratorConst const& end)
      : BoundedInteger(static_cast<Storage>(sequenceToAttribute<long long>(at, end, "value"))) {}

  /// Reads what a peer has written; its bound isn't checked.
  BoundedInteger(NboAttrLog::In* in, StreamBogon) : value_(in->nextInteger<Storage>()) {}

  constexpr operator Storage() const noexcept { return value_; }
  constexpr Storage value() const noexcept { return value_; }
  MoxType const* fwkType() const { return Self::_fwkType(); }

 private:
  constexpr void check() const {
    if (value_ > max) throwRangeException(Self::rangeMessage);
  }

  Storage value_ = 0;
};

template <class Self, class Storage, Storage max>
String8 valueToStrep(BoundedInteger<Self, Storage, max> const& integer) {
  return valueToStrep(integer.value());
}

template <class Self, class Storage, Storage max>
std::ostream& operator<<(std::ostream& out, BoundedInteger<Self, Storage, max> const& integer) {
  return out << valueToStrep(integer);
}

}  // namespace Mox

/// An integer of 1 bit.
class U1 : public Mox::BoundedInteger<U1, U8, 0x01> {
 public:
  using BoundedInteger::BoundedInteger;
  using GenericIf_ = Mox::BoundedIf<U1>;
  static constexpr char const* rangeMessage = "U1::value < 0 or > 0x01 not allowed";
  static Mox::MoxType* _fwkType();
};

/// An integer of 4 bits.
class U4 : public Mox::BoundedInteger<U4, U8, 0x0F> {
 public:
  using BoundedInteger::BoundedInteger;
  using GenericIf_ = Mox::BoundedIf<U4>;
  static constexpr char const* rangeMessage = "U4::value < 0 or > 0x0f not allowed";
  static Mox::MoxType* _fwkType();
};

/// An integer of 6 bits.
class U6 : public Mox::BoundedInteger<U6, U8, 0x3F> {
 public:
  using BoundedInteger::BoundedInteger;
  using GenericIf_ = Mox::BoundedIf<U6>;
  static constexpr char const* rangeMessage = "U6::value < 0 or > 0x3f not allowed";
  static Mox::MoxType* _fwkType();
};

/// An integer of 22 bits.
class U22 : public Mox::BoundedInteger<U22, U32, 0x3FFFFF> {
 public:
  using BoundedInteger::BoundedInteger;
  using GenericIf_ = Mox::BoundedIf<U22>;
  static constexpr char const* rangeMessage = "U22::value < 0 or > 0x003fffff not allowed";
  static Mox::MoxType* _fwkType();
};
