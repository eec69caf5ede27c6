// The SDK's devices.
#pragma once

#include "Mox/Integers.h"

class xpTableProfile;

/// One chip.  Made and owned by the SDK.
class xpDevice {
 public:
  xpDevice(xpDevice const&) = delete;
  xpDevice& operator=(xpDevice const&) = delete;

  /// The tables of the device; the SDK's, and as long-lived as the device.  Null while the device
  /// has none.
  xpTableProfile* getTableProfile();

 protected:
  xpDevice() = default;
  ~xpDevice() = default;
};

/// All chips that the SDK knows.
class xpDeviceMgr {
 public:
  /// The one of the process; never null.
  static xpDeviceMgr* instance();

  /// The device of that number, which the SDK must know already.
  xpDevice* getDeviceObj(U32 deviceId);
};
