// Batches: what an interface tells its watcher, at once or when its activity gets to it.
#include "reflect/TestLanguage.h"

#include <functional>
#include <gtest/gtest.h>

namespace {

using namespace reflecttest;
using Mox::GenericIfEntity;
using Mox::Ptr;

GenericIfEntity& entityFace(Face const& face) {
  return dynamic_cast<GenericIfEntity&>(*face.ptr());
}

/// Notes each change as "259;" or "267 3;"; `then` is called after the note.
class Notes : public GenericIfEntity::Watcher {
 public:
  void onAttribute(GenericIfEntity& changed, Id id, GenericIf::PtrConst const& key) override {
    from = &changed;
    heard += std::to_string(id) + (key ? " " + shown(key) : "") + ";";
    if (then) then();
  }
  std::string take() { return std::exchange(heard, ""); }

  std::string heard;
  std::function<void()> then;
  GenericIfEntity const* from = nullptr;
};

/// Other work of an activity.
class Work : public Mox::PtrInterface::NotifieeConst {
 public:
  explicit Work(std::function<void()> work) : work_(std::move(work)) {}
  void handleNotification(Mox::ActivityConfig*) override { work_(); }

 private:
  std::function<void()> work_;
};

struct BatchTest : EveryFixture {
  void SetUp() override { entityFace(face).watcherIs(notes); }
  /// What waits holds its activity, which holds it.
  void TearDown() override { activity->activitySm()->run(); }
  void batched() { entityFace(face).activityIs(activity); }
  /// Lets the activity run, and tells what was heard.
  std::string run() {
    EXPECT_EQ(notes->take(), "") << "nothing is told ahead of the batch";
    activity->activitySm()->run();
    return notes->take();
  }
  /// Stands in the queue, for as long as the result is held.
  Ptr<Work> enqueued(std::function<void()> work) {
    Ptr<Work> const made = new Work(std::move(work));
    activity->activitySm()->enq(made);
    return made;
  }

  Ptr<Notes> notes = new Notes;
  Ptr<Mox::ActivityConfig> activity = new Mox::ActivityConfig("background");
};

TEST_F(BatchTest, WithoutAnActivityEachChangeIsToldAtOnceWithItsKey) {
  entity->levelIs(1);
  entity->bytesIs(3, 30);
  entity->bytesIs(3, 31);
  entity->textsIs("t", true);
  EXPECT_EQ(notes->take(), "259;267 3;267 3;269 't';");
  EXPECT_EQ(notes->from, &entityFace(face));
}

TEST_F(BatchTest, EveryAttributeIsTold) {
  entity->gaugeIs(1);
  entity->ratioIs(2);
  entity->labelIs("l");
  entity->mixIs(everyShape::Mix(1, 0, 0, 0, ""));
  entity->moodIs(everyShape::tense);
  entity->boundedIs(3);
  entity->hitsInc(1);
  entity->wordsIs(1, "w");
  entity->buddyIs(leaf("b"));
  entity->knownIs(leaf("k"));
  entity->seatsIs(2, nullptr);
  entity->bestIs("c", 1, everyShape::Mix());
  entity->leavesIs("d", 1, everyShape::Mix());
  entity->lanesIs(3, 1);
  entity->extraIs(1);
  entity->marksIs(4, true);
  EXPECT_EQ(notes->take(),
            "260;261;262;263;264;265;266;268 1;270;271 'k';272 2;273;274 'd';275 3;386;387 4;");
}

TEST_F(BatchTest, AKeyIsToldAsAConstantOfItsType) {
  struct Typed : GenericIfEntity::Watcher {
    void onAttribute(GenericIfEntity&, Id, GenericIf::PtrConst const& key) override {
      EXPECT_TRUE(key->isConst());
      EXPECT_EQ(key->type(), Mox::Builtin<U8>::_fwkType());
      ++told;
    }
    int told = 0;
  };
  Ptr<Typed> const typed = new Typed;
  entityFace(face).watcherIs(typed);
  entity->bytesIs(1, 1);
  EXPECT_EQ(typed->told, 1);
}

TEST_F(BatchTest, OneScalarIsToldOnce) {
  batched();
  entity->levelIs(1);
  entity->levelIs(2);
  EXPECT_EQ(run(), "259;");
  EXPECT_EQ(run(), "") << "it is told and forgotten";
}

TEST_F(BatchTest, OneChangeOfACollectionIsToldWithItsKey) {
  batched();
  entity->bytesIs(3, 30);
  EXPECT_EQ(run(), "267 3;");
  entity->bytesIs(4, 40);
  EXPECT_EQ(run(), "267 4;") << "the count begins anew";
}

TEST_F(BatchTest, TwoAndMoreChangesAreOneWithoutAKey) {
  for (int const changes : {2, 254, 255, 256, 257, 511, 512, 513}) {
    batched();
    for (int i = 0; i < changes; ++i) entity->bytesIs(3, entity->bytes(3) + 1);
    EXPECT_EQ(run(), "267;") << changes;
  }
  entity->bytesIs(3, 0);
  EXPECT_EQ(run(), "267 3;");
}

TEST_F(BatchTest, AnInterfaceWaitsOnce) {
  batched();
  entity->levelIs(1);
  entity->bytesIs(1, 1);
  entity->extraIs(1);
  EXPECT_EQ(activity->activitySm()->waiting(), 1u);
}

TEST_F(BatchTest, SeveralCollectionsAreToldInTheOrderOfTheClass) {
  batched();
  entity->lanesIs(4, 1);
  entity->bytesIs(3, 1);
  entity->bytesIs(5, 1);
  EXPECT_EQ(entityFace(face).notification(), GenericIfEntity::allCollections);
  EXPECT_EQ(run(), "267;275 4;");
}

TEST_F(BatchTest, CollectionsOfBothLevelsAreToldBaseFirst) {
  batched();
  entity->marksIs(2, true);
  entity->bytesIs(3, 1);
  EXPECT_EQ(entityFace(face).notification(), GenericIfEntity::allCollections);
  EXPECT_EQ(run(), "267 3;387 2;");
}

TEST_F(BatchTest, AScalarAmongOthersTellsAllScalars) {
  batched();
  entity->bytesIs(3, 1);
  entity->extraIs(1);
  EXPECT_EQ(entityFace(face).notification(), GenericIfEntity::all);
  EXPECT_EQ(run(), "259;260;261;262;263;264;265;266;267 3;270;273;276;386;");
}

TEST_F(BatchTest, OnceAScalarIsNotedCollectionsDontNarrowIt) {
  batched();
  entity->levelIs(1);
  entity->bytesIs(3, 1);
  entity->lanesIs(3, 1);
  EXPECT_EQ(entityFace(face).notification(), GenericIfEntity::all);
}

TEST_F(BatchTest, ANewBatchKnowsNothingOfTheFormer) {
  batched();
  entity->levelIs(1);
  EXPECT_EQ(run(), "259;");
  entity->bytesIs(3, 1);
  entity->lanesIs(3, 1);
  EXPECT_EQ(run(), "267 3;275 3;");
  EXPECT_EQ(entityFace(face).notification(), GenericIfEntity::nothing);
}

TEST_F(BatchTest, OneAttributeOfEitherLevelIsToldAlone) {
  batched();
  entity->extraIs(1);
  EXPECT_EQ(run(), "386;");
  entity->marksIs(2, true);
  EXPECT_EQ(run(), "387 2;");
  entity->wordsIs(9, "w");
  EXPECT_EQ(run(), "268 9;");
}

TEST_F(BatchTest, OtherWorkRunsBetweenTwoAttributes) {
  batched();
  entity->bytesIs(3, 1);
  entity->lanesIs(4, 1);
  auto const work = enqueued([this] { notes->heard += "work;"; });
  EXPECT_EQ(run(), "267 3;work;275 4;");
}

TEST_F(BatchTest, WorkThatComesMeanwhileRunsBetweenToo) {
  batched();
  entity->bytesIs(3, 1);
  entity->wordsIs(5, "w");
  entity->lanesIs(4, 1);
  Ptr<Work> later;
  auto const work = enqueued([&] { later = enqueued([this] { notes->heard += "later;"; }); });
  EXPECT_EQ(run(), "267 3;268 5;later;275 4;");
}

TEST_F(BatchTest, WhatRunsBetweenTwoAttributesRunsWhole) {
  batched();
  Ptr<Notes> const others = new Notes;
  entityFace(constant).watcherIs(others);
  entityFace(constant).activityIs(activity);
  entity->bytesIs(3, 1);
  entity->lanesIs(4, 1);
  auto const work = enqueued([&] { others->heard += "work;"; });
  others->then = [&] { notes->heard += std::exchange(others->heard, ""); };
  activity->activitySm()->run();
  EXPECT_EQ(notes->take(), "267 3;267 3;275 4;275 4;");
  EXPECT_EQ(others->take(), "work;") << "behind the other interface's last";
}

TEST_F(BatchTest, AChangeInMidBatchIsToldAtOnceAndLosesNoKey) {
  batched();
  entity->bytesIs(3, 1);
  entity->lanesIs(4, 1);
  auto const work = enqueued([this] { entity->lanesIs(9, 1); });
  EXPECT_EQ(run(), "267 3;275 9;275 4;");
  EXPECT_EQ(run(), "");
}

TEST_F(BatchTest, AWatchersOwnChangeIsToldAtOnce) {
  batched();
  entity->levelIs(1);
  notes->then = [this] {
    notes->then = nullptr;
    entity->bytesIs(3, 1);
  };
  EXPECT_EQ(run(), "259;267 3;");
  EXPECT_EQ(activity->activitySm()->waiting(), 0u);
}

TEST_F(BatchTest, AWatcherThatThrowsIsReportedAndTheOthersAreTold) {
  batched();
  entity->bytesIs(3, 1);
  entity->lanesIs(4, 1);
  notes->then = [] { Mox::throwRangeException("no"); };
  std::vector<std::string> traced;
  auto const former = Mox::traceSinkIs([&](std::string_view line) { traced.emplace_back(line); });
  EXPECT_EQ(run(), "267 3;275 4;");
  Mox::traceSinkIs(former);
  ASSERT_EQ(traced.size(), 2u);
  EXPECT_NE(traced[0].find("the hook of attribute 267 of a notifiee of 'e0' raised: no"),
            std::string::npos)
      << traced[0];
  EXPECT_NE(traced[1].find("attribute 275"), std::string::npos) << traced[1];
}

TEST_F(BatchTest, AWatcherThatThrewIsToldOfTheNextChange) {
  batched();
  entity->levelIs(1);
  notes->then = [] { throw 1; };
  auto const former = Mox::traceSinkIs([](std::string_view) {});
  EXPECT_EQ(run(), "259;");
  Mox::traceSinkIs(former);
  notes->then = nullptr;
  entity->levelIs(2);
  EXPECT_EQ(run(), "259;") << "in a batch again";
}

TEST_F(BatchTest, AWatcherMayLetGoOfItself) {
  for (bool const later : {false, true}) {
    if (later) batched();
    Notes* const raw = notes.ptr();
    raw->then = [this] {
      entityFace(face).watcherIs(nullptr);
      notes = nullptr;
    };
    entity->levelIs(entity->level() + 1);
    entity->bytesIs(3, entity->bytes(3) + 1);
    activity->activitySm()->run();
    EXPECT_FALSE(notes);
    notes = new Notes;
    entityFace(face).watcherIs(notes);
  }
}

TEST_F(BatchTest, AWatcherThatLetsGoOfItselfLivesToTheEndOfItsCall) {
  struct Leaving : GenericIfEntity::Watcher {
    explicit Leaving(bool& gone) : gone_(gone) {}
    ~Leaving() override { gone_ = true; }
    void onAttribute(GenericIfEntity& from, Id, GenericIf::PtrConst const&) override {
      bool const& gone = gone_;
      from.watcherIs(nullptr);
      EXPECT_FALSE(gone);
    }
    bool& gone_;
  };
  bool gone = false;
  entityFace(face).watcherIs(new Leaving(gone));
  entity->levelIs(1);
  EXPECT_TRUE(gone);
}

TEST_F(BatchTest, AWatcherMayLetGoOfTheInterface) {
  for (bool const later : {false, true}) {
    face = Face(entity);
    entityFace(face).watcherIs(notes);
    if (later) batched();
    notes->then = [this] { face = constant; };
    entity->bytesIs(3, entity->bytes(3) + 1);
    entity->lanesIs(3, static_cast<U8>(entity->lanes(3) + 1));
    activity->activitySm()->run();
    EXPECT_EQ(notes->take(), later ? "267 3;275 3;" : "267 3;");
  }
}

TEST_F(BatchTest, AnInterfaceThatGoesWhileItWaitsTellsNothing) {
  batched();
  entity->levelIs(1);
  face = constant;
  EXPECT_EQ(run(), "");
  EXPECT_EQ(activity->activitySm()->waiting(), 0u);
}

TEST_F(BatchTest, AnEntityThatGoesWhileItsInterfaceWaitsIsNoHarm) {
  batched();
  entity->levelIs(1);
  constant = Face(GenericIf::Ptr());
  entity = nullptr;
  EXPECT_EQ(entityOf(face.ptr()), nullptr);
  EXPECT_EQ(run(), "259;");
}

TEST_F(BatchTest, AnotherInterfaceOfTheEntityHasItsOwnBatch) {
  batched();
  Ptr<Notes> const others = new Notes;
  entityFace(constant).watcherIs(others);
  entity->bytesIs(1, 1);
  EXPECT_EQ(others->take(), "267 1;");
  EXPECT_EQ(run(), "267 1;");
}

TEST_F(BatchTest, WithoutTheActivityWhatWaitsIsToldAtOnce) {
  batched();
  entity->bytesIs(1, 1);
  entityFace(face).activityIs(nullptr);
  EXPECT_EQ(notes->take(), "267 1;");
  EXPECT_EQ(run(), "");
  entity->bytesIs(2, 1);
  EXPECT_EQ(notes->take(), "267 2;");
}

TEST_F(BatchTest, AnotherActivityTellsWhatWaits) {
  batched();
  entity->bytesIs(1, 1);
  activity->activitySm()->run();
  EXPECT_EQ(notes->take(), "267 1;");
  entity->bytesIs(2, 1);
  Ptr<Mox::ActivityConfig> const former = std::exchange(activity, new Mox::ActivityConfig("other"));
  batched();
  EXPECT_EQ(run(), "267 2;");
  former->activitySm()->run();
  EXPECT_EQ(notes->take(), "") << "once";
}

TEST_F(BatchTest, WhatAnActivityRunsMayLetGoOfIt) {
  Ptr<Mox::ActivityConfig> own = new Mox::ActivityConfig("own");
  Mox::ActivitySm* const queue = own->activitySm();
  int ran = 0;
  Ptr<Work> const first = new Work([&] { own = nullptr; });
  Ptr<Work> const second = new Work([&ran] { ++ran; });
  queue->enq(first);
  queue->enq(second);
  EXPECT_EQ(queue->run(), 2u);
  EXPECT_EQ(ran, 1);
}

TEST_F(BatchTest, AnActivityCountsWhatRan) {
  enqueued([] {});  // let go at once
  Ptr<Work> const held = enqueued([] {});
  EXPECT_EQ(activity->activitySm()->waiting(), 2u);
  EXPECT_EQ(activity->activitySm()->run(), 1u);
  EXPECT_FALSE(activity->activitySm()->runOne());
}

TEST_F(BatchTest, AParkedInterfaceTellsNothingOfWhatItNoted) {
  batched();
  entity->levelIs(1);
  face->moxDoZombieReactors(true);
  EXPECT_EQ(run(), "");
}

TEST_F(BatchTest, TurnedToAnotherEntityItForgetsWhatItNoted) {
  batched();
  entity->levelIs(1);
  Ptr<everyShape::Derived> const other = new everyShape::Derived("e1", 8);
  face->notifierIs(other);
  EXPECT_EQ(run(), "");
}

TEST_F(BatchTest, TurnedToAnotherEntityItForgetsTheKeysOfTheFormer) {
  batched();
  entity->bytesIs(1, 1);
  entity->marksIs(2, true);
  Ptr<everyShape::Derived> const other = new everyShape::Derived("e1", 8);
  face->notifierIs(other);
  other->bytesIs(7, 7);
  EXPECT_EQ(run(), "267 7;");
  other->wordsIs(8, "w");
  other->bytesIs(9, 9);
  EXPECT_EQ(run(), "267 9;268 8;") << "and no word of the former one's marks";
}

// It lost what it had noted.
TEST_F(BatchTest, TurnedToItsOwnEntityItForgetsNothing) {
  batched();
  entity->levelIs(1);
  face->notifierIs(entity);
  EXPECT_EQ(run(), "259;");
}

TEST_F(BatchTest, ASwitchedOffInterfaceNotesNothing) {
  batched();
  face->hasNotificationActiveIs(false);
  entity->levelIs(1);
  entity->marksIs(1, true);
  EXPECT_EQ(activity->activitySm()->waiting(), 0u);
  face->hasNotificationActiveIs(true);
  entity->marksIs(2, true);
  EXPECT_EQ(run(), "387 2;");
}

}  // namespace
