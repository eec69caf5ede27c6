// Adapters: they go where their owner goes, remember what they were, and keep nobody alive.
#include "frame/Adapter.h"
#include "frame/TestLanguage.h"

#include <gtest/gtest.h>

namespace {

using namespace frametest;
using everyShape::Every;
using Mox::Ptr;

/// Owns an adapter, and writes down what comes through it.
class Owner : public Every::NotifieeConst {
 public:
  class Forwarding : public frame::Adapter<Every::NotifieeConst, Owner> {
   public:
    using Adapter::Adapter;
    void onLevel() override { moxReactorAdapter()->note("level;"); }
  };

  explicit Owner(Ptr<Every> const& entity) { adapter = adapterOf(entity); }
  ~Owner() override {
    if (adapter) frame::unhook(*adapter);
  }

  Ptr<Forwarding> adapterOf(Ptr<Every> const& entity) {
    return frame::adapterFor<Forwarding>(entity.ptr(), this);
  }
  void hasNotificationActiveIs(bool active) override {
    if (active == hasNotificationActive()) return;
    note(active ? "on;" : "off;");
    Every::NotifieeConst::hasNotificationActiveIs(active);
    if (adapter) adapter->hasNotificationActiveIs(active);
  }
  void onZeroReferences() override {
    note("gone;");
    if (letsGo) adapter->notifierIs(nullptr);
  }
  void onNotificationException(Mox::AttributeId id) override {
    note("failed " + std::to_string(id) + ";");
  }
  void note(std::string const& what) {
    heard += what;
    if (then) then();
  }
  std::string take() { return std::exchange(heard, ""); }

  Ptr<Forwarding> adapter;
  std::string heard;
  std::function<void()> then;
  bool letsGo = true;
};

struct AdapterTest : testing::Test {
  void SetUp() override { EXPECT_EQ(owner->take(), "on;") << "with its first adapter"; }
  Owner::Forwarding& adapter() const { return *owner->adapter; }
  /// What a change of the entity makes the owner hear.
  std::string change() {
    entity->levelIs(entity->level() + 1);
    return owner->take();
  }

  Ptr<Every> entity = new Every("e0", 1);
  Ptr<Owner> owner = new Owner(entity);
};

TEST_F(AdapterTest, StartsActiveRegisteredAndWeakWithOutboundEnabled) {
  EXPECT_TRUE(adapter().hasNotificationActive());
  EXPECT_TRUE(adapter().isRegisteredNotifiee());
  EXPECT_TRUE(adapter().isWeakReference());
  EXPECT_EQ(adapter().mox_bitSet().bits(), Mox::outboundEnabled);
  EXPECT_EQ(adapter().moxNotifier(), entity.ptr());
}

TEST_F(AdapterTest, ForwardsToItsOwner) {
  EXPECT_EQ(change(), "level;");
  EXPECT_EQ(adapter().moxReactor(), owner);
  EXPECT_EQ(adapter().moxRawReactor(), owner.ptr());
  EXPECT_EQ(adapter().moxReactorAdapter(), owner.ptr());
}

TEST_F(AdapterTest, HoldsNoReferenceToTheEntity) {
  EXPECT_EQ(entity->references(), 1u);
  auto const second = owner->adapterOf(entity);
  EXPECT_EQ(entity->references(), 1u);
  frame::unhook(*second);
  EXPECT_EQ(entity->references(), 1u);
}

TEST_F(AdapterTest, SwitchedOffItIsSilentAndSwitchedOnItHearsAgain) {
  adapter().hasNotificationActiveIs(false);
  EXPECT_EQ(owner->take(), "off;");
  EXPECT_EQ(change(), "");
  EXPECT_FALSE(adapter().isRegisteredNotifiee());
  adapter().hasNotificationActiveIs(true);
  EXPECT_EQ(owner->take(), "on;");
  EXPECT_EQ(change(), "level;");
}

TEST_F(AdapterTest, SwitchingOnRestoresWhatWasRegistered) {
  adapter().isRegisteredNotifieeIs(false);
  adapter().hasNotificationActiveIs(false);
  adapter().hasNotificationActiveIs(true);
  EXPECT_FALSE(adapter().isRegisteredNotifiee()) << "it wasn't before";
  adapter().isRegisteredNotifieeIs(true);
  adapter().hasNotificationActiveIs(false);
  adapter().hasNotificationActiveIs(true);
  EXPECT_TRUE(adapter().isRegisteredNotifiee());
}

TEST_F(AdapterTest, RemembersByABitThatTouchesNoOther) {
  adapter().mox_bitSetIs(Mox_BitSet(Mox::outboundEnabled | 0x10));
  adapter().hasNotificationActiveIs(false);
  EXPECT_EQ(adapter().mox_bitSet().bits(),
            Mox::outboundEnabled | 0x10 | Mox::registeredWhenDeactivated);
  adapter().hasNotificationActiveIs(true);
  adapter().isRegisteredNotifieeIs(false);
  adapter().hasNotificationActiveIs(false);
  EXPECT_EQ(adapter().mox_bitSet().bits(), Mox::outboundEnabled | 0x10);
}

TEST_F(AdapterTest, SwitchingTwiceActsOnce) {
  adapter().hasNotificationActiveIs(true);
  EXPECT_EQ(owner->take(), "");
  adapter().hasNotificationActiveIs(false);
  adapter().hasNotificationActiveIs(false);
  EXPECT_EQ(owner->take(), "off;");
  EXPECT_TRUE(adapter().mox_bitSet().has(Mox::registeredWhenDeactivated))
      << "the second time would have forgotten it";
}

TEST_F(AdapterTest, OwnerAndAdapterAreSwitchedFromEitherSideOnce) {
  owner->hasNotificationActiveIs(false);
  EXPECT_EQ(owner->take(), "off;");
  EXPECT_FALSE(adapter().hasNotificationActive());
  adapter().hasNotificationActiveIs(true);
  EXPECT_EQ(owner->take(), "on;");
  EXPECT_TRUE(owner->hasNotificationActive());
}

TEST_F(AdapterTest, ParkedItIsMarkedAndSilent) {
  adapter().moxDoZombieReactors(true);
  EXPECT_TRUE(adapter().moxMarkedForDeletion());
  EXPECT_FALSE(adapter().hasNotificationActive());
  EXPECT_EQ(owner->take(), "off;");
  EXPECT_EQ(change(), "");
}

TEST_F(AdapterTest, ParkingTwiceActsOnce) {
  adapter().moxDoZombieReactors(true);
  adapter().hasNotificationActiveIs(true);
  adapter().moxDoZombieReactors(true);
  EXPECT_TRUE(adapter().hasNotificationActive()) << "the second did nothing";
}

TEST_F(AdapterTest, BroughtBackItHearsAgain) {
  adapter().moxDoZombieReactors(true);
  adapter().moxDoZombieReactors(false);
  EXPECT_FALSE(adapter().moxMarkedForDeletion());
  EXPECT_TRUE(adapter().isRegisteredNotifiee());
  owner->take();
  EXPECT_EQ(change(), "level;");
}

TEST_F(AdapterTest, WhileParkedTheOwnerIsNotSwitched) {
  adapter().moxDoZombieReactors(true);
  owner->take();
  adapter().hasNotificationActiveIs(true);
  EXPECT_EQ(owner->take(), "");
}

TEST_F(AdapterTest, WithoutAnEntityParkingOnlyMarks) {
  frame::adapterUnhook(adapter());
  adapter().moxDoZombieReactors(true);
  EXPECT_TRUE(adapter().moxMarkedForDeletion());
  EXPECT_TRUE(adapter().hasNotificationActive());
}

TEST_F(AdapterTest, TheEntitysEndReachesTheOwnerAndSilencesBoth) {
  entity = nullptr;
  EXPECT_EQ(owner->take(), "gone;off;");
  EXPECT_FALSE(adapter().hasNotificationActive());
  EXPECT_FALSE(adapter().moxNotifier());
}

TEST_F(AdapterTest, WithoutAnOwnerTheEntitysEndOnlySilences) {
  adapter().moxReactorAdapterIs(nullptr);
  Ptr<Owner::Forwarding> const alone = std::exchange(owner->adapter, nullptr);
  alone->onZeroReferences();
  EXPECT_FALSE(alone->hasNotificationActive());
  EXPECT_EQ(owner->take(), "");
  frame::unhook(*alone);
}

TEST_F(AdapterTest, AnUnhookedAdapterHearsNothingMoreAndHasNoOwner) {
  Ptr<Owner::Forwarding> const held = owner->adapter;
  owner = nullptr;
  EXPECT_EQ(held->moxReactorAdapter(), nullptr);
  EXPECT_EQ(held->moxReactor(), nullptr);
  EXPECT_EQ(held->moxRawReactor(), nullptr);
  EXPECT_FALSE(held->isRegisteredNotifiee());
  EXPECT_FALSE(held->moxNotifier());
  entity->levelIs(9);
  held->onNotificationException(259);
  held->hasNotificationActiveIs(false);
}

TEST_F(AdapterTest, AnExceptionOfAHookReachesTheOwner) {
  owner->then = [this] {
    owner->then = nullptr;
    Mox::throwRangeException("no");
  };
  EXPECT_EQ(change(), "level;failed 259;");
}

TEST_F(AdapterTest, AdaptersHearInTheOrderInWhichTheyCame) {
  Ptr<Owner> const second = new Owner(entity);
  std::string order;
  owner->then = [&] { order += "first;"; };
  second->then = [&] { order += "second;"; };
  entity->levelIs(1);
  EXPECT_EQ(order, "first;second;");
  order.clear();
  owner->then = second->then = nullptr;
  adapter().hasNotificationActiveIs(false);
  adapter().hasNotificationActiveIs(true);
  owner->then = [&] { order += "first;"; };
  second->then = [&] { order += "second;"; };
  entity->levelIs(2);
  EXPECT_EQ(order, "second;first;") << "registered again it stands behind the others";
}

TEST_F(AdapterTest, AnOwnerMayEndInADelivery) {
  Ptr<Owner> second = new Owner(entity);
  owner->then = [&] { second = nullptr; };
  EXPECT_EQ(change(), "level;") << "the second's adapter has no owner any more, and is passed over";
  EXPECT_EQ(entity->references(), 1u);
}

TEST_F(AdapterTest, AnOwnerMayEndItselfInItsHook) {
  owner->then = [this] {
    owner->then = nullptr;
    owner = nullptr;
  };
  entity->levelIs(1);
  EXPECT_FALSE(owner);
  entity->levelIs(2);
  EXPECT_EQ(entity->references(), 1u);
}

}  // namespace
