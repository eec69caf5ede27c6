// Reading of trace files.
#pragma once

#include "Mox/Integers.h"
#include "Mox/String8.h"

#include <cstddef>
#include <iosfwd>
#include <optional>
#include <span>
#include <vector>

namespace Swiftlog {

class Cursor;
struct RecordHeader;

/// One record, as text.
struct Message {
  /// Of the record in its file, from 0; those that newer ones have pushed out are counted.
  U64 number;
  int id;
  Mox::String8 file;
  U32 line;
  /// The pieces and the arguments, in their order: bytes and U32 in decimal, bool as 0 or 1.
  Mox::String8 text;
};

/// Reads a trace file from the oldest record to the newest.  Whatever is wrong with the bytes
/// throws `Mox::RangeException` "Swiftlog: <what>" and nothing worse.
class Reader {
 public:
  /// Reads a copy of `bytes`; checks its head and its descriptors.
  explicit Reader(std::span<std::byte const> bytes);
  /// Reads the file `path`.  A writer may be at work on it: of the records only those are shown
  /// that stood in the file all the time it was being read.
  explicit Reader(Mox::String8 const& path);

  /// Takes the next record; false at the end.  After an exception the reader is at the end.
  bool next(Message* message);
  /// Writes the remaining records, one line each: "#<number> <file>:<line> <text>"; and a last line
  /// "<n> records lost" if any were.
  void print(std::ostream& out);

  /// Records that the writer had to drop: too large, or of a site without a descriptor.
  U64 lost() const noexcept { return lost_; }
  std::size_t numDescriptors() const noexcept { return descriptors_.size(); }

 private:
  struct Item {
    char type;  // 't' for a text, else the type of an argument
    Mox::String8 text;
  };
  struct Descriptor {
    Mox::String8 file;
    U32 line;
    std::vector<Item> items;
  };

  void open();
  void readDescriptors(std::span<std::byte const> area, U32 count);
  static Item readItem(Cursor& descriptor);
  RecordHeader readRecordHeader(U64 position, Mox::String8 const& thing) const;

  std::vector<std::byte> bytes_;
  std::vector<Descriptor> descriptors_;
  std::span<std::byte const> ring_;
  U64 position_ = 0;
  U64 end_ = 0;
  std::optional<U64> lastNumber_;
  U64 lost_ = 0;
};

}  // namespace Swiftlog
