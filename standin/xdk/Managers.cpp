// The rows of the tables of managers and operations, and look-ups in them.
#include "standin/xdk/Managers.h"

#include "Xdk/Xdk.h"

#include <algorithm>

namespace xdksim {
namespace {

using enum Reach;
using enum Call;

/// A class that is reached through a platform layer.
template <class T>
constexpr ManagerClass layered() {
  return {&T::myId, []() -> xpPrimitiveMgr* { return new T; }};
}

/// A class with one object.
template <class T>
constexpr ManagerClass single() {
  return {nullptr, []() -> xpPrimitiveMgr* { return T::instance(); }};
}

// In the order of the bring-up.
// clang-format off
constexpr Manager managerRows[] = {
    {"xpPortConfigMgr", ifPl, 0, 0, {addWithInit}, layered<xpPortConfigMgr>()},
    {"xpAcmBankMgr", acmPl, 0, 0, {addWithInit}, layered<xpAcmBankMgr>()},
    {"xpAcmRsltMgr", acmPl, 0, 0, {addWithInit}, layered<xpAcmRsltMgr>()},
    {"xpEgressFilterMgr", ifPl, 0, 0, {addWithInit}, layered<xpEgressFilterMgr>()},
    {"xpTrunkResolutionMgr", ifPl, 0, 0, {addWithInit}, layered<xpTrunkResolutionMgr>()},
    {"xpBdMgr", l2Pl, 0, 0, {addTable}, layered<xpBdMgr>()},
    {"xpEgressBdMgr", l2Pl, 0, 0, {addTable}, layered<xpEgressBdMgr>()},
    {"aaclL4PortMgr", aclPl, 1, 2, {addTable}, layered<aaclL4PortMgr>()},
    {"xpMgksMgr", aclPl, 0, 0, {addTables}, layered<xpMgksMgr>()},
    {"xpAaclMgTableMgr", aclPl, 0, 0, {addTables}, layered<xpAaclMgTableMgr>()},
    {"xpTunnelInfoMgr", tunnelPl, 0, 0, {addTable}, layered<xpTunnelInfoMgr>()},
    {"xpTunnelIvifMgr", tunnelPl, 0, 0, {addTables}, layered<xpTunnelIvifMgr>()},
    {"xpIpXformMgr", aclPl, 1, 2, {addTable}, layered<xpIpXformMgr>()},
    {"xpFdbMgr", l2Pl, 0, 0, {addTable}, layered<xpFdbMgr>()},
    {"xpIpv4RouteMcMgr", mcastPl, 0, 0, {addTable}, layered<xpIpv4RouteMcMgr>()},
    {"xpIpv4PIMBiDirRPFMgr", mcastPl, 0, 0, {addTable}, layered<xpIpv4PIMBiDirRPFMgr>()},
    {"xpPortVlanIvifMgr", l2Pl, 0, 0, {addTable}, layered<xpPortVlanIvifMgr>()},
    {"xpMdtMgr", ifPl, 0, 0, {addTable}, layered<xpMdtMgr>()},
    {"xpHdrModificationMgr", ifPl, 0, 0, {addTables, loadDefaultValue}, layered<xpHdrModificationMgr>()},
    {"xpVifMgr", ifPl, 0, 0, {addTables, writeEntry}, layered<xpVifMgr>()},
    {"xpControlMacMgr", ifPl, 0, 0, {addWithInit}, layered<xpControlMacMgr>()},
    {"xpIpRouteLpmMgr", l3Pl, 0, 1, {addTable}, layered<xpIpRouteLpmMgr>()},
    {"xpNhMgr", l3Pl, 0, 0, {addTable}, layered<xpNhMgr>()},
    {"xpIpv4HostMgr", l3Pl, 0, 0, {addTable}, layered<xpIpv4HostMgr>()},
    {"xpIpv6HostMgr", l3Pl, 0, 0, {addTable}, layered<xpIpv6HostMgr>()},
    {"xpAqmMgr", singleton, 0, 0, {init, addWithInit, removeDevice, deInit}, single<xpAqmMgr>()},
    {"xpLanzMgr", singleton, 0, 0, {init, addWithInit, removeDevice, deInit}, single<xpLanzMgr>()},
    {"xpQueueCounterMgr", singleton, 0, 0, {init, addWithInit, removeDevice}, single<xpQueueCounterMgr>()},
    {"xpPortIngressQosMgr", singleton, 0, 0, {init, addWithInit, removeDevice}, single<xpPortIngressQosMgr>()},
    {"xpSchedulerMgr", singleton, 0, 0, {init, addWithInit, removeDevice}, single<xpSchedulerMgr>()},
    {"xpShaperMgr", singleton, 0, 0, {init, addWithInit, removeDevice}, single<xpShaperMgr>()},
    {"xpCpuStormControlMgr", singleton, 0, 0, {init, addWithInit, removeDevice}, single<xpCpuStormControlMgr>()},
    {"xpEgressQosMapMgr", singleton, 0, 0, {init, addWithInit, removeDevice, deInit}, single<xpEgressQosMapMgr>()},
    {"xpPolicerMgr", singleton, 0, 0, {init, addWithInit, removeDevice, deInit}, single<xpPolicerMgr>()},
    {"xpControlPlanePolicingMgr", singleton, 0, 0, {init, addWithInit, removeDevice, deInit}, single<xpControlPlanePolicingMgr>()},
    {"xpFlowControlMgr", singleton, 0, 0, {init, addWithInit, removeDevice, deInit}, single<xpFlowControlMgr>()},
    {"xpIaclMgr", aclPl, 0, 0, {addDevice, createTable}, layered<xpIaclMgr>()},
    {"xpEgressAclMgr", singleton, 0, 0, {init, addWithInit, removeDevice}, single<xpEgressAclMgr>()},
};

// In the order of the enumeration.
constexpr Operation operationRows[] = {
    {addTable, "addDevice", {Argument::device, Argument::table, Argument::copies, Argument::mode},
     "adds the device with one table"},
    {addTables, "addDevice", {Argument::device, Argument::list, Argument::copies, Argument::mode},
     "adds the device with several tables"},
    {addDevice, "addDevice", {Argument::device}, "adds the device, its tables come by `createTable`"},
    {addWithInit, "addDevice", {Argument::device, Argument::init},
     "adds the device, which has no table here"},
    {loadDefaultValue, "loadDefaultValue", {Argument::device}, "writes the default entries"},
    {createTable, "createTable", {Argument::device, Argument::list, Argument::copies, Argument::mode},
     "creates several tables"},
    {writeEntry, "writeEntry", {Argument::device, Argument::vif, Argument::direction},
     "writes one entry"},
    {init, "init", {}, "readies the manager for its first device"},
    {removeDevice, "removeDevice", {Argument::device}, "takes the device from the manager"},
    {deInit, "deInit", {}, "ends what `init` began"},
};
// clang-format on

}  // namespace

std::span<Manager const> managers() { return managerRows; }

std::span<Operation const> operations() { return operationRows; }

Operation const& operationOf(Call call) { return operationRows[static_cast<U8>(call) - 1]; }

Manager const* managerOf(std::string_view name) {
  auto row = std::ranges::find(managerRows, name, &Manager::name);
  return row == std::end(managerRows) ? nullptr : row;
}

bool Manager::has(Call call) const {
  return call != none && std::ranges::find(calls, call) != calls.end();
}

bool Manager::has(std::string_view operation) const {
  return std::ranges::any_of(operationRows, [this, operation](Operation const& row) {
    return row.name == operation && has(row.call);
  });
}

std::string Operation::shown() const {
  std::string text = name;
  for (Argument argument : arguments) {
    if (argument == Argument::none) break;
    text += ' ' + std::string(argumentName(argument)) + '=';
  }
  return text;
}

std::string ManagerId::name() const {
  std::string text;
  appendName(text);
  return text;
}

void ManagerId::appendName(std::string& text) const {
  text += row->name;
  if (!row->isSingleton()) text += '[' + std::to_string(index) + ']';
}

char const* reachName(Reach reach) {
  constexpr char const* names[] = {"xpIfPl",  "xpL2Pl",    "xpL3Pl",     "xpAclPl",
                                   "xpAcmPl", "xpMcastPl", "xpTunnelPl", "instance"};
  return names[static_cast<U8>(reach)];
}

char const* argumentName(Argument argument) {
  constexpr char const* names[] = {"",     "device", "table", "list",     "copies",
                                   "mode", "init",   "vif",   "direction"};
  return names[static_cast<U8>(argument)];
}

}  // namespace xdksim
