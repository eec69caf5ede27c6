// Virtual interfaces: their entries, and the allocator of their ids.
#pragma once

#include "Xdk/Types.h"

/// What the chip knows of a virtual interface; as made, an empty entry.
class xpVifEntry {};

/// Hands out ids of virtual interfaces.
class xpAllocatorMgr {
 public:
  /// The allocator of a scope; never null.
  static xpAllocatorMgr* instance(U32 scope);

  xpAllocatorMgr(xpAllocatorMgr const&) = delete;
  xpAllocatorMgr& operator=(xpAllocatorMgr const&) = delete;

  /// Gives the id of the virtual interface that stands for no port.
  XP_STATUS getNullPortVif(U32& vifId);

 private:
  xpAllocatorMgr() = default;
};
