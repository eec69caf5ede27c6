// Readers of enumerations store where they were asked to.
#include "frame/TestLanguage.h"
#include "Mox/Strep.h"

#include <gtest/gtest.h>

namespace frametest {
namespace {

TEST(EnumerationTest, ReaderStoresWhereItWasAskedTo) {
  everyShape::Mood mood = everyShape::calm;
  Mox::String8 const text("'tense'");
  auto at = text.begin();
  EXPECT_EQ(sequenceToValue(at, text.end(), &mood), everyShape::tense);
  EXPECT_EQ(mood, everyShape::tense);
}

}  // namespace
}  // namespace frametest
