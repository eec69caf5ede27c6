// Chips: what they are, the access to their hardware, and what that reports.
#include "Kestrel/AllChipHwConfig.h"
#include "Kestrel/ChipConfig.h"
#include "Kestrel/ChipHwStatus.h"
#include "hwmodel/SampleTest.h"

namespace Kestrel {
namespace {

class ConfigListener : public ChipConfig::NotifieeConst {
 public:
  void onDeviceType() override { ++calls; }
  int calls = 0;
};

class ConfigBaseListener : public Rye::Central::ChipConfig::NotifieeConst {
 public:
  void onEnabled() override { ++calls; }
  int calls = 0;
};

TEST(ChipConfigTest, DeviceTypeThatIsHeldIsNoChange) {
  auto const chip = chipConfigFactory("chip");
  auto const listener = observerOf<ConfigListener>(chip);
  EXPECT_EQ(static_cast<int>(chip->deviceType()), 0);
  chip->deviceTypeIs(XpXdk::xpDeviceTypeUnknown);
  EXPECT_EQ(chip->version(), 0u);
  EXPECT_EQ(listener->calls, 0);
}

TEST(ChipConfigTest, ObserverOfTheBaseHearsOfTheBaseAlone) {
  auto const chip = chipConfigFactory("chip");
  auto const base = observerOf<ConfigBaseListener>(chip);
  auto const own = observerOf<ConfigListener>(chip);
  chip->deviceTypeIs(XpXdk::xpDeviceTypeXp80);
  EXPECT_EQ(base->calls, 0);
  EXPECT_EQ(own->calls, 1);
  chip->enabledIs(false);
  EXPECT_EQ(base->calls, 1);
}

// Writes down which change it hears of.
class Listener : public ChipHwConfig::NotifieeConst {
 public:
  void onHam() override { heard += "ham;"; }
  void onReset() override { heard += "reset;"; }
  void onResetPlls(U8 key) override { heard += "resetPlls " + std::to_string(key) + ";"; }
  std::string heard;
};

class BaseListener : public Rye::Central::ChipHwConfig::NotifieeConst {
 public:
  void onChipNumber() override { ++calls; }
  int calls = 0;
};

// What a chip's access is made of, one of which a story changes.
struct Access {
  Mox::Name name = "ham";
  U32 offset = 1;
  U32 size = 2;
  Mox::String8 path = "/ham";
  Mox::Name deviceName = "device";
  Mox::String8 driver = "driver";
  Inventory::PciAddress pciAddress{0, 1, 2, 3};
  Inventory::PciId pciId{4, 5};
  bool writable = true;
};

class ChipHwConfigTest : public testing::Test {
 protected:
  Mox::Ptr<Fru::PciHam> ask(Access const& a) {
    return chip->hamIs(a.name, a.offset, a.size, a.path, a.deviceName, a.driver, a.pciAddress,
                       a.pciId, a.writable);
  }

  Access const first{};
  Mox::Ptr<ChipHwConfig> const chip = chipHwConfigFactory("chip");
  Mox::Ptr<Listener> const listener = observerOf<Listener>(chip);
};

TEST_F(ChipHwConfigTest, HamIsMadeOfItsNineParameters) {
  auto const ham = ask(first);
  EXPECT_EQ(ham->name(), "ham");
  EXPECT_EQ(ham->offset(), 1u);
  EXPECT_EQ(ham->size(), 2u);
  EXPECT_EQ(ham->path(), "/ham");
  EXPECT_EQ(ham->deviceName(), "device");
  EXPECT_EQ(ham->driver(), "driver");
  EXPECT_TRUE(ham->pciAddress() == Inventory::PciAddress(0, 1, 2, 3));
  EXPECT_TRUE(ham->pciId() == Inventory::PciId(4, 5));
  EXPECT_TRUE(ham->writable());
  EXPECT_EQ(ham->parent(), chip);
  EXPECT_EQ(ham->parentAttrId(), 386u);
}

TEST_F(ChipHwConfigTest, EqualParametersAreNoChangeAtAll) {
  auto const ham = ask(first);
  EXPECT_EQ(ask(first), ham);
  EXPECT_EQ(chip->version(), 1u);
  EXPECT_EQ(listener->heard, "ham;");
}

TEST_F(ChipHwConfigTest, OtherPciAddressMakesANewHam) {
  auto const old = ask(first);
  Access other = first;
  other.pciAddress = Inventory::PciAddress(0, 1, 2, 4);
  auto const ham = ask(other);
  EXPECT_NE(ham, old);
  EXPECT_EQ(chip->ham(), ham);
  EXPECT_EQ(old->parent(), nullptr);
  EXPECT_EQ(ham->parent(), chip);
  EXPECT_EQ(chip->version(), 3u);
  EXPECT_EQ(listener->heard, "ham;ham;");
}

TEST_F(ChipHwConfigTest, EachParameterCounts) {
  std::vector<Access> others(9, first);
  others[0].name = "other";
  others[1].offset = 9;
  others[2].size = 9;
  others[3].path = "/other";
  others[4].deviceName = "other";
  others[5].driver = "other";
  others[6].pciAddress = Inventory::PciAddress();
  others[7].pciId = Inventory::PciId();
  others[8].writable = false;
  for (Access const& other : others) {
    auto const ham = ask(first);
    EXPECT_NE(ask(other), ham);
  }
}

TEST_F(ChipHwConfigTest, HamIsTakenAway) {
  EXPECT_EQ(chip->hamDel(), nullptr);
  auto const ham = ask(first);
  EXPECT_EQ(chip->hamDel(), ham);
  EXPECT_EQ(ham->parent(), nullptr);
  EXPECT_EQ(chip->ham(), nullptr);
  EXPECT_EQ(chip->version(), 2u);
  EXPECT_EQ(listener->heard, "ham;ham;");
}

TEST_F(ChipHwConfigTest, NullIsStoredUnderAKeyThatIsGiven) {
  chip->resetPllsIs(1, nullptr);
  chip->coreClockSourceSelectGpoIs(1, nullptr);
  chip->coreSpeedSelectGpoIs(1, nullptr);
  chip->pllLockStatusIs(1, nullptr);
  EXPECT_EQ(chip->resetPllsCount(), 1u);
  EXPECT_EQ(chip->coreClockSourceSelectGpoCount(), 1u);
  EXPECT_EQ(chip->coreSpeedSelectGpoCount(), 1u);
  EXPECT_EQ(chip->pllLockStatusCount(), 1u);
  EXPECT_EQ(chip->version(), 4u);
  EXPECT_EQ(listener->heard, "resetPlls 1;");
}

TEST_F(ChipHwConfigTest, NullIsRefusedWhereTheElementGivesTheKey) {
  EXPECT_EQ(complaintOf<Mox::RangeException>([&] { chip->extPllsStatusIs(nullptr); }),
            "null _extPllsStatus parameter to mutator for Kestrel::ChipHwConfig::extPllsStatus not "
            "allowed\"");
  EXPECT_EQ(complaintOf<Mox::RangeException>([&] { chip->serdesIs(nullptr); }),
            "null _serdes parameter to mutator for Kestrel::ChipHwConfig::serdes not allowed\"");
  EXPECT_EQ(chip->version(), 0u);
}

TEST_F(ChipHwConfigTest, SerdesStandUnderTheirOwnNumber) {
  auto const two = sampleConfig("a", 2);
  auto const three = sampleConfig("b", 3);
  chip->serdesIs(two);
  chip->serdesIs(three);
  EXPECT_EQ(chip->serdes(XpSerdesId(2)), two);
  EXPECT_EQ(chip->serdes(XpSerdesId(3)), three);
  EXPECT_EQ(chip->serdesDel(XpSerdesId(2)), two);
  EXPECT_EQ(chip->serdesCount(), 1u);
}

TEST_F(ChipHwConfigTest, ObserverOfTheBaseHearsOfTheBaseAlone) {
  auto const base = observerOf<BaseListener>(chip);
  ask(first);
  chip->resetIs(new Fru::Gpo("reset"));
  chip->resetPllsIs(1, nullptr);
  EXPECT_EQ(base->calls, 0);
  chip->chipNumberIs(1);
  EXPECT_EQ(base->calls, 1);
  EXPECT_EQ(listener->heard, "ham;reset;resetPlls 1;");
}

TEST(AllChipHwConfigTest, PortsAreFoundByNumber) {
  auto const all = allChipHwConfigFactory("chip");
  auto const port = all->portHwConfigIs(17);
  EXPECT_EQ(all->portHwConfigIs(17), port);
  EXPECT_EQ(all->portHwConfig(17), port);
  EXPECT_EQ(all->portHwConfig(18), nullptr);
  EXPECT_EQ(port->parent(), all);
  EXPECT_EQ(port->parentAttrId(), 259u);
  EXPECT_EQ(all->version(), 1u);
}

TEST(AllChipHwConfigTest, LookingForAPortReadsNoPort) {
  auto const all = allChipHwConfigFactory("chip");
  auto const port = all->portHwConfigIs(17);
  all->portHwConfig(17);
  EXPECT_EQ(port->readCount(), 0u);
}

TEST(AllChipHwConfigTest, ChipStandsUnderIt) {
  auto const all = allChipHwConfigFactory("all");
  auto const chip = all->chipHwConfigIs("chip");
  EXPECT_EQ(chip->parent(), all);
  EXPECT_EQ(chip->parentAttrId(), 258u);
  EXPECT_EQ(all->chipHwConfigIs("chip"), chip);
  EXPECT_EQ(all->version(), 2u);
}

TEST(ChipHwStatusTest, PortsStandUnderItByTheirNumber) {
  auto const chip = chipHwStatusFactory("chip");
  auto const port = chip->portStatusIs(XpPortId(7));
  EXPECT_EQ(chip->portStatusIs(XpPortId(7)), port);
  EXPECT_EQ(chip->portStatus(XpPortId(7)), port);
  EXPECT_EQ(port->parent(), chip);
  EXPECT_EQ(port->parentAttrId(), 258u);
  EXPECT_EQ(chip->version(), 1u);
}

TEST(ChipHwStatusTest, NullIsNoSerdes) {
  auto const chip = chipHwStatusFactory("chip");
  EXPECT_EQ(complaintOf<Mox::RangeException>([&] { chip->serdesIs(nullptr); }),
            "null _serdes parameter to mutator for Kestrel::ChipHwStatus::serdes not allowed\"");
}

}  // namespace
}  // namespace Kestrel
