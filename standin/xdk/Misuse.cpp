// The line on standard error, and the abort.
#include "standin/xdk/Misuse.h"

#include <cstdio>
#include <cstdlib>

namespace xdksim {

void misuse(std::string const& what) {
  std::fprintf(stderr, "simulated SDK: %s\n", what.c_str());
  std::fflush(stderr);
  std::abort();
}

}  // namespace xdksim
