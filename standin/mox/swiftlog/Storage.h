// Where the bytes of a trace file lie.
#pragma once

#include "Mox/String8.h"
#include "Swiftlog/TraceFile.h"

#include <cstddef>
#include <span>

namespace Swiftlog {

/// Zeroed memory of the process, or of a file.  Unmapped at the end; a file stays.
class TraceFile::Storage {
 public:
  /// Of the process alone.
  explicit Storage(std::size_t size);
  /// Of a new file, with its room on the disk taken; see `TraceFile`.
  Storage(Mox::String8 const& path, std::size_t size);
  ~Storage();
  Storage(Storage const&) = delete;
  Storage& operator=(Storage const&) = delete;

  std::span<std::byte> bytes() const noexcept { return bytes_; }

 private:
  std::span<std::byte> bytes_;
};

}  // namespace Swiftlog
