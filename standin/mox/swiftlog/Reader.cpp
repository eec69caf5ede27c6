// Reading of trace files: nothing in them is believed before it is checked.
#include "Swiftlog/Reader.h"

#include "Swiftlog/RingBuf.h"
#include "Swiftlog/TraceFile.h"
#include "standin/mox/swiftlog/Cursor.h"
#include "standin/mox/swiftlog/Layout.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <fstream>
#include <ostream>
#include <utility>

namespace Swiftlog {

namespace {

FileHeader headerOf(std::span<std::byte const> bytes) {
  auto const header = Cursor(bytes, "the header").take<FileHeader>();
  if (header.magic != fileMagic) refuse("this is no trace file");
  if (header.version != fileVersion || header.headerSize != sizeof(FileHeader))
    refuse(Mox::format("version %u of the format is unknown", header.version));
  return header;
}

void checkSizes(FileHeader const& header, U64 size) {
  // Ahead of all that takes memory: a file with holes can claim any size.
  if (std::max(header.ringRoom, header.descriptorRoom) > TraceFile::maxRoom)
    refuse(Mox::format("more room than %u bytes", TraceFile::maxRoom));
  U64 const wanted = U64(sizeof(FileHeader)) + header.descriptorRoom + header.ringRoom;
  if (size != wanted)
    refuse(Mox::format("the file has %llu bytes in place of %llu",
                       static_cast<unsigned long long>(size),
                       static_cast<unsigned long long>(wanted)));
  if (header.descriptorBytes > header.descriptorRoom)
    refuse("the descriptors reach beyond their room");
  if (header.ringRoom < TraceFile::minRing || header.ringRoom % 8 != 0)
    refuse("the ring's size is impossible");
  if (header.tail > header.head || header.head - header.tail > header.ringRoom ||
      header.tail % 8 != 0 || header.head % 8 != 0)
    refuse("the ring's positions are impossible");
}

// Bytes of the ring from a position on, put together again where they wrap around.
std::vector<std::byte> ringBytes(std::span<std::byte const> ring, U64 position, std::size_t size) {
  auto const place = static_cast<std::size_t>(position % ring.size());
  auto const untilEnd = std::min(size, ring.size() - place);
  std::vector<std::byte> bytes(ring.begin() + place, ring.begin() + place + untilEnd);
  bytes.insert(bytes.end(), ring.begin(), ring.begin() + (size - untilEnd));
  return bytes;
}

Mox::String8 argumentText(Cursor& arguments, char type) {
  U32 const value = type == 'i' ? arguments.take<U32>() : arguments.take<U8>();
  return Mox::format("%u", value);
}

std::vector<std::byte> readAll(std::ifstream& file, std::size_t size) {
  std::vector<std::byte> bytes(size);
  file.seekg(0);
  file.read(reinterpret_cast<char*>(bytes.data()), static_cast<std::streamsize>(size));
  bytes.resize(static_cast<std::size_t>(file.gcount()));
  file.clear();
  return bytes;
}

}  // namespace

Reader::Reader(std::span<std::byte const> bytes) : bytes_(bytes.begin(), bytes.end()) { open(); }

Reader::Reader(Mox::String8 const& path) {
  std::ifstream file(path.charPtr(), std::ios::binary | std::ios::ate);
  if (!file) refuse(path + ": can't be read");
  auto const size = static_cast<std::streamoff>(file.tellg());
  // A writer may be at work: what stood before the bytes were copied and still stands is whole.
  auto const before = headerOf(readAll(file, sizeof(FileHeader)));
  checkSizes(before, static_cast<U64>(size));
  bytes_ = readAll(file, static_cast<std::size_t>(size));
  auto const after = headerOf(readAll(file, sizeof(FileHeader)));
  open();
  end_ = std::min(end_, before.head);
  position_ = std::min(std::max(position_, after.tail), end_);
}

void Reader::open() {
  auto const header = headerOf(bytes_);
  checkSizes(header, bytes_.size());
  std::span<std::byte const> const body = std::span(bytes_).subspan(sizeof(FileHeader));
  ring_ = body.subspan(header.descriptorRoom);
  position_ = header.tail;
  end_ = header.head;
  lost_ = header.lost;
  readDescriptors(body.first(header.descriptorBytes), header.descriptorCount);
}

void Reader::readDescriptors(std::span<std::byte const> area, U32 count) {
  Cursor all(area, "the list of descriptors");
  for (U32 id = 1; id <= count; ++id) {
    auto const header = all.take<DescriptorHeader>();
    auto const name = Mox::format("descriptor %u", id);
    if (header.size < sizeof header) refuse(name + " has an impossible size");
    Cursor body(all.take(header.size - sizeof header), name);
    Descriptor descriptor = {body.text(header.fileLength), header.line, {}};
    for (U16 item = 0; item < header.items; ++item) descriptor.items.push_back(readItem(body));
    descriptors_.push_back(std::move(descriptor));
  }
}

Reader::Item Reader::readItem(Cursor& descriptor) {
  char const type = descriptor.take<char>();
  if (type == textItem) return {type, descriptor.text(descriptor.take<U16>())};
  if (argumentSize(type) == 0) refuse(descriptor.thing() + " has an item of unknown type");
  return {type, {}};
}

bool Reader::next(Message* message) {
  if (position_ == end_) return false;
  U64 const position = std::exchange(position_, end_);  // the end, if what follows throws
  auto const thing =
      Mox::format("the record at position %llu", static_cast<unsigned long long>(position));
  auto const record = readRecordHeader(position, thing);
  auto const bytes = ringBytes(ring_, position + sizeof record, record.arguments);
  Cursor arguments(bytes, thing);
  Descriptor const& descriptor = descriptors_[record.id - 1];
  *message = {record.number, static_cast<int>(record.id), descriptor.file, descriptor.line, {}};
  for (Item const& item : descriptor.items)
    message->text += item.type == textItem ? item.text : argumentText(arguments, item.type);
  if (!arguments.empty()) refuse(thing + " has arguments that its descriptor doesn't tell");
  lastNumber_ = record.number;
  position_ = position + recordSize(record.arguments);
  return true;
}

RecordHeader Reader::readRecordHeader(U64 position, Mox::String8 const& thing) const {
  U64 const available = end_ - position;
  if (available < sizeof(RecordHeader)) refuse(thing + " is cut short");
  auto const bytes = ringBytes(ring_, position, sizeof(RecordHeader));
  auto const record = Cursor(bytes, thing).take<RecordHeader>();
  if (record.arguments > RingBuf::maxArguments || recordSize(record.arguments) > available)
    refuse(thing + " has an impossible size");
  if (record.id == 0 || record.id > descriptors_.size()) refuse(thing + " has no descriptor");
  if (lastNumber_ && record.number != *lastNumber_ + 1) refuse(thing + " is out of its order");
  return record;
}

void Reader::print(std::ostream& out) {
  for (Message message; next(&message);)
    out << '#' << message.number << ' ' << message.file << ':' << message.line << ' '
        << message.text << '\n';
  if (lost_ > 0) out << lost_ << " records lost\n";
}

}  // namespace Swiftlog
