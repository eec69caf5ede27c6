// The tread plan: which tread each live prefix table of an LPM table takes.
#pragma once

#include "Mox/Ptr.h"
#include "Xdk/TableContext.h"
#include "XpLib/Config/LpmTreadCfg.h"

namespace Kestrel {

/// Rewrites the treads of the prefix tables in `tblCtx`, which is the first copy's context of table
/// `tableGuid`: the k-th of those that are valid and not at tread 16 takes 16 and the plan's value
/// of k.  A plan that isn't valid leaves the context as it is.
///
/// Ends the process by an assertion for another table than the two LPM tables, a context that is
/// missing or of another class, a missing plan, and a plan without a value of k; the last also
/// writes a line with "Failed(" to standard error.
void doUpdateLpmTblCtx(U32 tableGuid, xpTableContext* tblCtx,
                       Mox::Ptr<XpLib::Config::LpmTreadCfg> lpmTreadCfg);

}  // namespace Kestrel
