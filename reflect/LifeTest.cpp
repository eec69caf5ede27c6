// Interfaces and the lives of their entities: neither keeps the other, and both may end at any
// time.
#include "reflect/TestLanguage.h"

#include <functional>
#include <gtest/gtest.h>

namespace {

using namespace reflecttest;
using Mox::GenericIfEntity;
using Mox::Ptr;

/// Counts what it is told; `then` is called at each.
class Counting : public GenericIfEntity::Watcher {
 public:
  void onAttribute(GenericIfEntity&, Id, GenericIf::PtrConst const&) override {
    ++told;
    if (then) then();
  }
  int told = 0;
  std::function<void()> then;
};

struct LifeTest : EveryFixture {
  void SetUp() override {
    constant = Face(GenericIf::Ptr());
    watch(face);
  }
  void watch(Face const& some) const {
    dynamic_cast<GenericIfEntity&>(*some.ptr()).watcherIs(watcher);
  }
  /// How often a change of each level is told.
  int told() const {
    watcher->told = 0;
    entity->levelIs(entity->level() + 1);
    entity->extraIs(entity->extra() + 1);
    return watcher->told;
  }

  Ptr<Counting> watcher = new Counting;
};

TEST_F(LifeTest, AnInterfaceHoldsNoReferenceToItsEntity) {
  EXPECT_EQ(entity->references(), 1u);
  Face const second(entity);
  Face const copy(second->clone());
  EXPECT_EQ(entity->references(), 1u);
}

TEST_F(LifeTest, AnInterfaceThatGoesTakesNoReferenceWithIt) {
  for (int i = 0; i < 3; ++i) Face(entity, i == 1);
  EXPECT_EQ(entity->references(), 1u);
  EXPECT_EQ(told(), 2);
}

TEST_F(LifeTest, ItsAdaptersStandInTheEntitysListAndItselfNot) {
  EXPECT_EQ(entity->Every::moxNotifiees().count(), 2u) << "one for each level";
  Face const second(entity);
  EXPECT_EQ(entity->Every::moxNotifiees().count(), 4u);
}

TEST_F(LifeTest, TheEntityMayEndFirst) {
  entity = nullptr;
  EXPECT_EQ(entityOf(face.ptr()), nullptr);
  EXPECT_EQ(shown(face.ptr()), "None");
  EXPECT_EQ(face.refused(every::level, GenericIf::opRead), "Range: null Derived");
  EXPECT_EQ(face.refused(every::extra, GenericIf::opWrite, nullptr, given(U32{1})),
            "Range: null Derived");
  EXPECT_EQ(refusal([&] { face->attributeIteratorConst(every::marks); }), "Range: null Derived");
  EXPECT_EQ(*static_cast<Mox::PtrInterface const* const*>(
                face->voidPtrIs(everyShape::Derived::_fwkType())),
            nullptr);
  EXPECT_EQ(shown(face->clone()), "None");
  EXPECT_FALSE(face->hasNotificationActive());
}

TEST_F(LifeTest, AnEntityWithSeveralInterfacesEndsForAll) {
  Face const second(entity);
  Face const third(everyShape::Every::_fwkType()->genericIf_(entity.ptr(), true));
  entity = nullptr;
  EXPECT_EQ(entityOf(face.ptr()), nullptr);
  EXPECT_EQ(entityOf(second.ptr()), nullptr);
  EXPECT_EQ(entityOf(third.ptr()), nullptr);
}

TEST_F(LifeTest, AWriteThatEndsTheEntityIsFinished) {
  auto const parent = new everyShape::Every("p", 1);
  Ptr<everyShape::Every> holds = parent;
  Face const of(holds);
  watch(of);
  watcher->then = [&] { holds = nullptr; };
  of.write(every::level, given(U32{1}));
  EXPECT_EQ(watcher->told, 1);
}

TEST_F(LifeTest, AnInterfaceMayEndInADelivery) {
  Face second(entity);
  watch(second);
  watcher->then = [&] { second = face; };
  EXPECT_EQ(told(), 2) << "the second is told nothing more";
}

TEST_F(LifeTest, AnInterfaceMayEndInItsOwnDelivery) {
  watcher->then = [&] { face = Face(GenericIf::Ptr()); };
  EXPECT_EQ(told(), 1);
  EXPECT_EQ(entity->Every::moxNotifiees().count(), 0u);
}

TEST_F(LifeTest, SwitchedOffItIsSilentOnBothLevels) {
  face->hasNotificationActiveIs(false);
  EXPECT_EQ(told(), 0);
  face->hasNotificationActiveIs(true);
  EXPECT_EQ(told(), 2);
}

TEST_F(LifeTest, SwitchedOffItStillAnswers) {
  face->hasNotificationActiveIs(false);
  face.write(every::extra, given(U32{4}));
  EXPECT_EQ(face.read(every::extra), "4");
}

TEST_F(LifeTest, ParkedItIsMarkedAndSilentAndBroughtBackItHears) {
  face->moxDoZombieReactors(true);
  EXPECT_TRUE(face->moxMarkedForDeletion());
  EXPECT_EQ(told(), 0);
  face->moxDoZombieReactors(true);
  face->moxDoZombieReactors(false);
  EXPECT_FALSE(face->moxMarkedForDeletion());
  EXPECT_EQ(told(), 2);
}

// Nobody would tell a silent interface that its entity ends: it looked at what had gone.
TEST_F(LifeTest, WhileSilentItKeepsItsEntity) {
  for (bool const parks : {false, true}) {
    if (parks)
      face->moxDoZombieReactors(true);
    else
      face->hasNotificationActiveIs(false);
    EXPECT_EQ(entity->references(), 2u);
    Mox::PtrInterface const* const before = entity.ptr();
    entity = nullptr;
    entity =
        dynamic_cast<everyShape::Derived*>(dynamic_cast<GenericIfEntity&>(*face.ptr()).entity());
    EXPECT_EQ(entity.ptr(), before);
    if (parks)
      face->moxDoZombieReactors(false);
    else
      face->hasNotificationActiveIs(true);
    EXPECT_EQ(entity->references(), 1u);
    EXPECT_TRUE(face->hasNotificationActive());
    EXPECT_EQ(told(), 2);
  }
}

TEST_F(LifeTest, TurnedToAnotherEntityAfterTheEndOfTheFormerItIsSilentUntilSwitchedOn) {
  entity = new everyShape::Derived("e1", 8);
  EXPECT_EQ(shown(face.ptr()), "None");
  face->notifierIs(entity);
  EXPECT_EQ(told(), 0);
  face->hasNotificationActiveIs(true);
  EXPECT_EQ(told(), 2);
  EXPECT_EQ(entity->references(), 1u);
}

TEST_F(LifeTest, WhatAListMadeIsKeptAlsoBehindAParking) {
  auto const list = reflecttest::list({given(Mox::Name("e2")), given(U16{3})});
  GenericIf::Ptr const made = face->genericIfListConstructor(list);
  made->moxDoZombieReactors(true);
  made->moxDoZombieReactors(false);
  EXPECT_EQ(shown(made->attributeOp({every::port})), "3");
}

TEST_F(LifeTest, ItCanBeTurnedToAnotherEntity) {
  Ptr<everyShape::Derived> const other = new everyShape::Derived("e1", 8);
  face->notifierIs(other);
  EXPECT_EQ(face.read(every::port), "8");
  EXPECT_EQ(told(), 0) << "nothing of the former";
  entity = other;
  EXPECT_EQ(told(), 2);
  entity = nullptr;
  EXPECT_EQ(other->references(), 1u);
}

TEST_F(LifeTest, TurnedToAnEntityItIsNoRegisteredNotifieeItself) {
  face->isRegisteredNotifieeIs(true);
  face->notifierIs(entity);
  EXPECT_FALSE(face->isRegisteredNotifiee());
  EXPECT_EQ(told(), 2);
}

TEST_F(LifeTest, AnEntityOfAnotherClassCountsAsNone) {
  face->notifierIs(leaf("l"));
  EXPECT_EQ(entityOf(face.ptr()), nullptr);
  EXPECT_EQ(told(), 0);
}

TEST_F(LifeTest, ItsNameIsTheEntitys) {
  EXPECT_EQ(face->name(), "e0");
  entity = nullptr;
  EXPECT_EQ(face->name(), "");
}

TEST_F(LifeTest, WhoTakesAReferenceInTheLastMomentKeepsTheEntity) {
  struct Saver : everyShape::Derived::NotifieeConst {
    void onZeroReferences() override { saved = notifier(); }
    everyShape::Derived::PtrConst saved;
  };
  Ptr<Saver> const saver = new Saver;
  saver->notifierIs(entity);
  saver->isRegisteredNotifieeIs(true);
  saver->isWeakReferenceIs(true);
  entity = nullptr;
  EXPECT_EQ(entityOf(face.ptr()), nullptr) << "the interface has let go";
  EXPECT_EQ(saver->saved->port(), 7);
  saver->notifierIs(nullptr);
}

TEST_F(LifeTest, NobodyHearsThroughAnInterfaceUntilItIsWatched) {
  Ptr<everyShape::Derived> const other = new everyShape::Derived("e1", 8);
  Face const unwatched(other);
  EXPECT_EQ(other->moxNotifiees().count(), 2u) << "an adapter of each level";
  EXPECT_FALSE(other->moxNotifiees().anyHears());
  watch(unwatched);
  EXPECT_TRUE(other->moxNotifiees().anyHears());
}

}  // namespace
