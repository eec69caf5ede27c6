// What the language says, line by line, and what the parser says where it isn't kept.
#include "tools/schemac/Story.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace schemac {

namespace {

using story::block;
using story::parsed;
using story::parseErrors;
using story::row;

TEST(ParserTest, AnEmptyFileIsASchema) { EXPECT_EQ(parseErrors(""), ""); }

TEST(ParserTest, TheHeadNamesModuleHeaderAndNamespace) {
  Schema const schema = parsed("module M\nheader A/B.h\nnamespace A::B\nclosed\n");
  EXPECT_EQ(schema.module, "M");
  EXPECT_EQ(schema.header, "A/B.h");
  EXPECT_EQ(schema.space, "A::B");
  EXPECT_TRUE(schema.closed);
}

TEST(ParserTest, AnExternHasAKindAndOptions) {
  Schema const schema = parsed("extern entity A::B header \"A/B.h\"\n");
  ASSERT_EQ(schema.externs.size(), 1u);
  EXPECT_EQ(schema.externs[0].kind, Kind::entity);
  EXPECT_EQ(schema.externs[0].name, "A::B");
  EXPECT_EQ(schema.externs[0].options.at("header").text, "A/B.h");
}

TEST(ParserTest, AnEntityHasParametersABaseAndOptions) {
  Type const type = block("entity X (name Mox::Name, peer const A) : B::X root\nend\n");
  ASSERT_EQ(type.arguments.size(), 2u);
  EXPECT_EQ(type.arguments[1].name, "peer");
  EXPECT_TRUE(type.arguments[1].type.isConst);
  EXPECT_EQ(type.base->name, "B::X");
  EXPECT_EQ(type.options.count("root"), 1u);
}

TEST(ParserTest, ParametersMayTakeSeveralLines) {
  EXPECT_EQ(block("entity X (name Mox::Name,\n  lane U8\n)\nend\n").arguments.size(), 2u);
}

TEST(ParserTest, NoParametersAreParametersToo) {
  EXPECT_TRUE(block("object X ()\nend\n").arguments.empty());
}

TEST(ParserTest, AScalarHasANumberANameATypeAndADefault) {
  Row const scalar = row("259 scalar speed U32 = 5");
  EXPECT_EQ(scalar.id, 259);
  EXPECT_EQ(scalar.shape->name, "scalar");
  EXPECT_EQ(scalar.name, "speed");
  EXPECT_EQ(scalar.type->name, "U32");
  EXPECT_EQ(scalar.defaultValue->text, "5");
}

TEST(ParserTest, AMapHasAKeyAndAValue) {
  Row const map = row("260 map x U8 -> U32 ordered");
  EXPECT_EQ(map.key->name, "U8");
  EXPECT_EQ(map.type->name, "U32");
  EXPECT_EQ(map.options.count("ordered"), 1u);
}

TEST(ParserTest, ReferencesAreKeyedByTheElementOrByAKeyOfTheirOwn) {
  EXPECT_EQ(row("260 refs x A by name").by->text, "name");
  EXPECT_EQ(row("260 refs x A by name Mox::Name").key->name, "Mox::Name");
  Row const given = row("260 refs x U8 -> const A");
  EXPECT_EQ(given.key->name, "U8");
  EXPECT_TRUE(given.type->isConst);
  EXPECT_FALSE(given.by);
}

TEST(ParserTest, AnOptionBehindTheKeyIsNoKeyType) {
  Row const refs = row("260 refs x A by name ordered");
  EXPECT_FALSE(refs.key);
  EXPECT_EQ(refs.options.count("ordered"), 1u);
}

TEST(ParserTest, OwnedChildrenMayBringTheirParameters) {
  EXPECT_FALSE(row("260 own x A").arguments);
  EXPECT_EQ(row("260 own x A (name Mox::Name)").arguments->size(), 1u);
  EXPECT_EQ(row("260 owns x A by id U32 (id U32, b bool) node").arguments->size(), 2u);
}

TEST(ParserTest, FieldsOfAValueNeedNoShape) {
  Type const type = block("value X\n2 a U8\n3 computed hash U32\n4 map b U8 -> bool\nend\n");
  EXPECT_EQ(type.rows[0].shape->name, "field");
  EXPECT_EQ(type.rows[1].shape->name, "computed");
  EXPECT_EQ(type.rows[2].shape->name, "map");
}

TEST(ParserTest, AFieldMayHaveTheNameOfAShape) {
  Type const type = block("value X\n2 map U8\nend\n");
  ASSERT_EQ(type.rows.size(), 0u) << "two words behind a shape's name are taken as such a row";
  EXPECT_EQ(block("value X\n2 field map U8\nend\n").rows[0].name, "map");
}

TEST(ParserTest, AFieldMayHaveARange) {
  Row const field = block("value X\n2 value U8 in 0..127 else \"too much\"\nend\n").rows[0];
  EXPECT_EQ(field.range->least, 0);
  EXPECT_EQ(field.range->most, 127);
  EXPECT_EQ(field.range->message, "too much");
}

TEST(ParserTest, EnumeratorsAreNumbersAndNames) {
  Type const type = block("enum X\n0 Idle\n1 map\nend\n");
  EXPECT_EQ(type.rows[0].name, "Idle");
  EXPECT_EQ(type.rows[1].name, "map");
}

TEST(ParserTest, AnOperationHasArgumentsAResultAndMaybeNoNumber) {
  Type const type =
      block("object X\n130 operation f (a U8) -> const B const\n- operation g ()\nend\n");
  EXPECT_EQ(type.rows[0].arguments->size(), 1u);
  EXPECT_EQ(type.rows[0].type->name, "B");
  EXPECT_EQ(type.rows[0].options.count("const"), 1u);
  EXPECT_EQ(type.rows[1].id, noNumber);
  EXPECT_FALSE(type.rows[1].type);
}

TEST(ParserTest, RawPointersHaveAStar) {
  Row const field = block("object X\n130 field p const a::B*\nend\n").rows[0];
  EXPECT_TRUE(field.type->isPointer);
  EXPECT_TRUE(field.type->isConst);
}

TEST(ParserTest, DocumentationStandsAboveOrBehind) {
  Row const both = row("/// One.\n\n/// Two.\n258 scalar x U8 /// Three.");
  EXPECT_EQ(both.doc, (std::vector<std::string>{"One.", "Two.", "Three."}));
  EXPECT_EQ(block("/// Doc.\nentity X\nend\n").doc, std::vector<std::string>{"Doc."});
}

// Errors.

TEST(ParserTest, SaysWhatItExpectsAndWhatItFound) {
  EXPECT_EQ(parseErrors("entity 5\nend\n"), "s:1:8: error: expected a type name, found \"5\"\n");
  EXPECT_EQ(parseErrors("module\n"),
            "s:1:7: error: expected a module name, found the end of the line\n");
}

TEST(ParserTest, RefusesUnknownStatements) {
  EXPECT_EQ(parseErrors("struct X\n"),
            "s:1:1: error: expected a statement, such as \"module\" or \"entity\", found "
            "\"struct\"\n");
}

TEST(ParserTest, RefusesASecondHead) {
  EXPECT_EQ(parseErrors("module A\nmodule B\n"),
            "s:2:8: error: this file names a module name twice\n");
  EXPECT_EQ(parseErrors("header a\nheader b\n"),
            "s:2:8: error: this file names a header path twice\n");
  EXPECT_EQ(parseErrors("namespace a\nnamespace b\n"),
            "s:2:11: error: this file names a namespace twice\n");
}

TEST(ParserTest, TheNamespaceStandsAboveAllTypes) {
  EXPECT_EQ(parseErrors("enum X\n0 a\nend\nnamespace b\n"),
            "s:4:11: error: the namespace must stand above all types\n");
}

TEST(ParserTest, RefusesAnExternWithoutKind) {
  EXPECT_EQ(parseErrors("extern A\n"),
            "s:1:8: error: expected \"primitive\", \"value\", \"enum\", \"entity\" or \"object\", "
            "found \"A\"\n");
}

TEST(ParserTest, RefusesUnknownShapesAndShapesOfOtherBlocks) {
  EXPECT_EQ(parseErrors("entity X\n258 scaler x U8\nend\n"),
            "s:2:5: error: expected a shape, such as \"scalar\", found \"scaler\"\n");
  EXPECT_EQ(parseErrors("object X\n130 scalar x U8\nend\n"),
            "s:2:5: error: \"scalar\" can't stand in \"object\" blocks\n");
}

TEST(ParserTest, RefusesUnknownAndRepeatedOptions) {
  EXPECT_EQ(parseErrors("entity X\n258 scalar x U8 fast\nend\n"),
            "s:2:17: error: unknown option \"fast\"\n");
  EXPECT_EQ(parseErrors("entity X root root\nend\n"), "s:1:15: error: option \"root\" twice\n");
}

TEST(ParserTest, RefusesAnOptionWithoutItsArgument) {
  EXPECT_EQ(parseErrors("entity X key\nend\n"),
            "s:1:13: error: expected the argument of \"key\", found the end of the line\n");
}

TEST(ParserTest, RefusesRowsWithoutNumber) {
  EXPECT_EQ(parseErrors("entity X\nscalar x U8\nend\n"),
            "s:2:1: error: expected a row (its number first) or \"end\", found \"scalar\"\n");
  EXPECT_EQ(parseErrors("entity X\n- scalar x U8\nend\n"),
            "s:2:1: error: only an operation or a preset can do without a number\n");
  EXPECT_EQ(parseErrors("enum X\n1234567890 a\nend\n"),
            "s:2:1: error: expected a row (its number first) or \"end\", found \"1234567890\"\n");
}

TEST(ParserTest, RefusesWhatIsLeftOnALine) {
  EXPECT_EQ(parseErrors("module A (\n"),
            "s:1:10: error: expected the end of the line, found \"(\"\n");
}

TEST(ParserTest, RefusesBadRanges) {
  std::string const expected = "s:2:15: error: expected a range such as 0..127, found ";
  EXPECT_EQ(parseErrors("value X\n2 value U8 in 5 else \"a\"\nend\n"), expected + "\"5\"\n");
  EXPECT_EQ(parseErrors("value X\n2 value U8 in -1..5 else \"a\"\nend\n"),
            expected + "\"-1..5\"\n");
  EXPECT_EQ(parseErrors("value X\n2 value U8 in 0..5\nend\n"),
            "s:2:19: error: expected \"else\" and the message of the range, found the end of the "
            "line\n");
}

TEST(ParserTest, RefusesACollectionWithoutKey) {
  EXPECT_EQ(parseErrors("entity X\n258 refs x A\nend\n"),
            "s:2:13: error: expected \"by\" or \"->\", found the end of the line\n");
  EXPECT_EQ(parseErrors("entity X\n258 owns x U8 -> A\nend\n"),
            "s:2:15: error: expected \"by\", found \"->\"\n");
}

TEST(ParserTest, RefusesABlockWithoutEnd) {
  EXPECT_EQ(parseErrors("entity X\n258 scalar x U8\n"), "s:1:8: error: \"X\" has no \"end\"\n");
  EXPECT_EQ(parseErrors("entity X\nenum Y\n0 a\nend\n"), "s:1:8: error: \"X\" has no \"end\"\n");
}

TEST(ParserTest, RefusesAnOpenParenthesis) {
  EXPECT_EQ(parseErrors("entity X (name U8\nend\n"),
            "s:1:8: error: \"X\" has no \"end\"\n"
            "s:2:1: error: expected \",\", found \"end\"\n");
}

TEST(ParserTest, RefusesDocumentationOfNothing) {
  EXPECT_EQ(parseErrors("/// a\nmodule M\n"),
            "s:1:1: error: documentation that belongs to nothing\n");
  EXPECT_EQ(parseErrors("enum X\n0 a\n/// b\nend\n"),
            "s:3:1: error: documentation that belongs to nothing\n");
  EXPECT_EQ(parseErrors("/// a"), "s:1:1: error: documentation that belongs to nothing\n");
}

TEST(ParserTest, GoesOnBehindAFaultyLine) {
  EXPECT_EQ(parseErrors("entity X\n258 scalar\n259 scalar x\n260 scalar y U8\nend\nenumm Y\n"),
            "s:2:11: error: expected the name of the row, found the end of the line\n"
            "s:3:13: error: expected the type of \"x\", found the end of the line\n"
            "s:6:1: error: expected a statement, such as \"module\" or \"entity\", found "
            "\"enumm\"\n");
}

TEST(ParserTest, StopsPrintingAtFiftyErrors) {
  std::string source;
  for (int i = 0; i < 53; ++i) source += "?\n";
  std::string const text = parseErrors(source);
  EXPECT_EQ(std::count(text.begin(), text.end(), '\n'), 51);
  EXPECT_NE(text.find("schemac: error: 3 more errors\n"), std::string::npos);
}

}  // namespace

}  // namespace schemac
