// What the table manager leaves in the binary trace: records, their arguments, their sites.
#include "XpLib/XpTableManSmSaidTest.h"
#include "standin/mox/swiftlog/Layout.h"

#include <cstring>
#include <map>

namespace Kestrel::xpTableManSm {
namespace {

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

TEST(TableManSmRecordTest, WarmRestart) {
  Rig rig;
  auto const sm = rig.bringUp();
  Records records;
  sm->doVerifyOrCreateTables(true);
  EXPECT_EQ(records.texts(),
            Lines{"bool Kestrel::TableManSm::doVerifyOrCreateTables(bool) warmRestart 1"});
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
