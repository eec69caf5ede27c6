// The switch of the counts, for a scope.
#pragma once

#include "Mox/PtrInterface.h"

namespace Mox {

class ThreadSafe {
 public:
  explicit ThreadSafe(bool on = true) { VFPtrInterface::enableThreadSafePointers = on; }
  ThreadSafe(ThreadSafe const&) = delete;
  ~ThreadSafe() { VFPtrInterface::enableThreadSafePointers = false; }
};

}  // namespace Mox
