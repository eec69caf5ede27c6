// Values of one number: bounds, texts, parsers, order, and what they are on a stream.
#include "Mox/TestValues.h"
#include "everyShape/everyShape.h"

#include <algorithm>
#include <concepts>
#include <gtest/gtest.h>
#include <sstream>

namespace frametest {
namespace {

using namespace std::string_literals;
using everyShape::Dial;
using everyShape::Hue;
using everyShape::Level;
using everyShape::Shade;
using moxtest::complaint;
using moxtest::Ordered;
using moxtest::parseComplaint;
using moxtest::read;
using moxtest::written;

TEST(SingleFieldTest, StartsAtItsDefault) {
  EXPECT_EQ(Level().value(), 0);
  EXPECT_EQ(Hue().value(), 65535);
  EXPECT_EQ(Shade().value(), 65535);
}

TEST(SingleFieldTest, BoundIsChecked) {
  EXPECT_EQ(Level(9).value(), 9);
  EXPECT_EQ(complaint([] { Level(10); }), "Level::value < 0 or > 9 not allowed");
  EXPECT_EQ(Shade(359).value(), 359);
  EXPECT_EQ(complaint([] { Shade(360); }), "Shade::value < 0 or > 359 not allowed");
  EXPECT_EQ(Hue(360).value(), 360);
}

TEST(SingleFieldTest, SettingChecksAndKeepsTheOldNumber) {
  Dial dial;
  dial.valueIs(0);
  EXPECT_EQ(complaint([&dial] { dial.valueIs(1); }), "Dial::value < 0 or > 0 not allowed");
  EXPECT_EQ(dial.value(), 0u);
}

TEST(SingleFieldTest, OnlyWhatIsToldHasAnOrder) {
  EXPECT_TRUE(Ordered<Hue>);
  EXPECT_TRUE(Ordered<Shade>);
  EXPECT_FALSE(Ordered<Level>);
  EXPECT_FALSE((std::convertible_to<Level, U8>));
  EXPECT_TRUE(Hue(1) < Hue(2) && Hue(1) <= Hue(1) && Hue(2) > Hue(1) && Hue(2) >= Hue(2));
  EXPECT_FALSE(Hue(1) < Hue(1) || Hue(2) <= Hue(1) || Hue(1) > Hue(1) || Hue(1) >= Hue(2));
}

TEST(SingleFieldTest, AKeyWithoutAnOrderIsOrderedByNumber) {
  EXPECT_TRUE(Mox::KeyOps<Level>::less(Level(1), Level(2)));
  EXPECT_FALSE(Mox::KeyOps<Level>::less(Level(2), Level(2)));
  EXPECT_EQ(Mox::KeyOps<Level>::hash(Level(2)), 2u);
  EXPECT_TRUE(Mox::KeyOps<Shade>::less(Shade(1), Shade(2)));
}

TEST(SingleFieldTest, ComparesThroughTheBase) {
  EXPECT_TRUE(Shade(1) == Shade(1));
  EXPECT_TRUE(Shade(1) != Shade(2));
  EXPECT_TRUE(Shade(1) < Shade(2) && Shade(2) >= Shade(1));
  EXPECT_TRUE(Shade(1) == Hue(1));
}

TEST(SingleFieldTest, TextIsTheNumber) {
  std::ostringstream out;
  out << Level(9) << ' ' << Hue(300) << ' ' << Shade(7);
  EXPECT_EQ(out.str(), "9 300 7");
  EXPECT_EQ(valueToStrep(Level(9)), "9");
  EXPECT_EQ(valueToStrep(Shade()), "65535");
}

TEST(SingleFieldTest, ParserNarrowsAndThenChecks) {
  EXPECT_EQ(Mox::strepToValue<Level>("265").value(), 9);
  EXPECT_EQ(Mox::strepToValue<Hue>("65535").value(), 65535);
  EXPECT_EQ(Mox::strepToValue<Shade>("65541").value(), 5);
  EXPECT_EQ(parseComplaint<Shade>("65535"), "Shade::value < 0 or > 359 not allowed");
  EXPECT_EQ(parseComplaint<Level>("-1"), "Level::value < 0 or > 9 not allowed");
}

TEST(SingleFieldTest, ParserStoresWhereItWasAskedToAndNothingOnAComplaint) {
  Level level(3);
  EXPECT_NE(complaint([&level] { Mox::strepToValue<Level>("4x", &level); }), "");
  EXPECT_EQ(level, Level(3));
  Mox::strepToValue<Level>("4", &level);
  EXPECT_EQ(level, Level(4));
}

TEST(SingleFieldTest, ParserComplainsOfTheField) {
  EXPECT_EQ(parseComplaint<Shade>("x"),
            "attribute 'value': column 0: expected long long, found 'x'");
  EXPECT_EQ(parseComplaint<Level>(""),
            "attribute 'value': column 0: expected long long, found the end");
  EXPECT_EQ(parseComplaint<Level>("3 "), "junk at column 1 deserializing 3 ");
}

TEST(SingleFieldTest, AStreamHasTheStorage) {
  EXPECT_EQ(written(Level(9)), "\x09");
  EXPECT_EQ(written(Hue(258)), "\x01\x02");
  EXPECT_EQ(written(Shade(258)), "\x01\x02");
  EXPECT_EQ(written(Dial(0)), "\0\0\0\0"s);
}

TEST(SingleFieldTest, APeersNumberIsNotChecked) {
  EXPECT_EQ(read<Level>("\xFF").value(), 255);
  EXPECT_EQ(read<Shade>("\xFF\xFE").value(), 65534);
  EXPECT_EQ(read<Dial>("\0\0\0\x07"s).value(), 7u);
  EXPECT_EQ(complaint([] { read<Hue>("a"); }), "the stream ends: 2 bytes wanted, 1 left");
}

TEST(SingleFieldTest, DescriptorsNameTheNumber) {
  for (auto const* type : {Level::_fwkType(), Hue::_fwkType(), Dial::_fwkType()}) {
    EXPECT_EQ(type->valAttr(), type->attr("value").ptr());
    EXPECT_EQ(type->constructorArgNames(), std::vector<Mox::Name>{"value"});
  }
  EXPECT_EQ(Level().fwkType(), Level::_fwkType());
}

TEST(SingleFieldTest, ADerivedValueHasTheAttributesOfItsBase) {
  auto const* shade = Shade::_fwkType();
  auto const* hue = Hue::_fwkType();
  EXPECT_EQ(shade->base(), hue);
  EXPECT_EQ(shade->attributeQ().count(), 2u);
  for (Mox::AttributeId id : {2, 3})
    EXPECT_EQ(shade->attributeById(id), hue->attributeById(id)) << id;
  EXPECT_EQ(shade->valAttr(), hue->valAttr());
  EXPECT_EQ(shade->constructorArgNames(), std::vector<Mox::Name>{"value"});
  EXPECT_EQ(shade->constructorArgTypes(), std::vector<Mox::Name>{"U16"});
  EXPECT_EQ(std::ranges::count(hue->derivedTypeQ(), shade), 1);
}

}  // namespace
}  // namespace frametest
