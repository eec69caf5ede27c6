// The base of all table managers, and the ids under which platform layers know them.
#pragma once

#include "Xdk/TblCtxPerIdx.h"
#include "Xdk/Types.h"

#include <vector>

/// A manager of tables or of functions of the chip.  Each class has some of the operations; one
/// that it lacks must not be called.  None of them is safe to call from two threads at a time.
class xpPrimitiveMgr {
 public:
  xpPrimitiveMgr() = default;
  xpPrimitiveMgr(xpPrimitiveMgr const&) = delete;
  xpPrimitiveMgr& operator=(xpPrimitiveMgr const&) = delete;
  virtual ~xpPrimitiveMgr();

  /// Gives the manager its one table.  `*tblCtx` is the context of the first of `tblCopyNum`
  /// copies, or null.
  virtual XP_STATUS addDevice(U32 devId, xpTableContext** tblCtx, U8 tblCopyNum,
                              XP_TABLE_MODE_T mode);
  /// Gives the manager several tables.  The list is read during the call and stays the caller's.
  virtual XP_STATUS addDevice(U32 devId, std::vector<xpTblCtxPerIdx*>& tblCtxPerIdx, U8 tblCopyNum,
                              XP_TABLE_MODE_T mode);
  /// Adds the device to a manager that gets its tables by another operation.
  virtual XP_STATUS addDevice(U32 devId);
  /// Adds the device to a manager that has no table in the profile.
  virtual XP_STATUS addDevice(U32 devId, xpInitType_t type);
  /// Writes the entries that the manager's tables begin with.
  virtual XP_STATUS loadDefaultValue(U32 devId);

  /// An id that no manager has; never 0.
  static U32 getNewPlMgrId();
};

/// Base of each manager class `T` that is reached through a platform layer.
template <class T>
class [[gnu::visibility("default")]] xpPrimitiveMgrBase : public xpPrimitiveMgr {
 public:
  /// Ids of the managers of this class, by index; 0 for an index that has none.  The SDK and its
  /// callers share the vector, and both may extend it.
  static std::vector<U32> myId;
};

template <class T>
std::vector<U32> xpPrimitiveMgrBase<T>::myId;
