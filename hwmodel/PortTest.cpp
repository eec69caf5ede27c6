// Ports and the groups that they form.
#include "Kestrel/PortHwConfig.h"
#include "Kestrel/PortHwStatus.h"
#include "Kestrel/XpPortGroup.h"
#include "hwmodel/SampleTest.h"

namespace Kestrel {
namespace {

class GroupListener : public XpPortGroup::NotifieeConst {
 public:
  void onGroups(Mox::Name name) override { heard += std::string(name.view()) + ";"; }
  std::string heard;
};

TEST(XpPortGroupTest, AskingTwiceGivesOneListAndTellsOnce) {
  Mox::Ptr<XpPortGroup> const group = new XpPortGroup("group");
  auto const listener = observerOf<GroupListener>(group);
  auto const list = group->groupsIs("4x25G");
  EXPECT_EQ(group->groupsIs("4x25G"), list);
  EXPECT_EQ(listener->heard, "4x25G;");
  EXPECT_EQ(group->version(), 1u);
  EXPECT_EQ(list->parent(), group);
  EXPECT_EQ(list->parentAttrId(), 258u);
}

TEST(XpPortGroupTest, ListsAreSetsOfPorts) {
  Mox::Ptr<XpPortGroup> const group = new XpPortGroup("group");
  auto const list = group->groupsIs("4x25G");
  list->portsIs("Ethernet1", true);
  EXPECT_TRUE(list->ports("Ethernet1"));
  EXPECT_FALSE(list->ports("Ethernet2"));
  EXPECT_TRUE(list->portsDel("Ethernet1"));
  EXPECT_EQ(list->portsCount(), 0u);
}

TEST(PortHwConfigTest, FreshOneIsConnectedDirectly) {
  auto const port = portHwConfigFactory(17);
  EXPECT_TRUE(port->txDirectXcvrConnection());
  EXPECT_EQ(port->portId(), 17u);
  EXPECT_EQ(port->name(), "");
  EXPECT_EQ(port->parent(), nullptr);
  EXPECT_EQ(port->version(), 0u);
}

TEST(PortHwConfigTest, AttributesOfBothLevelsHaveNames) {
  auto const port = portHwConfigFactory(17);
  EXPECT_EQ(port->attributeString(391), "intfName0");
  EXPECT_EQ(port->attributeString(258), "portId");
  EXPECT_EQ(port->attributeString(393), "unknown");
}

TEST(PortHwConfigTest, KeyIsReadWithoutACount) {
  auto const port = portHwConfigFactory(17);
  EXPECT_EQ(port->moxKey(), 17u);
  EXPECT_EQ(port->readCount(), 0u);
}

class BaseListener : public Rye::Central::PortHwConfig::NotifieeConst {
 public:
  void onPresent() override { ++calls; }
  int calls = 0;
};

TEST(PortHwConfigTest, ObserverOfTheBaseHearsOfTheBaseAlone) {
  auto const port = portHwConfigFactory(17);
  auto const base = observerOf<BaseListener>(port);
  port->laneIdIs(3);
  port->phyConfigIs(sampleConfig("phy"));
  port->speedCapabilitiesIs(portMode10G, true);
  EXPECT_EQ(base->calls, 0);
  port->presentIs(false);
  EXPECT_EQ(base->calls, 1);
}

TEST(PortHwStatusTest, FreshOneHasNoNameAndIsDisabled) {
  auto const port = portHwStatusFactory(XpPortId(132));
  EXPECT_EQ(port->name(), "");
  EXPECT_TRUE(port->portId() == XpPortId(132));
  EXPECT_EQ(port->portMode(), portModeDisabled);
  EXPECT_EQ(port->parent(), nullptr);
}

}  // namespace
}  // namespace Kestrel
