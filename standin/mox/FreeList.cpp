// The free lists, and the storage of counted objects that comes from them.
#include "standin/mox/FreeList.h"

#include "Mox/PtrInterface.h"

#include <new>

namespace Mox {

namespace {

constexpr std::size_t step = 8;

struct Block {
  Block* next;
};

struct SizeClass {
  Block* head;
  std::size_t blocks;
};

constinit SizeClass classes[FreeList::largest / step] = {};

bool usable(std::size_t size) noexcept { return FreeList::keeps() && size <= FreeList::largest; }

// Size 0 is served as size 1.
std::size_t classOf(std::size_t size) noexcept { return (size - (size != 0)) / step; }
// All blocks of a class are of one size, or they couldn't take each other's place.
std::size_t blockSize(std::size_t size) noexcept {
  return size <= FreeList::largest ? (classOf(size) + 1) * step : size;
}

void* taken(std::size_t size) {
  if (usable(size)) [[likely]] {
    SizeClass& list = classes[classOf(size)];
    if (Block* const block = list.head) [[likely]] {
      list.head = block->next;
      --list.blocks;
      return block;
    }
  }
  return ::operator new(blockSize(size));
}

void given(void* block, std::size_t size) noexcept {
  if (!block) return;
  if (usable(size)) [[likely]] {
    SizeClass& list = classes[classOf(size)];
    if ((list.blocks + 1) * blockSize(size) <= FreeList::bytesKept) [[likely]] {
      list.head = ::new (block) Block{list.head};
      ++list.blocks;
      return;
    }
  }
  ::operator delete(block);
}

}  // namespace

void* FreeList::take(std::size_t size) { return taken(size); }
void FreeList::give(void* block, std::size_t size) noexcept { given(block, size); }
std::size_t FreeList::kept(std::size_t size) noexcept { return classes[classOf(size)].blocks; }

void* PtrInterface::operator new(std::size_t size) { return taken(size); }
void PtrInterface::operator delete(void* object, std::size_t size) noexcept { given(object, size); }
void VFPtrInterface::operator delete(void* object, std::size_t size) noexcept {
  given(object, size);
}

}  // namespace Mox
