// The platform layers, through which managers are found by id.
#pragma once

#include "Mox/Integers.h"

class xpPrimitiveMgr;

/// What the layers have in common.
class xpPl {
 public:
  xpPl(xpPl const&) = delete;
  xpPl& operator=(xpPl const&) = delete;

  /// The manager of this layer with that id, or null.  It belongs to the SDK.
  virtual xpPrimitiveMgr* getPrimitiveMgr(U32 plMgrId) = 0;

 protected:
  xpPl() = default;
  ~xpPl() = default;
};

/// Interfaces: ports, VIFs, header modification.
class xpIfPl : public xpPl {
 public:
  /// The one of the process; never null, here and in the layers below.
  static xpIfPl* instance();
};

/// Bridging.
class xpL2Pl : public xpPl {
 public:
  static xpL2Pl* instance();
};

/// Routing.
class xpL3Pl : public xpPl {
 public:
  static xpL3Pl* instance();
};

/// Access control.
class xpAclPl : public xpPl {
 public:
  static xpAclPl* instance();
};

/// Counter memory.
class xpAcmPl : public xpPl {
 public:
  static xpAcmPl* instance();
};

/// Multicast.
class xpMcastPl : public xpPl {
 public:
  static xpMcastPl* instance();
};

/// Tunnels.
class xpTunnelPl : public xpPl {
 public:
  static xpTunnelPl* instance();
};
