// The template language.
#include "tools/schemac/Renderer.h"
#include "tools/schemac/Story.h"

#include <gtest/gtest.h>

namespace schemac {

namespace {

using story::rendered;

Scope item(std::string const& name, std::string const& shape = "") {
  Scope scope;
  scope.texts["name"] = name;
  scope.texts[selfName] = "<" + name + ">";
  scope.shape = shape;
  return scope;
}

// A type T with rows a and b, a flag that is set and one that isn't.
Scope type() {
  Scope scope;
  scope.texts["Class"] = "T";
  scope.flag("root", true);
  scope.flag("closed", false);
  scope.lists["rows"] = {item("a", "scalar"), item("b", "map")};
  scope.lists["none"] = {};
  scope.lists["base"] = {item("B", "type")};
  return scope;
}

// Parts of the shapes in `sources`, given as pairs of name and text.
Library library(std::vector<std::pair<std::string, std::string>> const& sources) {
  Library result;
  for (auto const& [shape, source] : sources) addParts(result.shapes[shape], source, {shape, 1, 1});
  return result;
}

TEST(RendererTest, TextIsCopied) { EXPECT_EQ(rendered("a\n  b\n\nc", {}), "a\n  b\n\nc"); }

TEST(RendererTest, NamesAreReplaced) {
  EXPECT_EQ(rendered("class $Class$;\n", type()), "class T;\n");
}

TEST(RendererTest, TwoDollarsAreOne) { EXPECT_EQ(rendered("$$5\n", {}), "$5\n"); }

TEST(RendererTest, CommentsGo) { EXPECT_EQ(rendered("a\n  @# note $x$\nb\n", {}), "a\nb\n"); }

TEST(RendererTest, BlankWritesABlankLine) { EXPECT_EQ(rendered("a\n@blank\n", {}), "a\n\n"); }

TEST(RendererTest, EachRepeatsItsLines) {
  EXPECT_EQ(rendered("@each rows\n  $Class$ $name$\n@end\n", type()), "  T a\n  T b\n");
  EXPECT_EQ(rendered("@each none\nx\n@end\n", type()), "");
}

TEST(RendererTest, EachJoinsInsideOfALine) {
  EXPECT_EQ(rendered("f($each rows$$name$$join$, $end$);\n", type()), "f(a, b);\n");
}

TEST(RendererTest, IfAsksForTextsAndLists) {
  EXPECT_EQ(rendered("@if root\nyes\n@else\nno\n@end\n", type()), "yes\n");
  EXPECT_EQ(rendered("@if closed\nyes\n@else\nno\n@end\n", type()), "no\n");
  EXPECT_EQ(rendered("$if rows$some$end$ $if none$some$else$none$end$\n", type()), "some none\n");
  EXPECT_EQ(rendered("$if not closed$open$end$\n", type()), "open\n");
}

TEST(RendererTest, AListOfOneHasATextAndNamesOfItsOwn) {
  EXPECT_EQ(rendered("$base$ $base.name$\n", type()), "<B> B\n");
  EXPECT_EQ(rendered("($none$)\n", type()), "()\n");
}

TEST(RendererTest, TheInnermostNameCounts) {
  Scope scope = type();
  scope.texts["name"] = "outer";
  EXPECT_EQ(rendered("$name$ $each rows$$name$ $end$\n", scope), "outer a b \n");
}

TEST(RendererTest, PartsComeFromTheShapeOfEachItem) {
  auto const parts =
      library({{"scalar", "@@ member\nU8 $name$_;\n"}, {"map", "@@ member\nMap $name$_;\n"}});
  EXPECT_EQ(rendered("{\n  @each rows member\n}\n", type(), parts), "{\n  U8 a_;\n  Map b_;\n}\n");
}

TEST(RendererTest, AShapeWithoutThePartAddsNothing) {
  auto const parts = library({{"map", "@@ nested\nclass $name$;\n"}});
  EXPECT_EQ(rendered("@each rows nested\n", type(), parts), "class b;\n");
}

TEST(RendererTest, IndentationGoesToEachLineOfAPartButBlankOnes) {
  auto const parts = library({{"map", "@@ p\nx\n\n  y\n"}});
  EXPECT_EQ(rendered("    @each rows p\n", type(), parts), "    x\n\n      y\n");
}

TEST(RendererTest, SpacedPutsABlankLineBehindEachPart) {
  auto const parts = library({{"scalar", "@@ p\nx\n"}, {"map", "@@ p\n@if none\nz\n@end\n"}});
  EXPECT_EQ(rendered("@each rows p spaced\n", type(), parts), "x\n\n");
}

TEST(RendererTest, AShapeLikeAnotherHasItsParts) {
  auto const parts = library({{"scalar", "@@ p\nscalar $name$\n@@ q\nfirst\n"},
                              {"map", "@like scalar\n\n@@ q\n@part scalar q\nthen\n"}});
  EXPECT_EQ(rendered("@each rows p\n@each rows q\n", type(), parts),
            "scalar a\nscalar b\nfirst\nfirst\nthen\n");
}

TEST(RendererTest, APartIsANameOfItsScope) {
  auto const parts = library({{"type", "@@ pass\n$self$ const&\n"}});
  EXPECT_EQ(rendered("$base.pass$ x;\n", type(), parts), "<B> const& x;\n");
}

TEST(RendererTest, PartsCanBeNamedInsideOfALine) {
  auto const parts = library({{"common", "@@ params\na, b\n"}});
  EXPECT_EQ(rendered("f($part common params$);\n", type(), parts), "f(a, b);\n");
}

// Faults.

TEST(RendererTest, UnknownNamesAreErrorsWithTheirPlace) {
  EXPECT_EQ(rendered("a\nb $oops$\n", {}), "t:2:3: error: unknown name \"oops\"");
  EXPECT_EQ(rendered("@if oops\n@end\n", {}), "t:1:1: error: unknown name \"oops\"");
  EXPECT_EQ(rendered("@each oops\n@end\n", {}), "t:1:1: error: unknown name \"oops\"");
  EXPECT_EQ(rendered("$base.oops$", type()), "t:1:1: error: unknown name \"oops\"");
  EXPECT_EQ(rendered("$none.name$", type()), "t:1:1: error: \"none\" is absent here");
}

TEST(RendererTest, UnknownPartsAreErrors) {
  EXPECT_EQ(rendered("@each rows oops\n", type()), "t:1:1: error: no shape has a part \"oops\"");
  EXPECT_EQ(rendered("@part map oops\n", type()), "t:1:1: error: \"map\" has no part \"oops\"");
}

TEST(RendererTest, UnknownDirectivesAreErrors) {
  EXPECT_EQ(rendered("@oops\n", {}), "t:1:1: error: unknown directive \"oops\"");
  EXPECT_EQ(rendered("$two words$", {}), "t:1:1: error: a name is one word");
  EXPECT_EQ(rendered("$ $", {}), "t:1:1: error: an empty name");
}

TEST(RendererTest, WhatIsOpenedIsClosed) {
  EXPECT_EQ(rendered("x\n@if root\n", type()), "t:2:1: error: no \"end\" closes this");
  EXPECT_EQ(rendered("@end\n", {}), "t:1:1: error: \"end\" without its opening");
  EXPECT_EQ(rendered("@else\n", {}), "t:1:1: error: \"else\" without its opening");
  EXPECT_EQ(rendered("@if root\n@join\n@end\n", type()),
            "t:2:1: error: \"join\" in the wrong place");
  EXPECT_EQ(rendered("a $b\n", {}), "t:1:3: error: \"$\" without its closing \"$\"");
}

TEST(RendererTest, DirectivesTakeTheirWords) {
  EXPECT_EQ(rendered("@each\n", {}),
            "t:1:1: error: \"each\" takes a list, maybe a part, and maybe \"spaced\"");
  EXPECT_EQ(rendered("@if a b\n@end\n", {}),
            "t:1:1: error: \"if\" takes a name, or \"not\" and a name");
  EXPECT_EQ(rendered("@part\n", {}),
            "t:1:1: error: \"part\" takes a part, and maybe a shape in front of it");
}

TEST(RendererTest, APartThatNamesItselfEnds) {
  auto const parts = library({{"loop", "@@ p\n@part loop p\n"}});
  EXPECT_EQ(rendered("@part loop p\n", type(), parts),
            "loop:2:1: error: templates nested too deep");
}

}  // namespace

}  // namespace schemac
