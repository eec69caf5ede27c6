// What docs/access-by-number.md shows, as a user would write it.
#include "Kestrel/Kestrel.h"

#include <gtest/gtest.h>
#include <iostream>
#include <sstream>

namespace {

TEST(AccessByNumberTest, TheExampleOfTheDocsDoesWhatItSays) {
  auto const entity = Mox::Ptr<Kestrel::FecCounters>(new Kestrel::FecCounters("fec0"));
  entity->bipErrorsIs(2, 9);
  Mox::MoxType const* type = entity->fwkType();
  Mox::GenericIf::Ptr face = type->genericIf_(entity.ptr(), false);
  Mox::GenericIf::Ptr seven = Mox::primitiveIf(U32{7}, false);
  Mox::GenericIf::Ptr eight = Mox::Builtin<U32>::_fwkType()->genericIf("8", false);
  EXPECT_STREQ(eight->strRep().charPtr(), "8");

  Mox::AttributeId id = face->attributeId("fecCorrected");
  face->attributeOp({id, Mox::GenericIf::opWrite}, Mox::GenericIf::notGiven, seven);
  EXPECT_STREQ(face->attributeOp({id})->strRep().charPtr(), "7");
  U32 number = Mox::primitiveIn<U32>(face->attributeOp({id}));
  EXPECT_EQ(number, 7u);

  std::ostringstream out;
  for (auto at = face->attributeIteratorConst(face->attributeId("bipErrors")); at; ++at)
    out << at.key()->strRep() << ' ' << at.obj()->strRep() << '\n';
  EXPECT_EQ(out.str(), "2 9\n");

  Mox::Ptr<Mox::GenericIf::List_> fields = new Mox::GenericIf::List_;
  fields->genericIfEnq(Mox::primitiveIf(S8{-3}, true));
  Mox::GenericIf::Ptr eq = Kestrel::TxEq::_fwkType()
                               ->genericIf("Value('Kestrel::TxEq', ** {})", false)
                               ->genericIfListConstructor(fields);
  EXPECT_STREQ(eq->strRep().charPtr(),
               "Value('Kestrel::TxEq', ** {'atten': -3, 'pre': 0, 'post': 0})");
}

}  // namespace
