// The table manager as an object: references, flags, slots of its virtual operations.
#include "XpLib/XpTableManSm.h"
#include "XpLib/XpTableManSmRigTest.h"

#include <cstring>
#include <stdexcept>

namespace Kestrel::xpTableManSm {
namespace {

TEST(TableManSmObjectTest, FactoryHandsOutTheOnlyReference) {
  Rig rig;
  EXPECT_EQ(rig.bringUp()->references(), 1u);
}

TEST(TableManSmObjectTest, FactorySwitchesNotificationsOn) {
  Rig rig;
  EXPECT_TRUE(rig.bringUp()->hasNotificationActive());
}

TEST(TableManSmObjectTest, NotificationFlagIsKeptInTheReferenceWord) {
  Rig rig;
  auto const sm = rig.bringUp();
  EXPECT_EQ(sm->referenceWord(), 0x20000001u);
  sm->hasNotificationActiveIs(true);
  EXPECT_EQ(sm->referenceWord(), 0x20000001u);
  sm->hasNotificationActiveIs(false);
  EXPECT_EQ(sm->referenceWord(), 0x00000001u);
  sm->hasNotificationActiveIs(false);
  EXPECT_EQ(sm->referenceWord(), 0x00000001u);
}

TEST(TableManSmObjectTest, ZombieMarkIsKeptInTheTopBit) {
  Rig rig;
  auto const sm = rig.bringUp();
  sm->moxDoZombieReactors(true);
  EXPECT_EQ(sm->referenceWord(), 0xA0000001u);
  sm->moxDoZombieReactors(true);
  EXPECT_EQ(sm->referenceWord(), 0xA0000001u);
  sm->moxDoZombieReactors(false);
  EXPECT_EQ(sm->referenceWord(), 0x20000001u);
}

TEST(TableManSmObjectTest, HasNoActivity) {
  Rig rig;
  auto const sm = rig.bringUp();
  EXPECT_EQ(sm->moxFwkActivity(), nullptr);
  EXPECT_EQ(TableManSm::PtrConst(sm)->moxFwkActivity(), nullptr);
}

TEST(TableManSmObjectTest, DirectConstructionLeavesNoReferenceOfItsOwn) {
  Rig rig;
  Mox::Ptr<TableManSm> const sm =
      new TableManSm(0, rig.status, XpXdk::xpDeviceLdePipeMode3, true, rig.lpmTreadCfg);
  EXPECT_EQ(sm->referenceWord(), 1u);
}

TEST(TableManSmObjectTest, HoldsOneReferenceOnStatusAndPlan) {
  Rig rig;
  auto const held = rig.status->references();
  auto const planHeld = rig.lpmTreadCfg->references();
  {
    auto const sm = rig.bringUp();
    EXPECT_EQ(rig.status->references(), held + 1);
    EXPECT_EQ(rig.lpmTreadCfg->references(), planHeld + 1);
  }
  EXPECT_EQ(rig.status->references(), held);
  EXPECT_EQ(rig.lpmTreadCfg->references(), planHeld);
}

/// Notes in a book that the last reference to its notifier has gone.
template <class Entity>
class LastWord : public Entity::NotifieeConst {
 public:
  LastWord(Mox::Ptr<Entity> const& entity, char const* word, Lines& book)
      : word_(word), book_(book) {
    this->isWeakReferenceIs(true);
    this->notifierIs(entity);
    this->isRegisteredNotifieeIs(true);
  }
  void onZeroReferences() override {
    book_.push_back(word_);
    this->notifierIs(nullptr);
  }

 private:
  std::string word_;
  Lines& book_;
};

TEST(TableManSmObjectTest, LetsGoOfThePlanAheadOfTheStatus) {
  Rig rig(bareProfile());
  Lines book;
  auto status = chipStatusFactory("own");
  Mox::Ptr<XpLib::Config::LpmTreadCfg> plan = new XpLib::Config::LpmTreadCfg("plan");
  Mox::Ptr<LastWord<ChipStatus>> const ofStatus = new LastWord<ChipStatus>(status, "status", book);
  Mox::Ptr<LastWord<XpLib::Config::LpmTreadCfg>> const ofPlan =
      new LastWord<XpLib::Config::LpmTreadCfg>(plan, "plan", book);
  auto sm = tableManSmFactory(0, status, XpXdk::xpDeviceLdePipeMode3, true, plan);
  status = nullptr;
  plan = nullptr;
  EXPECT_EQ(book, Lines());
  sm = nullptr;
  EXPECT_EQ(book, (Lines{"plan", "status"}));
}

TEST(TableManSmObjectTest, IsMarkedForDeletionWhileItLetsGo) {
  struct Watch : XpLib::Config::LpmTreadCfg::NotifieeConst {
    void onZeroReferences() override {
      word = sm->referenceWord();
      notifierIs(nullptr);
    }
    TableManSm const* sm = nullptr;
    U32 word = 0;
  };
  Rig rig(bareProfile());
  Mox::Ptr<XpLib::Config::LpmTreadCfg> plan = new XpLib::Config::LpmTreadCfg("plan");
  Mox::Ptr<Watch> const watch = new Watch;
  watch->isWeakReferenceIs(true);
  watch->notifierIs(plan);
  watch->isRegisteredNotifieeIs(true);
  auto sm = tableManSmFactory(0, rig.status, XpXdk::xpDeviceLdePipeMode3, true, plan);
  watch->sm = sm.ptr();
  plan = nullptr;
  sm = nullptr;
  EXPECT_EQ(watch->word & 0x80000000, 0x80000000);
}

TEST(TableManSmObjectTest, ExceptionInTheBringUpReleasesStatusAndPlan) {
  Rig rig;
  auto const held = rig.status->references();
  auto const planHeld = rig.lpmTreadCfg->references();
  rig.sim.callLogIs([](std::string_view) { throw std::runtime_error("no"); });
  EXPECT_THROW(rig.bringUp(), std::runtime_error);
  EXPECT_EQ(rig.status->references(), held);
  EXPECT_EQ(rig.lpmTreadCfg->references(), planHeld);
}

// The slots of the virtual operations, read out of member pointers as the compiler lays them down.
template <class Member>
std::size_t slot(Member member) {
  std::size_t word;
  static_assert(sizeof member >= sizeof word);
  std::memcpy(&word, &member, sizeof word);
  return (word - 1) / sizeof(void*);
}

TEST(TableManSmObjectTest, ZombieOperationHasTheLastSlot) {
  EXPECT_EQ(slot(&TableManSm::hasNotificationActiveIs), 0u);
  EXPECT_EQ(slot(&TableManSm::moxAuditErrors), 1u);
  EXPECT_EQ(slot(&TableManSm::auditErrors), 2u);
  EXPECT_EQ(slot(&TableManSm::zeroReferencesIs), 3u);
  EXPECT_EQ(slot(&TableManSm::fwkType), 4u);
  EXPECT_EQ(slot(&TableManSm::moxDoZombieReactors), 7u);
}

}  // namespace
}  // namespace Kestrel::xpTableManSm
