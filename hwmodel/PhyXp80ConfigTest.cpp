// PHY configuration: its start, its directories, and the rule for taking a name again.
#include "Kestrel/PhyXp80ConfigDir.h"
#include "Kestrel/PhyXp80ConfigPtrDir.h"
#include "hwmodel/SampleTest.h"

namespace Kestrel {
namespace {

TEST(PhyXp80ConfigTest, FreshOnePollsTheLinkEveryTwoSeconds) {
  auto const config = sampleConfig("phy");
  EXPECT_EQ(config->linkStatePollInterval(), 2.0);
  EXPECT_EQ(config->version(), 1u) << "the base's mutator has run";
}

TEST(PhyXp80ConfigTest, FreshOneReadsItsDefaults) {
  auto const config = sampleConfig("phy");
  EXPECT_EQ(config->sigOkThresholdMaxRetries(), 10u);
  EXPECT_EQ(config->pCalIntervalMin(), 60.0);
}

TEST(PhyXp80ConfigTest, BaseGetsTheFirstFourParameters) {
  Mox::Ptr<MdioOpal::OpalDesc> const opal = new MdioOpal::OpalDesc("opal");
  Mox::Ptr<PhyXp80Config> const config = new PhyXp80Config(
      "phy", opal, "api", "1.0", 0, XpSerdesId(), 0, 0, false, false, TxEq(), TxEq(), TxEq());
  EXPECT_EQ(config->name(), "phy");
  EXPECT_EQ(config->opalDesc(), opal);
  EXPECT_EQ(config->api(), "api");
  EXPECT_EQ(config->minBlobVersion(), "1.0");
}

class BaseListener : public Hardware::Phy::PhyConfig::NotifieeConst {
 public:
  void onLinkStatePollInterval() override { ++calls; }
  int calls = 0;
};

class Listener : public PhyXp80Config::NotifieeConst {
 public:
  void onLinkStatePollInterval() override { heard += "linkStatePollInterval;"; }
  void onLinkDebounceInterval() override { heard += "linkDebounceInterval;"; }
  std::string heard;
};

TEST(PhyXp80ConfigTest, ObserverOfTheBaseHearsOfTheBaseAlone) {
  auto const config = sampleConfig("phy");
  auto const base = observerOf<BaseListener>(config);
  auto const own = observerOf<Listener>(config);
  config->linkDebounceIntervalIs(1.0);
  config->sigOkThresholdHighIs(1);
  EXPECT_EQ(base->calls, 0);
  config->linkStatePollIntervalIs(1.0);
  EXPECT_EQ(base->calls, 1);
  EXPECT_EQ(own->heard, "linkDebounceInterval;linkStatePollInterval;");
}

TEST(PhyXp80ConfigTest, AttributesOfBothLevelsHaveNames) {
  auto const config = sampleConfig("phy");
  EXPECT_EQ(config->attributeString(386), "lane");
  EXPECT_EQ(config->attributeString(406), "linkLockupCheckTimeout");
  EXPECT_EQ(config->attributeString(265), "linkStatePollInterval");
  EXPECT_EQ(config->attributeString(407), "unknown");
}

// The parameters of a configuration, one of which a story changes.
struct Parameters {
  Mox::Ptr<MdioOpal::OpalDesc> opalDesc = new MdioOpal::OpalDesc("opal");
  Mox::String8 api = "api";
  Mox::String8 minBlobVersion = "1.0";
  U8 lane = 1;
  XpSerdesId serdesId{2};
  U8 txLane = 3;
  U8 rxLane = 4;
  bool txPolarity = true;
  bool rxPolarity = false;
  TxEq txEq10{-1, 2, 3};
  TxEq txEqLimiting25{-4, 5, 6};
  TxEq txEqLinear25{-7, 8, 9};
};

class DirListener : public PhyXp80ConfigDir::NotifieeConst {
 public:
  void onPhyConfig(Mox::Name) override { ++calls; }
  int calls = 0;
};

class PhyXp80ConfigDirTest : public testing::Test {
 protected:
  Mox::Ptr<PhyXp80Config> ask(Parameters const& p) {
    return dir->phyConfigIs("phy", p.opalDesc, p.api, p.minBlobVersion, p.lane, p.serdesId,
                            p.txLane, p.rxLane, p.txPolarity, p.rxPolarity, p.txEq10,
                            p.txEqLimiting25, p.txEqLinear25);
  }
  std::string complaint(Parameters const& p) {
    return complaintOf<Mox::NameInUseException>([&] { ask(p); });
  }
  std::string differs(std::string const& parameter, std::string const& asked,
                      std::string const& present) {
    return "Reinstantiating the entity with name 'phy' where constructor parameter attribute _" +
           parameter + " has a different value of " + asked + " than the current value of " +
           present + " not allowed";
  }

  Parameters const first{};
  Mox::Ptr<PhyXp80ConfigDir> const dir = phyXp80ConfigDirFactory("dir");
  Mox::Ptr<DirListener> const listener = observerOf<DirListener>(dir);
};

TEST_F(PhyXp80ConfigDirTest, AskingTwiceMakesOneAndTellsOnce) {
  auto const config = ask(first);
  EXPECT_EQ(ask(first), config);
  EXPECT_EQ(dir->version(), 1u);
  EXPECT_EQ(listener->calls, 1);
  EXPECT_EQ(dir->phyConfigCount(), 1u);
}

TEST_F(PhyXp80ConfigDirTest, ConfigurationStandsUnderTheDirectory) {
  auto const config = ask(first);
  EXPECT_EQ(config->parent(), dir);
  EXPECT_EQ(config->parentAttrId(), 258u);
  EXPECT_EQ(config->fullName(), "dir/phy");
}

TEST_F(PhyXp80ConfigDirTest, ScalarsStayOnASecondAsking) {
  ask(first)->sigOkThresholdHighIs(99);
  EXPECT_EQ(ask(first)->sigOkThresholdHigh(), 99u);
}

TEST_F(PhyXp80ConfigDirTest, OtherTxLaneIsNamedWithNewAndCurrentValue) {
  auto const config = ask(first);
  Parameters other = first;
  other.txLane = 7;
  EXPECT_EQ(complaint(other), differs("txLane", "7", "3"));
  EXPECT_EQ(dir->phyConfig("phy"), config);
  EXPECT_EQ(config->txLane(), 3u);
  EXPECT_EQ(dir->version(), 1u);
  EXPECT_EQ(listener->calls, 1);
}

// A parameter is reported as long as none ahead of it differs: the last one first.
TEST_F(PhyXp80ConfigDirTest, FirstDifferenceInTheConstructorsOrderIsReported) {
  ask(first);
  Parameters other = first;
  other.txEqLinear25 = TxEq(0, 1, 2);
  EXPECT_EQ(complaint(other),
            differs("txEqLinear25", "Value('Kestrel::TxEq', ** {'atten': 0, 'pre': 1, 'post': 2})",
                    "Value('Kestrel::TxEq', ** {'atten': -7, 'pre': 8, 'post': 9})"));
  other.txEqLimiting25 = TxEq(0, 1, 2);
  EXPECT_EQ(
      complaint(other),
      differs("txEqLimiting25", "Value('Kestrel::TxEq', ** {'atten': 0, 'pre': 1, 'post': 2})",
              "Value('Kestrel::TxEq', ** {'atten': -4, 'pre': 5, 'post': 6})"));
  other.txEq10 = TxEq(0, 1, 2);
  EXPECT_EQ(complaint(other),
            differs("txEq10", "Value('Kestrel::TxEq', ** {'atten': 0, 'pre': 1, 'post': 2})",
                    "Value('Kestrel::TxEq', ** {'atten': -1, 'pre': 2, 'post': 3})"));
  other.rxPolarity = true;
  EXPECT_EQ(complaint(other), differs("rxPolarity", "1", "0"));
  other.txPolarity = false;
  EXPECT_EQ(complaint(other), differs("txPolarity", "0", "1"));
  other.rxLane = 8;
  EXPECT_EQ(complaint(other), differs("rxLane", "8", "4"));
  other.txLane = 7;
  EXPECT_EQ(complaint(other), differs("txLane", "7", "3"));
  other.serdesId = XpSerdesId(127);
  EXPECT_EQ(complaint(other), differs("serdesId", "127", "2"));
  other.lane = 9;
  EXPECT_EQ(complaint(other), differs("lane", "9", "1"));
  other.minBlobVersion = "2.0";
  EXPECT_EQ(complaint(other), differs("minBlobVersion", "'2.0'", "'1.0'"));
  other.api = "other";
  EXPECT_EQ(complaint(other), differs("api", "'other'", "'api'"));
  other.opalDesc = nullptr;
  EXPECT_EQ(complaint(other), differs("opalDesc", "None", "Entity('MdioOpal::OpalDesc', 'opal')"));
}

TEST_F(PhyXp80ConfigDirTest, OpalIsComparedByIdentity) {
  ask(first);
  Parameters other = first;
  other.opalDesc = new MdioOpal::OpalDesc("opal");
  EXPECT_EQ(complaint(other), differs("opalDesc", "Entity('MdioOpal::OpalDesc', 'opal')",
                                      "Entity('MdioOpal::OpalDesc', 'opal')"));
}

TEST_F(PhyXp80ConfigDirTest, DeletedConfigurationIsHandedBackAlone) {
  auto const config = ask(first);
  EXPECT_EQ(dir->phyConfigDel("phy"), config);
  EXPECT_EQ(config->parent(), nullptr);
  EXPECT_NE(ask(first), config);
  EXPECT_EQ(listener->calls, 3);
}

TEST(PhyXp80ConfigPtrDirTest, ElementsKeepTheirParent) {
  auto const owner = phyXp80ConfigDirFactory("owner");
  auto const config = owner->phyConfigIs("phy", nullptr, "", "", 0, XpSerdesId(), 0, 0, false,
                                         false, TxEq(), TxEq(), TxEq());
  auto const dir = phyXp80ConfigPtrDirFactory("dir");
  dir->phyConfigIs(config);
  EXPECT_EQ(dir->phyConfig("phy"), config);
  EXPECT_EQ(config->parent(), owner);
  dir->phyConfigDelAll();
  EXPECT_EQ(config->parent(), owner);
}

TEST(PhyXp80ConfigPtrDirTest, NullIsRefused) {
  auto const dir = phyXp80ConfigPtrDirFactory("dir");
  char const* const complaint =
      "null _phyConfig parameter to mutator for Kestrel::PhyXp80ConfigPtrDir::phyConfig not "
      "allowed\"";
  EXPECT_EQ(complaintOf<Mox::RangeException>([&] { dir->phyConfigIs(nullptr); }), complaint);
  EXPECT_EQ(complaintOf<Mox::RangeException>([&] { dir->newPhyConfig(nullptr); }), complaint);
  EXPECT_EQ(dir->version(), 0u);
  EXPECT_EQ(dir->phyConfigCount(), 0u);
}

}  // namespace
}  // namespace Kestrel
