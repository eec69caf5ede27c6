// The virtual operations of the runtime's bases stand in the slots that the platform's binaries
// expect.  A slot is read out of a pointer to member.
#include "Mox/Entity.h"
#include "Mox/HashMapVTable.h"

#include <cstring>
#include <gtest/gtest.h>

namespace Mox {
namespace {

// In this ABI, a pointer to a virtual member holds the offset of its slot plus one.
template <class Member>
std::size_t slotOf(Member member) {
  std::ptrdiff_t offsetPlusOne = 0;
  std::memcpy(&offsetPlusOne, &member, sizeof offsetPlusOne);
  EXPECT_EQ(offsetPlusOne % static_cast<std::ptrdiff_t>(sizeof(void*)), 1) << "not virtual";
  return static_cast<std::size_t>(offsetPlusOne - 1) / sizeof(void*);
}

// The destructor has two entries, and no pointer to member.
constexpr std::size_t destructorEntries = 2;

TEST(SlotsTest, CountedObject) {
  EXPECT_EQ(slotOf(&PtrInterface::hasNotificationActiveIs), 0u);
  EXPECT_EQ(slotOf(&PtrInterface::moxAuditErrors), 1u);
  EXPECT_EQ(slotOf(&PtrInterface::auditErrors), 2u);
  EXPECT_EQ(slotOf(&PtrInterface::zeroReferencesIs), 3u);
  EXPECT_EQ(slotOf(&PtrInterface::fwkType), 4u);
}

TEST(SlotsTest, Entity) {
  using Log = Ptr<NboAttrLog::Out const> const&;
  using Sa = Entity::MoxNboAttrLogSa;
  std::size_t const slots[] = {
      slotOf(&Entity::name),
      slotOf(static_cast<Ptr<Entity const> (Entity::*)() const>(&Entity::parent)),
      slotOf(static_cast<Ptr<Entity> (Entity::*)()>(&Entity::parent)),
      slotOf(&Entity::parentIs),
      slotOf(&Entity::parentAttr),
      slotOf(&Entity::parentAttrId),
      slotOf(&Entity::parentAttrIdIs),
      slotOf(&Entity::uriPath),
      slotOf(&Entity::fullName),
      slotOf(&Entity::attributeString),
      slotOf(&Entity::moxNotifieeAdapterIs),
      slotOf(&Entity::handleParent),
      slotOf(static_cast<Ptr<Sa const> (Entity::*)(Log) const>(&Entity::moxNboAttrLogSa)),
      slotOf(&Entity::moxHasAttrLogInterface),
      slotOf(static_cast<Ptr<Sa> (Entity::*)(Log)>(&Entity::moxNboAttrLogSa)),
      slotOf(&Entity::moxNboAttrLogSaForMsgChannel),
      slotOf(&Entity::moxNboAttrLogSaIs),
      slotOf(&Entity::moxNboAttrLogSaDel),
  };
  std::size_t expected = slotOf(&PtrInterface::fwkType) + destructorEntries;
  for (std::size_t slot : slots) EXPECT_EQ(slot, ++expected);
}

TEST(SlotsTest, Notifiee) {
  using Observer = PtrInterface::NotifieeConst;
  std::size_t const slots[] = {
      slotOf(&Observer::moxReactor),
      slotOf(&Observer::moxRawReactor),
      slotOf(&Observer::isStreamAdapter),
      slotOf(&Observer::isRegisteredNotifieeIs),
      slotOf(&Observer::mox_bitSetIs),
      slotOf(&Observer::name),
      slotOf(&Observer::notifierIs),
      slotOf(&Observer::handleNotification),
      slotOf(&Observer::handleDefault),
      slotOf(&Observer::onAttribute),
      slotOf(&Observer::onNotification),
      slotOf(&Observer::onCollectionNotification),
      slotOf(static_cast<void (Observer::*)()>(&Observer::onNotificationException)),
      slotOf(static_cast<void (Observer::*)(AttributeId)>(&Observer::onNotificationException)),
      slotOf(static_cast<void (Observer::*)(AttributeId)>(&Observer::handleNotificationException)),
      slotOf(static_cast<void (Observer::*)()>(&Observer::handleNotificationException)),
      slotOf(&Observer::onZeroReferences),
      slotOf(&Observer::activityPtr),
      slotOf(static_cast<ActivityConfig* (Observer::*)()>(&Observer::moxFwkActivity)),
      slotOf(static_cast<ActivityConfig const* (Observer::*)() const>(&Observer::moxFwkActivity)),
      slotOf(&Observer::actsm),
      slotOf(&Entity::NotifieeConst::onParent),
      slotOf(&Entity::NotifieeConst::onVersion),
  };
  std::size_t expected = slotOf(&PtrInterface::fwkType) + destructorEntries;
  for (std::size_t slot : slots) EXPECT_EQ(slot, ++expected);
}

TEST(SlotsTest, KeyOperationsOfHashMaps) {
  EXPECT_EQ(slotOf(&HashMapVTableGeneric::hash), 0u);
  EXPECT_EQ(slotOf(&HashMapVTableGeneric::keyEquals), 1u);
  EXPECT_EQ(slotOf(&HashMapVTableGeneric::keyLessThan), 2u);
  EXPECT_EQ(slotOf(&HashMapVTableGeneric::setNext), 3u);
}

}  // namespace
}  // namespace Mox
