// What observers may do in a hook: let go of the entity, of themselves, of each other; change what
// they are told of.
#include "frame/TestLanguage.h"

#include <gtest/gtest.h>

namespace frametest {
namespace {

TEST(ReentryTest, LaterObserversHearTheKeyThatChanged) {
  Watched every;
  Mox::Ptr<Listener> const second = new Listener;
  watch(second, every.entity);
  Mox::String8 text = "a";
  every.listener->then = [&] { text = "b"; };
  every->textsIs(text, true);
  Mox::Name name = "a";
  every.listener->then = [&] { name = "b"; };
  every->leavesIs(name, 1, mix);
  EXPECT_EQ(second->heard, "texts a;leaves a;");
}

/// An entity that its one observer, a weak one, ends in the next hook, and stops to observe in the
/// one behind that.
class Dropped {
 public:
  Dropped() {
    listener->isWeakReferenceIs(true);
    watch(listener, entity);
  }
  everyShape::Derived* operator->() const { return entity.ptr(); }
  void dropInTheNextHook() {
    listener->then = [this] {
      listener->then = [this] { listener->notifierIs(nullptr); };
      entity = nullptr;
    };
  }

  Mox::Ptr<everyShape::Derived> entity = new everyShape::Derived("every", 3);
  Mox::Ptr<Listener> listener = new Listener;
};

TEST(DroppedEntityTest, ScalarAndCounterComeToTheirEnd) {
  Dropped scalar;
  scalar.dropInTheNextHook();
  scalar->levelIs(1);
  EXPECT_EQ(scalar.listener->heard, "level;gone;");
  Dropped counter;
  counter.dropInTheNextHook();
  EXPECT_EQ(counter->hitsInc(1), 1u);
}

TEST(DroppedEntityTest, RemovedValueIsReturned) {
  Dropped every;
  every->bytesIs(1, 7);
  every.dropInTheNextHook();
  EXPECT_EQ(every->bytesDel(1), 7u);
}

TEST(DroppedEntityTest, AllElementsGo) {
  Dropped hashed;
  for (U8 key : {1, 2, 3}) hashed->bytesIs(key, 7);
  hashed.listener->heard.clear();
  hashed.dropInTheNextHook();
  hashed->bytesDelAll();
  EXPECT_EQ(hashed.listener->heard, "bytes 2;bytes 1;");
  Dropped ordered;
  for (U8 key : {1, 2, 3}) ordered->lanesIs(key, 7);
  ordered.listener->heard.clear();
  ordered.dropInTheNextHook();
  ordered->lanesDelAll();
  EXPECT_EQ(ordered.listener->heard, "lanes 1;lanes 2;");
}

TEST(DroppedEntityTest, ChildrenAreReturnedWithoutAParent) {
  Dropped owner;
  owner.dropInTheNextHook();
  EXPECT_FALSE(owner->leavesIs("a", 1, mix)->parent());
  Dropped single;
  single.dropInTheNextHook();
  EXPECT_FALSE(single->bestIs("a", 1, mix)->parent());
  Dropped removed;
  removed->bestIs("a", 1, mix);
  removed.dropInTheNextHook();
  EXPECT_EQ(removed->bestDel()->name(), Mox::Name("a"));
}

TEST(DroppedEntityTest, AllChildrenGo) {
  Dropped every;
  for (char const* name : {"a", "b", "c"}) every->leavesIs(name, 1, mix);
  every.dropInTheNextHook();
  every->leavesDelAll();
  EXPECT_FALSE(every.entity);
}

// The leaf that goes held what held the owner; the sanitizers see a step on a freed one.
TEST(DroppedEntityTest, FormerTargetMayTakeTheOwnerAlong) {
  class Holder : public everyShape::Leaf {
   public:
    explicit Holder(int& ends) : Leaf("leaf", 1, everyShape::Mix()), ends_(ends) {}
    ~Holder() override { ++ends_; }
    Mox::Ptr<everyShape::Derived> owner;

   private:
    int& ends_;
  };
  int ends = 0;
  auto* const entity = new everyShape::Derived("every", 3);
  Mox::Ptr<Holder> holder = new Holder(ends);
  holder->owner = entity;
  entity->seatsIs(1, holder);
  holder = nullptr;
  entity->seatsIs(1, nullptr);

  auto* const other = new everyShape::Derived("every", 3);
  holder = new Holder(ends);
  holder->owner = other;
  other->buddyIs(holder);
  holder = nullptr;
  other->buddyIs(nullptr);
  EXPECT_EQ(ends, 2);
}

TEST(DroppedEntityTest, ObserverMayHoldTheLastReferenceAndLetGoOfItself) {
  auto* const entity = new everyShape::Derived("every", 3);
  Mox::Ptr<Listener> listener = new Listener;
  watch(listener, Mox::Ptr<everyShape::Derived>(entity));
  for (U8 key : {1, 2, 3}) entity->bytesIs(key, 7);
  listener->then = [&] { listener = nullptr; };
  entity->bytesDelAll();
  EXPECT_FALSE(listener);
}

TEST(ReentryTest, ObserverMayUnregisterEverybody) {
  Watched every;
  std::vector<Mox::Ptr<Listener>> others(20);
  for (auto& other : others) watch(other = new Listener, every.entity);
  every.listener->then = [&] {
    every.listener->isRegisteredNotifieeIs(false);
    for (auto& other : others) other->isRegisteredNotifieeIs(false);
  };
  every->levelIs(1);
  every->levelIs(2);
  for (auto& other : others) EXPECT_EQ(other->heard, "level;");
  EXPECT_TRUE(every->moxNotifiees().empty());
}

TEST(ReentryTest, ObserverMayMoveAnotherToAnotherNotifier) {
  Watched every;
  Watched next;
  Mox::Ptr<Listener> const second = new Listener;
  watch(second, every.entity);
  every.listener->then = [&] { second->notifierIs(next.entity); };
  every->levelIs(1);
  EXPECT_EQ(second->heard, "level;") << "it stood in the list when the change came";
  every->levelIs(2);
  next->levelIs(1);
  EXPECT_EQ(second->heard, "level;level;");
}

TEST(ReentryTest, ObserverMayDropItself) {
  Mox::Ptr<everyShape::Derived> const entity = new everyShape::Derived("every", 3);
  Mox::Ptr<Listener> first = new Listener;
  Mox::Ptr<Listener> const second = new Listener;
  watch(first, entity);
  watch(second, entity);
  first->then = [&] { first = nullptr; };
  entity->levelIs(1);
  EXPECT_EQ(second->heard, "level;");
  EXPECT_EQ(entity->moxNotifiees().count(), 1u);
  EXPECT_EQ(entity->references(), 2u);
}

TEST(ReentryTest, ChildMayBeReplacedInTheAnnouncementOfTheFormersEnd) {
  class LastWord : public everyShape::Leaf::NotifieeConst {
   public:
    std::function<void()> then;
    void onZeroReferences() override {
      notifierIs(nullptr);
      then();
    }
  };
  Watched every;
  Mox::Ptr<LastWord> const last = new LastWord;
  last->isWeakReferenceIs(true);
  watch(last, every->bestIs("a", 1, mix));
  last->then = [&] { every->bestIs("c", 1, mix); };
  auto const child = every->bestIs("b", 1, mix);
  EXPECT_EQ(child, every->best());
  EXPECT_EQ(child->parent(), every.entity);
}

// What the hook sees of the entity.

TEST(HookOrderTest, VersionHasStepped) {
  Watched every;
  std::vector<U32> versions;
  every.listener->then = [&] { versions.push_back(every->version()); };
  every->levelIs(1);
  every->bytesIs(1, 1);
  every->bytesDel(1);
  EXPECT_EQ(versions, (std::vector<U32>{1, 2, 3}));
}

TEST(HookOrderTest, CounterHasItsNewValue) {
  Watched every;
  U16 seen = 0;
  every.listener->then = [&] { seen = every->hits(); };
  every->hitsInc(3);
  EXPECT_EQ(seen, 3u);
}

TEST(HookOrderTest, RemovedElementHasGone) {
  Watched every;
  every->bytesIs(1, 1);
  U32 count = 99;
  every.listener->then = [&] { count = every->bytesCount(); };
  every->bytesDel(1);
  EXPECT_EQ(count, 0u);
}

TEST(HookOrderTest, RemovedChildIsDetached) {
  Watched every;
  auto const single = every->bestIs("a", 1, mix);
  auto const listed = every->leavesIs("b", 1, mix);
  int attached = 0;
  every.listener->then = [&] { attached += single->parent() || every->best(); };
  every->bestDel();
  every.listener->then = [&] { attached += static_cast<bool>(listed->parent()); };
  every->leavesDel("b");
  EXPECT_EQ(attached, 0);
}

}  // namespace
}  // namespace frametest
