// Reading of trace files that are no trace files, or no longer.
#include "Mox/Exception.h"
#include "Swiftlog/Reader.h"
#include "Swiftlog/Swiftlog.h"
#include "standin/mox/swiftlog/Layout.h"

#include <cstddef>
#include <cstring>
#include <gtest/gtest.h>
#include <random>
#include <sstream>
#include <string>
#include <vector>

namespace Swiftlog {
namespace {

constexpr TraceFileSizes small = {256, TraceFile::minRing};
constexpr std::size_t descriptorAt = sizeof(FileHeader);
constexpr std::size_t ringAt = descriptorAt + small.descriptors;

using Bytes = std::vector<std::byte>;

// A file with one descriptor, "n <U32>" of file "f", and two records.
Bytes goodFile() {
  TraceFile file(small);
  theTraceFileIs(&file);
  static constinit Site site("f", 1);
  site.log("n ", U32(1));
  site.log("n ", U32(2));
  return Bytes(file.bytes().begin(), file.bytes().end());
}

template <class Value>
Bytes with(std::size_t offset, Value value) {
  Bytes bytes = goodFile();
  std::memcpy(bytes.data() + offset, &value, sizeof value);
  return bytes;
}

// All that the reader prints of the bytes, with its complaint if it has one.
std::string reading(Bytes const& bytes) {
  std::ostringstream out;
  try {
    Reader(bytes).print(out);
  } catch (Mox::RangeException const& exception) {
    out << exception.message();
  }
  return out.str();
}

TEST(ReaderTest, GoodFileIsReadWhole) {
  EXPECT_EQ(reading(goodFile()), "#0 f:1 n 1\n#1 f:1 n 2\n");
}

TEST(ReaderTest, MissingFileIsRefused) {
  EXPECT_THROW(Reader(Mox::String8("/none/trace")), Mox::RangeException);
  EXPECT_THROW(Reader(Mox::String8("/")), Mox::RangeException);
  EXPECT_THROW(Reader(Mox::String8("/dev/null")), Mox::RangeException);
}

TEST(ReaderTest, ForeignBytesAreRefused) {
  EXPECT_EQ(reading({}), "Swiftlog: the header is cut short");
  EXPECT_EQ(reading(Bytes(64)), "Swiftlog: this is no trace file");
  EXPECT_EQ(reading(with(8, U32(2))), "Swiftlog: version 2 of the format is unknown");
  EXPECT_EQ(reading(with(12, U32(60))), "Swiftlog: version 1 of the format is unknown");
}

TEST(ReaderTest, TruncatedFileIsRefused) {
  Bytes const whole = goodFile();
  for (std::size_t size = 0; size < whole.size(); size += 7)
    EXPECT_EQ(reading(Bytes(whole.begin(), whole.begin() + size)).find("Swiftlog: "), 0u) << size;
  EXPECT_EQ(reading(Bytes(whole.begin(), whole.end() - 1)),
            "Swiftlog: the file has 4415 bytes in place of 4416");
}

TEST(ReaderTest, ImpossibleHeadersAreRefused) {
  for (std::size_t room : {16, 20})
    EXPECT_EQ(reading(with(room, TraceFile::maxRoom + 8)),
              "Swiftlog: more room than 268435456 bytes");
  EXPECT_EQ(reading(with(24, U32(257))), "Swiftlog: the descriptors reach beyond their room");
  for (U64 head : {U64(4), U64(8000), ~U64(0) - 7})
    EXPECT_EQ(reading(with(32, head)), "Swiftlog: the ring's positions are impossible") << head;
  EXPECT_EQ(reading(with(40, U64(56))), "Swiftlog: the ring's positions are impossible");
}

TEST(ReaderTest, BrokenDescriptorsAreRefused) {
  EXPECT_EQ(reading(with(28, U32(2))), "Swiftlog: the list of descriptors is cut short");
  EXPECT_EQ(reading(with(descriptorAt, U32(11))), "Swiftlog: descriptor 1 has an impossible size");
  EXPECT_EQ(reading(with(descriptorAt, U32(1000))),
            "Swiftlog: the list of descriptors is cut short");
  EXPECT_EQ(reading(with(descriptorAt + 8, U16(500))), "Swiftlog: descriptor 1 is cut short");
  EXPECT_EQ(reading(with(descriptorAt + 10, U16(500))),
            "Swiftlog: descriptor 1 has an item of unknown type");
  EXPECT_EQ(reading(with(descriptorAt + 13, 'x')),
            "Swiftlog: descriptor 1 has an item of unknown type");
}

TEST(ReaderTest, BrokenRecordsAreRefusedBehindTheGoodOnes) {
  std::string const good = "#0 f:1 n 1\nSwiftlog: the record at position 24 ";
  EXPECT_EQ(reading(with(ringAt + 24, U32(1025))), good + "has an impossible size");
  EXPECT_EQ(reading(with(ringAt + 24, U32(9))), good + "has an impossible size");
  EXPECT_EQ(reading(with(ringAt + 24, U32(5))),
            good + "has arguments that its descriptor doesn't tell");
  EXPECT_EQ(reading(with(ringAt + 24, U32(3))), good + "is cut short");
  EXPECT_EQ(reading(with(ringAt + 28, U32(0))), good + "has no descriptor");
  EXPECT_EQ(reading(with(ringAt + 28, U32(2))), good + "has no descriptor");
  EXPECT_EQ(reading(with(ringAt + 32, U64(2))), good + "is out of its order");
  EXPECT_EQ(reading(with(32, U64(32))), good + "is cut short");
}

TEST(ReaderTest, ReaderIsAtTheEndAfterAComplaint) {
  Reader reader(with(ringAt + 4, U32(9)));
  Message message;
  EXPECT_THROW(reader.next(&message), Mox::RangeException);
  EXPECT_FALSE(reader.next(&message));
}

TEST(ReaderTest, AnyDamageEndsInACleanComplaint) {
  std::mt19937 random(1);
  Bytes const whole = goodFile();
  for (int round = 0; round < 3000; ++round) {
    Bytes damaged = whole;
    for (int hit = 0; hit < 3; ++hit) damaged[random() % (ringAt + 48)] = std::byte(random());
    std::string const text = reading(damaged);
    EXPECT_TRUE(text.empty() || text.find('#') == 0 || text.find("Swiftlog: ") == 0 ||
                text.find("records lost") != text.npos)
        << text;
  }
}

}  // namespace
}  // namespace Swiftlog
