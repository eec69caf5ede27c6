// The buffer in front of standard output.
#include "tools/kestrel/Output.h"

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <memory>
#include <ostream>
#include <unistd.h>

namespace kestrel {

namespace {

using File = std::unique_ptr<std::FILE, int (*)(std::FILE*)>;

File scratchFile() { return File(std::tmpfile(), std::fclose); }

std::string content(File const& file) {
  std::string text(1 << 20, '\0');
  text.resize(static_cast<std::size_t>(pread(fileno(file.get()), text.data(), text.size(), 0)));
  return text;
}

TEST(OutputBufferTest, NothingArrivesBeforeAFlush) {
  File const file = scratchFile();
  OutputBuffer buffer(fileno(file.get()));
  std::ostream out(&buffer);
  out << "text";
  EXPECT_EQ(content(file), "");
  out.flush();
  EXPECT_EQ(content(file), "text");
  EXPECT_EQ(buffer.error(), 0);
}

TEST(OutputBufferTest, AllArrivesHoweverLong) {
  File const file = scratchFile();
  std::string const text(300000, 'x');
  {
    OutputBuffer buffer(fileno(file.get()));
    std::ostream(&buffer) << text << 'y';
  }
  EXPECT_EQ(content(file), text + 'y');
}

TEST(OutputBufferTest, FullDeviceIsRemembered) {
  int const full = open("/dev/full", O_WRONLY | O_CLOEXEC);
  OutputBuffer buffer(full);
  std::ostream out(&buffer);
  out << std::string(100000, 'x') << std::flush;
  EXPECT_FALSE(out);
  EXPECT_EQ(buffer.error(), ENOSPC);
  close(full);
}

TEST(OutputBufferTest, ClosedDescriptorIsRemembered) {
  OutputBuffer buffer(-1);
  std::ostream out(&buffer);
  out << 'x' << std::flush;
  EXPECT_EQ(buffer.error(), EBADF);
}

TEST(OutputBufferTest, NothingWrittenIsNoFailure) {
  OutputBuffer buffer(-1);
  std::ostream(&buffer).flush();
  EXPECT_EQ(buffer.error(), 0);
}

}  // namespace

}  // namespace kestrel
