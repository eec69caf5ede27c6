// Bring-ups that overlap are found whenever they do, not only when calls happen to meet.
#include "Xdk/Xdk.h"
#include "standin/xdk/BringUpWatch.h"
#include "standin/xdk/Sim.h"

#include <future>
#include <gtest/gtest.h>

namespace xdksim {
namespace {

void takeProfile() { xpDeviceMgr::instance()->getDeviceObj(0)->getTableProfile(); }

void addFdb() {
  xpTableContext* word = nullptr;
  xpL2Pl::instance()
      ->getPrimitiveMgr(xpFdbMgr::myId[0])
      ->addDevice(0, &word, 1, TABLE_INIT_WITH_FIXED_INFO);
}

void endBringUp() { xpEgressAclMgr::instance()->addDevice(0, XP_INIT_COLD); }

void inAnotherThread(void (*step)()) { std::thread(step).join(); }

/// The history behind the line, where `addFdb` was the one call.
std::string const afterFdb =
    "simulated SDK: the last call:\n"
    "xpFdbMgr.0.::addDevice device=0 table=- copies=1 mode=1 -> 0\n$";

struct BringUpWatchTest : testing::Test {
  BringUpWatchTest() { testing::FLAGS_gtest_death_test_style = "threadsafe"; }
  Sim sim;
};

TEST_F(BringUpWatchTest, OneAfterAnotherOnOneThread) {
  for (int i = 0; i < 2; ++i) {
    takeProfile();
    addFdb();
    endBringUp();
  }
}

TEST_F(BringUpWatchTest, OneAfterAnotherOnTwoThreads) {
  takeProfile();
  addFdb();
  endBringUp();
  inAnotherThread([] {
    takeProfile();
    addFdb();
    endBringUp();
  });
  addFdb();
}

TEST_F(BringUpWatchTest, GivenUpHalfWayIsNoHindranceOnTheSameThread) {
  takeProfile();
  addFdb();
  takeProfile();
  addFdb();
  endBringUp();
}

TEST_F(BringUpWatchTest, ProfileThatIsOnlyLookedAtBeginsNothing) {
  takeProfile();
  inAnotherThread([] {
    takeProfile();
    addFdb();
  });
}

TEST_F(BringUpWatchTest, CallFromAnotherThreadMeetsABringUp) {
  EXPECT_DEATH(
      {
        takeProfile();
        addFdb();
        inAnotherThread(addFdb);
      },
      "^simulated SDK: two bring-ups overlap: that of device 0 stands at xpFdbMgr.0.::addDevice, "
      "and another thread calls xpFdbMgr.0.::addDevice\n" +
          afterFdb);
}

TEST_F(BringUpWatchTest, SecondBringUpBeginsWithinTheFirst) {
  EXPECT_DEATH(
      {
        takeProfile();
        addFdb();
        inAnotherThread(takeProfile);
      },
      "two bring-ups overlap: that of device 0 stands at xpFdbMgr.0.::addDevice, and another "
      "thread takes the profile of device 0");
}

TEST_F(BringUpWatchTest, FirstMeetsTheSecondAlsoWhenItCallsLater) {
  EXPECT_DEATH(
      {
        takeProfile();
        inAnotherThread([] {
          takeProfile();
          addFdb();
        });
        addFdb();
      },
      "two bring-ups overlap");
}

TEST_F(BringUpWatchTest, TwoThreadsInsideCalls) {
  EXPECT_DEATH(
      {
        sim.callLogIs(
            [](std::string_view) { inAnotherThread([] { xpEgressAclMgr::instance()->init(); }); });
        addFdb();
      },
      "^simulated SDK: two threads at a time: xpEgressAclMgr::init is called while another thread "
      "is inside xpFdbMgr.0.::addDevice\n" +
          afterFdb);
}

TEST_F(BringUpWatchTest, ResetForgetsABringUp) {
  takeProfile();
  addFdb();
  sim.reset();
  inAnotherThread(addFdb);
}

TEST_F(BringUpWatchTest, AnnouncedOnesFollowEachOther) {
  for (int i = 0; i < 2; ++i) {
    BringUp scope(sim);
    takeProfile();
    addFdb();
    endBringUp();
  }
}

TEST_F(BringUpWatchTest, AnnouncedWithinAnAnnouncedOne) {
  EXPECT_DEATH(
      {
        BringUp outer(sim);
        takeProfile();
        addFdb();
        BringUp inner(sim, 1);
      },
      "^simulated SDK: two bring-ups overlap: that of device 0 stands at xpFdbMgr.0.::addDevice, "
      "and the same thread begins one of device 1\n" +
          afterFdb);
}

TEST_F(BringUpWatchTest, AnnouncedOneIsMetBeforeItsFirstCall) {
  EXPECT_DEATH(
      {
        BringUp outer(sim);
        inAnotherThread(addFdb);
      },
      "that of device 0 stands at its beginning, and another thread calls xpFdbMgr");
}

TEST_F(BringUpWatchTest, AnnouncedOneLastsPastItsLastCall) {
  EXPECT_DEATH(
      {
        BringUp outer(sim);
        endBringUp();
        inAnotherThread(addFdb);
      },
      "two bring-ups overlap");
}

}  // namespace
}  // namespace xdksim
