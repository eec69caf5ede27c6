// The status rule, and assertions in the name of the module.
#include "XpLib/XpTableManSmChecks.h"

#include "Mox/Assert.h"
#include "Mox/String8.h"

#include <iostream>

namespace Kestrel::xpTableManSm {

namespace {

// The last two are no success, but none that a bring-up has to stop for.
bool isAccepted(XP_STATUS status) { return status == 0 || status == 9 || status == 42; }

}  // namespace

void moxAssert(bool ok, char const* text, Operation const& in, int line) {
  if (!ok) Mox::assertionFailed(text, sourcePath, line, in.signature);
}

// The line goes out in one piece, so that no other writer's text can get into it.
void check(XP_STATUS status, char const* call, Operation const& in, int line) {
  if (isAccepted(status)) return;
  std::cerr << Mox::format("%s:%d %s API ERROR %d\n", sourcePath, line, call, status) << std::flush;
  moxAssert(false, "!(true)", in, line);
}

}  // namespace Kestrel::xpTableManSm
