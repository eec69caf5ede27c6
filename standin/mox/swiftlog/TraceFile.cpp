// The trace file: its head, its descriptors, its ring.
#include "Swiftlog/TraceFile.h"

#include "Mox/Exception.h"
#include "Swiftlog/RingBuf.h"
#include "standin/mox/swiftlog/Layout.h"
#include "standin/mox/swiftlog/Storage.h"

#include <algorithm>
#include <array>
#include <atomic>
#include <cstring>
#include <utility>

namespace Swiftlog {

struct TraceFile::Header : FileHeader {};

constinit TraceFile* currentTraceFile_ = nullptr;

namespace {

TraceFile::Sizes checked(TraceFile::Sizes sizes) {
  if (sizes.ring < TraceFile::minRing)
    Mox::throwRangeException(Mox::format("Swiftlog: a ring of %u bytes is smaller than %u",
                                         sizes.ring, TraceFile::minRing));
  if (std::max(sizes.ring, sizes.descriptors) > TraceFile::maxRoom)
    Mox::throwRangeException(Mox::format("Swiftlog: more room than %u bytes", TraceFile::maxRoom));
  return {roundedUp<U32>(sizes.descriptors, 8), roundedUp<U32>(sizes.ring, 8)};
}

std::size_t fileSize(TraceFile::Sizes sizes) {
  return sizeof(FileHeader) + std::size_t(sizes.descriptors) + sizes.ring;
}

// Stores what a reader of the mapped file goes by, in order with the bytes around it.
template <class Integer>
void publish(Integer& field, Integer value) noexcept {
  std::atomic_thread_fence(std::memory_order_seq_cst);
  field = value;
  std::atomic_thread_fence(std::memory_order_seq_cst);
}

}  // namespace

TraceFile::TraceFile(Sizes sizes)
    : TraceFile(std::make_unique<Storage>(fileSize(checked(sizes))), checked(sizes)) {}

TraceFile::TraceFile(Mox::String8 const& path, Sizes sizes)
    : TraceFile(std::make_unique<Storage>(path, fileSize(checked(sizes))), checked(sizes)) {}

TraceFile::TraceFile(std::unique_ptr<Storage> storage, Sizes sizes)
    : storage_(std::move(storage)), bytes_(storage_->bytes()) {
  auto& head = header();
  head.version = fileVersion;
  head.headerSize = sizeof(FileHeader);
  head.descriptorRoom = sizes.descriptors;
  head.ringRoom = sizes.ring;
  publish(head.magic, fileMagic);
}

TraceFile::~TraceFile() {
  if (currentTraceFile_ == this) currentTraceFile_ = nullptr;
  resetSites();
}

TraceFile::Header& TraceFile::header() const noexcept {
  return *reinterpret_cast<Header*>(bytes_.data());
}

std::span<std::byte> TraceFile::ring() const noexcept {
  return bytes_.subspan(sizeof(FileHeader) + header().descriptorRoom);
}

void TraceFile::resetSites() noexcept {
  for (int* const id : sites_) *id = 0;
  sites_.clear();
}

void TraceFile::msgIdArrIs(int* id) { sites_.push_back(id); }

int TraceFile::descriptorIs(std::span<std::byte const> descriptor) {
  auto& head = header();
  if (descriptor.size() > head.descriptorRoom - head.descriptorBytes) return -1;
  auto* const place = bytes_.data() + sizeof(FileHeader) + head.descriptorBytes;
  std::memcpy(place, descriptor.data(), descriptor.size());
  publish(head.descriptorBytes, head.descriptorBytes + static_cast<U32>(descriptor.size()));
  publish(head.descriptorCount, head.descriptorCount + 1);
  return static_cast<int>(head.descriptorCount);
}

void TraceFile::recordIs(int id, std::span<std::byte const> arguments) {
  auto& head = header();
  bool const registered = id > 0 && static_cast<U32>(id) <= head.descriptorCount;
  if (!registered || arguments.size() > RingBuf::maxArguments) return lostInc();
  RecordHeader const record = {static_cast<U32>(arguments.size()), static_cast<U32>(id),
                               head.nextNumber++};
  makeRoom(recordSize(arguments.size()));
  put(head.head, std::as_bytes(std::span(&record, 1)));
  put(head.head + sizeof record, arguments);
  publish(head.head, head.head + recordSize(arguments.size()));
}

void TraceFile::lostInc() noexcept { ++header().lost; }

void TraceFile::makeRoom(U64 size) noexcept {
  auto& head = header();
  while (head.head + size - head.tail > head.ringRoom)
    publish(head.tail, head.tail + recordSizeAt(head.tail));
}

void TraceFile::put(U64 position, std::span<std::byte const> bytes) noexcept {
  auto const room = ring();
  auto const place = static_cast<std::size_t>(position % room.size());
  auto const untilEnd = std::min(bytes.size(), room.size() - place);
  std::copy_n(bytes.begin(), untilEnd, room.begin() + place);
  std::copy(bytes.begin() + untilEnd, bytes.end(), room.begin());
}

std::size_t TraceFile::recordSizeAt(U64 position) const noexcept {
  // Records start at multiples of 8 and so does the ring's end: this word is never divided.
  U32 arguments;
  std::memcpy(&arguments, ring().data() + position % header().ringRoom, sizeof arguments);
  return recordSize(arguments);
}

void theTraceFileIs(TraceFile* file) {
  if (file == currentTraceFile_) return;
  TraceFile* const former = std::exchange(currentTraceFile_, file);
  if (former) former->resetSites();
}

}  // namespace Swiftlog
