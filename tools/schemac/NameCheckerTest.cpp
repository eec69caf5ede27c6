// The rules on names, each with the words in which a breach is reported.
#include "tools/schemac/Story.h"

#include <gtest/gtest.h>

namespace schemac {

namespace {

using story::errors;
using story::inEntity;

TEST(NameCheckerTest, NoTwoRowsMakeOneName) {
  EXPECT_EQ(inEntity("258 scalar a U8\n259 scalar aIs U8"),
            "s:4:1: error: \"aIs\" of \"aIs\" is made for \"a\" too\n");
  EXPECT_EQ(inEntity("258 scalar aInc U8\n259 counter a U8"),
            "s:4:1: error: \"aInc\" of \"a\" is made for \"aInc\" too\n");
  EXPECT_EQ(inEntity("258 map a U8 -> U8\n259 operation aCount () const"),
            "s:4:1: error: \"aCount\" of \"aCount\" is made for \"a\" too\n");
  EXPECT_EQ(inEntity("258 map a U8 -> U8\n259 scalar amoxImmediate U8"),
            "s:4:1: error: \"NotifieeConst::onAmoxImmediate\" of \"amoxImmediate\" is made for "
            "\"a\" too\n");
  EXPECT_EQ(inEntity("258 scalar a U8\n259 scalar aInc U8\n260 operation onA ()"), "");
}

TEST(NameCheckerTest, ATagHidesNoClassOfNodes) {
  EXPECT_EQ(inEntity("258 map a U8 -> U8\n259 scalar moxA U8"),
            "s:4:1: error: \"Tags::MoxA\" of \"moxA\" hides \"MoxA\" of \"a\"\n");
}

TEST(NameCheckerTest, ATagHasTypesOfItsOwn) {
  EXPECT_EQ(inEntity("258 scalar value U8"),
            "s:3:1: error: \"Tags::Value\" of \"value\" has a type of that name itself\n");
  EXPECT_EQ(inEntity("258 scalar key U8"), "");
}

TEST(NameCheckerTest, NoRowMakesWhatItsKindHas) {
  EXPECT_EQ(inEntity("258 scalar version U8"),
            "s:3:1: error: \"version\" of \"version\" is a name that each entity has already\n");
  EXPECT_EQ(inEntity("258 scalar attribute U8"),
            "s:3:1: error: \"NotifieeConst::onAttribute\" of \"attribute\" is a name that each "
            "entity has already\n");
  EXPECT_EQ(inEntity("258 operation constructor (a U8)"),
            "s:3:1: error: \"::constructorArgs\" of \"constructor\" is a name that each entity has "
            "already\n");
  EXPECT_EQ(inEntity("258 operation xType ()"),
            "s:3:1: error: \"xType\" of \"xType\" is a name that each entity has already\n");
  EXPECT_EQ(errors("object X\n130 field references U8\nend\n"),
            "s:3:1: error: \"references\" of \"references\" is a name that each object has "
            "already\n");
  EXPECT_EQ(errors("value X\n2 fwkType U8\nend\n"),
            "s:3:1: error: \"fwkType\" of \"fwkType\" is a name that each value has already\n");
  EXPECT_EQ(errors("value X\n2 version U8\n3 name U8\nend\n"), "");
}

TEST(NameCheckerTest, NoTagIsCalledLikeWhatItStandsIn) {
  EXPECT_EQ(errors("value X\n2 map tags U8 -> U8\n3 a U8\nend\n"),
            "s:3:1: error: \"Tags::Tags\" of \"tags\" is a name that each value has already\n");
  EXPECT_EQ(inEntity("258 scalar mox U8"),
            "s:3:1: error: \"Tags::Mox\" of \"mox\" is a name that each entity has already\n");
}

TEST(NameCheckerTest, NoRowMakesTheNameOfAType) {
  EXPECT_EQ(errors("enum AMap\n0 a\nend\nentity X (name Mox::Name)\n258 map a U8 -> U8\nend\n"),
            "s:6:1: error: \"AMap\" of \"a\" is the name of a type\n");
  EXPECT_EQ(inEntity("258 scalar u8 U8"),
            "s:3:1: error: \"Tags::U8\" of \"u8\" is the name of a type\n");
  EXPECT_EQ(errors("extern primitive raw\nentity X (name Mox::Name)\n258 param raw U8\nend\n"),
            "s:4:1: error: \"raw\" is the name of a type\n"
            "s:4:1: error: \"raw\" is no constructor parameter of \"X\"\n");
}

TEST(NameCheckerTest, ARowMayBearTheNameOfItsType) { EXPECT_EQ(inEntity("258 scalar x U8"), ""); }

TEST(NameCheckerTest, NoRowMakesWhatABaseHas) {
  std::string const base = "entity B (name Mox::Name)\n258 scalar a U8\nend\n";
  EXPECT_EQ(errors(base + "entity X (name Mox::Name) : B\n386 computed aIs U8\nend\n"),
            "s:6:1: error: \"aIs\" of \"aIs\" is made for \"a\" of \"B\" too\n");
  EXPECT_EQ(errors(base + "entity X (name Mox::Name) : B\n386 scalar b U8\nend\n"), "");
}

TEST(NameCheckerTest, ABaseMayStandInAnotherFileOfTheRun) {
  Diagnostics diagnostics;
  check(story::builtin(),
        {story::parsed("module M\nentity B (name Mox::Name) : X\n386 scalar a U8\nend\n"
                       "extern entity X header h\n"),
         story::parsed("module N\nextern entity B header h\n"
                       "entity X (name Mox::Name) : B\n386 scalar a U8\nend\n")},
        diagnostics);
  EXPECT_EQ(diagnostics.text(),
            "s:3:1: error: \"a\" of \"a\" is made for \"a\" of \"X\" too\n"
            "s:4:1: error: \"a\" of \"a\" is made for \"a\" of \"B\" too\n");
}

TEST(NameCheckerTest, ParametersOfAllCallsDifferAndAreNoWordsOfCpp) {
  EXPECT_EQ(inEntity("258 operation f (a U8, a U8)"), "s:3:24: error: parameter \"a\" twice\n");
  EXPECT_EQ(inEntity("258 operation f (int U8)"),
            "s:3:18: error: \"int\" is a reserved word of C++\n");
  EXPECT_EQ(inEntity("258 operation f (U8 U8)"), "s:3:18: error: \"U8\" is the name of a type\n");
}

TEST(NameCheckerTest, MacrosAndAlternativeTokensAreNoNames) {
  EXPECT_EQ(inEntity("258 scalar errno U8"), "s:3:1: error: \"errno\" is a reserved word of C++\n");
  EXPECT_EQ(inEntity("258 scalar bitand U8"),
            "s:3:1: error: \"bitand\" is a reserved word of C++\n");
}

// The namespace.

TEST(NameCheckerTest, EnumeratorsOfOneNamespaceDiffer) {
  EXPECT_EQ(errors("enum A\n0 a\n1 a\nend\n"), "s:4:1: error: \"a\" stands twice\n");
  EXPECT_EQ(errors("enum A\n0 idle\nend\nenum B\n0 idle\nend\n"),
            "s:6:1: error: \"idle\" is made for \"A\" too\n");
}

TEST(NameCheckerTest, AnEnumeratorTakesNoNameOfItsNamespace) {
  EXPECT_EQ(errors("enum A\n0 U8\nend\n"), "s:3:1: error: \"U8\" is the name of a type\n");
  EXPECT_EQ(errors("enum A\n0 A\nend\n"), "s:3:1: error: \"A\" is the name of a type\n");
  EXPECT_EQ(errors("enum A\n0 stringValue\nend\n"),
            "s:3:1: error: \"stringValue\" is made for what is generated too\n");
  EXPECT_EQ(errors("enum A\n0 bRow\nend\nenum B\n0 b\nend\n"),
            "s:3:1: error: \"bRow\" is made for \"B\" too\n");
}

TEST(NameCheckerTest, ATypeTakesNoNameOfItsNamespace) {
  EXPECT_EQ(errors("enum A\n0 a\nend\nenum AInstance\n0 b\nend\n"),
            "s:5:6: error: \"AInstance\" of \"AInstance\" is made for \"A\" too\n");
  EXPECT_EQ(errors("enum Type\n0 a\nend\n"),
            "s:2:6: error: \"Type\" of \"Type\" is made for what is generated too\n");
  EXPECT_EQ(errors("enum Ptr\n0 a\nend\n"),
            "s:2:6: error: \"Ptr\" is a name that each entity has already\n");
}

TEST(NameCheckerTest, ATypeHidesNoTypeAndNoNamespace) {
  EXPECT_EQ(errors("namespace A\nenum U32\n0 a\nend\n"),
            "s:3:6: error: \"A::U32\" hides the type \"U32\"\n");
  EXPECT_EQ(errors("namespace A\nenum Mox\n0 a\nend\n"),
            "s:3:6: error: \"Mox\" is the name of a namespace\n");
  EXPECT_EQ(errors("namespace A\nenum A\n0 a\nend\n"),
            "s:3:6: error: \"A\" is the name of a namespace\n");
}

TEST(NameCheckerTest, ANamespaceHidesNoOuterOne) {
  EXPECT_EQ(errors("namespace A::Mox\n"),
            "s:2:11: error: \"A::Mox\" hides the outer namespace \"Mox\"\n");
  EXPECT_EQ(errors("namespace A::std\n"),
            "s:2:11: error: \"A::std\" hides the outer namespace \"std\"\n");
  EXPECT_EQ(errors("namespace A::A\n"),
            "s:2:11: error: \"A::A\" hides the outer namespace \"A\"\n");
  EXPECT_EQ(errors("namespace A::new\n"), "s:2:11: error: \"new\" is a reserved word of C++\n");
}

}  // namespace

}  // namespace schemac
