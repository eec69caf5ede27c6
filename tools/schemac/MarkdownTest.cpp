// Documentation in Markdown, and what a page makes of it.
#include "tools/schemac/Generator.h"
#include "tools/schemac/Markdown.h"
#include "tools/schemac/Story.h"

#include <gtest/gtest.h>

namespace schemac {

namespace {

using story::templates;

// The page of module M with `source` in it, from "# Module M" on.
std::string page(std::string const& source) {
  Library const library = loadLibrary(templates);
  Diagnostics diagnostics;
  std::vector<Schema> const schemas = {story::parsed("module M\n" + source)};
  check(library.builtin, schemas, diagnostics);
  EXPECT_EQ(diagnostics.text(), "");
  return generate(library, schemas, {.reference = true}).front().text;
}

// The line of the page that shows `row`, a row of an entity.
std::string shown(std::string const& row) {
  std::string const text = page("entity X (name Mox::Name)\n" + row + "\nend\n");
  std::size_t const end = text.rfind('\n');
  return text.substr(text.rfind('\n', end - 1) + 1, end - text.rfind('\n', end - 1) - 1);
}

TEST(MarkdownTest, ABarDoesNotEndACell) {
  EXPECT_EQ(markdownLines({"a | b `|`"}), std::vector<std::string>{"a \\| b `\\|`"});
  EXPECT_EQ(markdownCode("\"a|b\""), "`\"a\\|b\"`");
  EXPECT_EQ(shown("258 scalar x Mox::String = \"a|b\"   /// This | that."),
            "| 258 | `x` | scalar | `Mox::String` | | `\"a\\|b\"` | This \\| that. |");
}

TEST(MarkdownTest, AnAngleIsATagNowhere) {
  EXPECT_EQ(markdownLines({"a <b> `<c>` <d>"}), std::vector<std::string>{"a &lt;b> `<c>` &lt;d>"});
}

TEST(MarkdownTest, CodeMayGoOnInTheNextLine) {
  EXPECT_EQ(markdownLines({"`<a", "<b>` <c>"}), (std::vector<std::string>{"`<a", "<b>` &lt;c>"}));
}

TEST(MarkdownTest, CodeMayHaveAMarkOfItsOwn) {
  EXPECT_EQ(markdownCode("\"`\""), "``\"`\"``");
  EXPECT_EQ(markdownCode(""), "");
}

TEST(MarkdownTest, HeadingsAreFoundInSmallLettersAlone) {
  EXPECT_EQ(markdownAnchor("Rye::Central::ChipStatus"), "ryecentralchipstatus");
}

TEST(MarkdownTest, DocumentationOfSeveralLinesStandsInOneCell) {
  EXPECT_EQ(shown("/// One\n/// two.\n258 map x U8 -> U32"),
            "| 258 | `x` | map | `U32` | `U8` | | One two. |");
}

TEST(MarkdownTest, APageShowsBaseConstructorAndRows) {
  EXPECT_EQ(page("namespace N\n"
                 "/// A leaf.\nentity Leaf (name Mox::Name, lane U8)\n258 param lane U8\nend\n"
                 "entity X (name Mox::Name, lane U8) : Leaf\n386 ref leaf const Leaf\nend\n"),
            "# Module M\n"
            "\n"
            "<!-- Made by schemac from the schemas; the target `reference` writes it anew. -->\n"
            "\n"
            "- [N::Leaf](#nleaf)\n"
            "- [N::X](#nx)\n"
            "\n"
            "## N::Leaf\n"
            "\n"
            "A leaf.\n"
            "\n"
            "- Kind: entity\n"
            "- Base: `Mox::Entity`\n"
            "- Constructor parameters: `name` `Mox::Name`, `lane` `U8`\n"
            "\n"
            "| Id | Name | Shape | Type | Key | Default | Meaning |\n"
            "|---|---|---|---|---|---|---|\n"
            "| 258 | `lane` | param | `U8` | | | |\n"
            "\n"
            "## N::X\n"
            "\n"
            "- Kind: entity\n"
            "- Base: [`Leaf`](#nleaf)\n"
            "- Constructor parameters: `name` `Mox::Name`, `lane` `U8`\n"
            "\n"
            "| Id | Name | Shape | Type | Key | Default | Meaning |\n"
            "|---|---|---|---|---|---|---|\n"
            "| 386 | `leaf` | ref | [`const Leaf`](#nleaf) | | | |\n");
}

}  // namespace

}  // namespace schemac
