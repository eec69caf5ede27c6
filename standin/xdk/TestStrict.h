// The language of the tests of strict mode.
#pragma once

#include "Xdk/Xdk.h"
#include "standin/xdk/Sim.h"

#include <csignal>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace xdksim {

/// A strict SDK; steps of its callers in few words.
struct StrictTest : testing::Test {
  StrictTest() { sim.strictIs(true); }

  template <class Context>
  void table(U32 id, std::vector<Context> contexts) {
    U32 const copies = static_cast<U32>(contexts.size());
    profile.tables[id] = tableOf(std::move(contexts), copies);
  }
  void useProfile() { sim.deviceIs(profile); }
  void begin(U32 device = 0) { xpDeviceMgr::instance()->getDeviceObj(device)->getTableProfile(); }
  void end(U32 device = 0) { xpEgressAclMgr::instance()->addDevice(device, XP_INIT_COLD); }
  XP_STATUS add(xpPrimitiveMgr* manager, U32 id, U8 copies = 1, U32 device = 0) {
    xpTableContext* word = sim.tableProfile(device).tblCtx[id];
    return manager->addDevice(device, &word, copies, TABLE_INIT_WITH_FIXED_INFO);
  }
  template <class T>
  void addList(T* manager, std::vector<U32> const& ids, U8 copies, bool ownCopies = false) {
    std::vector<xpTableContext*> words;
    std::vector<xpTblCtxPerIdx> records;
    std::vector<xpTblCtxPerIdx*> list;
    for (U32 id : ids) words.push_back(sim.tableProfile().tblCtx[id]);
    for (std::size_t i = 0; i < ids.size(); ++i) {
      U8 const own = static_cast<U8>(sim.tableProfile().copyNum[ids[i]]);
      records.push_back({static_cast<U8>(i), ownCopies ? own : U8{0}, 0, &words[i]});
    }
    for (auto& record : records) list.push_back(&record);
    if constexpr (requires { manager->createTable(0, list, copies, TABLE_INIT_WITH_FIXED_INFO); })
      manager->createTable(0, list, copies, TABLE_INIT_WITH_FIXED_INFO);
    else
      manager->addDevice(0, list, copies, TABLE_INIT_WITH_FIXED_INFO);
  }
  xpPrimitiveMgr* fdb() { return xpL2Pl::instance()->getPrimitiveMgr(xpFdbMgr::myId.at(0)); }
  xpPrimitiveMgr* bd() { return xpL2Pl::instance()->getPrimitiveMgr(xpBdMgr::myId.at(0)); }
  xpPrimitiveMgr* tunnel() {
    return xpTunnelPl::instance()->getPrimitiveMgr(xpTunnelIvifMgr::myId.at(0));
  }
  xpPrimitiveMgr* hdrMod() {
    return xpIfPl::instance()->getPrimitiveMgr(xpHdrModificationMgr::myId.at(0));
  }
  xpVifMgr* vif() {
    return static_cast<xpVifMgr*>(xpIfPl::instance()->getPrimitiveMgr(xpVifMgr::myId.at(0)));
  }
  xpIaclMgr* iacl() {
    return static_cast<xpIaclMgr*>(xpAclPl::instance()->getPrimitiveMgr(xpIaclMgr::myId.at(0)));
  }
  void addQos(U32 device = 0) {
    for (Manager const& manager : managers()) {
      if (manager.isSingleton()) manager.declared.object()->addDevice(device, XP_INIT_COLD);
    }
  }
  /// The take-down in the order of the rows, `xpFlowControlMgr` last, but for one call that is left
  /// out.
  void takeDown(std::string const& leftOut = "", U32 device = 0) {
    remove(*managerOf("xpEgressAclMgr"), leftOut, device);
    for (Manager const& manager : managers()) {
      if (manager.isSingleton() && manager.name != std::string("xpEgressAclMgr"))
        remove(manager, leftOut, device);
    }
  }
  void remove(Manager const& manager, std::string const& leftOut, U32 device) {
    auto& one = static_cast<xpSingletonMgr&>(*manager.declared.object());
    std::string const name = manager.name;
    if (leftOut != name + "::removeDevice") one.removeDevice(device);
    if (manager.has(Call::deInit) && leftOut != name + "::deInit")
      static_cast<xpDeInitMgr&>(one).deInit();
  }

  Profile profile;
  Sim sim;
};

/// `step` ends the process, and the first line of standard error is this finding.
template <class Step>
void expectFinding(Step const& step, std::string const& finding) {
  EXPECT_EXIT(step(), testing::KilledBySignal(SIGABRT),
              testing::StartsWith("simulated SDK: strict mode: " + finding + '\n'));
}

}  // namespace xdksim
