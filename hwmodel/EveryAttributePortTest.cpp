// Every attribute of ports, port groups and slices.
#include "Kestrel/PortHwConfig.h"
#include "Kestrel/PortHwStatus.h"
#include "Kestrel/SliceHwConfig.h"
#include "Kestrel/SliceHwStatus.h"
#include "Kestrel/XpPortGroup.h"
#include "Kestrel/XpPortList.h"
#include "hwmodel/EveryAttributeTest.h"
#include "hwmodel/SampleTest.h"

namespace Kestrel::attributes {
namespace {

class XpPortListListener : public Noting<XpPortList> {
  void onPorts(Mox::String8 key) override { note("ports", key); }
};

TEST(EveryAttributeTest, XpPortList) {
  using E = XpPortList;
  using N = E::NotifieeConst;
  everyAttribute<XpPortListListener>(
      [] { return new XpPortList("list"); },
      {
          map(258, "ports", &E::ports, &E::portsIs, &E::newPorts, &E::portsDel, &E::portsDelAll,
              &E::portsNotify, &E::portsCount, &N::onPorts, "Ethernet1", "Ethernet2", true, false),
      });
}

class XpPortGroupListener : public Noting<XpPortGroup> {
  void onGroups(Mox::Name key) override { note("groups", key); }
};

TEST(EveryAttributeTest, XpPortGroup) {
  using E = XpPortGroup;
  using N = E::NotifieeConst;
  everyAttribute<XpPortGroupListener>(
      [] { return new XpPortGroup("group"); },
      {
          owns(
              258, "groups", &E::groups, [](E& on, Mox::Name key) { return on.groupsIs(key); },
              [](E& on, Mox::Name key) { return on.newGroups(key); }, &E::groupsDel,
              &E::groupsDelAll, &E::groupsNotify, &E::groupsCount, &N::onGroups, "a", "b"),
      });
}

class PortHwConfigListener : public Noting<PortHwConfig> {
  void onPhysicalPortId() override { note("physicalPortId"); }
  void onLaneId() override { note("laneId"); }
  void onPhyConfig() override { note("phyConfig"); }
  void onPortGroup() override { note("portGroup"); }
  void onTxDirectXcvrConnection() override { note("txDirectXcvrConnection"); }
  void onIntfName0() override { note("intfName0"); }
  void onSpeedCapabilities(XpPortMode key) override { note("speedCapabilities", key); }
};

TEST(EveryAttributeTest, PortHwConfig) {
  using E = PortHwConfig;
  using N = E::NotifieeConst;
  everyAttribute<PortHwConfigListener>(
      [] { return new PortHwConfig(17); },
      {
          scalar(386, "physicalPortId", &E::physicalPortId, &E::physicalPortIdIs,
                 &N::onPhysicalPortId, 0, 255),
          scalar(387, "laneId", &E::laneId, &E::laneIdIs, &N::onLaneId, 0, 255),
          scalar(388, "phyConfig", &E::phyConfig, &E::phyConfigIs, &N::onPhyConfig, nullptr,
                 sampleConfig("phy")),
          scalar(389, "portGroup", &E::portGroup, &E::portGroupIs, &N::onPortGroup, "", "group"),
          scalar(390, "txDirectXcvrConnection", &E::txDirectXcvrConnection,
                 &E::txDirectXcvrConnectionIs, &N::onTxDirectXcvrConnection, true, false),
          scalar(391, "intfName0", &E::intfName0, &E::intfName0Is, &N::onIntfName0, "",
                 "Ethernet1"),
          map(392, "speedCapabilities", &E::speedCapabilities, &E::speedCapabilitiesIs,
              &E::newSpeedCapabilities, &E::speedCapabilitiesDel, &E::speedCapabilitiesDelAll,
              &E::speedCapabilitiesNotify, &E::speedCapabilitiesCount, &N::onSpeedCapabilities,
              portMode10G, portMode40G, true, false),
      });
}

class PortHwStatusListener : public Noting<PortHwStatus> {
  void onIntfName() override { note("intfName"); }
  void onPhyStatus() override { note("phyStatus"); }
  void onGroupSpeedMisconfigured() override { note("groupSpeedMisconfigured"); }
  void onSpeedMisconfigured() override { note("speedMisconfigured"); }
  void onPortValid() override { note("portValid"); }
  void onPortGroupDisabled() override { note("portGroupDisabled"); }
  void onPortMode() override { note("portMode"); }
};

TEST(EveryAttributeTest, PortHwStatus) {
  using E = PortHwStatus;
  using N = E::NotifieeConst;
  everyAttribute<PortHwStatusListener>(
      [] { return new PortHwStatus(XpPortId(132)); },
      {
          param(258, "portId", &E::portId, XpPortId(132)),
          scalar(259, "intfName", &E::intfName, &E::intfNameIs, &N::onIntfName, "", "Ethernet1"),
          scalar(260, "phyStatus", &E::phyStatus, &E::phyStatusIs, &N::onPhyStatus, nullptr,
                 sampleStatus("phy")),
          scalar(261, "groupSpeedMisconfigured", &E::groupSpeedMisconfigured,
                 &E::groupSpeedMisconfiguredIs, &N::onGroupSpeedMisconfigured, false, true),
          scalar(262, "speedMisconfigured", &E::speedMisconfigured, &E::speedMisconfiguredIs,
                 &N::onSpeedMisconfigured, false, true),
          scalar(263, "portValid", &E::portValid, &E::portValidIs, &N::onPortValid, false, true),
          scalar(264, "portGroupDisabled", &E::portGroupDisabled, &E::portGroupDisabledIs,
                 &N::onPortGroupDisabled, false, true),
          scalar(265, "portMode", &E::portMode, &E::portModeIs, &N::onPortMode, portModeDisabled,
                 portMode100G),
      });
}

class SliceHwStatusListener : public Noting<SliceHwStatus> {
  void onChipStatus(Mox::Name key) override { note("chipStatus", key); }
};

TEST(EveryAttributeTest, SliceHwStatus) {
  using E = SliceHwStatus;
  using N = E::NotifieeConst;
  everyAttribute<SliceHwStatusListener>(
      [] { return new SliceHwStatus("slice"); },
      {
          owns(
              386, "chipStatus", &E::chipStatus,
              [](E& on, Mox::Name key) { return on.chipStatusIs(key); },
              [](E& on, Mox::Name key) { return on.newChipStatus(key); }, &E::chipStatusDel,
              &E::chipStatusDelAll, &E::chipStatusNotify, &E::chipStatusCount, &N::onChipStatus,
              "a", "b"),
      });
}

class SliceHwConfigListener : public Noting<SliceHwConfig> {
  void onXpPortGroupList(Mox::Name key) override { note("xpPortGroupList", key); }
  void onXpPortGroupDefault(Mox::String8 key) override { note("xpPortGroupDefault", key); }
};

TEST(EveryAttributeTest, SliceHwConfig) {
  using E = SliceHwConfig;
  using N = E::NotifieeConst;
  everyAttribute<SliceHwConfigListener>(
      [] { return new SliceHwConfig("slice"); },
      {
          owns(
              386, "xpPortGroupList", &E::xpPortGroupList,
              [](E& on, Mox::Name key) { return on.xpPortGroupListIs(key); },
              [](E& on, Mox::Name key) { return on.newXpPortGroupList(key); },
              &E::xpPortGroupListDel, &E::xpPortGroupListDelAll, &E::xpPortGroupListNotify,
              &E::xpPortGroupListCount, &N::onXpPortGroupList, "a", "b"),
          map(387, "xpPortGroupDefault", &E::xpPortGroupDefault, &E::xpPortGroupDefaultIs,
              &E::newXpPortGroupDefault, &E::xpPortGroupDefaultDel, &E::xpPortGroupDefaultDelAll,
              &E::xpPortGroupDefaultNotify, &E::xpPortGroupDefaultCount, &N::onXpPortGroupDefault,
              "a", "b", "1", "2"),
      });
}

}  // namespace
}  // namespace Kestrel::attributes
