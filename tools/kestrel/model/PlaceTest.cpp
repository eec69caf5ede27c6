// Where paths lead, and what stands there once it is set.
#include "tools/kestrel/model/TestModel.h"

#include <random>

namespace kestrel {

namespace {

struct PlaceTest : ModelTest {};

TEST_F(PlaceTest, AttributesThenKeysLeadToAScalar) {
  EXPECT_EQ(line(port + "/portMode"), "'portMode100G'");
  EXPECT_EQ(line(port + "/portId"), "12");
}

TEST_F(PlaceTest, ReferencesAreFollowed) {
  EXPECT_EQ(line(port + "/phyStatus/phyConfig/lane"), "12");
  EXPECT_EQ(line("/tableManSm/chipStatus/deviceType"), "'xpDeviceTypeXp80'");
}

TEST_F(PlaceTest, FieldsOfValuesAreReached) {
  EXPECT_EQ(line(phy + "/cursors/post"), "2");
  EXPECT_EQ(line(port + "/portId/value"), "12");
  EXPECT_EQ(line(phy + "/signalOk/value"), "1");
}

TEST_F(PlaceTest, KeysOfEachKindArePlain) {
  EXPECT_EQ(line("/chip0Config/portHwConfig/0/speedCapabilities/portMode100G"), "True");
  EXPECT_EQ(line("/chip0Config/chipHwConfig/serdes/7/lane"), "7");
  EXPECT_EQ(line("/slice0Config/xpPortGroupList/Ethernet2/groups/4x25G/ports/Ethernet2%2F3"),
            "True");
  EXPECT_EQ(line(phy + "/lanePhyStatus/3/lane"), "15");
}

TEST_F(PlaceTest, ASlashAtTheEndChangesNothing) {
  EXPECT_EQ(paths.at(port + "/").path, port);
  EXPECT_EQ(paths.at("/").kind, Place::Kind::top);
}

TEST_F(PlaceTest, ThePathIsCanonical) {
  EXPECT_EQ(paths.at("/%73lice0/ready").path, "/slice0/ready");
  EXPECT_EQ(paths.at("/phyStatuses/phyStatus/phy3%2f0/lane").path, phy + "/lane");
}

TEST_F(PlaceTest, WhatIsUnknownSaysWhatExists) {
  EXPECT_EQ(line("/slice0/chipStatus/chip7"),
            "! \"/slice0/chipStatus/chip7\": no such element; there is chip0");
  EXPECT_EQ(line("/slice0/chips"),
            "! \"/slice0/chips\": no such attribute; there are ready and chipStatus");
  EXPECT_EQ(line("/slice"),
            "! \"/slice\": no such root; there are slice0, slice0Config, chip0, chip0Config, "
            "chip0Device, chip0Tables, phyConfigs, phyStatuses and 6 more");
  EXPECT_EQ(line(port + "/portMode/x"), "! \"" + port + "/portMode\": XpPortMode has no parts");
  EXPECT_EQ(line("/chip0Config/chipHwConfig/resetPlls/1"),
            "! \"/chip0Config/chipHwConfig/resetPlls/1\": no such element; there is none");
}

TEST_F(PlaceTest, AKeyThatCantBeOneSaysWhy) {
  EXPECT_THAT(line("/slice0/chipStatus/chip0/portStatus/133"),
              testing::StartsWith("! \"/slice0/chipStatus/chip0/portStatus/133\": "
                                  "no XpPortId \"133\" (XpPortId::value < 0 or > 132 not "
                                  "allowed); there are "));
  EXPECT_THAT(line("/slice0/chipStatus/chip0/portStatus/x"),
              testing::HasSubstr("/x\": no XpPortId \"x\" (attribute 'value': column 0: expected "
                                 "long long, found 'x'); there are "));
  EXPECT_EQ(line("/slice0/%2/x"), "! \"/slice0/%2/x\": a \"%\" needs two hexadecimal digits");
}

TEST_F(PlaceTest, NothingStandsBelowNone) {
  EXPECT_EQ(line(phy + "/ethIntfStatus"), "None");
  EXPECT_EQ(line(phy + "/ethIntfStatus/linkUp"),
            "! \"" + phy + "/ethIntfStatus\": None has no attributes");
}

TEST_F(PlaceTest, NothingStandsBelowAnElementThatIsntThere) {
  EXPECT_EQ(line("/slice0/chipStatus/chip7/serdes"),
            "! \"/slice0/chipStatus/chip7\": no such element; there is chip0");
}

TEST_F(PlaceTest, APathBeginsWithASlash) {
  EXPECT_EQ(line("slice0"), "! \"slice0\": a path begins with \"/\"");
  EXPECT_EQ(line(""), "! \"\": a path begins with \"/\"");
}

TEST_F(PlaceTest, WhatHasNoInterfaceCantBeRead) {
  EXPECT_EQ(line("/tableManSm/tableProfile"), "! \"/tableManSm/tableProfile\": it can't be read");
  EXPECT_EQ(line("/tableManSm/tableProfile/x"), "! \"/tableManSm/tableProfile\": it can't be read");
}

TEST_F(PlaceTest, ScalarsAreSet) {
  EXPECT_EQ(afterSet(port + "/portMode", "portMode40G"), "'portMode40G'");
  EXPECT_EQ(afterSet(port + "/intfName", "a b"), "'a b'");
  EXPECT_EQ(afterSet(port + "/intfName", "'c'"), "'c'");
  EXPECT_EQ(afterSet(phy + "/lastSignalOkChange", "1.5"), "1.5");
}

TEST_F(PlaceTest, AFieldIsSetInItsValue) {
  EXPECT_EQ(afterSet(phy + "/cursors/atten", "-7"), "-7");
  EXPECT_EQ(line(phy + "/cursors"),
            "Value('Kestrel::TxEq', ** {'atten': -7, 'pre': 1, 'post': 2})");
  EXPECT_EQ(afterSet(phy + "/signalOk/value", "0"), "0");
  EXPECT_EQ(line(phy + "/signalOk"), "0");
}

TEST_F(PlaceTest, ElementsAreSetAndAdded) {
  EXPECT_EQ(afterSet(phy + "/fecCounters/fecSymbolErrors/0", "5"), "5");
  EXPECT_EQ(afterSet(phy + "/fecCounters/fecSymbolErrors/200", "6"), "6");
  EXPECT_EQ(text(phy + "/fecCounters/fecSymbolErrors"), "0: 5\n200: 6\n");
  EXPECT_EQ(afterSet("/slice0Config/xpPortGroupDefault/''", "none"), "'none'");
}

TEST_F(PlaceTest, ReferencesAreSetByPathByTextOrToNone) {
  EXPECT_EQ(afterSet(port + "/phyStatus", phy),
            "Entity('Kestrel::PhyXp80Status', 'phyStatuses/phy3/0')");
  EXPECT_EQ(afterSet(port + "/phyStatus", "None"), "None");
  EXPECT_EQ(afterSet(port + "/phyStatus", "Entity('Kestrel::PhyXp80Status', 'phyStatuses/phy0/1')"),
            "Entity('Kestrel::PhyXp80Status', 'phyStatuses/phy0/1')");
  EXPECT_EQ(afterSet(port + "/phyStatus", "/slice0"),
            "! \"" + port + "/phyStatus\": wrong type for 'phyStatus'");
}

TEST_F(PlaceTest, AnElementWithItsOwnKeyIsSetAtTheCollection) {
  EXPECT_EQ(afterSet("/chip0Config/chipHwConfig/serdes", "/phyConfigs/phyConfig/phy0%2F0"),
            "{32 elements}");
  EXPECT_EQ(afterSet("/slice0Config/xpPortGroupDefault", "x"),
            "! \"/slice0Config/xpPortGroupDefault\": a key must follow");
}

TEST_F(PlaceTest, WhatIsRefusedChangesNothing) {
  EXPECT_EQ(
      afterSet(port + "/portMode", "40G"),
      "! \"" + port +
          "/portMode\": no XpPortMode \"40G\"; there are portModeDisabled, portMode1GBaseX, "
          "portMode1GBaseR, portMode1G, portMode10G, portMode25G, portMode40G, portMode40G2 and "
          "2 more");
  EXPECT_EQ(line(port + "/portMode"), "'portMode100G'");
  EXPECT_EQ(afterSet(phy + "/cursors/atten", "128"),
            "! \"" + phy + "/cursors/atten\": no S8 \"128\" (column 0: 128 is out of range)");
  EXPECT_EQ(afterSet(phy + "/signalOk", "2"),
            "! \"" + phy + "/signalOk\": no U1 \"2\" (U1::value < 0 or > 0x01 not allowed)");
  EXPECT_EQ(line(phy + "/signalOk"), "1");
}

TEST_F(PlaceTest, ARefusedReferenceSaysWhatIsWanted) {
  EXPECT_EQ(afterSet(port + "/phyStatus", "x"),
            "! \"" + port +
                "/phyStatus\": no PhyXp80Status \"x\" (column 0: expected 'Entity', found 'x'); a "
                "path to one or None is wanted");
}

TEST_F(PlaceTest, WhatItsOwnerMakesIsNotSet) {
  std::string const complaint = "what its owner makes can't be set";
  for (std::string const path : {"/slice0/chipStatus", "/slice0/chipStatus/chip0",
                                 "/chip0/tableContextEntry/0", "/chip0/tableContextEntry/99"})
    EXPECT_EQ(afterSet(path, "x"), "! \"" + path + "\": " + complaint);
  EXPECT_EQ(afterSet(phy + "/fecCounters", "None"), "! \"" + phy + "/fecCounters\": " + complaint);
}

TEST_F(PlaceTest, ConstantsAreNotSet) {
  std::string const unsettable = "it can't be set ('portId' does not support operation 128)";
  EXPECT_EQ(afterSet(port + "/portId", "3"), "! \"" + port + "/portId\": " + unsettable);
  EXPECT_EQ(afterSet(port + "/portId/value", "3"),
            "! \"" + port + "/portId/value\": " + unsettable);
  EXPECT_EQ(afterSet("/chip0Tables/tableContext/0/tableType", "3"),
            "! \"/chip0Tables/tableContext/0/tableType\": attempting to modify a const instance");
  EXPECT_EQ(afterSet("/slice0", "None"), "! \"/slice0\": it stands for itself and can't be set");
  EXPECT_EQ(afterSet("/", "None"), "! \"/\": it stands for itself and can't be set");
  EXPECT_EQ(afterSet("/tableManSm/doCreateFdbTable", "1"),
            "! \"/tableManSm/doCreateFdbTable\": an operation can't be set");
}

/// Steps that lead somewhere, steps that don't, and bytes of any kind.
std::string anyPath(std::mt19937& random) {
  static std::vector<std::string> const steps = {"slice0",
                                                 "chipStatus",
                                                 "chip0",
                                                 "portStatus",
                                                 "12",
                                                 "portMode",
                                                 "phyStatuses",
                                                 "phyStatus",
                                                 "phy3%2F0",
                                                 "cursors",
                                                 "atten",
                                                 "tableManSm",
                                                 "doCreateFdbTable",
                                                 "fwkKey",
                                                 "moxHasAttrLogInterface",
                                                 "chip0Tables",
                                                 "tableContext",
                                                 "0",
                                                 "tblContext",
                                                 "phyConfigs",
                                                 "",
                                                 "%",
                                                 "%00",
                                                 "''",
                                                 "-1",
                                                 "99999999999999999999",
                                                 "Value('x', ** {",
                                                 "None",
                                                 "serdes"};
  std::string path;
  for (auto length = random() % 7; length > 0; --length) {
    path += "/" + steps[random() % steps.size()];
    if (random() % 8 == 0) path += static_cast<char>(random() % 256);
  }
  return path;
}

TEST_F(PlaceTest, WhateverIsTypedIsReadOrRefused) {
  constexpr int tries = 20000;
  std::mt19937 random(7);  // NOLINT: the same each time
  int found = 0;
  for (int i = 0; i < tries; ++i) {
    std::string const path = anyPath(random);
    found += text(path).starts_with("! ") ? 0 : 1;
    afterSet(path, anyPath(random));
  }
  EXPECT_GT(found, 100);
  EXPECT_LT(found, tries);
}

}  // namespace

}  // namespace kestrel
