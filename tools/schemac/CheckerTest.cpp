// The rules on schemas beyond their grammar, each with the words in which a breach is reported.
#include "tools/schemac/Story.h"

#include <gtest/gtest.h>

namespace schemac {

namespace {

using story::errors;
using story::inEntity;

TEST(CheckerTest, ASoundSchemaHasNoErrors) {
  EXPECT_EQ(errors("enum Mood\n0 calm\n1 tense\nend\n"
                   "value Pair ordered\n2 a U8\n3 b U8\n4 computed hash U32 ofFields\nend\n"
                   "entity Leaf (name Mox::Name, lane U8) key name\n258 param lane U8\nend\n"
                   "entity Tree (name Mox::Name) root\n"
                   "258 scalar mood Mood = tense\n"
                   "259 counter hits U32\n"
                   "260 map pairs Pair -> bool ordered\n"
                   "261 owns leaves Leaf by name\n"
                   "262 refs best U8 -> Leaf\n"
                   "263 own first Leaf\n"
                   "end\n"
                   "object Box (size U8) creator\n130 param size U8\n"
                   "131 operation f (a Pair) -> const Tree\nend\n"),
            "");
}

// Files and names.

TEST(CheckerTest, AKeyThatTheBaseBearsIsTheBasesKeyToo) {
  std::string const derived = "entity B (port U8) : A key port\nend\n";
  EXPECT_EQ(errors("entity A (port U8)\n258 param port U8\nend\n" + derived),
            "s:5:28: error: \"A\" bears \"port\", so it needs the option \"key port\" too\n");
  EXPECT_EQ(errors("entity A (port U8) key port\n258 param port U8\nend\n" + derived), "");
  EXPECT_EQ(errors("extern entity A header h\n" + derived), "");
}

TEST(CheckerTest, APresetIsAScalarOfABase) {
  auto const fault = [](std::string const& base, std::string const& row) {
    return errors(
        "entity A (name Mox::Name)\n258 scalar a U8\n259 ref b A\nend\n"
        "entity B (name Mox::Name)" +
        base + "\n" + row + "\nend\n");
  };
  EXPECT_EQ(fault(" : A", "- preset a U8 = 1"), "");
  EXPECT_EQ(fault("", "- preset a U8 = 1"),
            "s:7:1: error: a preset needs a base that bears \"a\"\n");
  EXPECT_EQ(fault(" : A", "- preset a U8"), "s:7:1: error: a preset needs a value, unlike \"a\"\n");
  EXPECT_EQ(fault(" : A", "- preset a U32 = 1"),
            "s:7:12: error: \"a\" has another type in \"A\"\n");
  EXPECT_EQ(fault(" : A", "- preset b U8 = 1"), "s:7:1: error: no base has a scalar \"b\"\n");
  EXPECT_EQ(fault(" : A", "- preset a U8 = 256"),
            "s:7:17: error: \"256\" is outside of 0 to 255\n");
  EXPECT_EQ(fault(" : A", "- preset a U8 = 1\n- preset a U8 = 2"),
            "s:8:1: error: \"a\" is preset twice\n");
  EXPECT_EQ(fault(" : A", "386 preset a U8 = 1"), "s:7:1: error: a preset has no number\n");
}

TEST(CheckerTest, AFileNamesItsModule) {
  Diagnostics diagnostics;
  check(story::builtin(), {story::parsed("enum X\n0 a\nend\n")}, diagnostics);
  EXPECT_EQ(diagnostics.text(), "s:1:1: error: this file names no module\n");
  EXPECT_EQ(errors(""), "");
}

TEST(CheckerTest, AModuleStandsInOneFile) {
  Diagnostics diagnostics;
  check(story::builtin(), {story::parsed("module M\n"), story::parsed("module M\n")}, diagnostics);
  EXPECT_EQ(diagnostics.text(), "s:1:1: error: module \"M\" stands in another file too\n");
}

TEST(CheckerTest, ATypeIsDeclaredOnce) {
  EXPECT_EQ(errors("namespace A\nenum X\n0 a\nend\nenum X\n0 a\nend\n"),
            "s:6:6: error: \"A::X\" is declared twice\n");
  EXPECT_EQ(errors("extern enum X header h\nextern enum X header h\n"),
            "s:3:13: error: \"X\" is declared twice\n");
  EXPECT_EQ(errors("enum U8\n0 a\nend\n"), "s:2:6: error: \"U8\" is declared twice\n");
}

TEST(CheckerTest, AWireSizeIsThatOfAnInteger) {
  EXPECT_EQ(errors("extern primitive T wire 4\n"), "");
  EXPECT_EQ(errors("extern primitive T wire 3\n"),
            "s:2:25: error: expected 1, 2, 4 or 8 bytes, found \"3\"\n");
}

TEST(CheckerTest, ATypeIsDefinedInOneFile) {
  Diagnostics diagnostics;
  check(story::builtin(),
        {story::parsed("module M\nenum X\n0 a\nend\n"),
         story::parsed("module N\nenum X\n0 a\nend\n")},
        diagnostics);
  EXPECT_EQ(diagnostics.text(), "s:2:6: error: \"X\" is declared twice\n");
}

TEST(CheckerTest, AnExternNamesItsHeader) {
  EXPECT_EQ(errors("extern value X\n"), "s:2:14: error: \"X\" names no header\n");
  EXPECT_EQ(errors("extern primitive X\n"), "");
}

TEST(CheckerTest, TypesHaveCapitalsRowsHaveNone) {
  EXPECT_EQ(errors("enum x\n0 a\nend\n"),
            "s:2:6: error: the name of a type begins with a capital, unlike \"x\"\n");
  EXPECT_EQ(inEntity("258 scalar Speed U8"),
            "s:3:1: error: the name of a row begins with a small letter, unlike \"Speed\"\n");
  EXPECT_EQ(errors("enum X\n0 Idle\nend\n"), "");
}

TEST(CheckerTest, NamesAreNoWordsOfCpp) {
  EXPECT_EQ(inEntity("258 scalar class U8"), "s:3:1: error: \"class\" is a reserved word of C++\n");
  EXPECT_EQ(errors("enum X\n0 default\nend\n"),
            "s:3:1: error: \"default\" is a reserved word of C++\n");
}

TEST(CheckerTest, RowsOfOneTypeDifferInName) {
  EXPECT_EQ(inEntity("258 scalar x U8\n259 scalar x U8"), "s:4:1: error: \"x\" stands twice\n");
}

TEST(CheckerTest, EverythingButAnEntityHasRows) {
  EXPECT_EQ(errors("value X\nend\n"), "s:2:7: error: a value needs at least one row\n");
  EXPECT_EQ(errors("enum X\nend\n"), "s:2:6: error: an enum needs at least one row\n");
  EXPECT_EQ(errors("object X\nend\n"), "s:2:8: error: an object needs at least one row\n");
  EXPECT_EQ(errors("entity X (name Mox::Name)\nend\n"), "");
}

// Numbers.

TEST(CheckerTest, EachLevelOfInheritanceTakesAFurther128) {
  EXPECT_EQ(inEntity("257 scalar x U8"),
            "s:3:1: error: number 257 of \"x\" is outside of 258 to 385\n");
  EXPECT_EQ(inEntity("385 scalar x U8"), "");
  EXPECT_EQ(errors("extern entity A::X header h\nentity X (name Mox::Name) : A::X\n"
                   "258 scalar x U8\nend\n"),
            "s:4:1: error: number 258 of \"x\" is outside of 386 to 513\n");
  EXPECT_EQ(errors("entity A\nend\nentity B : A\n386 scalar a U8\nend\n"
                   "entity C : B\n386 scalar x U8\nend\n"),
            "s:8:1: error: number 386 of \"x\" is outside of 514 to 641\n");
}

TEST(CheckerTest, ObjectsBeginAt130ValuesAt2EnumsAt0) {
  EXPECT_EQ(errors("object X\n129 field x U8\nend\n"),
            "s:3:1: error: number 129 of \"x\" is outside of 130 to 257\n");
  EXPECT_EQ(errors("value X\n1 x U8\nend\n"),
            "s:3:1: error: number 1 of \"x\" is outside of 2 to 129\n");
  EXPECT_EQ(errors("enum X\n0 x\nend\n"), "");
}

TEST(CheckerTest, NumbersAscend) {
  EXPECT_EQ(inEntity("259 scalar x U8\n258 scalar y U8"),
            "s:4:1: error: number 258 of \"y\" isn't in ascending order\n");
  EXPECT_EQ(inEntity("258 scalar x U8\n258 scalar y U8"),
            "s:4:1: error: number 258 of \"y\" is taken\n");
  EXPECT_EQ(inEntity("258 scalar x U8\n300 scalar y U8"), "");
}

TEST(CheckerTest, EnumeratorsLeaveNoGap) {
  EXPECT_EQ(errors("enum X\n0 a\n2 b\nend\n"),
            "s:4:1: error: enumerators count up from 0 without a gap, unlike \"b\"\n");
  EXPECT_EQ(errors("enum X\n1 a\nend\n"),
            "s:3:1: error: enumerators count up from 0 without a gap, unlike \"a\"\n");
}

// Types.

TEST(CheckerTest, TypesAreKnown) {
  EXPECT_EQ(inEntity("258 scalar x U9"), "s:3:14: error: unknown type \"U9\"\n");
  EXPECT_EQ(inEntity("258 map x U9 -> V9"),
            "s:3:11: error: unknown type \"U9\"\ns:3:17: error: unknown type \"V9\"\n");
  EXPECT_EQ(errors("entity X (a U9) : Y\nend\n"),
            "s:2:13: error: unknown type \"U9\"\ns:2:19: error: unknown type \"Y\"\n");
}

TEST(CheckerTest, ANameIsLookedUpInTheNamespacesAround) {
  EXPECT_EQ(errors("namespace A::B\nextern enum A::C header h\n"
                   "entity X (name Mox::Name)\n258 scalar x C\n259 scalar y A::C\nend\n"),
            "");
}

TEST(CheckerTest, ScalarsHoldValuesReferencesHoldObjects) {
  std::string const e = "extern entity E header h\nentity X (name Mox::Name)\n";
  EXPECT_EQ(errors(e + "258 scalar x E\nend\n"),
            "s:4:14: error: \"E\" is an entity, and a primitive or value or enum is needed\n");
  EXPECT_EQ(errors(e + "258 map x U8 -> E\nend\n"),
            "s:4:17: error: \"E\" is an entity, and a primitive or value or enum is needed\n");
  EXPECT_EQ(inEntity("258 ref x U8"),
            "s:3:11: error: \"U8\" is a primitive, and an entity or object is needed\n");
}

TEST(CheckerTest, OnlyReferencesAreConst) {
  EXPECT_EQ(inEntity("258 scalar x const U8"),
            "s:3:14: error: only a reference can be \"const\", and \"U8\" is a primitive\n");
}

TEST(CheckerTest, OnlyTargetsOfReferencesMayStandBelow) {
  std::string const below = "entity B (name Mox::Name)\nend\n";
  EXPECT_EQ(errors("entity X (name Mox::Name)\n258 ref b B\nend\n" + below), "");
  EXPECT_EQ(errors("entity X (name Mox::Name)\n258 own b B\nend\n" + below),
            "s:3:11: error: \"B\" must stand above \"X\"\n");
  EXPECT_EQ(errors("entity X (name Mox::Name)\n258 scalar m M\nend\nenum M\n0 a\nend\n"),
            "s:3:14: error: \"M\" must stand above \"X\"\n");
}

TEST(CheckerTest, ABaseIsAnEntityAbove) {
  EXPECT_EQ(errors("entity X : U8\nend\n"),
            "s:2:12: error: \"U8\" is a primitive, and an entity is needed\n");
  EXPECT_EQ(errors("entity X : X\nend\n"),
            "s:2:12: error: the base \"X\" must stand above \"X\"\n");
  EXPECT_EQ(errors("extern object B header h\nobject X (a U8) : B\n130 param a U8\nend\n"),
            "s:3:19: error: only an entity or a value has a base\n");
}

TEST(CheckerTest, AValueAddsNothingToItsBaseButABound) {
  std::string const base = "value B\n2 value U8\n3 computed hash U8\nend\n";
  std::string const bound = "2 bound value U8 in 0..9 else \"m\"\n";
  EXPECT_EQ(errors(base + "value X : B\n" + bound + "end\n"), "");
  EXPECT_EQ(errors("extern value B header h\nvalue X : B\n" + bound + "end\n"), "");
  std::string const wanted = "error: a value with a base has a \"bound\" and no other row\n";
  EXPECT_EQ(errors(base + "value X : B\n2 value U8\nend\n"),
            "s:6:7: " + wanted +
                "s:7:1: error: \"value\" of \"value\" is made for \"value\" of \"B\" too\n");
  EXPECT_EQ(errors(base + "value X : B\n" + bound + "3 computed sum U8\nend\n"),
            "s:6:7: " + wanted);
  EXPECT_EQ(errors(base + "value X : B\nend\n"), "s:6:7: " + wanted);
  EXPECT_EQ(errors("value X\n" + bound + "end\n"),
            "s:3:1: error: \"bound\" needs a base, whose field it bounds\n");
  EXPECT_EQ(errors(base + "value X : B\n2 bound value U8\nend\n"),
            "s:7:1: error: \"bound\" needs a range\n");
}

TEST(CheckerTest, ABoundIsOfTheFieldOfTheBase) {
  std::string const base = "value B\n2 value U8\nend\nvalue X : B\n";
  std::string const wanted = " isn't the field of \"B\"\n";
  EXPECT_EQ(errors(base + "2 bound other U8 in 0..9 else \"m\"\nend\n"),
            "s:6:1: error: \"other\"" + wanted);
  EXPECT_EQ(errors(base + "2 bound value U32 in 0..9 else \"m\"\nend\n"),
            "s:6:1: error: \"value\"" + wanted);
  EXPECT_EQ(errors(base + "3 bound value U8 in 0..9 else \"m\"\nend\n"),
            "s:6:1: error: \"value\"" + wanted);
}

TEST(CheckerTest, ABaseWithABoundIsOneNumberThatNobodyElseSets) {
  auto const fault = [](std::string const& base, std::string const& options) {
    return errors("value B" + base + "end\nvalue X : B" + options +
                  "\n2 bound value U8 in 0..9 else \"m\"\nend\n");
  };
  EXPECT_EQ(fault("\n2 value U8\n", ""), "");
  EXPECT_EQ(fault("\n2 value U8\n3 more U8\n", ""),
            "s:6:11: error: the base \"B\" isn't one number\n");
  EXPECT_EQ(fault(" mutable\n2 value U8\n", ""),
            "s:5:11: error: the base \"B\" can be set past a bound\n");
  EXPECT_EQ(fault("\n2 value U8\n", " ordered"),
            "s:5:13: error: \"ordered\" is the base's to say\n");
  EXPECT_EQ(fault("\n2 value U8\n", " mutable"),
            "s:5:13: error: \"mutable\" is the base's to say\n");
}

TEST(CheckerTest, AComputedRowReadsAsAFieldOfItsType) {
  EXPECT_EQ(errors("value X\n2 a U8\n3 b U8\n4 computed hash U8 of b\nend\n"), "");
  EXPECT_EQ(errors("value X\n2 a U8\n3 computed hash U8 of hash\nend\n"),
            "s:4:23: error: \"X\" has no field or parameter \"hash\"\n");
  EXPECT_EQ(errors("value X\n2 a U8\n3 computed hash U32 of a\nend\n"), "");
  EXPECT_EQ(errors("value X\n2 a U32\n3 computed hash U8 of a\nend\n"),
            "s:4:17: error: \"U8\" doesn't hold \"a\"\n");
}

TEST(CheckerTest, AComputedRowHasOneBody) {
  EXPECT_EQ(errors("value X\n2 a U8\n3 b U8\n4 computed hash U8 of b ofFields\nend\n"),
            "s:5:23: error: \"of\" and \"ofFields\" are two bodies\n");
}

TEST(CheckerTest, TextParserAndOrderOfOneNumberAreGenerated) {
  EXPECT_EQ(errors("value X customText\n2 value U8\nend\n"),
            "s:2:9: error: \"customText\" is for records, and \"X\" is one number\n");
  EXPECT_EQ(errors("value X customText\n2 text U8\nend\n"), "");
}

TEST(CheckerTest, EnumerationsStandAboveAllThatNameThem) {
  EXPECT_EQ(inEntity("- operation f (a M)\nend\nenum M\n0 a"),
            "s:3:18: error: \"M\" must stand above \"X\"\n");
}

TEST(CheckerTest, RawPointersStandWhereNobodyLooksAtThem) {
  EXPECT_EQ(inEntity("258 scalar x U8*"),
            "s:3:14: error: a scalar can't hold a raw pointer here\n");
  EXPECT_EQ(inEntity("258 map x U8 -> U8*"),
            "s:3:17: error: a map can't hold a raw pointer here\n");
  EXPECT_EQ(errors("value X\n2 x U8*\nend\n"),
            "s:3:5: error: a field can't hold a raw pointer here\n");
  EXPECT_EQ(inEntity("258 operation f (a U8*) -> U8*\n259 computed x U8*"), "");
}

TEST(CheckerTest, AFieldOfAValueIsOfATypeThatRecordsKnow) {
  EXPECT_EQ(errors("value X\n2 x bool\nend\n"),
            "s:3:5: error: \"bool\" can't be a field of a value\n");
  EXPECT_EQ(errors("object X\n130 field x bool\nend\n"), "");
}

TEST(CheckerTest, AValueWithoutFieldsIsMadeByHand) {
  std::string const rows = "\n2 map x U8 -> U8\nend\n";
  EXPECT_EQ(errors("value X customText customParser" + rows),
            "s:2:7: error: a value without fields needs the options \"customText\", "
            "\"customParser\" and \"customOrder\"\n");
  EXPECT_EQ(errors("value X customText customParser customOrder" + rows), "");
}

TEST(CheckerTest, AHashOfFieldsIsAnIntegerOfAValueThatHasSome) {
  EXPECT_EQ(inEntity("258 computed h U32 ofFields"),
            "s:3:1: error: \"h\" needs a value that is a record of fields\n");
  EXPECT_EQ(errors("value X\n2 x U8 in 0..9 else \"m\"\n3 computed h U32 ofFields\nend\n"),
            "s:4:1: error: \"h\" needs a value that is a record of fields\n");
  EXPECT_EQ(errors("value X\n2 value U8\n3 computed h U32 ofFields\nend\n"),
            "s:4:1: error: \"h\" needs a value that is a record of fields\n");
  EXPECT_EQ(errors("value X\n2 x U8\n3 computed h double ofFields\nend\n"),
            "s:4:14: error: a hash is an integer, unlike \"double\"\n");
}

// Constructors.

TEST(CheckerTest, TheBaseGetsItsParameters) {
  std::string const base = "entity B (name Mox::Name, l U8)\n258 param l U8\nend\n";
  EXPECT_EQ(errors(base + "entity X (name Mox::Name) : B\nend\n"),
            "s:5:29: error: the parameters that aren't rows of \"X\" are other than those of "
            "\"B\"\n");
  EXPECT_EQ(errors(base + "entity X (n Mox::Name, own U8, lane U8) : B\n386 param own U8\nend\n"),
            "");
}

TEST(CheckerTest, ParametersAreRowsOrGoToTheBase) {
  EXPECT_EQ(inEntity("", "(name Mox::Name, lane U8)"),
            "s:2:27: error: parameter \"lane\" has no \"param\" row\n");
  EXPECT_EQ(inEntity("", "(name U8)"), "s:2:16: error: the name of an entity is a \"Mox::Name\"\n");
  EXPECT_EQ(errors("extern entity B header h\nentity X (lane U8) : B\nend\n"), "");
  EXPECT_EQ(errors("object X (name Mox::Name)\n130 field x U8\nend\n"),
            "s:2:11: error: parameter \"name\" has no \"param\" row\n");
}

TEST(CheckerTest, ParametersDifferInName) {
  EXPECT_EQ(inEntity("258 param a U8", "(a U8, a U8)"), "s:2:17: error: parameter \"a\" twice\n");
}

TEST(CheckerTest, ValuesAndEnumsTakeNoParameters) {
  EXPECT_EQ(errors("value X (a U8)\n2 a U8\nend\n"),
            "s:2:7: error: a value has no constructor parameters of its own\n");
}

TEST(CheckerTest, AParamRowIsAParameterOfThatType) {
  EXPECT_EQ(inEntity("258 param a U8"),
            "s:3:1: error: \"a\" is no constructor parameter of \"X\"\n");
  EXPECT_EQ(inEntity("258 param a U8", "(a U32)"),
            "s:3:13: error: \"a\" has another type as constructor parameter\n");
}

TEST(CheckerTest, TheKeyOptionNamesAParameter) {
  EXPECT_EQ(inEntity("", "(name Mox::Name) key id"),
            "s:2:31: error: \"id\" is no constructor parameter of \"X\"\n");
}

// Rows.

TEST(CheckerTest, ACounterCountsInAnInteger) {
  EXPECT_EQ(inEntity("258 counter x double"),
            "s:3:15: error: a counter counts in an integer, unlike \"double\"\n");
}

TEST(CheckerTest, DefaultsFitTheirType) {
  EXPECT_EQ(inEntity("258 scalar x U8 = high"),
            "s:3:19: error: the default of an integer is a number, unlike \"high\"\n");
  EXPECT_EQ(inEntity("258 scalar x U8 = 0.5"),
            "s:3:19: error: the default of an integer is a number, unlike \"0.5\"\n");
  EXPECT_EQ(inEntity("258 scalar x bool = 1"),
            "s:3:21: error: the default of a \"bool\" is true or false\n");
  EXPECT_EQ(errors("enum M\n0 a\nend\nentity X (name Mox::Name)\n258 scalar x M = b\nend\n"),
            "s:6:18: error: \"b\" is no enumerator of \"M\"\n");
  EXPECT_EQ(errors("extern entity E header h\nobject X\n130 field x E = 0\nend\n"),
            "s:4:17: error: a pointer has no default but null\n");
}

TEST(CheckerTest, TheOneIntegerOfAValueMayHaveARange) {
  EXPECT_EQ(errors("value X\n2 value U8 in 0..5 else \"m\"\n3 computed hash U32\nend\n"), "");
  EXPECT_EQ(errors("value X\n2 value U8 in 0..5 else \"m\"\n3 b U8\nend\n"),
            "s:3:15: error: only the one field of a value has a range\n");
  EXPECT_EQ(errors("value X\n2 value double in 0..5 else \"m\"\nend\n"),
            "s:3:9: error: only an integer has a range, unlike \"double\"\n");
  EXPECT_EQ(errors("value X\n2 value U8 in 1..5 else \"m\"\nend\n"),
            "s:3:15: error: a range begins at 0\n");
}

TEST(CheckerTest, TheKeyIsAnAttributeOfTheElement) {
  std::string const leaf =
      "entity L (name Mox::Name)\n258 scalar lane U8\nend\n"
      "entity X (name Mox::Name)\n";
  EXPECT_EQ(errors(leaf + "258 refs x L by lane\nend\n"), "");
  EXPECT_EQ(errors(leaf + "258 refs x L by id\nend\n"),
            "s:6:17: error: \"L\" has no attribute \"id\"\n");
  EXPECT_EQ(errors(leaf + "258 refs x L by name U8\nend\n"),
            "s:6:22: error: \"name\" has another type in \"L\"\n");
}

TEST(CheckerTest, AnElementFromElsewhereNeedsTheTypeOfItsKey) {
  EXPECT_EQ(
      errors("extern entity E header h\nentity X (name Mox::Name)\n258 refs x E by id\nend\n"),
      "s:4:17: error: the type of key \"id\" must be given, as \"E\" stands elsewhere\n");
}

TEST(CheckerTest, AnOwnedElementIsKeyedByItsFirstParameterAndSaysSo) {
  std::string const tree = "entity X (name Mox::Name)\n";
  EXPECT_EQ(errors("entity L (name Mox::Name, id U8)\n258 param id U8\nend\n" + tree +
                   "258 owns x L by id\nend\n"),
            "s:6:17: error: \"id\" isn't the first constructor parameter of \"L\"\n");
  EXPECT_EQ(errors("entity L (name Mox::Name)\nend\n" + tree + "258 owns x L by name\nend\n"),
            "s:5:17: error: \"L\" needs the option \"key name\" to be held here\n");
  EXPECT_EQ(errors("entity L (name Mox::Name)\nend\n" + tree + "258 owns x L by name node\nend\n"),
            "");
}

TEST(CheckerTest, AnOwnedElementFromElsewhereStandsInANode) {
  std::string const head =
      "extern entity E header h\nentity X (name Mox::Name)\n258 owns x E by id U8 ";
  EXPECT_EQ(errors(head + "(id U8)\nend\n"),
            "s:4:12: error: \"E\" stands elsewhere, so it needs the option \"node\"\n");
  EXPECT_EQ(errors(head + "(id U8) node\nend\n"), "");
  EXPECT_EQ(errors(head + "(a U8, id U8) node\nend\n"),
            "s:4:17: error: key \"id\" isn't the first constructor parameter\n");
}

TEST(CheckerTest, ParametersOfAChildAreThoseOfItsType) {
  std::string const leaf = "entity L (name Mox::Name)\nend\nentity X (name Mox::Name)\n";
  EXPECT_EQ(errors(leaf + "258 own x L (name Mox::Name)\nend\n"), "");
  EXPECT_EQ(errors(leaf + "258 own x L (name U8)\nend\n"),
            "s:5:1: error: \"L\" has other constructor parameters\n");
  EXPECT_EQ(errors("extern entity E header h\nentity X (name Mox::Name)\n258 own x E\nend\n"),
            "s:4:1: error: the constructor parameters of \"E\" must be given, as it stands "
            "elsewhere\n");
  EXPECT_EQ(
      errors("extern entity E header h\nentity X (name Mox::Name)\n258 own x E (a U9)\nend\n"),
      "s:4:16: error: unknown type \"U9\"\n");
}

TEST(CheckerTest, ArgumentsOfOperationsAreKnownTypes) {
  EXPECT_EQ(errors("object X\n130 operation f (a U9) -> V9\nend\n"),
            "s:3:20: error: unknown type \"U9\"\ns:3:27: error: unknown type \"V9\"\n");
}

TEST(CheckerTest, ErrorsOfAllFilesAreReported) {
  Diagnostics diagnostics;
  Schema const faulty = story::parsed("enum X\nend\n");
  check(story::builtin(), {faulty, faulty}, diagnostics);
  EXPECT_NE(diagnostics.text().find("no module"), std::string::npos);
  EXPECT_NE(diagnostics.text().find("declared twice"), std::string::npos);
}

}  // namespace

}  // namespace schemac
