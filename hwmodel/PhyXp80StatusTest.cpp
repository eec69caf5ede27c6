// PHY status: its children, its counters, its lanes, and the directories.
#include "Kestrel/PhyXp80StatusDir.h"
#include "Kestrel/PhyXp80StatusPtrDir.h"
#include "hwmodel/SampleTest.h"

namespace Kestrel {
namespace {

class Listener : public PhyXp80Status::NotifieeConst {
 public:
  void onLinkUp() override { heard += "linkUp;"; }
  void onSignalOkChanges() override { heard += "signalOkChanges;"; }
  void onFecCounters() override { heard += "fecCounters;"; }
  void onXpSerdesStatus() override { heard += "xpSerdesStatus;"; }
  void onXpSerdesConfig() override { heard += "xpSerdesConfig;"; }
  std::string heard;
};

class PhyXp80StatusTest : public testing::Test {
 protected:
  Mox::Ptr<PhyXp80Status> const status = sampleStatus("phy");
  Mox::Ptr<Listener> const listener = observerOf<Listener>(status);
};

TEST_F(PhyXp80StatusTest, BaseGetsTheFirstFourParameters) {
  auto const config = sampleConfig("config");
  auto const intf = intfStatus();
  Mox::Ptr<PhyXp80Status> const made =
      new PhyXp80Status("phy", Hardware::Phy::mdioClause22, config, intf, 3, XpSerdesId(4));
  EXPECT_EQ(made->name(), "phy");
  EXPECT_EQ(made->mdioClause(), Hardware::Phy::mdioClause22);
  EXPECT_EQ(made->phyConfig(), config);
  EXPECT_EQ(made->ethIntfStatus(), intf);
  EXPECT_EQ(made->lane(), 3u);
  EXPECT_TRUE(made->serdesId() == XpSerdesId(4));
}

TEST_F(PhyXp80StatusTest, AddingToACounterIsNoWrite) {
  EXPECT_EQ(status->signalOkChangesInc(1), 1u);
  EXPECT_EQ(status->version(), 0u);
  EXPECT_EQ(listener->heard, "signalOkChanges;");
  status->signalOkChangesIs(5);
  EXPECT_EQ(status->version(), 1u);
  EXPECT_EQ(listener->heard, "signalOkChanges;signalOkChanges;");
}

TEST_F(PhyXp80StatusTest, AddingNothingIsARead) {
  EXPECT_EQ(status->signalOkChangesInc(0), 0u);
  EXPECT_EQ(status->readCount(), 1u);
  EXPECT_EQ(status->version(), 0u);
  EXPECT_EQ(listener->heard, "");
}

TEST_F(PhyXp80StatusTest, AskingTwiceForOneChildStepsTwiceAndTellsOnce) {
  auto const child = status->fecCountersIs("fec");
  EXPECT_EQ(status->fecCountersIs("fec"), child);
  EXPECT_EQ(status->version(), 2u);
  EXPECT_EQ(listener->heard, "fecCounters;");
}

TEST_F(PhyXp80StatusTest, OfAChildOnlyTheNameCounts) {
  auto const serdes = status->xpSerdesStatusIs("serdes", 1);
  EXPECT_EQ(status->xpSerdesStatusIs("serdes", 2), serdes);
  EXPECT_EQ(serdes->serdesId(), 1u);
  auto const settings = status->xpSerdesConfigIs("serdes", 1);
  EXPECT_EQ(status->xpSerdesConfigIs("serdes", 2), settings);
  EXPECT_EQ(status->version(), 4u);
  EXPECT_EQ(listener->heard, "xpSerdesStatus;xpSerdesConfig;");
}

TEST_F(PhyXp80StatusTest, ChildrenStandUnderTheirAttributes) {
  EXPECT_EQ(status->fecCountersIs("fec")->parentAttrId(), 390u);
  EXPECT_EQ(status->xpSerdesStatusIs("serdes", 1)->parentAttrId(), 421u);
  EXPECT_EQ(status->xpSerdesConfigIs("serdes", 1)->parentAttrId(), 422u);
  EXPECT_EQ(status->fecCounters()->parent(), status);
  EXPECT_EQ(status->fecCounters()->fullName(), "phy/fec");
}

// Writes down whether the former child has a parent when the new one is heard of.
class Orphanage : public PhyXp80Status::NotifieeConst {
 public:
  void onFecCounters() override { orphaned = former && !former->parent(); }
  Mox::Ptr<FecCounters> former;
  bool orphaned = false;
};

TEST_F(PhyXp80StatusTest, OtherNameDetachesTheOldChildFirst) {
  auto const watcher = observerOf<Orphanage>(status);
  watcher->former = status->fecCountersIs("a");
  auto const second = status->fecCountersIs("b");
  EXPECT_TRUE(watcher->orphaned);
  EXPECT_EQ(second->parent(), status);
  EXPECT_EQ(status->version(), 3u);
  EXPECT_EQ(listener->heard, "fecCounters;fecCounters;");
}

TEST_F(PhyXp80StatusTest, LanesAreInAscendingOrder) {
  for (U8 lane : {3, 1, 2}) status->newLanePhyStatus(lane, sampleStatus("lane"));
  std::string lanes;
  for (auto at = status->lanePhyStatusIteratorConst(); at; ++at)
    lanes += std::to_string(at.key()) + ";";
  EXPECT_EQ(lanes, "1;2;3;");
}

TEST_F(PhyXp80StatusTest, LaneMayReferToNothing) {
  status->lanePhyStatusIs(1, nullptr);
  EXPECT_EQ(status->lanePhyStatusCount(), 1u);
  EXPECT_EQ(status->lanePhyStatus(1), nullptr);
  EXPECT_EQ(status->version(), 1u);
}

class BaseListener : public Hardware::Phy::PhyStatus::NotifieeConst {
 public:
  void onLinkUp() override { ++calls; }
  int calls = 0;
};

TEST_F(PhyXp80StatusTest, ObserverOfTheBaseHearsOfTheBaseAlone) {
  auto const base = observerOf<BaseListener>(status);
  status->signalOkChangesInc(1);
  status->fecCountersIs("fec");
  status->lanePhyStatusIs(1, nullptr);
  EXPECT_EQ(base->calls, 0);
  status->linkUpIs(true);
  EXPECT_EQ(base->calls, 1);
  EXPECT_EQ(listener->heard, "signalOkChanges;fecCounters;linkUp;");
}

// The parameters of a status, one of which a story changes.
struct Parameters {
  Hardware::Phy::MdioClause mdioClause = Hardware::Phy::mdioClause45;
  Mox::Ptr<Hardware::Phy::PhyConfig> phyConfig = sampleConfig("config");
  Mox::Ptr<Interface::EthPhyIntfStatus> ethIntfStatus = intfStatus();
  U8 lane = 1;
  XpSerdesId serdesId{2};
};

class PhyXp80StatusDirTest : public testing::Test {
 protected:
  Mox::Ptr<PhyXp80Status> ask(Parameters const& p) {
    return dir->phyStatusIs("phy", p.mdioClause, p.phyConfig, p.ethIntfStatus, p.lane, p.serdesId);
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
  Mox::Ptr<PhyXp80StatusDir> const dir = phyXp80StatusDirFactory("dir");
};

TEST_F(PhyXp80StatusDirTest, AskingTwiceMakesOne) {
  auto const status = ask(first);
  EXPECT_EQ(ask(first), status);
  EXPECT_EQ(dir->version(), 1u);
  EXPECT_EQ(status->parent(), dir);
  EXPECT_EQ(status->parentAttrId(), 258u);
}

// A parameter is reported as long as none ahead of it differs: the last one first.
TEST_F(PhyXp80StatusDirTest, FirstDifferenceInTheConstructorsOrderIsReported) {
  ask(first);
  Parameters other = first;
  other.serdesId = XpSerdesId(3);
  EXPECT_EQ(complaint(other), differs("serdesId", "3", "2"));
  other.lane = 4;
  EXPECT_EQ(complaint(other), differs("lane", "4", "1"));
  other.ethIntfStatus = nullptr;
  EXPECT_EQ(complaint(other),
            differs("ethIntfStatus", "None", "Entity('Interface::EthPhyIntfStatus', 'intf')"));
  other.phyConfig = nullptr;
  EXPECT_EQ(complaint(other),
            differs("phyConfig", "None", "Entity('Kestrel::PhyXp80Config', 'config')"));
  other.mdioClause = Hardware::Phy::mdioClause22;
  EXPECT_EQ(complaint(other), differs("mdioClause", "'mdioClause22'", "'mdioClause45'"));
  EXPECT_EQ(dir->version(), 1u);
}

TEST(PhyXp80StatusPtrDirTest, NullIsRefused) {
  auto const dir = phyXp80StatusPtrDirFactory("dir");
  char const* const complaint =
      "null _phyStatus parameter to mutator for Kestrel::PhyXp80StatusPtrDir::phyStatus not "
      "allowed\"";
  EXPECT_EQ(complaintOf<Mox::RangeException>([&] { dir->phyStatusIs(nullptr); }), complaint);
  EXPECT_EQ(complaintOf<Mox::RangeException>([&] { dir->newPhyStatus(nullptr); }), complaint);
  EXPECT_EQ(dir->version(), 0u);
}

}  // namespace
}  // namespace Kestrel
