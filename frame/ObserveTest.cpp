// Observing: taking and leaving a place in the list, weak observers, the end of either side.
#include "frame/Observe.h"
#include "frame/TestLanguage.h"

#include <gtest/gtest.h>
#include <memory>

namespace frametest {
namespace {

using everyShape::Every;

/// An adapter of a log, and the notifiee that forwards to it, as far as the order of the list goes.
class Adapter : public Mox::Entity::MoxNboAttrLogSa {};

class Forwarder : public PlainListener {
 public:
  explicit Forwarder(Mox::Ptr<Adapter> const& adapter) : adapter_(adapter) {}
  Mox::Ptr<Mox::PtrInterface::NotifieeConst const> moxReactor() const override { return adapter_; }
  Mox::PtrInterface::NotifieeConst* moxRawReactor() const override { return adapter_.ptr(); }

 private:
  Mox::Ptr<Adapter> adapter_;
};

class ObserveTest : public testing::Test {
 protected:
  Mox::Ptr<PlainListener> observer() {
    Mox::Ptr<PlainListener> const made = new PlainListener;
    watch(made, entity);
    return made;
  }
  std::vector<Mox::PtrInterface::NotifieeConst*> order() const {
    std::vector<Mox::PtrInterface::NotifieeConst*> members;
    for (auto* at = entity->moxNotifiees().head(); at; at = Mox::BaseCollection::next(at))
      members.push_back(at);
    return members;
  }

  Mox::Ptr<Every> entity = new Every("every", 1);
};

TEST_F(ObserveTest, LogAdaptersStandAtTheHeadTheLatestFirst) {
  auto const a = observer();
  auto const b = observer();
  Mox::Ptr<Forwarder> const first = new Forwarder(new Adapter);
  Mox::Ptr<Forwarder> const second = new Forwarder(new Adapter);
  watch(first, entity);
  watch(second, entity);
  auto const c = observer();
  EXPECT_EQ(order(), (std::vector<Mox::PtrInterface::NotifieeConst*>{second.ptr(), first.ptr(),
                                                                     a.ptr(), b.ptr(), c.ptr()}));
}

TEST_F(ObserveTest, ForwarderToAnAdapterIsAStreamAdapter) {
  Mox::Ptr<Forwarder> const forwarder = new Forwarder(new Adapter);
  EXPECT_TRUE(forwarder->isStreamAdapter());
  EXPECT_FALSE(observer()->isStreamAdapter());
}

TEST_F(ObserveTest, ObserverMayRegisterInItsOwnConstructor) {
  class Eager : public PlainListener {
   public:
    explicit Eager(Mox::Ptr<Every> const& every) {
      notifierIs(every);
      isRegisteredNotifieeIs(true);
    }
  };
  Mox::Ptr<Eager> const eager = new Eager(entity);
  entity->levelIs(1);
  EXPECT_EQ(eager->heard, "level;");
  EXPECT_EQ(eager->references(), 1u);
}

TEST_F(ObserveTest, RegisteringTwiceLinksOnce) {
  auto const a = observer();
  a->isRegisteredNotifieeIs(true);
  EXPECT_EQ(entity->moxNotifiees().count(), 1u);
  EXPECT_EQ(entity->moxNotifiees().changes(), 1u);
}

TEST_F(ObserveTest, RegisteringAheadOfTheNotifierLinksWithIt) {
  Mox::Ptr<PlainListener> const early = new PlainListener;
  early->isRegisteredNotifieeIs(true);
  EXPECT_EQ(entity->moxNotifiees().count(), 0u);
  early->notifierIs(entity);
  EXPECT_EQ(entity->moxNotifiees().count(), 1u);
}

TEST_F(ObserveTest, UnregisteringUnlinks) {
  auto const a = observer();
  a->isRegisteredNotifieeIs(false);
  EXPECT_EQ(entity->moxNotifiees().count(), 0u);
  EXPECT_EQ(entity->moxNotifiees().changes(), 2u);
  EXPECT_EQ(a->notifier(), entity);
}

TEST_F(ObserveTest, MovingToAnotherNotifierMovesTheLink) {
  auto const a = observer();
  Mox::Ptr<Every> const other = new Every("other", 1);
  a->notifierIs(other);
  EXPECT_EQ(entity->moxNotifiees().count(), 0u);
  EXPECT_EQ(other->moxNotifiees().count(), 1u);
  EXPECT_EQ(entity->references(), 1u);
  EXPECT_EQ(other->references(), 2u);
}

TEST_F(ObserveTest, SameNotifierIsNoChange) {
  auto const a = observer();
  a->notifierIs(entity);
  EXPECT_EQ(entity->moxNotifiees().changes(), 1u);
  EXPECT_EQ(entity->references(), 2u);
}

TEST_F(ObserveTest, NotifierOfAnotherTypeCountsAsNone) {
  auto const a = observer();
  a->notifierIs(Mox::Ptr<Mox::PtrInterface const>(leaf("x")));
  EXPECT_FALSE(a->notifier());
  EXPECT_EQ(entity->moxNotifiees().count(), 0u);
}

TEST_F(ObserveTest, NameIsTheNotifiersOrEmpty) {
  auto const a = observer();
  EXPECT_EQ(a->name(), Mox::Name("every"));
  a->notifierIs(nullptr);
  EXPECT_EQ(a->name(), Mox::Name());
}

TEST_F(ObserveTest, StrongObserverHoldsItsNotifier) {
  auto const a = observer();
  EXPECT_EQ(entity->references(), 2u);
  a->notifierIs(nullptr);
  EXPECT_EQ(entity->references(), 1u);
}

TEST_F(ObserveTest, WeakObserverHoldsNothingHoweverItMoves) {
  Mox::Ptr<PlainListener> const weak = new PlainListener;
  weak->isWeakReferenceIs(true);
  watch(weak, entity);
  EXPECT_EQ(entity->references(), 1u);
  Mox::Ptr<Every> const other = new Every("other", 1);
  weak->notifierIs(other);
  EXPECT_EQ(entity->references(), 1u);
  EXPECT_EQ(other->references(), 1u);
  weak->notifierIs(nullptr);
  EXPECT_EQ(other->references(), 1u);
}

TEST_F(ObserveTest, BecomingWeakAndStrongAgainHandsTheReferenceBackAndForth) {
  auto const a = observer();
  a->isWeakReferenceIs(true);
  EXPECT_EQ(entity->references(), 1u);
  a->isWeakReferenceIs(false);
  EXPECT_EQ(entity->references(), 2u);
}

TEST_F(ObserveTest, ObserverThatGoesLeavesTheList) {
  auto a = observer();
  auto const b = observer();
  a = nullptr;
  EXPECT_EQ(order(), std::vector<Mox::PtrInterface::NotifieeConst*>{b.ptr()});
  EXPECT_EQ(entity->references(), 2u);
}

TEST_F(ObserveTest, WeakObserverThatGoesLeavesTheCountsAlone) {
  auto a = observer();
  a->isWeakReferenceIs(true);
  a = nullptr;
  EXPECT_EQ(entity->references(), 1u);
  EXPECT_EQ(entity->moxNotifiees().count(), 0u);
}

TEST_F(ObserveTest, ZombieLeavesTheListAlone) {
  auto zombie = observer();
  zombie->moxMarkedForDeletionIs(true);
  U32 const changes = entity->moxNotifiees().changes();
  zombie = nullptr;
  EXPECT_EQ(entity->moxNotifiees().changes(), changes);
  EXPECT_EQ(entity->moxNotifiees().count(), 1u);
  // Whoever parks an observer takes it out of the list himself: what still stands there has gone.
  std::construct_at(&entity->moxNotifiees());
}

TEST_F(ObserveTest, LastReferenceIsAnnounced) {
  Mox::Ptr<PlainListener> const weak = new PlainListener;
  weak->isWeakReferenceIs(true);
  watch(weak, entity);
  weak->then = [&] { weak->notifierIs(nullptr); };
  entity = nullptr;
  EXPECT_EQ(weak->heard, "gone;");
}

TEST_F(ObserveTest, ObserverMayKeepTheEntityAtItsLastReference) {
  Mox::Ptr<PlainListener> const weak = new PlainListener;
  weak->isWeakReferenceIs(true);
  watch(weak, entity);
  Mox::Ptr<Every> saved;
  weak->then = [&] { saved = const_cast<Every*>(weak->notifier().ptr()); };
  entity = nullptr;
  ASSERT_TRUE(saved);
  EXPECT_EQ(saved->references(), 1u);
  weak->then = [&] { weak->notifierIs(nullptr); };
}

TEST_F(ObserveTest, FailureInTheLastAnnouncementHasNumberFive) {
  Mox::Ptr<PlainListener> const weak = new PlainListener;
  weak->isWeakReferenceIs(true);
  watch(weak, entity);
  weak->then = [&] {
    weak->notifierIs(nullptr);
    throw 1;
  };
  entity = nullptr;
  EXPECT_EQ(weak->failures, std::vector<Mox::AttributeId>{5});
}

TEST_F(ObserveTest, FailureOfTheReportOfALastReferenceEndsInTheTrace) {
  class Hopeless : public Every::NotifieeConst {
   public:
    void onZeroReferences() override {
      notifierIs(nullptr);
      throw 1;
    }
    void onNotificationException(Mox::AttributeId) override {
      throw Mox::RangeException("no way out");
    }
  };
  std::string lines;
  auto const former = Mox::traceSinkIs([&](std::string_view line) { lines += line; });
  Mox::Ptr<Hopeless> const hopeless = new Hopeless;
  hopeless->isWeakReferenceIs(true);
  watch(hopeless, entity);
  entity = nullptr;
  Mox::traceSinkIs(former);
  EXPECT_NE(lines.find("what was told of a last reference raised: no way out"), std::string::npos);
}

TEST_F(ObserveTest, PlaceInTheListGoesByTheCountedReactor) {
  class Adapter : public Mox::Entity::MoxNboAttrLogSa {};
  class Forwarder : public Every::NotifieeConst {
   public:
    Mox::Ptr<Mox::PtrInterface::NotifieeConst const> moxReactor() const override {
      return adapter_;
    }

   private:
    Mox::Ptr<Adapter> adapter_ = new Adapter;
  };
  Mox::Ptr<PlainListener> const plain = new PlainListener;
  Mox::Ptr<Forwarder> const forwarder = new Forwarder;
  watch(plain, entity);
  watch(forwarder, entity);
  EXPECT_EQ(entity->moxNotifiees().head(), forwarder.ptr());
}

TEST_F(ObserveTest, UnreportedFailureIsTraced) {
  class Silent : public Every::NotifieeConst {
   public:
    void onLevel() override { throw Mox::RangeException("too much"); }
  };
  std::string lines;
  auto const former = Mox::traceSinkIs([&](std::string_view line) { lines += line; });
  Mox::Ptr<Silent> const silent = new Silent;
  watch(silent, entity);
  entity->levelIs(1);
  Mox::traceSinkIs(former);
  EXPECT_NE(lines.find("the hook of attribute 259 of a notifiee of 'every' raised: too much"),
            std::string::npos);
}

}  // namespace
}  // namespace frametest
