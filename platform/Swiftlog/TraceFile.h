// The trace file: descriptors of messages, and the ring of their records.
#pragma once

#include "Mox/Integers.h"
#include "Mox/String8.h"

#include <cstddef>
#include <memory>
#include <span>
#include <vector>

namespace Swiftlog {

/// Room for descriptors and for records, in bytes.
struct TraceFileSizes {
  U32 descriptors = 256 * 1024;
  U32 ring = 1024 * 1024;
};

/// Descriptors and records of one process, in memory or in a file that is mapped into memory, so
/// that a file is whole and readable even if the process is killed.  The oldest records make room
/// for new ones.  docs/swiftlog.md tells the bytes; `Reader` reads them.  One thread at a time.
class TraceFile {
 public:
  using Sizes = TraceFileSizes;
  /// The smallest ring: it holds any record.
  static constexpr U32 minRing = 4096;
  static constexpr U32 maxRoom = 0x10000000;

  /// A trace file in memory.  Sizes are rounded up to multiples of 8; a ring smaller than
  /// `minRing`, or room of more than `maxRoom`, throws `Mox::RangeException` "Swiftlog: ...", as
  /// whatever keeps a file from being made does.
  explicit TraceFile(Sizes sizes = Sizes());
  /// One in the file `path`, with all its room taken at once.  A file that stands there is kept
  /// under the name `path` + ".1", in place of what stood under that.
  explicit TraceFile(Mox::String8 const& path, Sizes sizes = Sizes());
  /// Resets the ids of all sites that have registered, and the process's trace file if it is this.
  ~TraceFile();
  TraceFile(TraceFile const&) = delete;
  TraceFile& operator=(TraceFile const&) = delete;

  /// Registers the static message id of a site: it is set back to 0, which is unregistered, when
  /// this file goes or another takes its place as the process's.  The id must stay where it is for
  /// as long as this file lives, which a static does unless its library is unloaded.
  void msgIdArrIs(int* id);

  /// Enters a closed descriptor and gives its id, 1 or more; -1 when there is no room for it.
  int descriptorIs(std::span<std::byte const> descriptor);
  /// Appends a record to the ring.  One without a registered id, or with more arguments than
  /// `RingBuf::maxArguments`, is counted as lost.
  void recordIs(int id, std::span<std::byte const> arguments);
  /// Counts a record that could not be written.
  void lostInc() noexcept;

  /// Everything as it stands in the file, to be copied or read at once.
  std::span<std::byte const> bytes() const noexcept { return bytes_; }

 private:
  friend void theTraceFileIs(TraceFile* file);

  class Storage;
  struct Header;

  TraceFile(std::unique_ptr<Storage> storage, Sizes sizes);
  Header& header() const noexcept;
  std::span<std::byte> ring() const noexcept;
  void resetSites() noexcept;
  void makeRoom(U64 size) noexcept;
  void put(U64 position, std::span<std::byte const> bytes) noexcept;
  std::size_t recordSizeAt(U64 position) const noexcept;

  std::unique_ptr<Storage> storage_;
  std::span<std::byte> bytes_;
  std::vector<int*> sites_;
};

/// See `theTraceFile`; not for direct use.
extern TraceFile* currentTraceFile_;

/// The process's trace file; null while tracing is off.  Changed by `theTraceFileIs` alone.
inline constexpr TraceFile* const& theTraceFile = currentTraceFile_;

/// Makes `file`, which the caller keeps, the process's trace file; null switches tracing off.  The
/// sites registered with the former file start afresh.
void theTraceFileIs(TraceFile* file);

}  // namespace Swiftlog
