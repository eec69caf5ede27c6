// The simulated SDK as its callers meet it.
#include "Xdk/Xdk.h"
#include "standin/xdk/Sim.h"

#include <gtest/gtest.h>
#include <sstream>
#include <stdexcept>

namespace xdksim {
namespace {

xpTableProfile& takenProfile(U32 deviceId = 0) {
  return *xpDeviceMgr::instance()->getDeviceObj(deviceId)->getTableProfile();
}

/// The manager with the id that stands in `T::myId`.
template <class T, class Layer>
xpPrimitiveMgr* manager(U32 index = 0) {
  return Layer::instance()->getPrimitiveMgr(T::myId.at(index));
}

xpPrimitiveMgr& fdb() { return *manager<xpFdbMgr, xpL2Pl>(); }

/// Hands table `id` to the FDB's manager.
XP_STATUS addTable(U32 id) {
  auto& profile = takenProfile();
  xpTableContext* word = profile.tblCtx[id];
  return fdb().addDevice(0, &word, static_cast<U8>(profile.copyNum[id]),
                         TABLE_INIT_WITH_FIXED_INFO);
}

Profile profileOf(U32 id, Table table) {
  Profile profile;
  profile.tables[id] = std::move(table);
  return profile;
}

std::vector<xpHashTableContext> hashCopies(std::size_t copies) {
  std::vector<xpHashTableContext> contexts(copies);
  for (auto& context : contexts) context.first = 0;
  return contexts;
}

TEST(SimTest, DeviceOfTheProfileIsKnown) {
  Profile profile;
  profile.deviceId = 3;
  Sim sim(profile);
  EXPECT_EQ(&takenProfile(3), &sim.tableProfile(3));
  EXPECT_EQ(sim.profile(3), profile);
}

TEST(SimTest, UnknownDeviceEndsTheProcess) {
  Sim sim;
  EXPECT_DEATH(xpDeviceMgr::instance()->getDeviceObj(1),
               "^simulated SDK: it doesn't know a device 1\n$");
  EXPECT_THROW(sim.profile(1), std::out_of_range);
}

TEST(SimTest, FurtherDevicesStandBesideTheFirst) {
  Sim sim;
  Profile second = profileOf(0, tableOf(hashCopies(1), 1));
  second.deviceId = 1;
  sim.deviceIs(second);
  EXPECT_EQ(takenProfile(1).copyNum[52], 0u);
  EXPECT_EQ(takenProfile(0).copyNum[52], 1u);
}

TEST(SimTest, ProfileMayBeNull) {
  Sim sim;
  sim.tableProfileNullIs(0, true);
  EXPECT_EQ(xpDeviceMgr::instance()->getDeviceObj(0)->getTableProfile(), nullptr);
}

TEST(SimTest, TableThatIsLeftOutHasNoCopyAndNoContext) {
  Sim sim(Profile{});
  EXPECT_EQ(sim.tableProfile().copyNum[0], 0u);
  EXPECT_EQ(sim.tableProfile().tblCtx[0], nullptr);
}

TEST(SimTest, TableWithoutContextsHasItsCopyNumber) {
  Sim sim(profileOf(52, {256, 8, {}}));
  EXPECT_EQ(sim.tableProfile().copyNum[52], 256u);
  EXPECT_EQ(sim.tableProfile().tblCtx[52], nullptr);
}

TEST(SimTest, ContextsBehindThoseOfTheProfileAreFreshOnesOfTheType) {
  Sim sim(profileOf(0, tableOf(hashCopies(1), 1)));
  auto* copies = static_cast<xpHashTableContext*>(sim.tableProfile().tblCtx[0]);
  EXPECT_EQ(copies[0].first, 0);
  EXPECT_EQ(copies[1].first, -1);
  EXPECT_EQ(copies[1].tableType, 1u);
}

TEST(SimTest, EveryArrayHasRoomForTheLargestLowByte) {
  Profile profile = profileOf(0, tableOf(hashCopies(1), 1));
  profile.tables[9].copyNum = 0x1FF;
  Sim sim(profile);
  auto* copies = static_cast<xpHashTableContext*>(sim.tableProfile().tblCtx[0]);
  EXPECT_EQ(copies[254].first, -1);
}

TEST(SimTest, CodeWithoutClassStandsInEveryContext) {
  Sim sim(profileOf(0, {1, 9, std::vector<xpTableContext>(1)}));
  EXPECT_EQ(sim.tableProfile().tblCtx[0]->tableType, 9u);
  EXPECT_EQ(sim.tableProfile().tblCtx[0][1].tableType, 9u);
}

TEST(SimTest, IdsAreThereForEveryIndexInUse) {
  Sim sim;
  EXPECT_EQ(xpFdbMgr::myId.size(), 1u);
  EXPECT_NE(xpFdbMgr::myId[0], 0u);
  EXPECT_NE(xpFdbMgr::myId[0], xpNhMgr::myId[0]);
}

TEST(SimTest, IdsAreTheSameInEverySim) {
  std::vector<U32> first;
  {
    Sim sim;
    first = xpNhMgr::myId;
  }
  EXPECT_TRUE(xpNhMgr::myId.empty());
  Sim sim;
  EXPECT_EQ(xpNhMgr::myId, first);
}

TEST(SimTest, IdsCanBeLeftEmpty) {
  Sim sim;
  sim.idsDelAll("xpNhMgr");
  EXPECT_TRUE(xpNhMgr::myId.empty());
  EXPECT_THROW(sim.idsDelAll("xpNoMgr"), std::invalid_argument);
}

TEST(SimTest, IdThatACallerEntersNamesAManager) {
  Sim sim;
  sim.idsDelAll("xpNhMgr");
  xpNhMgr::myId = {xpPrimitiveMgr::getNewPlMgrId()};
  EXPECT_NE((manager<xpNhMgr, xpL3Pl>()), nullptr);
}

TEST(SimTest, NewIdsAreNobodys) {
  Sim sim;
  U32 id = xpPrimitiveMgr::getNewPlMgrId();
  EXPECT_NE(id, xpPrimitiveMgr::getNewPlMgrId());
  EXPECT_EQ(xpL2Pl::instance()->getPrimitiveMgr(id), nullptr);
}

TEST(SimTest, ManagerIsOneObject) {
  Sim sim;
  EXPECT_EQ(&fdb(), &fdb());
  EXPECT_NE(dynamic_cast<xpFdbMgr*>(&fdb()), nullptr);
}

TEST(SimTest, LayerKnowsItsOwnManagersAlone) {
  Sim sim;
  EXPECT_EQ((manager<xpFdbMgr, xpL3Pl>()), nullptr);
  EXPECT_EQ((manager<xpNhMgr, xpL2Pl>()), nullptr);
}

TEST(SimTest, IdZeroIsNobodys) {
  Sim sim;
  xpFdbMgr::myId = {0};
  EXPECT_EQ((manager<xpFdbMgr, xpL2Pl>()), nullptr);
}

TEST(SimTest, LayersAreThereWithoutASim) {
  EXPECT_NE(xpIfPl::instance(), nullptr);
  EXPECT_NE(xpAclPl::instance(), nullptr);
  EXPECT_NE(xpAcmPl::instance(), nullptr);
  EXPECT_NE(xpTunnelPl::instance(), nullptr);
  EXPECT_NE(xpEgressAclMgr::instance(), nullptr);
}

TEST(SimTest, CallWithoutASimEndsTheProcess) {
  char const* text =
      "^simulated SDK: it is called while there is none; make an xdksim::Sim first\n$";
  EXPECT_DEATH(xpDeviceMgr::instance()->getDeviceObj(0), text);
  EXPECT_DEATH(xpL2Pl::instance()->getPrimitiveMgr(1), text);
  EXPECT_DEATH(xpEgressAclMgr::instance()->init(), text);
  EXPECT_DEATH(xpPrimitiveMgr::getNewPlMgrId(), text);
}

TEST(SimTest, TwoAtATimeAreRefusedAndTheFirstLivesOn) {
  Sim sim;
  EXPECT_THROW(Sim(), std::logic_error);
  EXPECT_EQ(&Sim::current(), &sim);
  EXPECT_EQ(addTable(0), 0);
}

TEST(SimTest, ManyLiveOneAfterAnother) {
  for (int i = 0; i < 3; ++i) {
    Sim sim;
    EXPECT_EQ(addTable(0), 0);
  }
}

TEST(SimTest, OperationThatAManagerLacksEndsTheProcess) {
  Sim sim;
  EXPECT_DEATH(fdb().addDevice(0), "^simulated SDK: xpFdbMgr.0. lacks addDevice device=\n$");
  EXPECT_DEATH(fdb().loadDefaultValue(0), "xpFdbMgr.0. lacks loadDefaultValue device=");
}

TEST(SimTest, ForeignManagerEndsTheProcess) {
  Sim sim;
  xpFdbMgr own;
  EXPECT_DEATH(own.addDevice(0), "^simulated SDK: addDevice is called on a manager that it never");
}

TEST(SimTest, StatusOfTheProfileAnswers) {
  Profile profile = defaultProfile();
  profile.sdkStatus["xpFdbMgr::addDevice"] = {42};
  Sim sim(profile);
  EXPECT_EQ(addTable(0), 42);
}

TEST(SimTest, KeyOfTheProfileThatNamesNothingIsRefused) {
  Profile profile;
  profile.sdkStatus["xpNoMgr::addDevice"] = {42};
  EXPECT_THROW(Sim sim(profile), std::invalid_argument);
  Sim sim;
  EXPECT_EQ(addTable(0), 0);
}

TEST(SimTest, RefusedDeviceChangesNothing) {
  Sim sim;
  Profile second;
  second.deviceId = 1;
  second.sdkStatus = {{"xpFdbMgr::addDevice", {42}}, {"xpNoMgr::addDevice", {42}}};
  EXPECT_THROW(sim.deviceIs(second), std::invalid_argument);
  EXPECT_THROW(sim.profile(1), std::out_of_range);
  EXPECT_EQ(addTable(0), 0);
}

TEST(SimTest, TableIdPastTheLastIsRefused) {
  EXPECT_THROW(Sim sim(profileOf(62, tableOf(hashCopies(1), 1))), std::out_of_range);
}

TEST(SimTest, EveryOperationAnswersWhatItIsTold) {
  Sim sim;
  sim.statusIs("xpEgressAclMgr::init", {9});
  sim.statusIs("xpEgressAclMgr::addDevice", {-1});
  sim.statusIs("xpEgressAclMgr::removeDevice", {5});
  auto* egress = xpEgressAclMgr::instance();
  EXPECT_EQ(egress->init(), 9);
  EXPECT_EQ(egress->addDevice(0, XP_INIT_WARM), -1);
  EXPECT_EQ(egress->removeDevice(0), 5);
}

TEST(SimTest, StatusOfTheFirstProfileOutlivesAFurtherDevice) {
  Profile first = defaultProfile();
  first.sdkStatus["xpFdbMgr::addDevice"] = {42};
  Sim sim(first);
  Profile second;
  second.deviceId = 1;
  second.sdkStatus["xpNhMgr::addDevice"] = {9};
  sim.deviceIs(second);
  EXPECT_EQ(addTable(0), 42);
}

TEST(SimTest, ManagerMayBeNull) {
  Sim sim;
  sim.managerNullIs("xpFdbMgr", true);
  EXPECT_EQ((manager<xpFdbMgr, xpL2Pl>()), nullptr);
  sim.managerNullIs("xpFdbMgr", false);
  EXPECT_NE((manager<xpFdbMgr, xpL2Pl>()), nullptr);
}

TEST(SimTest, NullManagerOfTheProfile) {
  Profile profile;
  profile.nullManagers = {"xpNhMgr[0]"};
  Sim sim(profile);
  EXPECT_EQ((manager<xpNhMgr, xpL3Pl>()), nullptr);
}

TEST(SimTest, ResetForgetsWhatWasDoneToIt) {
  Sim sim;
  sim.statusIs("xpFdbMgr::addDevice", {42});
  sim.managerNullIs("xpNhMgr", true);
  sim.idsDelAll("xpBdMgr");
  sim.tableProfileNullIs(0, true);
  sim.tableProfile().tblCtx[0]->first = -1;
  sim.reset();
  EXPECT_EQ(addTable(0), 0);
  EXPECT_NE((manager<xpNhMgr, xpL3Pl>()), nullptr);
  EXPECT_EQ(xpBdMgr::myId.size(), 1u);
  EXPECT_EQ(sim.tableProfile().tblCtx[0]->first, 0);
}

TEST(SimTest, ResetCountsCallsAnew) {
  Profile profile = defaultProfile();
  profile.sdkStatus["xpFdbMgr::addDevice"] = {1, 2};
  Sim sim(profile);
  addTable(0);
  sim.reset();
  EXPECT_EQ(addTable(0), 1);
}

TEST(SimTest, ResetLeavesNoCallLogAndNoFurtherDevice) {
  Sim sim;
  std::vector<std::string> lines;
  sim.callLogIs([&lines](std::string_view line) { lines.emplace_back(line); });
  Profile second;
  second.deviceId = 1;
  sim.deviceIs(second);
  sim.reset();
  addTable(0);
  EXPECT_TRUE(lines.empty());
  EXPECT_THROW(sim.profile(1), std::out_of_range);
}

TEST(SimTest, ContextsChangeInPlace) {
  Sim sim;
  takenProfile().tblCtx[0]->first = -7;
  EXPECT_EQ(sim.tableProfile().tblCtx[0]->first, -7);
  EXPECT_EQ(sim.profile(), defaultProfile());
}

TEST(SimDeathTest, HasOneAllocator) {
  Sim sim;
  U32 vif = 0;
  EXPECT_EQ(xpAllocatorMgr::instance(0)->getNullPortVif(vif), 0);
  EXPECT_EQ(vif, 7u);
  EXPECT_DEATH(xpAllocatorMgr::instance(1), "simulated SDK: it has no allocator 1, only 0");
}

TEST(SimDeathTest, WritesNoMissingEntry) {
  Sim sim;
  auto* const vif = static_cast<xpVifMgr*>(xpIfPl::instance()->getPrimitiveMgr(xpVifMgr::myId[0]));
  EXPECT_DEATH(vif->writeEntry(0, 7, XP_INGRESS, nullptr),
               "simulated SDK: xpVifMgr::writeEntry gets no entry");
}

}  // namespace
}  // namespace xdksim
