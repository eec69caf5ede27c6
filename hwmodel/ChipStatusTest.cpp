// The chip's status: what the device is, and its published tables.
#include "Kestrel/ChipStatus.h"
#include "XpXdk/TableContextEntry.h"

#include <gtest/gtest.h>
#include <string>
#include <utility>

namespace Kestrel {
namespace {

// Writes down what it hears.
class Listener : public ChipStatus::NotifieeConst {
 public:
  void onReady() override { note("ready"); }
  void onDeviceType() override { note("deviceType"); }
  void onDeviceSubType() override { note("deviceSubType"); }
  void onPortMappingTime() override { note("portMappingTime"); }
  void onTableContextEntry(U32 tableId) override {
    bool const stands = notifier()->tableContextEntryIteratorConst().isMemberOf(tableId);
    note((stands ? "table " : "no table ") + std::to_string(tableId));
  }

  std::string heard() { return std::exchange(heard_, ""); }

 private:
  void note(std::string const& what) { heard_ += (heard_.empty() ? "" : ", ") + what; }

  std::string heard_;
};

// Knows the platform's part alone.
class BaseListener : public Rye::Central::ChipStatus::NotifieeConst {
 public:
  void onReady() override { ++calls; }

  int calls = 0;
};

template <class Observer>
Mox::Ptr<Observer> observerOf(Mox::Ptr<ChipStatus> const& status) {
  Mox::Ptr<Observer> const observer = new Observer;
  observer->notifierIs(status);
  observer->isRegisteredNotifieeIs(true);
  return observer;
}

class ChipStatusTest : public testing::Test {
 protected:
  Mox::Ptr<ChipStatus> status = chipStatusFactory("chip");
  Mox::Ptr<Listener> listener = observerOf<Listener>(status);

  std::string heard() { return listener->heard(); }
};

TEST_F(ChipStatusTest, FreshStatusKnowsNothing) {
  EXPECT_EQ(status->name(), "chip");
  EXPECT_EQ(static_cast<int>(status->deviceType()), 0);
  EXPECT_EQ(static_cast<int>(status->deviceSubType()), 0);
  EXPECT_EQ(status->portMappingTime(), 0.0);
  EXPECT_EQ(status->tableContextEntryCount(), 0u);
  EXPECT_TRUE(status->moxHasAttrLogInterface());
  EXPECT_EQ(status->parent(), nullptr);
}

TEST_F(ChipStatusTest, ChangesAreHeardAndCounted) {
  status->deviceTypeIs(XpXdk::xpDeviceTypeXp80);
  status->deviceSubTypeIs(XpXdk::xpDeviceSubTypeXp80B);
  status->portMappingTimeIs(2.5);
  EXPECT_EQ(heard(), "deviceType, deviceSubType, portMappingTime");
  EXPECT_EQ(status->version(), 3u);
  EXPECT_EQ(status->portMappingTime(), 2.5);
}

TEST_F(ChipStatusTest, ValueThatIsHeldIsNoChange) {
  status->deviceTypeIs(XpXdk::xpDeviceTypeUnknown);
  status->deviceSubTypeIs(XpXdk::xpDeviceSubTypeUnknown);
  status->portMappingTimeIs(0.0);
  EXPECT_EQ(heard(), "");
  EXPECT_EQ(status->version(), 0u);
}

TEST_F(ChipStatusTest, ObserverOfTheBaseHearsOfTheBaseAlone) {
  auto const base = observerOf<BaseListener>(status);
  status->deviceTypeIs(XpXdk::xpDeviceTypeXp80);
  status->tableContextEntryIs(3, "T");
  EXPECT_EQ(base->calls, 0);
  status->readyIs(true);
  EXPECT_EQ(base->calls, 1);
  EXPECT_EQ(heard(), "deviceType, table 3, ready");
}

TEST_F(ChipStatusTest, MissingEntryIsMadeAndAnnounced) {
  auto const entry = status->tableContextEntryIs(31, "INGRESS_BD");
  EXPECT_EQ(entry->tableId(), 31u);
  EXPECT_EQ(entry->tableName(), "INGRESS_BD");
  EXPECT_EQ(entry->parent(), status);
  EXPECT_EQ(status->tableContextEntry(31), entry);
  EXPECT_EQ(heard(), "table 31");
  EXPECT_EQ(status->version(), 1u);
}

TEST_F(ChipStatusTest, EntryThatExistsKeepsItsFirstName) {
  auto const entry = status->tableContextEntryIs(31, "INGRESS_BD");
  heard();
  EXPECT_EQ(status->tableContextEntryIs(31, "OTHER"), entry);
  EXPECT_EQ(entry->tableName(), "INGRESS_BD");
  EXPECT_EQ(heard(), "");
  EXPECT_EQ(status->version(), 1u);
}

TEST_F(ChipStatusTest, NewEntryIsNotAnnounced) {
  status->newTableContextEntry(31, "INGRESS_BD");
  EXPECT_EQ(heard(), "");
  EXPECT_EQ(status->version(), 0u);
  status->tableContextEntryNotify(31);
  EXPECT_EQ(heard(), "table 31");
}

TEST_F(ChipStatusTest, MissingEntryIsNull) {
  EXPECT_EQ(status->tableContextEntry(31), nullptr);
  EXPECT_EQ(status->tableContextEntryDel(31), nullptr);
  EXPECT_EQ(heard(), "");
}

TEST_F(ChipStatusTest, DeletedEntryIsHandedBackAlone) {
  auto const entry = status->tableContextEntryIs(31, "INGRESS_BD");
  heard();
  EXPECT_EQ(status->tableContextEntryDel(31), entry);
  EXPECT_EQ(entry->parent(), nullptr);
  EXPECT_EQ(heard(), "no table 31");
}

// In the order of the walk, which is by the reversed bits of the id.
TEST_F(ChipStatusTest, DelAllAnnouncesEach) {
  for (U32 id : {1u, 2u, 3u, 4u}) status->tableContextEntryIs(id, "T");
  heard();
  status->tableContextEntryDelAll();
  EXPECT_EQ(heard(), "no table 4, no table 2, no table 1, no table 3");
  EXPECT_EQ(status->tableContextEntryCount(), 0u);
}

}  // namespace
}  // namespace Kestrel
