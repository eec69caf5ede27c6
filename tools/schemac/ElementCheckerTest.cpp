// The rules on keys and children, each with the words in which a breach is reported.
#include "tools/schemac/Story.h"

#include <gtest/gtest.h>

namespace schemac {

namespace {

using story::errors;

// The errors of `row` in an entity behind `types`, without their places.
std::string faultOfRow(std::string const& types, std::string const& row) {
  std::string const all = errors(types + "entity X (name Mox::Name)\n258 " + row + "\nend\n");
  return all.empty() ? "" : all.substr(all.find("error: ") + 7);
}

TEST(ElementCheckerTest, AKeyOfAHashMapHasAHash) {
  EXPECT_EQ(faultOfRow("", "map a double -> U8"), "a key needs a hash, and \"double\" has none\n");
  EXPECT_EQ(faultOfRow("extern primitive float\n", "refs a float -> X"),
            "a key needs a hash, and \"float\" has none\n");
  EXPECT_EQ(faultOfRow("", "map a double -> U8 ordered"), "");
  EXPECT_EQ(faultOfRow("entity L (name Mox::Name)\n258 scalar b double\nend\n", "refs a L by b"),
            "a key needs a hash, and \"double\" has none\n");
}

TEST(ElementCheckerTest, AKeyIsNoPointer) {
  EXPECT_EQ(faultOfRow("", "map a U8* -> U8"), "a key can't be a raw pointer\n");
  EXPECT_EQ(faultOfRow("entity L (name Mox::Name)\n258 ref b L\nend\n", "refs a L by b"),
            "\"L\" is an entity, and a primitive or value or enum is needed\n");
}

TEST(ElementCheckerTest, AValueAsKeyHasOrderAndHash) {
  EXPECT_EQ(faultOfRow("value V\n2 value U8\nend\n", "map a V -> U8"),
            "a key needs an order, so \"V\" needs the option \"ordered\"\n");
  EXPECT_EQ(faultOfRow("value V ordered\n2 b U8\nend\n", "map a V -> U8"),
            "a key needs a hash, so \"V\" needs an integer \"hash\" or \"value\"\n");
  EXPECT_EQ(faultOfRow("value V ordered\n2 b U8\nend\n", "map a V -> U8 ordered"), "");
  EXPECT_EQ(faultOfRow("value V ordered\n2 value U8\nend\n", "map a V -> U8"), "");
  EXPECT_EQ(faultOfRow("value V\n2 value U8 in 0..9 else \"m\"\nend\n", "map a V -> U8"), "");
  EXPECT_EQ(faultOfRow("value V\n2 b U8 in 0..9 else \"m\"\nend\n", "map a V -> U8"),
            "a key needs an order, so \"V\" needs the option \"ordered\"\n");
}

TEST(ElementCheckerTest, AnOperationIsNoKey) {
  EXPECT_EQ(
      faultOfRow("entity L (name Mox::Name)\n258 operation b (c U8) -> U8\nend\n", "refs a L by b"),
      "\"L\" has no attribute \"b\"\n");
}

TEST(ElementCheckerTest, ObjectsAreNoChildrenAndHaveNoKey) {
  std::string const object = "object L (b U8)\n130 param b U8\nend\n";
  std::string const expected = "\"L\" is an object, and an entity is needed\n";
  EXPECT_EQ(faultOfRow(object, "owns a L by b node"), expected);
  EXPECT_EQ(faultOfRow(object, "refs a L by b"), expected);
  EXPECT_EQ(faultOfRow(object, "refs a U8 -> L"), "");
}

TEST(ElementCheckerTest, AChildIsNotConst) {
  EXPECT_EQ(faultOfRow("entity L (name Mox::Name)\nend\n", "own a const L"),
            "a child can't be \"const\"\n");
}

TEST(ElementCheckerTest, AnOwnedChildIsMadeFromItsName) {
  std::string const expected =
      "the first constructor parameter of a child is its \"Mox::Name\", unlike that of \"L\"\n";
  EXPECT_EQ(faultOfRow("entity L\nend\n", "own a L"), expected);
  EXPECT_EQ(faultOfRow("entity L (b U8)\n258 param b U8\nend\n", "own a L"), expected);
}

TEST(ElementCheckerTest, ParametersOfAKeptChildAreCompared) {
  std::string const head = "entity L (name Mox::Name, ";
  std::string const pointer = head + "p U8*) key name\n258 param p U8*\nend\n";
  EXPECT_EQ(faultOfRow(pointer, "owns a L by name"),
            "parameter \"p\" is a raw pointer, which isn't compared, so \"a\" needs the option "
            "\"keepFirst\"\n");
  EXPECT_EQ(faultOfRow(pointer, "owns a L by name keepFirst"), "");
  EXPECT_EQ(faultOfRow(head + "child U8) key name\n258 param child U8\nend\n", "owns a L by name"),
            "parameter \"child\" can't be compared under that name, so \"a\" needs the option "
            "\"keepFirst\"\n");
}

TEST(ElementCheckerTest, EntitiesAreComparedAsPointers) {
  EXPECT_EQ(faultOfRow("entity K (name Mox::Name)\nend\n"
                       "entity L (name Mox::Name, p K) key name\n258 param p K\nend\n",
                       "owns a L by name"),
            "");
}

TEST(ElementCheckerTest, ParametersOfAComparedChildAreComparable) {
  std::string const head = "entity L (name Mox::Name, p U8*)\n258 param p U8*\nend\n";
  EXPECT_EQ(faultOfRow(head, "own a L compared"),
            "parameter \"p\" is a raw pointer, which isn't compared, so \"a\" can't have the "
            "option \"compared\"\n");
  EXPECT_EQ(faultOfRow(head, "own a L"), "");
}

}  // namespace

}  // namespace schemac
