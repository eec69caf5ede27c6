// Writing of binary traces: sites, descriptors, records, and the ring that wraps around.
#include "Mox/Exception.h"
#include "Swiftlog/Reader.h"
#include "Swiftlog/Swiftlog.h"

#include <algorithm>
#include <fstream>
#include <gtest/gtest.h>
#include <sstream>
#include <string>
#include <unistd.h>
#include <vector>

namespace Swiftlog {
namespace {

constexpr TraceFileSizes small = {4096, TraceFile::minRing};

// Makes a trace file the process's for a scope.
struct Tracing {
  explicit Tracing(TraceFile& file) { theTraceFileIs(&file); }
  ~Tracing() { theTraceFileIs(nullptr); }
};

std::string printed(TraceFile const& file) {
  std::ostringstream out;
  Reader(file.bytes()).print(out);
  return out.str();
}

std::vector<Message> messages(TraceFile const& file) {
  Reader reader(file.bytes());
  std::vector<Message> all;
  for (Message message; reader.next(&message);) all.push_back(message);
  return all;
}

// A directory that goes with its files.
struct ScratchFile {
  ScratchFile() {
    char made[] = "/tmp/swiftlogXXXXXX";
    directory = ::mkdtemp(made);
  }
  ~ScratchFile() {
    for (char const* name : {"/trace", "/trace.1"}) ::unlink((directory + name).charPtr());
    ::rmdir(directory.charPtr());
  }
  Mox::String8 path() const { return directory + "/trace"; }
  Mox::String8 directory;
};

template <class Action>
Mox::String8 refusal(Action action) {
  try {
    action();
  } catch (Mox::Exception const& exception) {
    return exception.message();
  }
  return "none";
}

TEST(SwiftlogTest, RecordOfAnIdThatNobodyRegisteredIsLost) {
  TraceFile file;
  RingBuf record;
  record.startMsg(&file, 7);
  record.put(U8(1));
  record.endMsg();
  std::ostringstream out;
  Reader reader(file.bytes());
  EXPECT_NO_THROW(reader.print(out));
  EXPECT_EQ(reader.lost(), 1u);
}

TEST(SwiftlogTest, OffMeansNothingIsRegistered) {
  static constinit Site site("file");
  site.log("text");
  EXPECT_EQ(theTraceFile, nullptr);
  EXPECT_EQ(site.id(), 0);
}

TEST(SwiftlogTest, RecordPrintsTextsAndArgumentsInOrder) {
  TraceFile file(small);
  Tracing const on(file);
  static constinit Site site("src-includes/XpLib/XpTableManSm", 42);
  site.log("TableManSm::", "doUpdateTableStatus", " DeviceId ", U8(3), " TableId ", U32(61),
           " warm ", true);
  EXPECT_EQ(printed(file),
            "#0 src-includes/XpLib/XpTableManSm:42 "
            "TableManSm::doUpdateTableStatus DeviceId 3 TableId 61 warm 1\n");
}

TEST(SwiftlogTest, ArgumentsReachTheirLimits) {
  TraceFile file(small);
  Tracing const on(file);
  static constinit Site site("f", 1);
  site.log(U8(255), " ", U32(4294967295), " ", false);
  site.log(U8(0), " ", U32(0), " ", true);
  EXPECT_EQ(printed(file), "#0 f:1 255 4294967295 0\n#1 f:1 0 0 1\n");
}

TEST(SwiftlogTest, RecordMayHaveNoArgumentsOrNoText) {
  TraceFile file(small);
  Tracing const on(file);
  static constinit Site text("f", 1), argument("f", 2), nothing("f", 3);
  text.log("entered");
  argument.log(U32(7));
  nothing.log();
  EXPECT_EQ(printed(file), "#0 f:1 entered\n#1 f:2 7\n#2 f:3 \n");
}

TEST(SwiftlogTest, SiteRegistersOnceInEachFile) {
  TraceFile file(small);
  Tracing const on(file);
  static constinit Site one("f", 1), other("f", 2);
  for (U32 i = 0; i < 3; ++i) {
    one.log("one ", i);
    other.log("other ", i);
  }
  EXPECT_EQ(one.id(), 1);
  EXPECT_EQ(other.id(), 2);
  EXPECT_EQ(Reader(file.bytes()).numDescriptors(), 2u);
  EXPECT_EQ(messages(file).size(), 6u);
}

TEST(SwiftlogTest, DescriptorBuiltByHandReadsTheSame) {
  TraceFile file(small);
  int id = 0;
  MsgDesc description(&file, "file", 9);
  file.msgIdArrIs(&id);
  description << "device ";
  description.format().put("cb");
  id = description.finish();
  RingBuf record;
  record.startMsg(&file, id);
  record.put(U8(5));
  record.put(true);
  record.endMsg();
  EXPECT_EQ(printed(file), "#0 file:9 device 51\n");
}

TEST(SwiftlogTest, UnknownArgumentTypeIsRefused) {
  MsgFormatString format;
  EXPECT_EQ(refusal([&format] { format.put("ix"); }), "Swiftlog: unknown argument type x");
}

TEST(SwiftlogTest, AnotherFileMakesSitesStartAfresh) {
  TraceFile first(small), second(small);
  static constinit Site early("f", 1), late("f", 2);
  theTraceFileIs(&first);
  early.log("early");
  late.log("late");
  theTraceFileIs(&second);
  EXPECT_EQ(late.id(), 0);
  late.log("late");
  EXPECT_EQ(late.id(), 1);
  theTraceFileIs(&first);
  late.log("late again");
  theTraceFileIs(nullptr);
  EXPECT_EQ(printed(first), "#0 f:1 early\n#1 f:2 late\n#2 f:2 late again\n");
  EXPECT_EQ(printed(second), "#0 f:2 late\n");
}

TEST(SwiftlogTest, EndOfTheFileEndsTracing) {
  static constinit Site site("f", 1);
  {
    TraceFile file(small);
    theTraceFileIs(&file);
    site.log("x");
    EXPECT_EQ(site.id(), 1);
  }
  EXPECT_EQ(theTraceFile, nullptr);
  EXPECT_EQ(site.id(), 0);
  site.log("x");
}

TEST(SwiftlogTest, OldestRecordsMakeRoom) {
  TraceFile file(small);
  Tracing const on(file);
  static constinit Site site("f", 1);
  for (U32 i = 0; i < 1000; ++i) site.log("i ", i);
  auto const kept = messages(file);
  // 16 bytes of head and 8 for the argument.
  ASSERT_EQ(kept.size(), small.ring / 24);
  EXPECT_EQ(kept.back().text, "i 999");
  EXPECT_EQ(kept.front().number, 1000 - small.ring / 24);
}

TEST(SwiftlogTest, RecordsOfAllSizesSurviveTheWrap) {
  TraceFile file(small);
  Tracing const on(file);
  static constinit Site bare("f", 1), one("f", 2), many("f", 3);
  for (U32 i = 0; i < 500; ++i) {
    bare.log("-");
    one.log(U8(i & 0xFF));
    many.log(i, ",", i, ",", i, ",", i, ",", U8(7));
    auto const kept = messages(file);
    ASSERT_EQ(kept.back().number, 3 * i + 2);
    ASSERT_EQ(kept.back().text, Mox::format("%u,%u,%u,%u,7", i, i, i, i));
    ASSERT_GE(kept.size(), std::min<std::size_t>(3 * i + 3, 3 * (small.ring / 80 - 1)));
  }
}

TEST(SwiftlogTest, RecordOfTheGreatestSizeFitsAndOneByteMoreIsLost) {
  TraceFile file(small);
  MsgDesc description(&file, "f", 1);
  for (std::size_t i = 0; i < RingBuf::maxArguments; ++i) description.format().put("c");
  int const id = description.finish();
  auto const write = [&file, id](std::size_t size) {
    RingBuf record;
    record.startMsg(&file, id);
    for (std::size_t i = 0; i < size; ++i) record.put(U8(1));
    record.endMsg();
  };
  write(RingBuf::maxArguments);
  write(RingBuf::maxArguments + 1);
  EXPECT_EQ(printed(file),
            "#0 f:1 " + std::string(RingBuf::maxArguments, '1') + "\n1 records lost\n");
}

TEST(SwiftlogTest, SiteWithoutRoomForItsDescriptorLosesItsRecords) {
  TraceFile file({16, TraceFile::minRing});
  Tracing const on(file);
  static constinit Site site("a file name that does not fit", 1);
  site.log("x");
  site.log("x");
  EXPECT_EQ(site.id(), -1);
  EXPECT_EQ(printed(file), "2 records lost\n");
}

TEST(SwiftlogTest, LongTextsAreCut) {
  TraceFile file({1 << 18, TraceFile::minRing});
  std::string const text(70000, 'x');
  MsgDesc description(&file, "f", 1);
  description << text.c_str();
  file.recordIs(description.finish(), {});
  EXPECT_EQ(messages(file).at(0).text.size(), 65535u);
}

TEST(SwiftlogTest, ImpossibleSizesAreRefused) {
  EXPECT_EQ(refusal([] {
              TraceFile(TraceFileSizes{0, 4095});
            }),
            "Swiftlog: a ring of 4095 bytes is smaller than 4096");
  EXPECT_EQ(refusal([] {
              TraceFile(TraceFileSizes{0, 0x10000001});
            }),
            "Swiftlog: more room than 268435456 bytes");
}

TEST(SwiftlogTest, SizesAreRoundedUp) {
  TraceFile file({9, 4097});
  EXPECT_EQ(file.bytes().size(), 64u + 16u + 4104u);
}

TEST(SwiftlogFileTest, FileIsReadableWhileItIsWritten) {
  ScratchFile const scratch;
  TraceFile file(scratch.path(), small);
  Tracing const on(file);
  static constinit Site site("f", 1);
  site.log("first");
  Reader reader(scratch.path());
  site.log("second");
  std::ostringstream out;
  reader.print(out);
  EXPECT_EQ(out.str(), "#0 f:1 first\n");
}

TEST(SwiftlogFileTest, FileOutlivesTheWriter) {
  ScratchFile const scratch;
  {
    TraceFile file(scratch.path(), small);
    Tracing const on(file);
    static constinit Site site("f", 1);
    for (U32 i = 0; i < 500; ++i) site.log("i ", i);
  }
  Reader reader(scratch.path());
  Message message;
  while (reader.next(&message)) {
  }
  EXPECT_EQ(message.text, "i 499");
}

TEST(SwiftlogFileTest, FormerFileIsKept) {
  ScratchFile const scratch;
  std::ofstream(scratch.path().charPtr()) << "former";
  { TraceFile const file(scratch.path(), small); }
  std::string kept;
  std::ifstream(scratch.path().charPtr() + std::string(".1")) >> kept;
  EXPECT_EQ(kept, "former");
  Message message;
  EXPECT_FALSE(Reader(scratch.path()).next(&message));
}

TEST(SwiftlogFileTest, PlacesThatAreNoPlainFileAreRefused) {
  ScratchFile const scratch;
  EXPECT_EQ(refusal([&] { TraceFile file(scratch.directory, small); }),
            "Swiftlog: " + scratch.directory + ": is there and is no plain file");
  EXPECT_EQ(refusal([&] { TraceFile file(scratch.directory + "/none/trace", small); }),
            "Swiftlog: " + scratch.directory + "/none/trace: No such file or directory");
}

}  // namespace
}  // namespace Swiftlog
