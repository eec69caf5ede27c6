// The schema compiler.
#include "tools/schemac/Run.h"

#include <iostream>

int main(int argc, char** argv) {
  return schemac::run({argv + 1, argv + argc}, SCHEMAC_VERSION, std::cout, std::cerr);
}
