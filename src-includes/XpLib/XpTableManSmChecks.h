// What ends the process: broken invariants, and statuses of the SDK that aren't accepted.
#pragma once

#include "Xdk/Types.h"
#include "XpLib/XpTableManSmOperation.h"

namespace Kestrel::xpTableManSm {

/// Ends the process by the assertion `text` of operation `in` unless `ok`.
void moxAssert(bool ok, char const* text, Operation const& in, int line = __builtin_LINE());

/// Judges what the SDK has answered to `call`, which is the text of the call.  0, 9 and 42 are
/// accepted; any other status is written to standard error, in one line with the call and with
/// " API ERROR ", and ends the process by the assertion "!(true)".
void check(XP_STATUS status, char const* call, Operation const& in, int line = __builtin_LINE());

}  // namespace Kestrel::xpTableManSm
