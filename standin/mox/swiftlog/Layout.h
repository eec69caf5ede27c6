// The bytes of a trace file, as the writer and the reader both see them.
#pragma once

#include "Mox/Integers.h"

#include <array>
#include <bit>
#include <cstddef>

namespace Swiftlog {

static_assert(std::endian::native == std::endian::little, "trace files are little-endian");

/// The head of the file.  The descriptors' room follows it, and then the ring.
struct FileHeader {
  std::array<char, 8> magic;
  U32 version;
  U32 headerSize;
  U32 descriptorRoom;
  U32 ringRoom;
  U32 descriptorBytes;  // of its room, used
  U32 descriptorCount;
  // Positions count all bytes that ever went through the ring; the place of one is its remainder by
  // the ring's room.
  U64 head;        // behind the newest record
  U64 tail;        // of the oldest record
  U64 nextNumber;  // of the next record
  U64 lost;
};
static_assert(sizeof(FileHeader) == 64);

inline constexpr std::array<char, 8> fileMagic = {'S', 'W', 'I', 'F', 'T', 'L', 'O', 'G'};
inline constexpr U32 fileVersion = 1;

/// The head of a descriptor; the file's name and the items follow it.
struct DescriptorHeader {
  U32 size;  // of the whole descriptor, its padding included
  U32 line;
  U16 fileLength;
  U16 items;
};
static_assert(sizeof(DescriptorHeader) == 12);

/// The head of a record; the arguments follow it, padded to 8 bytes.
struct RecordHeader {
  U32 arguments;  // bytes, without the padding
  U32 id;
  U64 number;
};
static_assert(sizeof(RecordHeader) == 16);

/// The item that is a piece of text: a U16 length and the bytes follow.
inline constexpr char textItem = 't';

template <class Integer>
constexpr Integer roundedUp(Integer size, Integer unit) noexcept {
  return (size + unit - 1) / unit * unit;
}

constexpr U64 recordSize(U64 arguments) noexcept {
  return sizeof(RecordHeader) + roundedUp<U64>(arguments, 8);
}

/// Bytes of an argument of that type; 0 for an unknown type.
constexpr U32 argumentSize(char type) noexcept {
  return type == 'i' ? 4 : type == 'c' || type == 'b' ? 1 : 0;
}

}  // namespace Swiftlog
