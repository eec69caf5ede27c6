// One table among those that are handed to a manager together.
#pragma once

#include "Xdk/TableContext.h"

/// Made by the caller, zeroed, and the caller's to free.
struct xpTblCtxPerIdx {
  U8 tblIdx;                ///< place of the table in its group
  U8 numCopies;             ///< copies of this table
  U8 tableIdForMgr;         ///< which of the manager's tables it is
  xpTableContext** tblCtx;  ///< the word that holds the table's first context
};
