// Delivery: who hears, in which order, and what an observer may do meanwhile.
#include "frame/Deliver.h"
#include "frame/TestLanguage.h"

#include <gtest/gtest.h>

namespace frametest {
namespace {

/// An entity with any number of observers, which write into one book.
class Stage {
 public:
  PlainListener& join(char const* name) {
    Mox::Ptr<PlainListener> const actor = new PlainListener;
    watch(actor, entity);
    actor->then = [this, name] { book += std::string(name) + " "; };
    actors.push_back(actor);
    return *actor;
  }
  std::string change() {
    entity->levelIs(++value);
    return std::exchange(book, "");
  }

  Mox::Ptr<everyShape::Every> entity = new everyShape::Every("every", 1);
  std::vector<Mox::Ptr<PlainListener>> actors;
  std::string book;
  U32 value = 0;
};

TEST(DeliverTest, ObserversHearInTheOrderOfRegistration) {
  Stage stage;
  for (char const* name : {"a", "b", "c"}) stage.join(name);
  EXPECT_EQ(stage.change(), "a b c ");
}

TEST(DeliverTest, HookThatThrowsIsReportedToItsOwnObserverAndTheOthersHear) {
  Stage stage;
  auto& thrower = stage.join("a");
  stage.join("b");
  stage.join("c");
  thrower.then = [] { throw 1; };
  EXPECT_EQ(stage.change(), "b c ");
  EXPECT_EQ(thrower.failures, std::vector<Mox::AttributeId>{259});
  EXPECT_EQ(stage.entity->level(), 1u);
}

/// Raises in its hook, and in the report of that.
class Hopeless : public PlainListener {
 public:
  void onLevel() override { throw 1; }
  void onNotificationException(Mox::AttributeId) override { throw 2; }
};

TEST(DeliverTest, ExceptionOutOfTheReportEndsTheDeliveryAndKeepsTheValue) {
  Stage stage;
  Mox::Ptr<Hopeless> const hopeless = new Hopeless;
  watch(hopeless, stage.entity);
  auto& second = stage.join("b");
  EXPECT_THROW(stage.change(), int);
  EXPECT_EQ(stage.entity->level(), 1u);
  EXPECT_EQ(stage.book, "");
  EXPECT_EQ(hopeless->references(), 1u) << "the snapshot must have let go";
  EXPECT_EQ(second.references(), 1u);
}

TEST(DeliverTest, ExceptionOutOfTheReportInTheMiddleLetsGoOfEachMemberOnce) {
  Stage stage;
  stage.join("a");
  Mox::Ptr<Hopeless> const hopeless = new Hopeless;
  watch(hopeless, stage.entity);
  stage.join("c");
  EXPECT_THROW(stage.change(), int);
  EXPECT_EQ(stage.book, "a ");
  EXPECT_EQ(hopeless->references(), 1u);
  for (auto const& actor : stage.actors) EXPECT_EQ(actor->references(), 1u);
}

TEST(DeliverTest, ReportThatPassesDoesntEndTheDelivery) {
  Stage stage;
  for (char const* name : {"a", "b"}) stage.join(name).then = [] { throw 1; };
  stage.join("c");
  EXPECT_EQ(stage.change(), "c ");
  for (auto const& actor : stage.actors) EXPECT_EQ(actor->references(), 1u);
}

TEST(DeliverTest, ObserverThatOnlyTheSnapshotHoldsIsPassedOver) {
  Stage stage;
  auto& first = stage.join("a");
  stage.join("b");
  stage.join("c");
  first.then = [&] {
    stage.book += "a ";
    if (stage.actors.size() == 3) stage.actors.erase(stage.actors.begin() + 1);
  };
  EXPECT_EQ(stage.change(), "a c ");
}

/// A weak observer that registers in its constructor, is held by nobody, and so ends with the first
/// delivery.
class Orphan : public PlainListener {
 public:
  Orphan(Mox::Ptr<everyShape::Every> const& entity, std::string& book) : book_(book) {
    isWeakReferenceIs(true);
    notifierIs(entity);
    isRegisteredNotifieeIs(true);
  }
  ~Orphan() override { book_ += "end "; }
  void onLevel() override { book_ += "orphan "; }

 private:
  std::string& book_;
};

TEST(DeliverTest, FirstObserverIsCalledEvenIfNobodyHoldsIt) {
  Stage stage;
  new Orphan(stage.entity, stage.book);
  EXPECT_EQ(stage.change(), "orphan end ");
}

TEST(DeliverTest, ObserverIsReleasedAheadOfTheNextHook) {
  Stage stage;
  new Orphan(stage.entity, stage.book);
  stage.join("second");
  EXPECT_EQ(stage.change(), "orphan end second ");
}

TEST(DeliverTest, SeveralInARowThatOnlyTheSnapshotHoldsArePassedOver) {
  Stage stage;
  auto& first = stage.join("a");
  for (char const* name : {"b", "c", "d", "e"}) stage.join(name);
  first.then = [&] { stage.actors.erase(stage.actors.begin() + 1, stage.actors.begin() + 4); };
  EXPECT_EQ(stage.change(), "e ");
}

TEST(DeliverTest, AdapterThatRegistersLastIsCalledFirst) {
  class Adapter : public Mox::Entity::MoxNboAttrLogSa {};
  class Forwarder : public PlainListener {
   public:
    Mox::Ptr<Mox::PtrInterface::NotifieeConst const> moxReactor() const override {
      return adapter_;
    }

   private:
    Mox::Ptr<Adapter> adapter_ = new Adapter;
  };
  Stage stage;
  stage.join("a");
  stage.join("b");
  Mox::Ptr<Forwarder> const forwarder = new Forwarder;
  forwarder->then = [&] { stage.book += "log "; };
  watch(forwarder, stage.entity);
  EXPECT_EQ(stage.change(), "log a b ");
}

TEST(DeliverTest, ObserverThatRegistersMeanwhileHearsOfTheNextChange) {
  Stage stage;
  auto& first = stage.join("a");
  first.then = [&] {
    stage.book += "a ";
    if (stage.actors.size() == 1) stage.join("late");
  };
  EXPECT_EQ(stage.change(), "a ");
  EXPECT_EQ(stage.change(), "a late ");
}

TEST(DeliverTest, ObserverThatUnregistersMeanwhileIsStillCalled) {
  Stage stage;
  auto& first = stage.join("a");
  stage.join("b");
  first.then = [&] {
    stage.book += "a ";
    stage.actors[1]->isRegisteredNotifieeIs(false);
  };
  EXPECT_EQ(stage.change(), "a b ");
  EXPECT_EQ(stage.change(), "a ");
}

TEST(DeliverTest, HookMayChangeTheSameEntity) {
  Stage stage;
  auto& first = stage.join("a");
  stage.join("b");
  first.then = [&] {
    stage.book += "a" + std::to_string(stage.entity->level()) + " ";
    if (stage.entity->level() < 3) stage.entity->levelIs(3);
  };
  EXPECT_EQ(stage.change(), "a1 a3 b b ");
}

TEST(DeliverTest, ThoseThatDontHearArePassedOverWhileNobodyElseIsThere) {
  Stage stage;
  for (char const* name : {"a", "b"}) {
    stage.join(name).moxHearsIs(false);
    EXPECT_EQ(stage.change(), "");
  }
  stage.join("c");
  EXPECT_EQ(stage.change(), "a b c ");
}

TEST(DeliverTest, MoreObserversHearThanTheRoomHolds) {
  Stage stage;
  for (int i = 0; i < 20; ++i) stage.join("x");
  EXPECT_EQ(stage.change().size(), 40u);
}

TEST(DeliverTest, NothingIsExpectedInsideAHook) {
  Stage stage;
  Mox::Exception::Id inside = 99;
  stage.join("a").then = [&] { inside = Mox::Expect::innermost(); };
  Mox::Expect const outer(48);
  stage.change();
  EXPECT_EQ(inside, 0u);
  EXPECT_EQ(Mox::Expect::innermost(), 48u);
}

TEST(DeliverTest, AnObserverThatEndsMeanwhileIsOutsideOfTheDelivery) {
  class Ending : public PlainListener {
   public:
    explicit Ending(Mox::Exception::Id& expected) : expected_(expected) {}
    ~Ending() override { expected_ = Mox::Expect::innermost(); }

   private:
    Mox::Exception::Id& expected_;
  };
  Stage stage;
  Mox::Exception::Id expected = 99;
  Mox::Exception::Id afterwards = 99;
  Mox::Ptr<Ending> ending = new Ending(expected);
  watch(ending, stage.entity);
  ending->then = [&ending] { ending = nullptr; };
  stage.join("b").then = [&] { afterwards = Mox::Expect::innermost(); };
  Mox::Expect const outer(48);
  stage.change();
  EXPECT_EQ(expected, 48u);
  EXPECT_EQ(afterwards, 0u);
  EXPECT_EQ(Mox::Expect::innermost(), 48u);
}

TEST(DeliverTest, ObserverOfTheBaseAloneDoesntHearOfTheDerivedEntity) {
  Watched every;
  Mox::Ptr<PlainListener> const plain = new PlainListener;
  watch(plain, every.entity);
  every->extraIs(1);
  every->marksIs(1, true);
  every->levelIs(1);
  EXPECT_EQ(plain->heard, "level;");
  EXPECT_EQ(every.heard(), "extra;marks 1;level;");
}

}  // namespace
}  // namespace frametest
