// The names in what the real templates make: against the tables of made names and the runtime's
// headers, and where a name could have been hidden.
#include "tools/schemac/Files.h"
#include "tools/schemac/Generator.h"
#include "tools/schemac/Parser.h"

#include <gtest/gtest.h>
#include <regex>
#include <set>

namespace schemac {

namespace {

using Names = std::set<std::string>;

std::filesystem::path const checkout = KESTREL_SOURCE_DIR;

// What is generated from `types`, without comments and texts.
std::string codeOf(std::string const& types) {
  Diagnostics diagnostics;
  Library const library = loadLibrary(checkout / "tools" / "schemac" / "templates");
  Schema const schema = parse("s", "module M\n" + types, diagnostics);
  EXPECT_EQ(diagnostics.text(), "");
  std::string code;
  for (Output const& output : generate(library, {schema}, {})) code += output.text;
  return std::regex_replace(code, std::regex("//[^\n]*|\"[^\"\n]*\""), "");
}

// The identifiers in `text` that `pattern` finds in its first group.
Names found(std::string const& text, std::string const& pattern) {
  std::regex const regex(pattern);
  Names result;
  for (std::sregex_iterator at(text.begin(), text.end(), regex), end; at != end; ++at)
    result.insert((*at)[1]);
  return result;
}

// A type with one row, `zebra`, of that shape, which makes all that the shape can.
std::string oneRow(std::string const& shape) {
  std::string const leaf = "entity Leaf (name Mox::Name)\nend\n";
  std::string const entity = leaf + "entity Owl (name Mox::Name)\n258 " + shape + " zebra ";
  if (shape == "param") return "object Owl (zebra U8)\n130 param zebra U8\nend\n";
  if (shape == "field") return "value Owl mutable\n2 zebra U8\nend\n";
  if (shape == "bound")
    return "extern value Hen header h\nvalue Owl : Hen\n2 bound zebra U8 in 0..3 else \"m\"\nend\n";
  if (shape == "enumerator") return "enum Owl\n0 zebra\nend\n";
  if (shape == "map" || shape == "refs")
    return entity + "U8 -> " + (shape == "map" ? "U8" : "Leaf") + "\nend\n";
  if (shape == "owns") return entity + "Leaf by name node\nend\n";
  if (shape == "preset")
    return "extern entity Ape header h\nentity Owl (name Mox::Name) : Ape\n"
           "- preset zebra U8 = 1\nend\n";
  if (shape == "operation") return entity + "(a U8)\nend\n";
  return entity + (shape == "own" || shape == "ref" ? "Leaf" : "U8") + "\nend\n";
}

Names listed(Shape const& shape) {
  // What these two use is made for a row of the base.
  if (shape.name == "preset") return {"zebraIs"};
  if (shape.name == "bound") return {"zebra"};
  Names result;
  for (std::string_view word : wordsOf(shape.makes)) {
    std::string name(word.substr(word.rfind(':') + 1));
    name = std::regex_replace(name, std::regex("\\$name\\$"), "zebra");
    result.insert(std::regex_replace(name, std::regex("\\$Name\\$"), "Zebra"));
  }
  return result;
}

TEST(MadeNamesTest, EachShapeMakesTheNamesOfItsTableAndNoOthers) {
  for (Shape const& shape : shapes()) {
    EXPECT_EQ(listed(shape),
              found(codeOf(oneRow(std::string(shape.name))), "\\b(\\w*[zZ]ebra\\w*)"))
        << shape.name;
  }
}

TEST(MadeNamesTest, APresetIsACallOfTheBase) {
  EXPECT_EQ(found(codeOf(oneRow("preset")), "(\\w+::zebraIs\\([^)]*\\))"),
            Names{"Ape::zebraIs(1)"});
}

TEST(MadeNamesTest, ATagHasTheTypesOfItsTableAndNoOthers) {
  for (Shape const& shape : shapes()) {
    std::string code = codeOf(oneRow(std::string(shape.name)));
    std::size_t const tag = code.find("struct Zebra {");
    code = tag == code.npos ? "" : code.substr(tag, code.find("\n  };", tag) - tag);
    Names expected;
    for (std::string_view name : wordsOf(shape.tagTypes)) expected.emplace(name);
    EXPECT_EQ(expected, found(code, "using (\\w+) =")) << shape.name;
  }
}

TEST(MadeNamesTest, TheNamespaceGetsTheNamesOfTheTable) {
  Names const classes = {"Owl", "owlRow", "owlType", "owlFactory"};
  EXPECT_EQ(classes, found(codeOf("entity Owl (name Mox::Name) root\nend\n"), "\\b([oO]wl\\w*)"));
  EXPECT_EQ(namesOfType, "$Class$ $class$Row $class$Type $class$Factory");
  Names const enums = {"Owl", "owlRow", "owlType", "OwlInstance", "Owl_GenericIf_", "_fwkType_Owl"};
  EXPECT_EQ(enums, found(codeOf("enum Owl\n0 a\nend\n"), "\\b(\\w*[oO]wl\\w*)"));
  EXPECT_EQ(namesOfEnum, "$Class$Instance $Class$_GenericIf_ _fwkType_$Class$");
}

TEST(MadeNamesTest, ATagOfItsTypesNameStillFindsTheType) {
  std::string const code =
      codeOf("namespace A\nentity Owl (name Mox::Name)\n258 scalar owl U8\nend\n");
  EXPECT_EQ(found(code, "using Owner = ([^;]*)"), Names{"::A::Owl"});
}

TEST(MadeNamesTest, TheBaseGetsTheNameWhereverItStands) {
  std::string const code = codeOf("entity Owl (a U8, name Mox::Name)\n258 param a U8\nend\n");
  EXPECT_EQ(found(code, "(Mox::Entity\\([^)]*\\)), a_"), Names{"Mox::Entity(name)"});
}

TEST(MadeNamesTest, APointerStaysOneInATag) {
  std::string const code = codeOf(
      "entity Owl (name Mox::Name, b U8*) key name\n258 param b U8*\nend\n"
      "entity Tree (name Mox::Name)\n258 owns owls Owl by name keepFirst\nend\n");
  EXPECT_EQ(found(code, "requireSame\\(Child const&, ([^)]*)"), Names{"U8*"});
}

std::string header(std::string const& name) {
  return readFile(checkout / "platform" / "Mox" / name).value_or("");
}

TEST(MadeNamesTest, NoRowTakesAVirtualOperationOfTheRuntime) {
  std::string const object = header("PtrInterface.h");
  for (std::string const& name : found(object, "virtual [^;{(~]*\\b(\\w+)\\(")) {
    EXPECT_TRUE(hasWord(namesOfKind(Kind::object), name)) << name;
    EXPECT_TRUE(hasWord(namesOfKind(Kind::entity), name)) << name;
  }
  std::string const entity = header("Entity.h");
  std::string const members = entity.substr(0, entity.find("class Entity::NotifieeConst"));
  for (std::string const& name : found(members, "virtual [^;{(~]*\\b(\\w+)\\("))
    EXPECT_TRUE(hasWord(namesOfKind(Kind::entity), name)) << name;
  for (std::string const& name : found(entity + header("Notifiee.h"), "virtual void (on\\w+)\\("))
    EXPECT_TRUE(hasWord(namesOfKind(Kind::entity), "NotifieeConst::" + name)) << name;
}

std::string withModule(std::string const& name) {
  return std::regex_replace(name, std::regex("\\$module\\$"), "M");
}

TEST(MadeNamesTest, WhatKindsHaveIsInTheirCodeOrInTheRuntime) {
  std::string const types =
      "entity Owl (lane U8) key lane\n258 param lane U8\n259 map zebra U8 -> U8\nend\n"
      "entity Tree (name Mox::Name)\n258 owns owls Owl by lane\nend\n"
      "object Nest (a U8) creator stateMachine\n130 param a U8\nend\n"
      "value Egg\n2 a U8\nend\nvalue Few\n2 a U8 in 0..3 else \"m\"\nend\nenum Sex\n0 a\nend\n";
  Names const known =
      found(codeOf(types) + header("Entity.h") + header("PtrInterface.h") + header("Notifiee.h"),
            "\\b(\\w+)\\b");
  for (Kind kind : {Kind::entity, Kind::object, Kind::value, Kind::enumeration})
    for (std::string_view word : wordsOf(namesOfKind(kind))) {
      std::string const name(word.substr(word.rfind(':') + 1));
      bool placeholder = name == "$Class$" || name == "$class$Type";
      EXPECT_TRUE(placeholder || known.count(withModule(name))) << name;
    }
}

}  // namespace

}  // namespace schemac
