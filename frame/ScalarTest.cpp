// Scalars and counters: what a change is, and what it does.
#include "frame/Scalar.h"
#include "frame/TestLanguage.h"

#include <gtest/gtest.h>

namespace frametest {
namespace {

TEST(ScalarTest, ChangeStoresStepsAndTellsOnce) {
  Watched every;
  every->levelIs(5);
  EXPECT_EQ(every->level(), 5u);
  EXPECT_EQ(every->version(), 1u);
  EXPECT_EQ(every.heard(), "level;");
}

TEST(ScalarTest, EqualValueIsNoChange) {
  Watched every;
  every->levelIs(0);
  EXPECT_EQ(every->version(), 0u);
  EXPECT_EQ(every->readCount(), 0u);
  EXPECT_EQ(every.heard(), "");
}

TEST(ScalarTest, DefaultsAreThoseOfTheSchema) {
  Watched every;
  EXPECT_EQ(every->gauge(), 7u);
  EXPECT_EQ(every->ratio(), 1.5);
  EXPECT_EQ(every->label(), "");
  EXPECT_EQ(every->mood(), everyShape::calm);
  EXPECT_EQ(every->bounded(), 0);
}

TEST(ScalarTest, EachReadIsCountedAlsoThroughAConstReference) {
  Watched every;
  everyShape::Derived const& constant = *every.entity;
  constant.level();
  constant.label();
  EXPECT_EQ(every->readCount(), 2u);
  EXPECT_EQ(every->version(), 0u);
}

TEST(ScalarTest, ParametersAreFixedAndReadable) {
  Watched every;
  EXPECT_EQ(every->port(), 3u);
  EXPECT_EQ(every->readCount(), 1u);
}

TEST(ScalarTest, EveryTypeOfValueChanges) {
  Watched every;
  every->gaugeIs(8);
  every->ratioIs(2.5);
  every->labelIs("up");
  every->mixIs(everyShape::Mix(1, -1, 2, 3, "x"));
  every->moodIs(everyShape::tense);
  every->boundedIs(15);
  EXPECT_EQ(every.heard(), "gauge;ratio;label;mix;mood;bounded;");
  EXPECT_EQ(every->version(), 6u);
}

TEST(ScalarTest, OutOfRangeFailsAheadOfTheMutator) {
  Watched every;
  EXPECT_THROW(every->boundedIs(16), Mox::RangeException);
  EXPECT_EQ(every->version(), 0u);
  EXPECT_EQ(every.heard(), "");
}

TEST(ScalarTest, CustomBodyTakesTheStepsPlace) {
  Watched every;
  every->oddIs(4);
  EXPECT_EQ(every->odd(), 5u);
}

TEST(CounterTest, ZeroDeltaCountsAReadAndNothingElse) {
  Watched every;
  EXPECT_EQ(every->hitsInc(0), 0u);
  EXPECT_EQ(every->readCount(), 1u);
  EXPECT_EQ(every->version(), 0u);
  EXPECT_EQ(every.heard(), "");
}

TEST(CounterTest, DeltaTellsButNeverStepsTheVersion) {
  Watched every;
  EXPECT_EQ(every->hitsInc(1), 1u);
  EXPECT_EQ(every->version(), 0u);
  EXPECT_EQ(every.heard(), "hits;");
}

TEST(CounterTest, WrapsAtItsWidth) {
  Watched every;
  every->hitsIs(0xFFFF);
  EXPECT_EQ(every->hitsInc(3), 2u);
}

TEST(CounterTest, PlainMutatorBehavesAsAScalar) {
  Watched every;
  every->hitsIs(9);
  every->hitsIs(9);
  EXPECT_EQ(every->version(), 1u);
  EXPECT_EQ(every.heard(), "hits;");
}

}  // namespace
}  // namespace frametest
