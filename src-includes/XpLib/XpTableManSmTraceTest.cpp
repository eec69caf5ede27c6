// What the table manager leaves in traces: texts, levels, records, their order.
#include "Swiftlog/Reader.h"
#include "Swiftlog/TraceFile.h"
#include "XpLib/XpTableManSmRigTest.h"
#include "XpLib/XpTableManSmTrace.h"
#include "standin/mox/swiftlog/Layout.h"

#include <algorithm>
#include <cstring>
#include <map>
#include <sstream>

namespace Kestrel::xpTableManSm {
namespace {

// A trace line without the number of its source line: "1 doCreateBdTables: the text".
std::string shortened(std::string_view line) {
  std::string const head = "XpTableManSm ";
  std::string const path = " src-includes/XpLib/XpTableManSm:";
  std::size_t const pathAt = line.find(path);
  std::size_t const nameAt = line.find(' ', pathAt + path.size()) + 1;
  std::string const object = " <unknown>: ";
  std::size_t const objectAt = line.find(object);
  if (!line.starts_with(head) || pathAt == line.npos || objectAt == line.npos)
    return "not in form: " + std::string(line);
  return std::string(line.substr(head.size(), pathAt - head.size())) + ' ' +
         std::string(line.substr(nameAt, objectAt - nameAt)) + ": " +
         std::string(line.substr(objectAt + object.size()));
}

// Takes the module's trace for as long as it lives.
class Trace {
 public:
  explicit Trace(char const* pattern) : pattern_(pattern) {
    Mox::traceEnable(pattern_);
    former_ = Mox::traceSinkIs([this](std::string_view line) { lines.push_back(shortened(line)); });
  }
  ~Trace() {
    Mox::traceSinkIs(former_);
    Mox::traceDisable(pattern_);
    Mox::traceDisable("XpTableManSm");
  }

  Lines lines;

 private:
  char const* pattern_;
  Mox::TraceSink former_;
};

// Takes the records likewise.
class Records {
 public:
  Records() { Swiftlog::theTraceFileIs(&file_); }
  ~Records() { Swiftlog::theTraceFileIs(nullptr); }

  Lines texts() const {
    Lines result;
    Swiftlog::Reader reader(file_.bytes());
    for (Swiftlog::Message message; reader.next(&message);) {
      EXPECT_EQ(message.file, "src-includes/XpLib/XpTableManSm");
      EXPECT_GT(message.line, 0u);
      result.emplace_back(message.text.charPtr());
    }
    return result;
  }

 private:
  Swiftlog::TraceFile file_;
};

std::string const one(1, '\1');
std::string const nul(1, '\0');

// What a publication says.
std::string published(U32 id, U32 plMgrId, std::string const& copies, U32 tableIdForMgr = 0) {
  return "TableManSm::doUpdateTableStatus DeviceId 0 TableId " + std::to_string(id) +
         " tblCopyNum " + copies + " plMgrId " + std::to_string(plMgrId) + " tableIdForMgr " +
         std::to_string(tableIdForMgr);
}

// What the operations of a bring-up say at their entry, and publications among them; `copies` is
// how one copy looks.
Lines saidByBringUp(std::string const& copies) {
  auto entered = [](std::string const& name) { return "TableManSm::" + name + " DeviceId 0"; };
  auto told = [&copies](U32 id, U32 plMgrId, U32 tableIdForMgr = 0) {
    return published(id, plMgrId, copies, tableIdForMgr);
  };
  return {
      entered("handleInitialized"),
      entered("doCreateStaticTables"),
      entered("doCreateBdTables"),
      told(31, xpBdMgr::myId[0]),
      told(32, xpEgressBdMgr::myId[0]),
      entered("doCreateL4PortTables"),
      told(33, aaclL4PortMgr::myId[1]),
      told(34, aaclL4PortMgr::myId[2]),
      told(53, xpMgksMgr::myId[0]),
      told(54, xpMgksMgr::myId[0], 1),
      told(55, xpMgksMgr::myId[0], 2),
      told(56, xpMgksMgr::myId[0], 3),
      told(57, xpMgksMgr::myId[0], 4),
      told(58, xpMgksMgr::myId[0], 5),
      told(59, xpMgksMgr::myId[0], 6),
      entered("doCreateAaclMgTables"),
      told(36, xpAaclMgTableMgr::myId[0]),
      told(37, xpAaclMgTableMgr::myId[0], 1),
      told(38, xpAaclMgTableMgr::myId[0], 2),
      told(39, xpAaclMgTableMgr::myId[0], 3),
      told(40, xpAaclMgTableMgr::myId[0], 4),
      told(41, xpAaclMgTableMgr::myId[0], 5),
      entered("doCreateTunnelTables"),
      told(35, xpTunnelInfoMgr::myId[0]),
      told(2, xpTunnelIvifMgr::myId[0]),
      told(12, xpTunnelIvifMgr::myId[0], 2),
      told(13, xpTunnelIvifMgr::myId[0], 3),
      entered("doCreateIpXformTables"),
      told(60, xpIpXformMgr::myId[1]),
      told(61, xpIpXformMgr::myId[2]),
      entered("doCreateFdbTable"),
      told(0, xpFdbMgr::myId[0]),
      entered("doCreateRouteMcTable"),
      told(8, xpIpv4RouteMcMgr::myId[0]),
      entered("doCreatePimTable"),
      entered("doCreatePortVlanTable"),
      told(1, xpPortVlanIvifMgr::myId[0]),
      entered("doCreateMdtTable"),
      told(30, xpMdtMgr::myId[0]),
      entered("doCreateHeaderModTables"),
      told(27, xpHdrModificationMgr::myId[0]),
      told(28, xpHdrModificationMgr::myId[0], 1),
      told(29, xpHdrModificationMgr::myId[0], 2),
      entered("doCreateVifTables"),
      told(19, xpVifMgr::myId[0]),
      told(20, xpVifMgr::myId[0], 1),
      told(21, xpVifMgr::myId[0], 2),
      told(22, xpVifMgr::myId[0], 3),
      told(23, xpVifMgr::myId[0], 4),
      told(24, xpVifMgr::myId[0], 5),
      told(25, xpVifMgr::myId[0], 6),
      told(26, xpVifMgr::myId[0], 7),
      entered("doCreateControlMacTable"),
      entered("doCreateLpmTables"),
      told(50, xpIpRouteLpmMgr::myId[1]),
      told(51, xpIpRouteLpmMgr::myId[0]),
      told(52, xpNhMgr::myId[0]),
      entered("doCreateHostTables"),
      told(4, xpIpv4HostMgr::myId[0]),
      told(5, xpIpv6HostMgr::myId[0]),
      entered("doCreateQosTables"),
      entered("doCreateIAclTables"),
      told(42, xpIaclMgr::myId[0]),
      told(43, xpIaclMgr::myId[0], 1),
      told(44, xpIaclMgr::myId[0], 2),
  };
}

// Puts `line` behind the first line that ends in `place`.
void insertBehind(Lines& lines, std::string const& place, std::string const& line) {
  auto const at =
      std::ranges::find_if(lines, [&](auto const& each) { return each.ends_with(place); });
  ASSERT_NE(at, lines.end()) << place;
  lines.insert(at + 1, line);
}

// As a line of the trace shows it: "1 doCreateBdTables: TableManSm::doCreateBdTables DeviceId 0".
std::string atLevelOne(std::string const& said) {
  std::string const head = "TableManSm::";
  return "1 " + said.substr(head.size(), said.find(' ') - head.size()) + ": " + said;
}

TEST(TableManSmTraceTest, BringUpAtLevelOne) {
  Rig rig;
  Trace trace("XpTableManSm/1");
  rig.bringUp();
  Lines expected;
  for (std::string const& said : saidByBringUp(one)) expected.push_back(atLevelOne(said));
  insertBehind(expected, "doCreateIAclTables DeviceId 0",
               "1 doCreateIAclTables: doCreateIAclTables DeviceId 0 Number of IACL TCAM Table "
               "Copies : 1");
  EXPECT_EQ(trace.lines, expected);
}

// The rig's tread plans aren't valid.
TEST(TableManSmTraceTest, BringUpAtLevelTwo) {
  Rig rig;
  Trace trace("XpTableManSm/2");
  rig.bringUp();
  EXPECT_EQ(trace.lines, (Lines{"2 doUpdateLpmTblCtx: doUpdateLpmTblCtx tblGuid 50",
                                "2 doUpdateLpmTblCtx:  tread cfg not valid ",
                                "2 doUpdateLpmTblCtx: doUpdateLpmTblCtx tblGuid 51",
                                "2 doUpdateLpmTblCtx:  tread cfg not valid "}));
}

TEST(TableManSmTraceTest, TakeDownIsTracedAlsoTheSecondTime) {
  Rig rig;
  auto const sm = rig.bringUp();
  Trace trace("XpTableManSm/0-31");
  sm->doPrepareToDie();
  sm->doPrepareToDie();
  std::string const line = "1 doPrepareToDie: TableManSm::doPrepareToDie DeviceId 0";
  EXPECT_EQ(trace.lines, (Lines{line, line}));
}

TEST(TableManSmTraceTest, BringUpAtLevelEight) {
  Rig rig;
  Trace trace("XpTableManSm/8");
  rig.bringUp();
  EXPECT_EQ(trace.lines,
            (Lines{"8 doVerifyOrCreateTables: bool "
                   "Kestrel::TableManSm::doVerifyOrCreateTables(bool) warmRestart 0",
                   "8 doCreateNhTables: void Kestrel::TableManSm::doCreateNhTables()"}));
}

TEST(TableManSmTraceTest, WarmRestartIsOneInTheText) {
  Rig rig;
  auto const sm = rig.bringUp();
  Trace trace("XpTableManSm/8");
  sm->doVerifyOrCreateTables(true);
  EXPECT_EQ(trace.lines, Lines{"8 doVerifyOrCreateTables: bool "
                               "Kestrel::TableManSm::doVerifyOrCreateTables(bool) warmRestart 1"});
}

TEST(TableManSmTraceTest, OtherLevelsAreEmpty) {
  Rig rig;
  Trace trace("XpTableManSm/0,3-7,9-31");
  rig.bringUp();
  EXPECT_EQ(trace.lines, Lines());
}

TEST(TableManSmTraceTest, DeviceIsANumber) {
  auto profile = fullProfile();
  profile.deviceId = 31;
  Rig rig(profile);
  rig.deviceId = 31;
  Trace trace("XpTableManSm/1");
  rig.bringUp();
  EXPECT_EQ(trace.lines.front(), "1 handleInitialized: TableManSm::handleInitialized DeviceId 31");
}

TEST(TableManSmTraceTest, CopyNumberIsOneRawByteOfTheText) {
  Rig rig;
  auto const sm = rig.bringUp();
  Trace trace("XpTableManSm/1");
  auto context = contexts<xpHashTableContext>(65);
  xpTableContext* first = context.data();
  sm->doUpdateTableStatus(3, "T", &first, 65, 0, 9);
  sm->doUpdateTableStatus(4, "T", &first, 0, 0, 9);
  EXPECT_EQ(trace.lines, (Lines{"1 doUpdateTableStatus: " + published(3, 9, "A"),
                                "1 doUpdateTableStatus: " + published(4, 9, nul)}));
}

TEST(TableManSmTraceTest, SkippedTableIsTraced) {
  Rig rig;
  auto const sm = rig.bringUp();
  Trace trace("XpTableManSm/1");
  Records records;
  xpTableContext* none = nullptr;
  sm->doUpdateTableStatus(3, "T", &none, 1, 0, 9);
  EXPECT_EQ(trace.lines, Lines{"1 doUpdateTableStatus: " + published(3, 9, one)});
  EXPECT_EQ(records.texts(), Lines{published(3, 9, "1")});
}

TEST(TableManSmTraceTest, HeaderTablesBehindTheStopAreTracedAsSkipped) {
  Rig rig(withCopies(27, {1, 0, 1}));
  auto const sm = rig.bringUp();
  Trace trace("XpTableManSm/1");
  sm->doCreateHeaderModTables();
  U32 const manager = xpHdrModificationMgr::myId[0];
  EXPECT_EQ(trace.lines, (Lines{"1 doCreateHeaderModTables: TableManSm::doCreateHeaderModTables "
                                "DeviceId 0",
                                atLevelOne(published(27, manager, one, 0)),
                                atLevelOne(published(28, manager, one, 1)),
                                atLevelOne(published(29, manager, one, 2))}));
}

TEST(TableManSmTraceTest, SitesAreCountedEnabledOrNot) {
  Rig rig;
  auto const sm = rig.bringUp();
  auto const* facility = Mox::traceFacility("XpTableManSm");
  U64 const before = facility->hits();
  sm->doVerifyOrCreateTables(true);
  EXPECT_EQ(facility->hits(), before + 1);
  Trace trace("XpTableManSm/1");
  sm->doVerifyOrCreateTables(true);
  EXPECT_EQ(facility->hits(), before + 3);
}

TEST(TableManSmTraceTest, CoverageStreamGetsWhatIsNotTraced) {
  Rig rig;
  auto const sm = rig.bringUp();
  std::ostringstream covered;
  Mox::coverageStream_ = &covered;
  sm->doCreateControlMacTable();
  Mox::coverageStream_ = nullptr;
  EXPECT_NE(covered.str().find("TableManSm::doCreateControlMacTable DeviceId 0"),
            std::string::npos);
}

TEST(TableManSmTraceTest, HandleIsOneForAll) {
  EXPECT_EQ(&_defaultTraceHandle(), &_defaultTraceHandle());
  EXPECT_EQ(_defaultTraceHandle().facility()->name(), "XpTableManSm");
}

TEST(TableManSmTraceTest, HandleOfTheSdksMacrosIsMadeAndNotUsed) {
  auto const* facility = Mox::traceFacility("XpXdkApiMacros");
  ASSERT_TRUE(facility);
  Rig rig;
  rig.bringUp();
  EXPECT_EQ(facility->hits(), 0u);
}

// Records.

// Three entries and the treads leave no record.
TEST(TableManSmRecordTest, BringUp) {
  Rig rig;
  Records records;
  rig.bringUp();
  Lines expected = saidByBringUp("1");
  insertBehind(expected, "handleInitialized DeviceId 0",
               "bool Kestrel::TableManSm::doVerifyOrCreateTables(bool) warmRestart 0");
  EXPECT_EQ(records.texts(), expected);
}

TEST(TableManSmRecordTest, TakeDown) {
  Rig rig;
  auto const sm = rig.bringUp();
  Records records;
  sm->doPrepareToDie();
  EXPECT_EQ(records.texts(), Lines{"TableManSm::doPrepareToDie DeviceId 0"});
}

TEST(TableManSmRecordTest, ArgumentsOfAPublication) {
  Rig rig;
  auto const sm = rig.bringUp();
  Records records;
  auto context = contexts<xpHashTableContext>(1);
  xpTableContext* first = context.data();
  sm->doUpdateTableStatus(0xFFFFFFFE, "T", &first, 0, 0xFFFFFFFD, 0xFFFFFFFC);
  EXPECT_EQ(records.texts(),
            Lines{"TableManSm::doUpdateTableStatus DeviceId 0 TableId 4294967294 tblCopyNum 0 "
                  "plMgrId 4294967292 tableIdForMgr 4294967293"});
}

// The types of each site's arguments, by its texts: "[a ]|[ b]" has an argument between two texts.
std::map<std::string, std::string> argumentTypes(Swiftlog::TraceFile const& file) {
  std::byte const* at = file.bytes().data();
  Swiftlog::FileHeader header;
  std::memcpy(&header, at, sizeof header);
  at += sizeof header;
  std::map<std::string, std::string> result;
  for (U32 i = 0; i < header.descriptorCount; ++i) {
    Swiftlog::DescriptorHeader descriptor;
    std::memcpy(&descriptor, at, sizeof descriptor);
    auto const* item =
        reinterpret_cast<char const*>(at) + sizeof descriptor + descriptor.fileLength;
    std::string texts;
    std::string types;
    for (U16 items = descriptor.items; items > 0; --items) {
      char const type = *item++;
      if (type != 't') {
        types += type;
        texts += '|';
        continue;
      }
      U16 length;
      std::memcpy(&length, item, sizeof length);
      texts += '[' + std::string(item + sizeof length, length) + ']';
      item += sizeof length + length;
    }
    result[texts] = types;
    at += descriptor.size;
  }
  return result;
}

TEST(TableManSmRecordTest, ArgumentsHaveTheirTypes) {
  Rig rig;
  Swiftlog::TraceFile file;
  Swiftlog::theTraceFileIs(&file);
  rig.bringUp();
  Swiftlog::theTraceFileIs(nullptr);
  std::map<std::string, std::string> expected = {
      {"[bool Kestrel::TableManSm::doVerifyOrCreateTables(bool)][ warmRestart ]|", "b"},
      {"[TableManSm::][doUpdateTableStatus][ DeviceId ]|[ TableId ]|[ tblCopyNum ]|[ plMgrId ]|"
       "[ tableIdForMgr ]|",
       "cicii"},
  };
  for (char const* name :
       {"handleInitialized", "doCreateStaticTables", "doCreateBdTables", "doCreateL4PortTables",
        "doCreateAaclMgTables", "doCreateTunnelTables", "doCreateIpXformTables", "doCreateFdbTable",
        "doCreateRouteMcTable", "doCreatePimTable", "doCreatePortVlanTable", "doCreateMdtTable",
        "doCreateHeaderModTables", "doCreateVifTables", "doCreateControlMacTable",
        "doCreateLpmTables", "doCreateHostTables", "doCreateQosTables", "doCreateIAclTables"})
    expected[std::string("[TableManSm::][") + name + "][ DeviceId ]|"] = "c";
  EXPECT_EQ(argumentTypes(file), expected);
}

TEST(TableManSmRecordTest, SiteIsDescribedOnce) {
  Rig rig;
  auto const sm = rig.bringUp();
  Swiftlog::TraceFile file;
  Swiftlog::theTraceFileIs(&file);
  sm->doCreateFdbTable();
  sm->doCreateFdbTable();
  EXPECT_EQ(Swiftlog::Reader(file.bytes()).numDescriptors(), 2u);
  Swiftlog::theTraceFileIs(nullptr);
}

TEST(TableManSmRecordTest, NothingIsWrittenWithoutATraceFile) {
  Rig rig;
  Swiftlog::TraceFile file;
  rig.bringUp();
  EXPECT_EQ(Swiftlog::Reader(file.bytes()).numDescriptors(), 0u);
}

TEST(TableManSmRecordTest, TextComesBeforeTheRecord) {
  Rig rig;
  auto const sm = rig.bringUp();
  Swiftlog::TraceFile file;
  Swiftlog::theTraceFileIs(&file);
  Mox::traceEnable("XpTableManSm/1");
  U32 atText = 99;
  auto former = Mox::traceSinkIs([&](std::string_view) {
    atText = static_cast<U32>(Swiftlog::Reader(file.bytes()).numDescriptors());
  });
  sm->doCreateControlMacTable();
  Mox::traceSinkIs(former);
  Mox::traceDisable("XpTableManSm");
  Swiftlog::theTraceFileIs(nullptr);
  EXPECT_EQ(atText, 0u);
}

}  // namespace
}  // namespace Kestrel::xpTableManSm
