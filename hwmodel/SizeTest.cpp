// How much an entity takes beyond what it holds.
#include "Kestrel/Kestrel.h"

#include <gtest/gtest.h>

namespace Kestrel {
namespace {

using Text = Mox::String8;

// What an entity may take for being one: name, counts, parent, observers, link, and gaps.
constexpr std::size_t allowance = sizeof(void*) == 8 ? 160 : 96;

template <class... Fields>
constexpr std::size_t bytes = (sizeof(Fields) + ... + 0);

template <class Entity, class... Fields>
void expectSmall(char const* name) {
  EXPECT_LE(sizeof(Entity), (bytes<Fields...>)+allowance) << name;
}

// The fields of a group of PHY status: level, changes, time stamp, validity.
struct Group {
  double last;
  U32 changes;
  U1 level;
  bool valid;
};

TEST(SizeTest, RecordsBelowAPhy) {
  using E = FecCounters;
  expectSmall<E, U32, U32, E::FecSymbolErrorsMap, E::BipErrorsMap, U4, U16, bool>("FecCounters");
  expectSmall<XpSerdesSmConfig, U8, U32, ConnectionType, void*, bool>("XpSerdesSmConfig");
  expectSmall<XpSerdesSmStatus, U8, bool, XpSerdesSmState, double, DfeMode, void*>(
      "XpSerdesSmStatus");
}

TEST(SizeTest, Phys) {
  // Inherited: opal, two texts; two texts, two flags, the interval.
  expectSmall<PhyXp80Config, void*, Text, Text, Text, Text, bool, bool, double,  //
              U8, XpSerdesId, U8, U8, bool, bool, TxEq, TxEq, TxEq,              //
              double, double, double, U8, U8, U8, U8, U8, double, double, double, double>(
      "PhyXp80Config");
  // Inherited: clause, configuration, interface; the link.
  expectSmall<PhyXp80Status, Hardware::Phy::MdioClause, void*, void*, bool,  //
              U8, XpSerdesId, DfeState, TxEq, void*, S32, U32, Interface::EthFecEncoding, U32, U32,
              U32, U32, U16, U16, U16, U16, U32, Group, Group, Group, Group,
              PhyXp80Status::LanePhyStatusMap, bool, void*, void*, double>("PhyXp80Status");
}

TEST(SizeTest, DirectoriesOfPhys) {
  expectSmall<PhyXp80StatusDir, PhyXp80StatusDir::PhyStatusMap>("PhyXp80StatusDir");
  expectSmall<PhyXp80ConfigDir, PhyXp80ConfigDir::PhyConfigMap>("PhyXp80ConfigDir");
  expectSmall<PhyXp80StatusPtrDir, PhyXp80StatusPtrDir::PhyStatusMap>("PhyXp80StatusPtrDir");
  expectSmall<PhyXp80ConfigPtrDir, PhyXp80ConfigPtrDir::PhyConfigMap>("PhyXp80ConfigPtrDir");
}

TEST(SizeTest, Ports) {
  expectSmall<XpPortList, XpPortList::PortsMap>("XpPortList");
  expectSmall<XpPortGroup, XpPortGroup::GroupsMap>("XpPortGroup");
  // Inherited: the number, whether the port is there.
  expectSmall<PortHwConfig, U16, bool, U8, U8, void*, Text, bool, Text,
              PortHwConfig::SpeedCapabilitiesMap>("PortHwConfig");
  expectSmall<PortHwStatus, XpPortId, Text, void*, bool, bool, bool, bool, XpPortMode>(
      "PortHwStatus");
}

TEST(SizeTest, Chips) {
  // Inherited: whether it is to be used.
  expectSmall<ChipConfig, bool, XpXdk::XpDeviceType>("ChipConfig");
  using E = ChipHwConfig;
  // Inherited: the chip's number.
  expectSmall<E, U32, void*, void*, E::ResetPllsMap, void*, E::ExtPllsStatusMap,
              E::CoreClockSourceSelectGpoMap, E::CoreClockSourceCodeMap, E::CoreSpeedSelectGpoMap,
              E::CoreSpeedCodeMap, E::PllLockStatusMap, E::SerdesMap>("ChipHwConfig");
  expectSmall<AllChipHwConfig, void*, AllChipHwConfig::PortHwConfigMap>("AllChipHwConfig");
  expectSmall<ChipHwStatus, ChipHwStatus::PortStatusMap, ChipHwStatus::SerdesMap>("ChipHwStatus");
  // Inherited: whether it can be used.
  expectSmall<ChipStatus, bool, XpXdk::XpDeviceType, XpXdk::XpDeviceSubType,
              ChipStatus::TableContextEntryMap, double>("ChipStatus");
}

TEST(SizeTest, Slices) {
  // Inherited: the slice's number; whether it can be used.
  expectSmall<SliceHwConfig, U32, SliceHwConfig::XpPortGroupListMap,
              SliceHwConfig::XpPortGroupDefaultMap>("SliceHwConfig");
  expectSmall<SliceHwStatus, bool, SliceHwStatus::ChipStatusMap>("SliceHwStatus");
}

TEST(SizeTest, Coprocessors) {
  expectSmall<CoprocessorStatus, CoprocessorId, CoprocessorState, void*, U64>("CoprocessorStatus");
  expectSmall<CoprocessorStatusDir, CoprocessorStatusDir::CoprocessorStatusMap>(
      "CoprocessorStatusDir");
}

}  // namespace
}  // namespace Kestrel
