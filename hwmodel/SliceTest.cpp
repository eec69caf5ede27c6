// Slices: their port groups and their chips.
#include "Kestrel/SliceHwConfig.h"
#include "Kestrel/SliceHwStatus.h"
#include "hwmodel/SampleTest.h"

namespace Kestrel {
namespace {

class Listener : public SliceHwConfig::NotifieeConst {
 public:
  void onXpPortGroupList(Mox::Name key) override { note("xpPortGroupList", key.stringValue()); }
  void onXpPortGroupDefault(Mox::String8 key) override { note("xpPortGroupDefault", key); }
  std::string heard;

 private:
  void note(std::string const& what, Mox::String8 const& key) {
    heard += what + " " + std::string(key.view()) + ";";
  }
};

class BaseListener : public Rye::Central::SliceHwConfig::NotifieeConst {
 public:
  void onSliceNumber() override { ++calls; }
  int calls = 0;
};

class SliceHwConfigTest : public testing::Test {
 protected:
  Mox::Ptr<SliceHwConfig> const slice = sliceHwConfigFactory("slice");
  Mox::Ptr<Listener> const listener = observerOf<Listener>(slice);
};

TEST_F(SliceHwConfigTest, AttributesOfAllLevelsHaveNamesAndOthersAreUnknown) {
  EXPECT_EQ(slice->attributeString(387), "xpPortGroupDefault");
  EXPECT_EQ(slice->attributeString(258), "sliceNumber");
  EXPECT_EQ(slice->attributeString(388), "unknown");
}

TEST_F(SliceHwConfigTest, GroupThatIsThereIsGivenAndNobodyIsTold) {
  auto const group = slice->xpPortGroupListIs("group");
  EXPECT_EQ(slice->xpPortGroupListIs("group"), group);
  EXPECT_EQ(group->parent(), slice);
  EXPECT_EQ(group->parentAttrId(), 386u);
  EXPECT_EQ(slice->version(), 1u);
  EXPECT_EQ(listener->heard, "xpPortGroupList group;");
}

TEST_F(SliceHwConfigTest, NewDefaultIsToldAndTheSameOneIsNot) {
  slice->xpPortGroupDefaultIs("group", "4x25G");
  slice->xpPortGroupDefaultIs("group", "1x100G");
  slice->xpPortGroupDefaultIs("group", "1x100G");
  EXPECT_EQ(slice->xpPortGroupDefault("group"), "1x100G");
  EXPECT_EQ(slice->version(), 2u);
  EXPECT_EQ(listener->heard, "xpPortGroupDefault group;xpPortGroupDefault group;");
}

TEST_F(SliceHwConfigTest, ObserverOfTheBaseHearsOfTheBaseAlone) {
  auto const base = observerOf<BaseListener>(slice);
  slice->xpPortGroupListIs("group");
  slice->xpPortGroupDefaultIs("group", "4x25G");
  EXPECT_EQ(base->calls, 0);
  slice->sliceNumberIs(2);
  EXPECT_EQ(base->calls, 1);
}

class StatusListener : public SliceHwStatus::NotifieeConst {
 public:
  void onChipStatus(Mox::Name) override { ++calls; }
  int calls = 0;
};

class StatusBaseListener : public Rye::Central::SliceHwStatus::NotifieeConst {
 public:
  void onReady() override { ++calls; }
  int calls = 0;
};

TEST(SliceHwStatusTest, ChipsStandUnderTheSlice) {
  auto const slice = sliceHwStatusFactory("slice");
  auto const listener = observerOf<StatusListener>(slice);
  auto const base = observerOf<StatusBaseListener>(slice);
  auto const chip = slice->chipStatusIs("chip");
  EXPECT_EQ(slice->chipStatusIs("chip"), chip);
  EXPECT_EQ(chip->parent(), slice);
  EXPECT_EQ(chip->parentAttrId(), 386u);
  EXPECT_EQ(chip->fullName(), "slice/chip");
  EXPECT_EQ(listener->calls, 1);
  EXPECT_EQ(base->calls, 0);
}

TEST(SliceHwStatusTest, UnknownAttributesAreUnknown) {
  auto const slice = sliceHwStatusFactory("slice");
  EXPECT_EQ(slice->attributeString(386), "chipStatus");
  EXPECT_EQ(slice->attributeString(387), "unknown");
}

}  // namespace
}  // namespace Kestrel
