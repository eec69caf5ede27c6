// The schema compiler.
#include "tools/schemac/Run.h"

#include <iostream>

int main(int argc, char** argv) {
  return schemac::run({argv + 1, argv + argc}, std::cout, std::cerr);
}
