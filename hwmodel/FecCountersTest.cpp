// Kestrel::FecCounters: the smallest entity with scalars and collections.
#include "Kestrel/FecCounters.h"

#include <cstring>
#include <gtest/gtest.h>

namespace Kestrel {
namespace {

class Watcher : public FecCounters::NotifieeConst {
 public:
  std::string heard;

  void onFecCorrected() override { heard += "fecCorrected;"; }
  void onFecUncorrected() override { heard += "fecUncorrected;"; }
  void onFecSymbolErrors(U8 key) override {
    heard += "fecSymbolErrors " + std::to_string(key) + ";";
  }
  void onBipErrors(U8 key) override { heard += "bipErrors " + std::to_string(key) + ";"; }
  void onFecLaneAlignment() override { heard += "fecLaneAlignment;"; }
  void onFecLaneMapping() override { heard += "fecLaneMapping;"; }
  void onFecLocked() override { heard += "fecLocked;"; }
};

class FecCountersTest : public testing::Test {
 protected:
  FecCountersTest() {
    watcher->notifierIs(fec);
    watcher->isRegisteredNotifieeIs(true);
  }

  FecCounters::Ptr fec = new FecCounters("fec0");
  Mox::Ptr<Watcher> watcher = new Watcher;
};

TEST_F(FecCountersTest, StartsAtItsDefaults) {
  EXPECT_EQ(fec->fecCorrected(), 0u);
  EXPECT_EQ(fec->fecUncorrected(), 0u);
  EXPECT_EQ(fec->fecSymbolErrorsCount(), 0u);
  EXPECT_EQ(fec->bipErrorsCount(), 0u);
  EXPECT_EQ(fec->fecLaneAlignment(), 0);
  EXPECT_EQ(fec->fecLaneMapping(), 0u);
  EXPECT_FALSE(fec->fecLocked());
}

TEST_F(FecCountersTest, EqualValueIsNoChange) {
  fec->fecCorrectedIs(0);
  EXPECT_EQ(fec->version(), 0u);
  EXPECT_EQ(watcher->heard, "");
}

TEST_F(FecCountersTest, ZeroUnderANewKeyIsAnElement) {
  EXPECT_EQ(fec->fecSymbolErrors(1), 0u);
  fec->fecSymbolErrorsIs(1, 0);
  EXPECT_EQ(fec->fecSymbolErrorsCount(), 1u);
  EXPECT_EQ(fec->version(), 1u);
  EXPECT_EQ(watcher->heard, "fecSymbolErrors 1;");
}

TEST_F(FecCountersTest, DeletingAMissingKeyGivesZeroAndNoHook) {
  U32 const version = fec->version();
  EXPECT_EQ(fec->fecSymbolErrorsDel(1), 0u);
  EXPECT_EQ(fec->version(), version);
  EXPECT_EQ(watcher->heard, "");
}

TEST_F(FecCountersTest, EachAttributeHasItsHook) {
  fec->fecCorrectedIs(1);
  fec->fecUncorrectedIs(1);
  fec->fecSymbolErrorsIs(3, 1);
  fec->bipErrorsIs(4, 1);
  fec->fecLaneAlignmentIs(15);
  fec->fecLaneMappingIs(1);
  fec->fecLockedIs(true);
  EXPECT_EQ(watcher->heard,
            "fecCorrected;fecUncorrected;fecSymbolErrors 3;bipErrors 4;fecLaneAlignment;"
            "fecLaneMapping;fecLocked;");
  EXPECT_EQ(fec->version(), 7u);
}

TEST_F(FecCountersTest, LaneAlignmentHasFourBits) {
  EXPECT_THROW(fec->fecLaneAlignmentIs(16), Mox::RangeException);
  EXPECT_EQ(fec->fecLaneAlignment(), 0);
}

TEST_F(FecCountersTest, AttributesAreNamedByNumber) {
  EXPECT_EQ(fec->attributeString(258), "fecCorrected");
  EXPECT_EQ(fec->attributeString(264), "fecLocked");
  EXPECT_EQ(fec->attributeString(265), "unknown");
}

// In this ABI a pointer to a virtual member holds the offset of its slot plus one.
template <class Member>
std::ptrdiff_t slotOf(Member member) {
  std::ptrdiff_t offset = 0;
  std::memcpy(&offset, &member, sizeof offset);
  return offset / static_cast<std::ptrdiff_t>(sizeof(void*));
}

TEST_F(FecCountersTest, HooksStandBehindThoseOfTheBaseInOrder) {
  using Observer = FecCounters::NotifieeConst;
  using Plain = void (Observer::*)();
  using Keyed = void (Observer::*)(U8);
  std::ptrdiff_t const slots[] = {
      slotOf(&Observer::onFecCorrected),
      slotOf(&Observer::onFecUncorrected),
      slotOf(static_cast<Keyed>(&Observer::onFecSymbolErrors)),
      slotOf(&Observer::onFecSymbolErrorsmoxImmediate),
      slotOf(static_cast<Plain>(&Observer::onFecSymbolErrors)),
      slotOf(static_cast<Keyed>(&Observer::onBipErrors)),
      slotOf(&Observer::onBipErrorsmoxImmediate),
      slotOf(static_cast<Plain>(&Observer::onBipErrors)),
      slotOf(&Observer::onFecLaneAlignment),
      slotOf(&Observer::onFecLaneMapping),
      slotOf(&Observer::onFecLocked),
  };
  std::ptrdiff_t expected = slotOf(&Mox::Entity::NotifieeConst::onVersion);
  for (std::ptrdiff_t slot : slots) EXPECT_EQ(slot, ++expected);
}

}  // namespace
}  // namespace Kestrel
