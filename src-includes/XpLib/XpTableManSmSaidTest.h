// The language of the tests of traces and records: what the table manager says in a bring-up.
#pragma once

#include "Swiftlog/Reader.h"
#include "Swiftlog/TraceFile.h"
#include "XpLib/XpTableManSmRigTest.h"

#include <algorithm>

namespace Kestrel::xpTableManSm {

/// A trace line without the number of its source line: "1 doCreateBdTables: the text".
inline std::string shortened(std::string_view line) {
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

/// Takes the module's trace for as long as it lives.
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

/// Takes its records likewise.
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

/// What a publication says.
inline std::string published(U32 id, U32 plMgrId, std::string const& copies,
                             U32 tableIdForMgr = 0) {
  return "TableManSm::doUpdateTableStatus DeviceId 0 TableId " + std::to_string(id) +
         " tblCopyNum " + copies + " plMgrId " + std::to_string(plMgrId) + " tableIdForMgr " +
         std::to_string(tableIdForMgr);
}

/// What the operations of a bring-up say at their entry, and publications among them; `copies` is
/// how one copy looks.
inline Lines saidByBringUp(std::string const& copies) {
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

/// Puts `line` behind the first line that ends in `place`.
inline void insertBehind(Lines& lines, std::string const& place, std::string const& line) {
  auto const at =
      std::ranges::find_if(lines, [&](auto const& each) { return each.ends_with(place); });
  ASSERT_NE(at, lines.end()) << place;
  lines.insert(at + 1, line);
}

}  // namespace Kestrel::xpTableManSm
