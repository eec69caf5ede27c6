// The model as text, as a tree and for programs.
#include "tools/kestrel/model/FaceJson.h"
#include "tools/kestrel/model/Show.h"
#include "tools/kestrel/model/TestModel.h"
#include "tools/kestrel/model/Tree.h"

namespace kestrel {

namespace {

struct ShowTest : ModelTest {
  std::string tree(std::string const& path, U32 depth) const {
    return said([&] {
      std::ostringstream out;
      printTree(paths.requireAt(path), model.roots(), depth, out);
      return out.str();
    });
  }
  std::string json(std::string const& path) const {
    return jsonAt(paths.requireAt(path), model.roots()).dump();
  }
};

TEST_F(ShowTest, AnEntityIsItsAttributesThoseOfTheBaseFirst) {
  EXPECT_EQ(text("/slice0"), "ready: True\nchipStatus: {1 element}\n");
  EXPECT_EQ(text("/coprocessors/coprocessorStatus/cop0"),
            "coprocessorId: 0\n"
            "fapId: 0\n"
            "state: 'copStateOk'\n"
            "ham: Entity('Fru::Ham', 'coprocessors/cop0/ham1')\n"
            "genId: 1\n");
}

TEST_F(ShowTest, ACollectionIsItsElementsUnderTheirKeys) {
  EXPECT_EQ(text("/slice0Config/xpPortGroupList/Ethernet1/groups/1x100G/ports"),
            "Ethernet1: True\n");
  EXPECT_EQ(text("/slice0/chipStatus"), "chip0: Entity('Kestrel::ChipHwStatus', 'slice0/chip0')\n");
  afterSet("/slice0Config/xpPortGroupList/Ethernet1/groups/1x100G/ports/a b", "False");
  EXPECT_NE(
      text("/slice0Config/xpPortGroupList/Ethernet1/groups/1x100G/ports").find("a%20b: False"),
      std::string::npos);
}

TEST_F(ShowTest, AnObjectShowsItsOperations) {
  EXPECT_THAT(
      text("/tableCliHelper"),
      testing::StartsWith("chipStatus: Entity('XpSystem::ChipStatus', 'chip0Tables')\n"
                          "getTableCollection: operation () -> Kestrel::TableCollection\n"));
  EXPECT_EQ(text("/tableManSm/doVerifyOrCreateTables"), "operation (warmRestart bool) -> bool\n");
}

TEST_F(ShowTest, TheTreeShowsWhatIsOwnedAndCountsCollections) {
  EXPECT_EQ(tree("/slice0", 0), "slice0 Kestrel::SliceHwStatus\n  chipStatus {1 element}\n");
  EXPECT_EQ(tree("/slice0", 1),
            "slice0 Kestrel::SliceHwStatus\n"
            "  chipStatus {1 element}\n"
            "    chip0 Kestrel::ChipHwStatus\n"
            "      portStatus {17 elements}\n"
            "      serdes {32 elements}\n");
  EXPECT_EQ(tree("/slice0/chipStatus", 0), "chipStatus {1 element}\n");
  EXPECT_EQ(tree(phy, 1),
            "phy3%2F0 Kestrel::PhyXp80Status\n"
            "  fecCounters Kestrel::FecCounters\n"
            "    fecSymbolErrors {1 element}\n"
            "    bipErrors {0 elements}\n"
            "  lanePhyStatus {4 elements}\n"
            "  xpSerdesStatus Kestrel::XpSerdesSmStatus\n"
            "  xpSerdesConfig Kestrel::XpSerdesSmConfig\n");
}

TEST_F(ShowTest, TheRootsAreShownAtEachDepth) {
  EXPECT_EQ(tree("/", 0), tree("/", 1));
  EXPECT_THAT(tree("/", 0), testing::StartsWith("slice0 Kestrel::SliceHwStatus\n"
                                                "  chipStatus {1 element}\n"
                                                "slice0Config Kestrel::SliceHwConfig\n"));
}

TEST_F(ShowTest, NoTreeWithoutEntities) {
  EXPECT_EQ(tree(port + "/portMode", 1),
            "! \"" + port + "/portMode\": no entity stands there: 'portMode100G'");
  EXPECT_EQ(tree(phy + "/ethIntfStatus", 1),
            "! \"" + phy + "/ethIntfStatus\": no entity stands there: None");
}

TEST_F(ShowTest, JsonHasTypes) {
  EXPECT_EQ(json(port + "/portMode"), R"("portMode100G")");
  EXPECT_EQ(json(port + "/portId"), "12");
  EXPECT_EQ(json(port + "/portValid"), "true");
  EXPECT_EQ(json(phy + "/cursors"), R"({"atten":-3,"pre":1,"post":2})");
  EXPECT_EQ(json(phy + "/ethIntfStatus"), "null");
  EXPECT_EQ(json("/phyConfigs/phyConfig/phy3%2F0/linkDebounceInterval"), "0.2");
  EXPECT_EQ(json(phy + "/fecCounters/fecSymbolErrors"), R"({"0":36})");
  EXPECT_EQ(json("/slice0"),
            "{\"ready\":true,\"chipStatus\":"
            "{\"chip0\":\"Entity('Kestrel::ChipHwStatus', 'slice0/chip0')\"}}");
  EXPECT_EQ(json("/tableManSm/doVerifyOrCreateTables"),
            R"js({"operation":"(warmRestart bool) -> bool"})js");
}

TEST_F(ShowTest, JsonTakesWhatItHasNoNumberAndNoTextFor) {
  afterSet(phy + "/lastSignalOkChange", "inf");
  EXPECT_EQ(json(phy + "/lastSignalOkChange"), R"("inf")");
  afterSet(port + "/intfName", "None");
  EXPECT_EQ(json(port + "/intfName"), R"("None")");
  afterSet(port + "/intfName", "\xC3\xA9");
  EXPECT_EQ(json(port + "/intfName"), "\"\xC3\xA9\"");
  afterSet(port + "/intfName", "\xE9");
  EXPECT_EQ(json(port + "/intfName"), "\"\xC3\xA9\"");
}

}  // namespace

}  // namespace kestrel
