// The platform's own entities, as far as derived ones rely on them.
#include "Fru/Ham.h"
#include "Fru/PciHam.h"
#include "Hardware/Phy/PhyConfig.h"
#include "Hardware/Phy/PhyStatus.h"
#include "Portkit/IntfId.h"
#include "Rye/Central/PortHwConfig.h"

#include <gtest/gtest.h>

namespace {

using Hardware::Phy::PhyConfig;
using Hardware::Phy::PhyStatus;

TEST(ClosedEntitiesTest, PhyConfigKeepsWhatItIsMadeOf) {
  Mox::Ptr<MdioOpal::OpalDesc> const opal = new MdioOpal::OpalDesc("opal");
  Mox::Ptr<PhyConfig> const phy = new PhyConfig("phy", opal, "api", "1.2");
  EXPECT_EQ(phy->name(), "phy");
  EXPECT_EQ(phy->opalDesc(), opal);
  EXPECT_EQ(phy->api(), "api");
  EXPECT_EQ(phy->minBlobVersion(), "1.2");
  EXPECT_EQ(phy->linkStatePollInterval(), 1.0);
}

// Hears a change of the model in a class of its own.
class Wary : public PhyConfig {
 public:
  using PhyConfig::PhyConfig;
  void modelIs(Mox::String8 const& model) override { PhyConfig::modelIs(model + "!"); }
  void hwRevIs(Mox::String8 const& revision) override { PhyConfig::hwRevIs(revision + "!"); }
  void resetIs(bool) override { PhyConfig::resetIs(true); }
};

TEST(ClosedEntitiesTest, MutatorsOfPhyConfigAreVirtual) {
  Mox::Ptr<PhyConfig> const phy = new Wary("phy", nullptr, "", "");
  phy->modelIs("m");
  phy->hwRevIs("r");
  phy->resetIs(false);
  EXPECT_EQ(phy->model(), "m!");
  EXPECT_EQ(phy->hwRev(), "r!");
  EXPECT_TRUE(phy->reset());
}

TEST(ClosedEntitiesTest, PhyStatusKeepsWhatItIsMadeOf) {
  Mox::Ptr<PhyConfig> const config = new PhyConfig("phy", nullptr, "", "");
  Mox::Ptr<Interface::EthPhyIntfStatus> const intf = new Interface::EthPhyIntfStatus("intf");
  Mox::Ptr<PhyStatus> const phy = new PhyStatus("phy", Hardware::Phy::mdioClause45, config, intf);
  EXPECT_EQ(phy->mdioClause(), Hardware::Phy::mdioClause45);
  EXPECT_EQ(phy->phyConfig(), config);
  EXPECT_EQ(phy->ethIntfStatus(), intf);
}

TEST(ClosedEntitiesTest, PortsHaveANumberAndNoName) {
  Mox::Ptr<Rye::Central::PortHwConfig> const port = new Rye::Central::PortHwConfig(17);
  EXPECT_EQ(port->name(), "");
  EXPECT_EQ(port->portId(), 17u);
}

TEST(ClosedEntitiesTest, HardwareAccessObjectsStandOnOthers) {
  Mox::Ptr<Fru::Ham> const below = new Fru::Ham("a", Fru::hamTypePci, nullptr, 0, 16, "/a");
  Mox::Ptr<Fru::Ham> const above = new Fru::Ham("b", Fru::hamTypeIndirect, below, 4, 8, "/b");
  EXPECT_EQ(above->type(), Fru::hamTypeIndirect);
  EXPECT_EQ(above->parentHam(), below);
  EXPECT_EQ(above->offset(), 4u);
  EXPECT_EQ(above->size(), 8u);
  EXPECT_EQ(above->path(), "/b");
}

TEST(ClosedEntitiesTest, PciIdentitiesDifferInAnyPart) {
  using Inventory::PciAddress;
  EXPECT_TRUE(PciAddress(0, 1, 2, 3) == PciAddress(0, 1, 2, 3));
  for (PciAddress const& other : {PciAddress(1, 1, 2, 3), PciAddress(0, 0, 2, 3),
                                  PciAddress(0, 1, 0, 3), PciAddress(0, 1, 2, 0)})
    EXPECT_TRUE(PciAddress(0, 1, 2, 3) != other);
  EXPECT_TRUE(Inventory::PciId(1, 2) != Inventory::PciId(2, 2));
  EXPECT_TRUE(Inventory::PciId(1, 2) != Inventory::PciId(1, 1));
}

TEST(ClosedEntitiesTest, InterfaceNumbersAreOrdered) {
  EXPECT_TRUE(Portkit::IntfId(1) < Portkit::IntfId(2));
  EXPECT_TRUE(Portkit::IntfId(2) == Portkit::IntfId(2));
}

}  // namespace
