// What the managers have in common of which the process has one.
#pragma once

#include "Xdk/PrimitiveMgr.h"

/// Its device is added by the init-type form of `addDevice`.
class xpSingletonMgr : public xpPrimitiveMgr {
 public:
  /// Comes before the first `addDevice`.
  XP_STATUS init();
  /// Undoes `addDevice`.
  XP_STATUS removeDevice(U32 devId);
};

/// One that can be taken down whole.
class xpDeInitMgr : public xpSingletonMgr {
 public:
  /// Undoes `init`; comes behind the last `removeDevice`.
  XP_STATUS deInit();
};
