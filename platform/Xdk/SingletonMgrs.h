// The managers of which the process has one, reached by name.
#pragma once

#include "Xdk/PrimitiveMgr.h"

/// Access control at the egress.  Its device is added by the init-type form of `addDevice`.
class xpEgressAclMgr : public xpPrimitiveMgr {
 public:
  /// The one of the process; never null.
  static xpEgressAclMgr* instance();

  /// Comes before the first `addDevice`.
  XP_STATUS init();
  /// Undoes `addDevice`.
  XP_STATUS removeDevice(U32 devId);
};
