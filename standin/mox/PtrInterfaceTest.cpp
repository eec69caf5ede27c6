// Counted objects: when they go, and what keeps them.
#include "Mox/PtrInterface.h"
#include "standin/mox/TestThreadSafe.h"

#include <gtest/gtest.h>
#include <thread>

namespace Mox {
namespace {

/// Says when it goes, and does something when the last reference has gone.
class Probe : public PtrInterface {
 public:
  explicit Probe(int* gone) : gone_(gone) {}
  ~Probe() override { ++*gone_; }
  void zeroReferencesIs(bool) override {
    ++zeroes;
    if (saved) *saved = this;
  }

  Ptr<Probe>* saved = nullptr;
  int zeroes = 0;

 private:
  int* gone_;
};

TEST(PtrInterfaceTest, TwoWordsAheadOfDerivedMembers) {
  struct Derived : PtrInterface {
    void* first = nullptr;
  };
  EXPECT_EQ(sizeof(PtrInterface), 2 * sizeof(void*));
  EXPECT_EQ(sizeof(Derived), 3 * sizeof(void*));
}

TEST(PtrInterfaceTest, PointerIsOneWord) { EXPECT_EQ(sizeof(Ptr<Probe>), sizeof(void*)); }

TEST(PtrInterfaceTest, GoesWithTheLastReference) {
  int gone = 0;
  Ptr<Probe> first = new Probe(&gone);
  Ptr<Probe const> second = first;
  EXPECT_EQ(first->references(), 2u);
  first = nullptr;
  EXPECT_EQ(gone, 0);
  second = nullptr;
  EXPECT_EQ(gone, 1);
}

TEST(PtrInterfaceTest, ReferenceTakenAtZeroKeepsTheObject) {
  int gone = 0;
  Ptr<Probe> saved;
  Ptr<Probe> probe = new Probe(&gone);
  probe->saved = &saved;
  probe = nullptr;
  EXPECT_EQ(gone, 0);
  EXPECT_EQ(saved->references(), 1u);
  saved->saved = nullptr;
  saved = nullptr;
  EXPECT_EQ(gone, 1);
}

TEST(PtrInterfaceTest, NotificationFlagAndDeletionMarkDontKeepTheObject) {
  int gone = 0;
  Ptr<Probe> probe = new Probe(&gone);
  probe->hasNotificationActiveIs(true);
  probe->moxMarkedForDeletionIs(true);
  EXPECT_EQ(probe->referenceWord(), 0xA0000001u);
  EXPECT_EQ(probe->references(), 1u);
  probe = nullptr;
  EXPECT_EQ(gone, 1);
}

TEST(PtrInterfaceTest, Bit30KeepsTheObjectWhateverTheCountSays) {
  ReferenceWord word(0x40000001);
  EXPECT_FALSE(word.dec());
  EXPECT_EQ(word.count(), 0u);
}

TEST(PtrInterfaceTest, FlagsGoOnAndOff) {
  int gone = 0;
  Ptr<Probe> const probe = new Probe(&gone);
  probe->hasNotificationActiveIs(true);
  EXPECT_TRUE(probe->hasNotificationActive());
  probe->hasNotificationActiveIs(false);
  EXPECT_EQ(probe->referenceWord(), 1u);
}

TEST(PtrInterfaceTest, SelfAssignmentKeepsTheObject) {
  int gone = 0;
  Ptr<Probe> probe = new Probe(&gone);
  probe.ptrAssign(probe.ptr());
  EXPECT_EQ(probe->references(), 1u);
  EXPECT_EQ(gone, 0);
}

TEST(PtrInterfaceTest, PlainAssignmentMovesOneReference) {
  int gone = 0;
  Ptr<Probe> const first = new Probe(&gone);
  Ptr<Probe> const second = new Probe(&gone);
  Ptr<Probe> holder = first;
  holder.ptrAssignPlain(second.ptr());
  EXPECT_EQ(holder, second);
  EXPECT_EQ(first->references(), 1u);
  EXPECT_EQ(second->references(), 2u);
  holder.ptrAssignPlain(nullptr);
  EXPECT_EQ(holder, nullptr);
  EXPECT_EQ(second->references(), 1u);
  EXPECT_EQ(gone, 0);
}

TEST(PtrInterfaceTest, DestructorMayTakeAndDropReferencesToTheObject) {
  struct Looker : PtrInterface {
    explicit Looker(int* count) : gone(count) {}
    ~Looker() override {
      Ptr<Looker> const self = this;
      ++*gone;
    }
    int* gone;
  };
  int gone = 0;
  Ptr<Looker>(new Looker(&gone));
  EXPECT_EQ(gone, 1);
}

TEST(PtrInterfaceTest, AtomicCountsSurviveTwoThreads) {
  int gone = 0;
  Ptr<Probe> probe = new Probe(&gone);
  ThreadSafe const threadSafe;
  auto const churn = [&probe] {
    for (int i = 0; i < 20000; ++i) Ptr<Probe> const copy = probe;
  };
  std::thread other(churn);
  churn();
  other.join();
  EXPECT_EQ(probe->references(), 1u);
}

TEST(PtrInterfaceTest, WhatIsMadeImmortalIsStruckFromTheTrackerWhileThatIsOn) {
  for (bool const on : {false, true}) {
    auto* const type = new MoxType("Tracked", nullptr, nullptr, {});
    PtrTrack::ptrifNew(type);
    std::size_t const tracked = PtrTrack::tracked();
    ptrifTrackOn_ = on;
    immortal(type);
    ptrifTrackOn_ = false;
    EXPECT_EQ(PtrTrack::tracked(), on ? tracked - 1 : tracked);
    EXPECT_EQ(type->references(), 1u);
    PtrTrack::ptrifDel(type);
    type->referencesDec();
  }
}

}  // namespace
}  // namespace Mox
