// Writing beside, then moving into place.
#include "tools/kestrel/OutputFiles.h"

#include "tools/kestrel/Output.h"
#include "tools/kestrel/UsageFault.h"

#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstring>
#include <fcntl.h>
#include <filesystem>
#include <list>
#include <optional>
#include <ostream>
#include <set>
#include <stdexcept>
#include <sys/stat.h>
#include <unistd.h>

namespace kestrel {

namespace {

namespace fs = std::filesystem;

[[noreturn]] void refuse(std::string const& path, int error) {
  throw std::runtime_error(path + ": cannot be written: " + std::strerror(error));
}

/// Writes to an open file and closes it.
void writeAndClose(int descriptor, OutputFile const& file) {
  OutputBuffer buffer(descriptor);
  std::ostream(&buffer) << file.text << std::flush;
  int const error = close(descriptor) == 0 ? buffer.error() : errno;
  if (error != 0) refuse(file.path, error);
}

/// What stands at the path already, if anything.
std::optional<struct stat> standing(std::string const& path) {
  struct stat found;
  if (stat(path.c_str(), &found) == 0) return found;
  return std::nullopt;
}

mode_t freshMode() {
  mode_t const mask = umask(0);
  umask(mask);
  return 0666 & ~mask;
}

/// Where the path leads, through links too, also through one to what isn't there yet.
fs::path placeOf(std::string const& path) {
  constexpr int maxLinks = 40;  // as the system has it
  std::error_code unknown;
  fs::path place = fs::absolute(path, unknown);
  for (int links = 0; fs::is_symlink(fs::symlink_status(place, unknown)); ++links) {
    if (links == maxLinks) refuse(path, ELOOP);
    place = place.parent_path() / fs::read_symlink(place, unknown);
  }
  return fs::weakly_canonical(place.parent_path(), unknown) / place.filename();
}

/// A file beside its place, which goes unless it is moved there.
class Beside {
 public:
  explicit Beside(OutputFile const& file) : file_(file), place_(placeOf(file.path)) {}
  ~Beside() {
    if (!path_.empty()) unlink(path_.c_str());
  }
  Beside(Beside const&) = delete;
  Beside& operator=(Beside const&) = delete;

  void write(mode_t mode) {
    std::string path = place_.parent_path() / ".kestrel-XXXXXX";
    int const descriptor = mkstemp(path.data());
    if (descriptor < 0) refuse(file_.path, errno);
    path_ = path;
    fchmod(descriptor, mode);
    writeAndClose(descriptor, file_);
  }
  void move() {
    if (std::rename(path_.c_str(), place_.c_str()) != 0) refuse(file_.path, errno);
    path_.clear();
  }

 private:
  OutputFile const& file_;  // outlives this
  fs::path place_;
  std::string path_;  // empty while there is none
};

/// For what has no place to be moved to: a device, a pipe, a file that has lost its name.
void writeDevice(OutputFile const& file) {
  int const descriptor = open(file.path.c_str(), O_WRONLY | O_CLOEXEC);
  if (descriptor < 0) refuse(file.path, errno);
  writeAndClose(descriptor, file);
}

void checkDistinct(std::vector<OutputFile> const& files) {
  std::set<fs::path> places;
  for (OutputFile const& file : files)
    if (!places.insert(placeOf(file.path)).second)
      throw UsageFault(file.path + ": both pictures would be written here");
}

/// While it lives, a pipe that nobody reads any more and a limit of size are errors of writing, and
/// don't end the process, which would leave files lying about.
class Uninterrupted {
 public:
  ~Uninterrupted() {
    std::signal(SIGPIPE, pipe_);
    std::signal(SIGXFSZ, size_);
  }

 private:
  void (*pipe_)(int) = std::signal(SIGPIPE, SIG_IGN);
  void (*size_)(int) = std::signal(SIGXFSZ, SIG_IGN);
};

}  // namespace

void writeFiles(std::vector<OutputFile> const& files) {
  checkDistinct(files);
  Uninterrupted const uninterrupted;
  std::list<Beside> beside;
  std::vector<OutputFile const*> devices;
  for (OutputFile const& file : files) {
    auto const found = standing(file.path);
    if (found && S_ISDIR(found->st_mode)) refuse(file.path, EISDIR);
    if (found && access(file.path.c_str(), W_OK) != 0) refuse(file.path, errno);
    bool const isPlaced = found && S_ISREG(found->st_mode) && found->st_nlink > 0;
    if (found && !isPlaced)
      devices.push_back(&file);
    else
      beside.emplace_back(file).write(found ? found->st_mode & 0777 : freshMode());
  }
  for (OutputFile const* device : devices) writeDevice(*device);
  for (Beside& file : beside) file.move();
}

}  // namespace kestrel
