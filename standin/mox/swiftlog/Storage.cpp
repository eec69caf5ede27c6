// Mapping of trace files, and the keeping of the former one.
#include "standin/mox/swiftlog/Storage.h"

#include "Mox/Exception.h"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <fcntl.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

namespace Swiftlog {

namespace {

[[noreturn]] void refuse(Mox::String8 const& path, char const* what) {
  Mox::throwRangeException("Swiftlog: " + path + ": " + what);
}

class Descriptor {
 public:
  explicit Descriptor(int descriptor) : descriptor_(descriptor) {}
  ~Descriptor() {
    if (descriptor_ >= 0) ::close(descriptor_);
  }
  Descriptor(Descriptor const&) = delete;
  Descriptor& operator=(Descriptor const&) = delete;
  int get() const noexcept { return descriptor_; }

 private:
  int descriptor_;
};

std::span<std::byte> mapped(Mox::String8 const& path, std::size_t size, int flags, int file) {
  void* const place = ::mmap(nullptr, size, PROT_READ | PROT_WRITE, flags, file, 0);
  if (place == MAP_FAILED) refuse(path, std::strerror(errno));
  return {static_cast<std::byte*>(place), size};
}

// Only a plain file is moved away: what else stands there is not ours.
void keepFormer(Mox::String8 const& path) {
  struct stat former;
  if (::lstat(path.charPtr(), &former) != 0) return;
  if (!S_ISREG(former.st_mode)) refuse(path, "is there and is no plain file");
  if (std::rename(path.charPtr(), (path + ".1").charPtr()) != 0) refuse(path, std::strerror(errno));
}

}  // namespace

TraceFile::Storage::Storage(std::size_t size)
    : bytes_(mapped("memory", size, MAP_PRIVATE | MAP_ANONYMOUS, -1)) {}

TraceFile::Storage::Storage(Mox::String8 const& path, std::size_t size) {
  keepFormer(path);
  constexpr mode_t mode = 0644;
  Descriptor const file(::open(path.charPtr(), O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC, mode));
  if (file.get() < 0) refuse(path, std::strerror(errno));
  // Without room on the disk a write into the mapping would end the process.
  if (int const error = ::posix_fallocate(file.get(), 0, static_cast<off_t>(size))) {
    ::unlink(path.charPtr());
    refuse(path, std::strerror(error));
  }
  bytes_ = mapped(path, size, MAP_SHARED, file.get());
}

TraceFile::Storage::~Storage() { ::munmap(bytes_.data(), bytes_.size()); }

}  // namespace Swiftlog
