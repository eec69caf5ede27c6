// How a manager of the SDK is found: its id in its class's vector, then the platform layer.
#pragma once

#include "Xdk/PrimitiveMgr.h"

namespace Kestrel::xpTableManSm {

/// The id under which platform layers know manager `index` of class `Manager`.  The SDK has filled
/// the vector, as a rule; where it is too short, it is extended, and `index` alone gets a new id:
/// entries before it stay 0.  Look it up anew before each use, for the SDK may change it.
template <class Manager>
U32 plMgrIdOf(U32 index = 0) {
  auto& ids = xpPrimitiveMgrBase<Manager>::myId;
  if (ids.size() <= index) {
    ids.resize(index + 1, 0);
    ids[index] = xpPrimitiveMgr::getNewPlMgrId();
  }
  return ids[index];
}

/// Manager `index` of class `Manager`, as the platform layer `Layer` has it; null where it has
/// none.
template <class Layer, class Manager>
Manager* managerOf(U32 index = 0) {
  auto* const layer = Layer::instance();
  return static_cast<Manager*>(layer->getPrimitiveMgr(plMgrIdOf<Manager>(index)));
}

}  // namespace Kestrel::xpTableManSm
