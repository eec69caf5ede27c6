// What takes no storage: equal values, changes that nobody watches, delivery to a few.
#include "frame/TestLanguage.h"
#include "standin/mox/TestAllocations.h"

#include <gtest/gtest.h>

namespace frametest {
namespace {

/// Hears, and writes nothing down.
class Quiet : public everyShape::Derived::NotifieeConst {};

void changeScalars(everyShape::Derived& entity) {
  entity.levelIs(entity.level() + 1);
  entity.extraIs(entity.extra() + 1);
  entity.hitsInc(1);
}

TEST(AllocationTest, EqualValueTakesNothingAndChangesNoWord) {
  Watched every;
  Mox::String8 const text = "text";
  every->levelIs(4);
  every->bytesIs(1, 2);
  every->labelIs(text);
  U32 const version = every->version();
  U32 const reads = every->readCount();
  Allocations const taken;
  every->levelIs(4);
  every->bytesIs(1, 2);
  every->labelIs(text);
  EXPECT_EQ(taken.now(), 0u);
  EXPECT_EQ(every->version(), version);
  EXPECT_EQ(every->readCount(), reads);
}

TEST(AllocationTest, ChangeThatNobodyWatchesTakesNothing) {
  Mox::Ptr<everyShape::Derived> const entity = new everyShape::Derived("every", 1);
  entity->bytesIs(1, 2);
  Allocations const taken;
  changeScalars(*entity);
  entity->bytesIs(1, 3);
  EXPECT_EQ(taken.now(), 0u);
}

TEST(AllocationTest, DeliveryToEightTakesNothing) {
  Mox::Ptr<everyShape::Derived> const entity = new everyShape::Derived("every", 1);
  std::vector<Mox::Ptr<Quiet>> observers(8);
  for (auto& observer : observers) watch(observer = new Quiet, entity);
  Allocations const taken;
  changeScalars(*entity);
  EXPECT_EQ(taken.now(), 0u);
}

}  // namespace
}  // namespace frametest
