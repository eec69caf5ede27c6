// Scalars by number: what is read, written and refused.
#include "everyShape/everyShape.h"

#include <gtest/gtest.h>

namespace {

using Mox::GenericIf;

struct ReadWriteTest : testing::Test {
  Mox::Ptr<everyShape::Every> every = everyShape::everyFactory("e0", 7);
  GenericIf::Ptr face = every->fwkType()->genericIf_(every.ptr(), false);
};

TEST_F(ReadWriteTest, AScalarIsReadAndWritten) {
  auto const number = Mox::primitiveIf(U32{5}, false);
  face->attributeOp({259, GenericIf::opWrite}, nullptr, number);
  EXPECT_EQ(every->level(), 5u);
  EXPECT_STREQ(face->attributeOp({259})->strRep().charPtr(), "5");
  EXPECT_EQ(face->attributeId("level"), 259u);
}

TEST_F(ReadWriteTest, WalksACollection) {
  every->bytesIs(1, 10);
  every->bytesIs(2, 20);
  Mox::String8 text;
  for (auto at = face->attributeIteratorConst(267); at; ++at)
    text += at.key()->strRep() + "=" + at.obj()->strRep() + " ";
  EXPECT_STREQ(text.charPtr(), "2=20 1=10 ");
}

}  // namespace
