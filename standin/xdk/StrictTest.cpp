// What strict mode names as misuse of managers and devices, and what it lets pass.
#include "standin/xdk/Strict.h"
#include "standin/xdk/TestStrict.h"

namespace xdksim {
namespace {

TEST_F(StrictTest, SecondAddWithinOneBringUp) {
  begin();
  add(fdb(), 0);
  expectFinding([this] { add(fdb(), 0); },
                "xpFdbMgr[0]::addDevice adds device 0 a second time within one bring-up");
}

TEST_F(StrictTest, SecondAddOfASingletonWithinOneBringUp) {
  begin();
  xpLanzMgr::instance()->addDevice(0, XP_INIT_COLD);
  expectFinding([] { xpLanzMgr::instance()->addDevice(0, XP_INIT_WARM); },
                "xpLanzMgr::addDevice adds device 0 a second time within one bring-up");
}

TEST_F(StrictTest, FindingEndsTheCallWithoutAnAnswer) {
  begin();
  add(fdb(), 0);
  EXPECT_EXIT(add(fdb(), 0), testing::KilledBySignal(SIGABRT),
              testing::EndsWith("bring-up\nsimulated SDK: the last 2 calls:\n"
                                "xpFdbMgr[0]::addDevice device=0 table=0 copies=1 mode=1 -> 0\n"
                                "xpFdbMgr[0]::addDevice device=0 table=0 copies=1 mode=1 -> ?\n"));
}

TEST_F(StrictTest, RefusedAddIsOneAllTheSame) {
  begin();
  sim.statusIs("xpFdbMgr::addDevice", {5});
  EXPECT_EQ(add(fdb(), 0), 5);
  expectFinding([this] { add(fdb(), 0); },
                "xpFdbMgr[0]::addDevice adds device 0 a second time within one bring-up");
}

TEST_F(StrictTest, IndicesOfAClassAreManagersOfTheirOwn) {
  begin();
  for (U32 index : {1u, 2u})
    add(xpAclPl::instance()->getPrimitiveMgr(aaclL4PortMgr::myId.at(index)), 33);
}

TEST_F(StrictTest, NewBringUpOnADeviceThatIsUp) {
  for (int i = 0; i < 2; ++i) {
    begin();
    add(fdb(), 0);
    end();
  }
}

TEST_F(StrictTest, NewBringUpWhereTheLastWasGivenUp) {
  for (int i = 0; i < 2; ++i) {
    begin();
    add(fdb(), 0);
  }
}

TEST_F(StrictTest, NewBringUpsWithinAnAnnouncedOne) {
  BringUp scope(sim);
  for (int i = 0; i < 2; ++i) {
    begin();
    add(fdb(), 0);
  }
}

TEST_F(StrictTest, OperationsOnTheirOwn) {
  add(fdb(), 0);
  add(fdb(), 0);
  begin();
  add(fdb(), 0);
  end();
  add(fdb(), 0);
  add(fdb(), 0);
}

TEST_F(StrictTest, UseBeforeTheDeviceWasAdded) {
  expectFinding([this] { hdrMod()->loadDefaultValue(0); },
                "xpHdrModificationMgr[0]::loadDefaultValue comes before device 0 was added");
  expectFinding(
      [this] {
        xpVifEntry entry;
        vif()->writeEntry(3, 7, XP_INGRESS, &entry);
      },
      "xpVifMgr[0]::writeEntry comes before device 3 was added");
  expectFinding([this] { addList(iacl(), {42}, 1); },
                "xpIaclMgr[0]::createTable comes before device 0 was added");
  expectFinding([] { xpShaperMgr::instance()->removeDevice(0); },
                "xpShaperMgr::removeDevice comes before device 0 was added");
  expectFinding([] { xpLanzMgr::instance()->deInit(); },
                "xpLanzMgr::deInit comes before any device was added");
}

TEST_F(StrictTest, UseBehindTheDevice) {
  addList(hdrMod(), {27}, 1);
  hdrMod()->loadDefaultValue(0);
  addList(vif(), {19}, 1);
  xpVifEntry entry;
  vif()->writeEntry(0, 7, XP_INGRESS, &entry);
  iacl()->addDevice(0);
  addList(iacl(), {42}, 1);
}

TEST_F(StrictTest, UseForAnotherDeviceThanTheOneThatWasAdded) {
  addList(hdrMod(), {27}, 1);
  hdrMod()->loadDefaultValue(0);
  expectFinding([this] { hdrMod()->loadDefaultValue(1); },
                "xpHdrModificationMgr[0]::loadDefaultValue comes before device 1 was added");
}

TEST_F(StrictTest, InitComesBeforeTheDevice) { xpLanzMgr::instance()->init(); }

TEST_F(StrictTest, WhatWasAddedBeforeItWasOnIsKnown) {
  sim.strictIs(false);
  xpLanzMgr::instance()->addDevice(0, XP_INIT_COLD);
  sim.strictIs(true);
  xpLanzMgr::instance()->removeDevice(0);
  xpLanzMgr::instance()->deInit();
}

TEST_F(StrictTest, SecondRemoval) {
  addQos();
  xpQueueCounterMgr::instance()->removeDevice(0);
  takeDown();
}

TEST_F(StrictTest, WholeTakeDown) {
  addQos();
  takeDown();
}

TEST_F(StrictTest, TakeDownThatForgetsACall) {
  addQos();
  for (Manager const& manager : managers()) {
    for (char const* operation : {"removeDevice", "deInit"}) {
      std::string const leftOut = std::string(manager.name) + "::" + operation;
      if (!manager.has(operation) || leftOut == "xpFlowControlMgr::deInit") continue;
      expectFinding([&] { takeDown(leftOut); },
                    "xpFlowControlMgr::deInit ends the take-down of device 0, and " +
                        std::string(manager.name) + " is still up, without " + operation);
    }
  }
}

TEST_F(StrictTest, TakeDownWithoutAnyRemoval) {
  addQos(2);
  expectFinding([] { xpFlowControlMgr::instance()->deInit(); },
                "xpFlowControlMgr::deInit ends the take-down of device 2, and xpAqmMgr is still "
                "up, without removeDevice");
}

TEST_F(StrictTest, TakeDownThatForgetsItsLastCallIsFoundByTheNextBringUp) {
  addQos();
  expectFinding(
      [this] {
        takeDown("xpFlowControlMgr::deInit");
        addQos();
      },
      "xpAqmMgr::addDevice comes behind the take-down of device 0, and xpFlowControlMgr is still "
      "up, "
      "without deInit");
}

TEST_F(StrictTest, ToleratedAnswersTakeDownToo) {
  for (S32 status : {9, 42}) {
    sim.statusIs("xpLanzMgr::removeDevice", {status});
    sim.statusIs("xpLanzMgr::deInit", {status});
    addQos();
    takeDown();
  }
}

TEST_F(StrictTest, RefusedRemovalTakesNothingDown) {
  sim.statusIs("xpLanzMgr::removeDevice", {5});
  addQos();
  expectFinding([this] { takeDown(); },
                "xpFlowControlMgr::deInit ends the take-down of device 0, and xpLanzMgr is still "
                "up, without removeDevice");
}

TEST_F(StrictTest, EndThatIsRefusedIsItsCallersMatter) {
  sim.statusIs("xpFlowControlMgr::deInit", {5});
  addQos();
  takeDown("xpLanzMgr::removeDevice");
}

TEST_F(StrictTest, ManagerThatNeverCameUpNeedsNoTakeDown) {
  xpFlowControlMgr::instance()->addDevice(0, XP_INIT_COLD);
  xpFlowControlMgr::instance()->removeDevice(0);
  xpFlowControlMgr::instance()->deInit();
}

TEST_F(StrictTest, RefusedAddNeedsNoTakeDown) {
  sim.statusIs("xpLanzMgr::addDevice", {5});
  addQos();
  takeDown("xpLanzMgr::removeDevice");
}

TEST_F(StrictTest, OtherDeviceMayStayUp) {
  addQos(0);
  addQos(1);
  takeDown("", 0);
  takeDown("", 1);
}

TEST_F(StrictTest, TakenDownAndBroughtUpAgain) {
  for (int i = 0; i < 2; ++i) {
    addQos();
    takeDown();
  }
}

TEST_F(StrictTest, OffAgain) {
  sim.strictIs(false);
  begin();
  add(fdb(), 0);
  add(fdb(), 0);
  xpLanzMgr::instance()->deInit();
}

TEST_F(StrictTest, ResetTurnsItOff) {
  begin();
  sim.reset();
  begin();
  add(fdb(), 0);
  add(fdb(), 0);
}

TEST(StrictEndTest, TakeDownThatForgetsItsLastCallIsFoundAtTheEnd) {
  expectFinding(
      [] {
        Sim sim;
        sim.strictIs(true);
        xpLanzMgr::instance()->addDevice(0, XP_INIT_COLD);
        xpLanzMgr::instance()->removeDevice(0);
      },
      "the SDK ends behind the take-down of device 0, and xpLanzMgr is still up, without deInit");
}

TEST(StrictEndTest, EndWithoutATakeDownIsFine) {
  Sim sim;
  sim.strictIs(true);
  xpLanzMgr::instance()->addDevice(0, XP_INIT_COLD);
}

TEST(LenientTest, OffAtFirst) {
  Sim sim;
  xpLanzMgr::instance()->deInit();
}

TEST(LenientTest, RemovalOfWhatIsNotThereAddsNothing) {
  Sim sim;
  xpLanzMgr::instance()->removeDevice(0);
  sim.strictIs(true);
  expectFinding([] { xpLanzMgr::instance()->removeDevice(0); },
                "xpLanzMgr::removeDevice comes before device 0 was added");
}

TEST(LenientTest, ResetForgetsWhatWasAdded) {
  Sim sim;
  xpLanzMgr::instance()->addDevice(0, XP_INIT_COLD);
  sim.reset();
  sim.strictIs(true);
  expectFinding([] { xpLanzMgr::instance()->deInit(); },
                "xpLanzMgr::deInit comes before any device was added");
}

}  // namespace
}  // namespace xdksim
