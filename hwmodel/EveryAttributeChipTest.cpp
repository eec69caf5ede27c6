// Every attribute of chips and coprocessors.
#include "Kestrel/AllChipHwConfig.h"
#include "Kestrel/ChipConfig.h"
#include "Kestrel/ChipHwStatus.h"
#include "Kestrel/ChipStatus.h"
#include "Kestrel/CoprocessorStatusDir.h"
#include "hwmodel/EveryAttributeTest.h"
#include "hwmodel/SampleTest.h"

namespace Kestrel::attributes {
namespace {

class ChipHwConfigListener : public Noting<ChipHwConfig> {
  void onHam() override { note("ham"); }
  void onReset() override { note("reset"); }
  void onResetPlls(U8 key) override { note("resetPlls", key); }
  void onInterruptController() override { note("interruptController"); }
  void onExtPllsStatus(Mox::Name key) override { note("extPllsStatus", key); }
  void onCoreClockSourceSelectGpo(U8 key) override { note("coreClockSourceSelectGpo", key); }
  void onCoreClockSourceCode(U8 key) override { note("coreClockSourceCode", key); }
  void onCoreSpeedSelectGpo(U8 key) override { note("coreSpeedSelectGpo", key); }
  void onCoreSpeedCode(U8 key) override { note("coreSpeedCode", key); }
  void onPllLockStatus(U8 key) override { note("pllLockStatus", key); }
  void onSerdes(XpSerdesId key) override { note("serdes", key); }
};

TEST(EveryAttributeTest, ChipHwConfig) {
  using E = ChipHwConfig;
  using N = E::NotifieeConst;
  everyAttribute<ChipHwConfigListener>(
      [] { return new ChipHwConfig("chip"); },
      {
          own(
              386, "ham", &E::ham,
              [](E& on, Mox::Name name) {
                return on.hamIs(name, 0, 16, "/ham", "device", "driver",
                                Inventory::PciAddress(0, 1, 2, 3), Inventory::PciId(4, 5), true);
              },
              [](E& on, Mox::Name name) {
                return on.newHam(name, 0, 16, "/ham", "device", "driver",
                                 Inventory::PciAddress(0, 1, 2, 3), Inventory::PciId(4, 5), true);
              },
              &E::hamDel, &N::onHam, 0),
          scalar(387, "reset", &E::reset, &E::resetIs, &N::onReset, nullptr, new Fru::Gpo("a")),
          map(388, "resetPlls", &E::resetPlls, &E::resetPllsIs, &E::newResetPlls, &E::resetPllsDel,
              &E::resetPllsDelAll, &E::resetPllsNotify, &E::resetPllsCount, &N::onResetPlls, 3, 9,
              new Fru::Gpo("a"), new Fru::Gpo("b")),
          scalar(389, "interruptController", &E::interruptController, &E::interruptControllerIs,
                 &N::onInterruptController, nullptr, new Fru::IntCtrl("a")),
          refs(390, "extPllsStatus", &E::extPllsStatus, &E::extPllsStatusIs, &E::newExtPllsStatus,
               &E::extPllsStatusDel, &E::extPllsStatusDelAll, &E::extPllsStatusNotify,
               &E::extPllsStatusCount, &N::onExtPllsStatus, "a", new Hardware::Dpll::PllStatus("a"),
               new Hardware::Dpll::PllStatus("a"),
               "null _extPllsStatus parameter to mutator for Kestrel::ChipHwConfig::extPllsStatus "
               "not allowed\""),
          map(391, "coreClockSourceSelectGpo", &E::coreClockSourceSelectGpo,
              &E::coreClockSourceSelectGpoIs, &E::newCoreClockSourceSelectGpo,
              &E::coreClockSourceSelectGpoDel, &E::coreClockSourceSelectGpoDelAll,
              &E::coreClockSourceSelectGpoNotify, &E::coreClockSourceSelectGpoCount,
              &N::onCoreClockSourceSelectGpo, 3, 9, new Fru::Gpo("a"), new Fru::Gpo("b")),
          map(392, "coreClockSourceCode", &E::coreClockSourceCode, &E::coreClockSourceCodeIs,
              &E::newCoreClockSourceCode, &E::coreClockSourceCodeDel, &E::coreClockSourceCodeDelAll,
              &E::coreClockSourceCodeNotify, &E::coreClockSourceCodeCount,
              &N::onCoreClockSourceCode, 3, 9, true, false),
          map(393, "coreSpeedSelectGpo", &E::coreSpeedSelectGpo, &E::coreSpeedSelectGpoIs,
              &E::newCoreSpeedSelectGpo, &E::coreSpeedSelectGpoDel, &E::coreSpeedSelectGpoDelAll,
              &E::coreSpeedSelectGpoNotify, &E::coreSpeedSelectGpoCount, &N::onCoreSpeedSelectGpo,
              3, 9, new Fru::Gpo("a"), new Fru::Gpo("b")),
          map(394, "coreSpeedCode", &E::coreSpeedCode, &E::coreSpeedCodeIs, &E::newCoreSpeedCode,
              &E::coreSpeedCodeDel, &E::coreSpeedCodeDelAll, &E::coreSpeedCodeNotify,
              &E::coreSpeedCodeCount, &N::onCoreSpeedCode, 3, 9, true, false),
          map(395, "pllLockStatus", &E::pllLockStatus, &E::pllLockStatusIs, &E::newPllLockStatus,
              &E::pllLockStatusDel, &E::pllLockStatusDelAll, &E::pllLockStatusNotify,
              &E::pllLockStatusCount, &N::onPllLockStatus, 3, 9, new Fru::Gpo("a"),
              new Fru::Gpo("b")),
          refs(396, "serdes", &E::serdes, &E::serdesIs, &E::newSerdes, &E::serdesDel,
               &E::serdesDelAll, &E::serdesNotify, &E::serdesCount, &N::onSerdes, XpSerdesId(2),
               sampleConfig("a"), sampleConfig("b"),
               "null _serdes parameter to mutator for Kestrel::ChipHwConfig::serdes not allowed\""),
      });
}

class ChipHwStatusListener : public Noting<ChipHwStatus> {
  void onPortStatus(XpPortId key) override { note("portStatus", key); }
  void onSerdes(XpSerdesId key) override { note("serdes", key); }
};

TEST(EveryAttributeTest, ChipHwStatus) {
  using E = ChipHwStatus;
  using N = E::NotifieeConst;
  everyAttribute<ChipHwStatusListener>(
      [] { return new ChipHwStatus("chip"); },
      {
          owns(
              258, "portStatus", &E::portStatus,
              [](E& on, XpPortId key) { return on.portStatusIs(key); },
              [](E& on, XpPortId key) { return on.newPortStatus(key); }, &E::portStatusDel,
              &E::portStatusDelAll, &E::portStatusNotify, &E::portStatusCount, &N::onPortStatus,
              XpPortId(0), XpPortId(132)),
          refs(259, "serdes", &E::serdes, &E::serdesIs, &E::newSerdes, &E::serdesDel,
               &E::serdesDelAll, &E::serdesNotify, &E::serdesCount, &N::onSerdes, XpSerdesId(2),
               sampleStatus("a"), sampleStatus("b"),
               "null _serdes parameter to mutator for Kestrel::ChipHwStatus::serdes not allowed\""),
      });
}

class AllChipHwConfigListener : public Noting<AllChipHwConfig> {
  void onChipHwConfig() override { note("chipHwConfig"); }
  void onPortHwConfig(U16 key) override { note("portHwConfig", key); }
};

TEST(EveryAttributeTest, AllChipHwConfig) {
  using E = AllChipHwConfig;
  using N = E::NotifieeConst;
  everyAttribute<AllChipHwConfigListener>(
      [] { return new AllChipHwConfig("chip"); },
      {
          own(
              258, "chipHwConfig", &E::chipHwConfig,
              [](E& on, Mox::Name name) { return on.chipHwConfigIs(name); },
              [](E& on, Mox::Name name) { return on.newChipHwConfig(name); }, &E::chipHwConfigDel,
              &N::onChipHwConfig),
          owns(
              259, "portHwConfig", &E::portHwConfig,
              [](E& on, U16 key) { return on.portHwConfigIs(key); },
              [](E& on, U16 key) { return on.newPortHwConfig(key); }, &E::portHwConfigDel,
              &E::portHwConfigDelAll, &E::portHwConfigNotify, &E::portHwConfigCount,
              &N::onPortHwConfig, 0, 65535),
      });
}

class ChipConfigListener : public Noting<ChipConfig> {
  void onDeviceType() override { note("deviceType"); }
};

TEST(EveryAttributeTest, ChipConfig) {
  using E = ChipConfig;
  using N = E::NotifieeConst;
  everyAttribute<ChipConfigListener>(
      [] { return new ChipConfig("chip"); },
      {
          scalar(386, "deviceType", &E::deviceType, &E::deviceTypeIs, &N::onDeviceType,
                 static_cast<XpXdk::XpDeviceType>(0), XpXdk::xpDeviceTypeXp80),
      });
}

class CoprocessorStatusListener : public Noting<CoprocessorStatus> {
  void onState() override { note("state"); }
  void onHam() override { note("ham"); }
  void onGenId() override { note("genId"); }
};

TEST(EveryAttributeTest, CoprocessorStatus) {
  using E = CoprocessorStatus;
  using N = E::NotifieeConst;
  everyAttribute<CoprocessorStatusListener>(
      [] { return new CoprocessorStatus("cop", CoprocessorId(0)); },
      {
          param(258, "coprocessorId", &E::coprocessorId, CoprocessorId(0)),
          param(259, "fapId", &E::fapId, CoprocessorId(0)),
          scalar(260, "state", &E::state, &E::stateIs, &N::onState, copStateUninitialized,
                 copStateOk),
          own(
              261, "ham", &E::ham,
              [](E& on, Mox::Name name) {
                return on.hamIs(name, Fru::hamTypePci, nullptr, 0, 16, "/ham");
              },
              [](E& on, Mox::Name name) {
                return on.newHam(name, Fru::hamTypePci, nullptr, 0, 16, "/ham");
              },
              &E::hamDel, &N::onHam),
          counter(262, "genId", &E::genId, &E::genIdIs, &E::genIdInc, &N::onGenId),
      });
}

class CoprocessorStatusDirListener : public Noting<CoprocessorStatusDir> {
  void onCoprocessorStatus(Mox::Name key) override { note("coprocessorStatus", key); }
};

TEST(EveryAttributeTest, CoprocessorStatusDir) {
  using E = CoprocessorStatusDir;
  using N = E::NotifieeConst;
  everyAttribute<CoprocessorStatusDirListener>(
      [] { return new CoprocessorStatusDir("dir"); },
      {
          owns(
              258, "coprocessorStatus", &E::coprocessorStatus,
              [](E& on, Mox::Name key) { return on.coprocessorStatusIs(key, CoprocessorId(0)); },
              [](E& on, Mox::Name key) { return on.newCoprocessorStatus(key, CoprocessorId(0)); },
              &E::coprocessorStatusDel, &E::coprocessorStatusDelAll, &E::coprocessorStatusNotify,
              &E::coprocessorStatusCount, &N::onCoprocessorStatus, "a", "b"),
      });
}

class ChipStatusListener : public Noting<ChipStatus> {
  void onDeviceType() override { note("deviceType"); }
  void onDeviceSubType() override { note("deviceSubType"); }
  void onTableContextEntry(U32 key) override { note("tableContextEntry", key); }
  void onPortMappingTime() override { note("portMappingTime"); }
};

TEST(EveryAttributeTest, ChipStatus) {
  using E = ChipStatus;
  using N = E::NotifieeConst;
  everyAttribute<ChipStatusListener>(
      [] { return new ChipStatus("chip"); },
      {
          scalar(386, "deviceType", &E::deviceType, &E::deviceTypeIs, &N::onDeviceType,
                 static_cast<XpXdk::XpDeviceType>(0), XpXdk::xpDeviceTypeXp80),
          scalar(387, "deviceSubType", &E::deviceSubType, &E::deviceSubTypeIs, &N::onDeviceSubType,
                 static_cast<XpXdk::XpDeviceSubType>(0), XpXdk::xpDeviceSubTypeXp80B),
          owns(
              388, "tableContextEntry", &E::tableContextEntry,
              [](E& on, U32 key) { return on.tableContextEntryIs(key, "table"); },
              [](E& on, U32 key) { return on.newTableContextEntry(key, "table"); },
              &E::tableContextEntryDel, &E::tableContextEntryDelAll, &E::tableContextEntryNotify,
              &E::tableContextEntryCount, &N::onTableContextEntry, 1, 70000),
          scalar(389, "portMappingTime", &E::portMappingTime, &E::portMappingTimeIs,
                 &N::onPortMappingTime, 0.0, 12.5),
      });
}

}  // namespace
}  // namespace Kestrel::attributes
