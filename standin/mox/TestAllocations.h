// Counts the allocations of a test program.  One file of the program includes it, for it replaces
// the program's operator new.
#pragma once

#include "Mox/Integers.h"

#include <cstdlib>
#include <new>

namespace {

U32 allocations = 0;

void* counted(std::size_t size) {
  ++allocations;
  if (void* const block = std::malloc(size ? size : 1)) return block;
  throw std::bad_alloc();
}

}  // namespace

// Every allocation of this program, whichever library asks for it.
void* operator new(std::size_t size) { return counted(size); }
void* operator new[](std::size_t size) { return counted(size); }
void operator delete(void* block) noexcept { std::free(block); }
void operator delete[](void* block) noexcept { std::free(block); }
void operator delete(void* block, std::size_t) noexcept { std::free(block); }
void operator delete[](void* block, std::size_t) noexcept { std::free(block); }

namespace {

// Allocations since this object was made.
class Allocations {
 public:
  U32 now() const { return allocations - before_; }

 private:
  U32 before_ = allocations;
};

}  // namespace
