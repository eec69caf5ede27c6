// The lock file: its lines, and what is said where a schema has others.
#include "tools/schemac/Lock.h"
#include "tools/schemac/Story.h"

#include <gtest/gtest.h>

namespace schemac {

namespace {

Schema module(std::string const& source) { return story::parsed("module M\n" + source); }

std::string lockOf(std::string const& source) {
  return lockText(story::builtin(), {module(source)});
}

// The lines of the lock file behind that of the module.
std::string lines(std::string const& source) {
  std::string const text = lockOf(source);
  std::string const first = "\nmodule M\n";
  return text.substr(text.find(first) + first.size());
}

// What is locked of a row of an entity.
std::string locked(std::string const& row) {
  std::string const text = lines("enum E\n0 a\nend\nentity X\n" + row + "\nend\n");
  std::string const head = "X entity\nX ";
  std::string const rest = text.substr(text.find(head) + head.size());
  return rest.substr(0, rest.find('\n'));
}

std::string const toDo =
    "lock:1:1: error: the schema says something else; if that is meant, run "
    "\"cmake --build TREE --target lock\" and have the difference reviewed\n";

// What is said of a schema with `now` where the file "lock" was made with `before`.
std::string complaints(std::string const& before, std::string const& now) {
  Diagnostics diagnostics;
  checkLock(story::builtin(), {module(now)}, "lock", lockOf(before), diagnostics);
  return diagnostics.text();
}

TEST(LockTest, AFixedIntegerHasItsSize) {
  EXPECT_EQ(locked("258 scalar x bool"), "258 x scalar bool 1");
  EXPECT_EQ(locked("258 scalar x U32 = 7"), "258 x scalar U32 4");
  EXPECT_EQ(locked("258 counter x U8"), "258 x counter U8 1");
}

TEST(LockTest, AMapHasTheSizeOfKeyAndValue) {
  EXPECT_EQ(locked("258 map x U8 -> U32"), "258 x map U8 -> U32 5");
  EXPECT_EQ(locked("258 map x U8 -> bool ordered"), "258 x map U8 -> bool 2");
}

TEST(LockTest, EverythingElseIsVariable) {
  EXPECT_EQ(locked("258 scalar x double"), "258 x scalar double variable");
  EXPECT_EQ(locked("258 scalar x E"), "258 x scalar E variable");
  EXPECT_EQ(locked("258 map x E -> U8"), "258 x map E -> U8 variable");
  EXPECT_EQ(locked("258 map x U8 -> double"), "258 x map U8 -> double variable");
  EXPECT_EQ(locked("258 ref x const X"), "258 x ref const X variable");
  EXPECT_EQ(locked("258 refs x U8 -> X"), "258 x refs U8 -> X variable");
  EXPECT_EQ(locked("258 own x X"), "258 x own X variable");
}

TEST(LockTest, WhatIsInNoRecordHasNoSize) {
  EXPECT_EQ(locked("258 computed x U32"), "258 x computed U32 -");
  EXPECT_EQ(locked("258 operation x (a U8, b const X) -> bool"),
            "258 x operation (a U8, b const X) -> bool -");
  EXPECT_EQ(lines("object O (a U8)\n130 param a U8\n131 map m U8 -> U8\nend\n"),
            "O object\nO (1) a U8 -\nO 130 a param U8 -\nO 131 m map U8 -> U8 -\n");
}

TEST(LockTest, AnOperationWithoutNumberIsNoAttribute) {
  EXPECT_EQ(lines("entity X\n258 scalar a U8\n- operation f ()\nend\n"),
            "X entity\nX 258 a scalar U8 1\n");
}

TEST(LockTest, TheKeyIsTheElementsOwn) {
  EXPECT_EQ(lines("namespace N\nentity L (name Mox::Name) key name\nend\n"
                  "entity X : L\n386 owns x L by name\nend\n"),
            "N::L entity\nN::L (1) name Mox::Name -\n"
            "N::X entity : N::L\nN::X 386 x owns Mox::Name -> N::L by name variable\n");
}

TEST(LockTest, AChildFromElsewhereHasItsArgumentsOnTheRow) {
  EXPECT_EQ(lines("extern entity L header \"L.h\"\nentity X\n"
                  "258 own x L (name Mox::Name, lane U8)\nend\n"),
            "X entity\nX 258 x own L (name Mox::Name, lane U8) variable\n");
}

TEST(LockTest, EnumeratorsHaveNumberAndName) {
  EXPECT_EQ(lines("enum E\n0 a\n1 b\nend\n"), "E enum\nE 0 a\nE 1 b\n");
}

TEST(LockTest, TheSameSchemaHasNoComplaints) {
  std::string const schema = "entity X\n258 scalar a U8   /// A.\nend\n";
  EXPECT_EQ(complaints(schema, schema), "");
  EXPECT_EQ(complaints(schema, "# A comment.\nentity X\n  258 scalar a U8 = 3\nend\n"), "");
}

TEST(LockTest, AChangedAttributeIsNamedAtItsPlaceInTheSchema) {
  EXPECT_EQ(complaints("entity X\n258 scalar a U8\nend\n", "entity X\n  258 scalar a U32\nend\n"),
            toDo + "s:3:3: error: \"X 258 a scalar U32 4\" is locked as \"X 258 a scalar U8 1\"\n");
}

TEST(LockTest, ANewAttributeIsNamedAtItsPlaceInTheSchema) {
  EXPECT_EQ(complaints("entity X\nend\n", "entity X\n258 scalar a U8\nend\n"),
            toDo + "s:3:1: error: \"X 258 a scalar U8 1\" is new\n");
}

TEST(LockTest, ARemovedAttributeIsNamedAtItsPlaceInTheFile) {
  EXPECT_EQ(complaints("entity X\n258 scalar a U8\nend\n", "entity X\nend\n"),
            toDo + "lock:14:1: error: \"X 258 a scalar U8 1\" is gone from the schema\n");
}

TEST(LockTest, ANumberThatMovesIsGoneAndNew) {
  EXPECT_EQ(complaints("entity X\n258 scalar a U8\nend\n", "entity X\n259 scalar a U8\nend\n"),
            toDo +
                "lock:14:1: error: \"X 258 a scalar U8 1\" is gone from the schema\n"
                "s:3:1: error: \"X 259 a scalar U8 1\" is new\n");
}

TEST(LockTest, ConstructorArgumentsAndEnumeratorsAreLockedToo) {
  EXPECT_EQ(complaints("object O (a U8)\n130 param a U8\nend\n",
                       "object O (a U32)\n130 param a U32\nend\n"),
            toDo +
                "s:2:11: error: \"O (1) a U32 -\" is locked as \"O (1) a U8 -\"\n"
                "s:3:1: error: \"O 130 a param U32 -\" is locked as \"O 130 a param U8 -\"\n");
  EXPECT_EQ(complaints("enum E\n0 a\nend\n", "enum E\n0 b\nend\n"),
            toDo + "s:3:1: error: \"E 0 b\" is locked as \"E 0 a\"\n");
}

TEST(LockTest, ABaseIsLockedToo) {
  std::string const extras = "extern entity B header \"B.h\"\n";
  EXPECT_EQ(complaints(extras + "entity X\nend\n", extras + "entity X : B\nend\n"),
            toDo + "s:3:8: error: \"X entity : B\" is locked as \"X entity\"\n");
}

TEST(LockTest, TypesStandInTheOrderOfTheSchema) {
  EXPECT_EQ(
      complaints("enum E\n0 a\nend\nenum F\n0 b\nend\n", "enum F\n0 b\nend\nenum E\n0 a\nend\n"),
      toDo + "lock:13:1: error: \"E enum\" is out of place\n");
}

TEST(LockTest, WhatDoesNotBelongIsNamed) {
  Diagnostics diagnostics;
  std::string const schema = "enum E\n0 a\nend\n";
  checkLock(story::builtin(), {module(schema)}, "lock", lockOf(schema) + "E 0 a\n<<<<<<< here\n",
            diagnostics);
  EXPECT_EQ(diagnostics.text(),
            toDo + "lock:16:1: error: \"<<<<<<< here\" is gone from the schema\n");
}

}  // namespace

}  // namespace schemac
