// The end of the process on a broken invariant.
#include "Mox/Assert.h"

#include <cstdio>
#include <cstdlib>
#include <errno.h>

namespace Mox {

void assertionFailed(char const* text, char const* file, int line, char const* function) {
  std::fprintf(stderr, "%s: %s:%d: %s: Assertion `%s' failed.\n", program_invocation_short_name,
               file, line, function, text);
  std::fflush(stderr);
  std::abort();
}

}  // namespace Mox
