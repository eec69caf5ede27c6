// The number of a device in the chip vendor's SDK.
#pragma once

#include "Mox/BoundedIntegers.h"

namespace XpXdk {

/// Device number of the SDK, one byte: 0 to 31, and 32 for no device.  A larger one raises
/// `RangeException` "DeviceId::value < DeviceId::min or > DeviceId::null not allowed".
class DeviceId : public Mox::BoundedInteger<DeviceId, U8, 32> {
 public:
  static constexpr U8 min = 0;
  static constexpr U8 null = max;
  using BoundedInteger::BoundedInteger;
  static constexpr char const* rangeMessage =
      "DeviceId::value < DeviceId::min or > DeviceId::null not allowed";
  static Mox::MoxType* _fwkType();
};

using XpDeviceId = DeviceId;

}  // namespace XpXdk
