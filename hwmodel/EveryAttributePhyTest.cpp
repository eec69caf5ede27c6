// Every attribute of PHY lanes and of their directories.
#include "Kestrel/PhyXp80ConfigDir.h"
#include "Kestrel/PhyXp80ConfigPtrDir.h"
#include "Kestrel/PhyXp80StatusDir.h"
#include "Kestrel/PhyXp80StatusPtrDir.h"
#include "hwmodel/EveryAttributeTest.h"
#include "hwmodel/SampleTest.h"

namespace Kestrel::attributes {
namespace {

DfeState tapped() {
  DfeState state;
  state.tapsIs("1,2");
  return state;
}

class PhyXp80ConfigListener : public Noting<PhyXp80Config> {
  void onLinkDebounceInterval() override { note("linkDebounceInterval"); }
  void onDfeSampleInterval() override { note("dfeSampleInterval"); }
  void onDfeSampleTimeout() override { note("dfeSampleTimeout"); }
  void onSigOkThreshold10G() override { note("sigOkThreshold10G"); }
  void onSigOkThreshold25G() override { note("sigOkThreshold25G"); }
  void onSigOkThresholdLimiting() override { note("sigOkThresholdLimiting"); }
  void onSigOkThresholdHigh() override { note("sigOkThresholdHigh"); }
  void onSigOkThresholdMaxRetries() override { note("sigOkThresholdMaxRetries"); }
  void onPCalInterval() override { note("pCalInterval"); }
  void onPCalIntervalMin() override { note("pCalIntervalMin"); }
  void onLinkLockupCheckInterval() override { note("linkLockupCheckInterval"); }
  void onLinkLockupCheckTimeout() override { note("linkLockupCheckTimeout"); }
};

TEST(EveryAttributeTest, PhyXp80Config) {
  using E = PhyXp80Config;
  using N = E::NotifieeConst;
  everyAttribute<PhyXp80ConfigListener>(
      [] { return sampleConfig("phy"); },
      {
          param(386, "lane", &E::lane, 1),
          param(387, "serdesId", &E::serdesId, XpSerdesId(2)),
          param(388, "txLane", &E::txLane, 3),
          param(389, "rxLane", &E::rxLane, 4),
          param(390, "txPolarity", &E::txPolarity, true),
          param(391, "rxPolarity", &E::rxPolarity, false),
          param(392, "txEq10", &E::txEq10, TxEq(-1, 2, 3)),
          param(393, "txEqLimiting25", &E::txEqLimiting25, TxEq(-4, 5, 6)),
          param(394, "txEqLinear25", &E::txEqLinear25, TxEq(-7, 8, 9)),
          scalar(395, "linkDebounceInterval", &E::linkDebounceInterval, &E::linkDebounceIntervalIs,
                 &N::onLinkDebounceInterval, 0.2, 12.5),
          scalar(396, "dfeSampleInterval", &E::dfeSampleInterval, &E::dfeSampleIntervalIs,
                 &N::onDfeSampleInterval, 1.0, 12.5),
          scalar(397, "dfeSampleTimeout", &E::dfeSampleTimeout, &E::dfeSampleTimeoutIs,
                 &N::onDfeSampleTimeout, 10.0, 12.5),
          scalar(398, "sigOkThreshold10G", &E::sigOkThreshold10G, &E::sigOkThreshold10GIs,
                 &N::onSigOkThreshold10G, 1, 255),
          scalar(399, "sigOkThreshold25G", &E::sigOkThreshold25G, &E::sigOkThreshold25GIs,
                 &N::onSigOkThreshold25G, 0, 255),
          scalar(400, "sigOkThresholdLimiting", &E::sigOkThresholdLimiting,
                 &E::sigOkThresholdLimitingIs, &N::onSigOkThresholdLimiting, 3, 255),
          scalar(401, "sigOkThresholdHigh", &E::sigOkThresholdHigh, &E::sigOkThresholdHighIs,
                 &N::onSigOkThresholdHigh, 15, 255),
          scalar(402, "sigOkThresholdMaxRetries", &E::sigOkThresholdMaxRetries,
                 &E::sigOkThresholdMaxRetriesIs, &N::onSigOkThresholdMaxRetries, 10, 255),
          scalar(403, "pCalInterval", &E::pCalInterval, &E::pCalIntervalIs, &N::onPCalInterval, 0.0,
                 12.5),
          scalar(404, "pCalIntervalMin", &E::pCalIntervalMin, &E::pCalIntervalMinIs,
                 &N::onPCalIntervalMin, 60.0, 12.5),
          scalar(405, "linkLockupCheckInterval", &E::linkLockupCheckInterval,
                 &E::linkLockupCheckIntervalIs, &N::onLinkLockupCheckInterval, 0.5, 12.5),
          scalar(406, "linkLockupCheckTimeout", &E::linkLockupCheckTimeout,
                 &E::linkLockupCheckTimeoutIs, &N::onLinkLockupCheckTimeout, 5.0, 12.5),
      });
}

class PhyXp80StatusListener : public Noting<PhyXp80Status> {
  void onDfe() override { note("dfe"); }
  void onCursors() override { note("cursors"); }
  void onFecCounters() override { note("fecCounters"); }
  void onBitRate() override { note("bitRate"); }
  void onFwRev() override { note("fwRev"); }
  void onOperFec() override { note("operFec"); }
  void onPcsErrBlockExtended() override { note("pcsErrBlockExtended"); }
  void onPcsBerExtended() override { note("pcsBerExtended"); }
  void onPcsMultiLaneBlockLock() override { note("pcsMultiLaneBlockLock"); }
  void onPcsMultiLaneAmLock() override { note("pcsMultiLaneAmLock"); }
  void onPg40() override { note("pg40"); }
  void onPg41() override { note("pg41"); }
  void onPg42() override { note("pg42"); }
  void onPg43() override { note("pg43"); }
  void onEyescore() override { note("eyescore"); }
  void onSignalOk() override { note("signalOk"); }
  void onSignalOkChanges() override { note("signalOkChanges"); }
  void onLastSignalOkChange() override { note("lastSignalOkChange"); }
  void onSignalOkValid() override { note("signalOkValid"); }
  void onAggSignalOk() override { note("aggSignalOk"); }
  void onAggSignalOkChanges() override { note("aggSignalOkChanges"); }
  void onLastAggSignalOkChange() override { note("lastAggSignalOkChange"); }
  void onAggSignalOkValid() override { note("aggSignalOkValid"); }
  void onElectricalIdle() override { note("electricalIdle"); }
  void onElectricalIdleChanges() override { note("electricalIdleChanges"); }
  void onLastElectricalIdleChange() override { note("lastElectricalIdleChange"); }
  void onElectricalIdleValid() override { note("electricalIdleValid"); }
  void onAggElectricalIdle() override { note("aggElectricalIdle"); }
  void onAggElectricalIdleChanges() override { note("aggElectricalIdleChanges"); }
  void onLastAggElectricalIdleChange() override { note("lastAggElectricalIdleChange"); }
  void onAggElectricalIdleValid() override { note("aggElectricalIdleValid"); }
  void onLanePhyStatus(U8 key) override { note("lanePhyStatus", key); }
  void onPhyXp80DetailsValid() override { note("phyXp80DetailsValid"); }
  void onXpSerdesStatus() override { note("xpSerdesStatus"); }
  void onXpSerdesConfig() override { note("xpSerdesConfig"); }
  void onDebugStateSnapshotTimestamp() override { note("debugStateSnapshotTimestamp"); }
};

TEST(EveryAttributeTest, PhyXp80Status) {
  using E = PhyXp80Status;
  using N = E::NotifieeConst;
  everyAttribute<PhyXp80StatusListener>(
      [] { return sampleStatus("phy"); },
      {
          param(386, "lane", &E::lane, 1),
          param(387, "serdesId", &E::serdesId, XpSerdesId(2)),
          scalar(388, "dfe", &E::dfe, &E::dfeIs, &N::onDfe, DfeState(), tapped()),
          scalar(389, "cursors", &E::cursors, &E::cursorsIs, &N::onCursors, TxEq(), TxEq(-1, 2, 3)),
          own(
              390, "fecCounters", &E::fecCounters,
              [](E& on, Mox::Name name) { return on.fecCountersIs(name); },
              [](E& on, Mox::Name name) { return on.newFecCounters(name); }, &E::fecCountersDel,
              &N::onFecCounters),
          scalar(391, "bitRate", &E::bitRate, &E::bitRateIs, &N::onBitRate, 0, -25),
          scalar(392, "fwRev", &E::fwRev, &E::fwRevIs, &N::onFwRev, 0, 7),
          scalar(393, "operFec", &E::operFec, &E::operFecIs, &N::onOperFec,
                 static_cast<Interface::EthFecEncoding>(0), Interface::ethFecReedSolomon),
          scalar(394, "pcsErrBlockExtended", &E::pcsErrBlockExtended, &E::pcsErrBlockExtendedIs,
                 &N::onPcsErrBlockExtended, 0, 7),
          scalar(395, "pcsBerExtended", &E::pcsBerExtended, &E::pcsBerExtendedIs,
                 &N::onPcsBerExtended, 0, 7),
          scalar(396, "pcsMultiLaneBlockLock", &E::pcsMultiLaneBlockLock,
                 &E::pcsMultiLaneBlockLockIs, &N::onPcsMultiLaneBlockLock, 0, 7),
          scalar(397, "pcsMultiLaneAmLock", &E::pcsMultiLaneAmLock, &E::pcsMultiLaneAmLockIs,
                 &N::onPcsMultiLaneAmLock, 0, 7),
          scalar(398, "pg40", &E::pg40, &E::pg40Is, &N::onPg40, 0, 65535),
          scalar(399, "pg41", &E::pg41, &E::pg41Is, &N::onPg41, 0, 65535),
          scalar(400, "pg42", &E::pg42, &E::pg42Is, &N::onPg42, 0, 65535),
          scalar(401, "pg43", &E::pg43, &E::pg43Is, &N::onPg43, 0, 65535),
          scalar(402, "eyescore", &E::eyescore, &E::eyescoreIs, &N::onEyescore, 0, 7),
          scalar(403, "signalOk", &E::signalOk, &E::signalOkIs, &N::onSignalOk, 0, 1),
          counter(404, "signalOkChanges", &E::signalOkChanges, &E::signalOkChangesIs,
                  &E::signalOkChangesInc, &N::onSignalOkChanges),
          scalar(405, "lastSignalOkChange", &E::lastSignalOkChange, &E::lastSignalOkChangeIs,
                 &N::onLastSignalOkChange, 0.0, 12.5),
          scalar(406, "signalOkValid", &E::signalOkValid, &E::signalOkValidIs, &N::onSignalOkValid,
                 false, true),
          scalar(407, "aggSignalOk", &E::aggSignalOk, &E::aggSignalOkIs, &N::onAggSignalOk, 0, 1),
          counter(408, "aggSignalOkChanges", &E::aggSignalOkChanges, &E::aggSignalOkChangesIs,
                  &E::aggSignalOkChangesInc, &N::onAggSignalOkChanges),
          scalar(409, "lastAggSignalOkChange", &E::lastAggSignalOkChange,
                 &E::lastAggSignalOkChangeIs, &N::onLastAggSignalOkChange, 0.0, 12.5),
          scalar(410, "aggSignalOkValid", &E::aggSignalOkValid, &E::aggSignalOkValidIs,
                 &N::onAggSignalOkValid, false, true),
          scalar(411, "electricalIdle", &E::electricalIdle, &E::electricalIdleIs,
                 &N::onElectricalIdle, 0, 1),
          counter(412, "electricalIdleChanges", &E::electricalIdleChanges,
                  &E::electricalIdleChangesIs, &E::electricalIdleChangesInc,
                  &N::onElectricalIdleChanges),
          scalar(413, "lastElectricalIdleChange", &E::lastElectricalIdleChange,
                 &E::lastElectricalIdleChangeIs, &N::onLastElectricalIdleChange, 0.0, 12.5),
          scalar(414, "electricalIdleValid", &E::electricalIdleValid, &E::electricalIdleValidIs,
                 &N::onElectricalIdleValid, false, true),
          scalar(415, "aggElectricalIdle", &E::aggElectricalIdle, &E::aggElectricalIdleIs,
                 &N::onAggElectricalIdle, 0, 1),
          counter(416, "aggElectricalIdleChanges", &E::aggElectricalIdleChanges,
                  &E::aggElectricalIdleChangesIs, &E::aggElectricalIdleChangesInc,
                  &N::onAggElectricalIdleChanges),
          scalar(417, "lastAggElectricalIdleChange", &E::lastAggElectricalIdleChange,
                 &E::lastAggElectricalIdleChangeIs, &N::onLastAggElectricalIdleChange, 0.0, 12.5),
          scalar(418, "aggElectricalIdleValid", &E::aggElectricalIdleValid,
                 &E::aggElectricalIdleValidIs, &N::onAggElectricalIdleValid, false, true),
          map(419, "lanePhyStatus", &E::lanePhyStatus, &E::lanePhyStatusIs, &E::newLanePhyStatus,
              &E::lanePhyStatusDel, &E::lanePhyStatusDelAll, &E::lanePhyStatusNotify,
              &E::lanePhyStatusCount, &N::onLanePhyStatus, 3, 1, sampleStatus("a"),
              sampleStatus("b")),
          scalar(420, "phyXp80DetailsValid", &E::phyXp80DetailsValid, &E::phyXp80DetailsValidIs,
                 &N::onPhyXp80DetailsValid, false, true),
          own(
              421, "xpSerdesStatus", &E::xpSerdesStatus,
              [](E& on, Mox::Name name) { return on.xpSerdesStatusIs(name, 200); },
              [](E& on, Mox::Name name) { return on.newXpSerdesStatus(name, 200); },
              &E::xpSerdesStatusDel, &N::onXpSerdesStatus),
          own(
              422, "xpSerdesConfig", &E::xpSerdesConfig,
              [](E& on, Mox::Name name) { return on.xpSerdesConfigIs(name, 200); },
              [](E& on, Mox::Name name) { return on.newXpSerdesConfig(name, 200); },
              &E::xpSerdesConfigDel, &N::onXpSerdesConfig),
          scalar(423, "debugStateSnapshotTimestamp", &E::debugStateSnapshotTimestamp,
                 &E::debugStateSnapshotTimestampIs, &N::onDebugStateSnapshotTimestamp, 0.0, 12.5),
      });
}

class PhyXp80StatusDirListener : public Noting<PhyXp80StatusDir> {
  void onPhyStatus(Mox::Name key) override { note("phyStatus", key); }
};

TEST(EveryAttributeTest, PhyXp80StatusDir) {
  using E = PhyXp80StatusDir;
  using N = E::NotifieeConst;
  everyAttribute<PhyXp80StatusDirListener>(
      [] { return new PhyXp80StatusDir("dir"); },
      {
          owns(
              258, "phyStatus", &E::phyStatus,
              [](E& on, Mox::Name key) {
                return on.phyStatusIs(key, Hardware::Phy::mdioClause45, nullptr, nullptr, 1,
                                      XpSerdesId(2));
              },
              [](E& on, Mox::Name key) {
                return on.newPhyStatus(key, Hardware::Phy::mdioClause45, nullptr, nullptr, 1,
                                       XpSerdesId(2));
              },
              &E::phyStatusDel, &E::phyStatusDelAll, &E::phyStatusNotify, &E::phyStatusCount,
              &N::onPhyStatus, "a", "b"),
      });
}

class PhyXp80ConfigDirListener : public Noting<PhyXp80ConfigDir> {
  void onPhyConfig(Mox::Name key) override { note("phyConfig", key); }
};

TEST(EveryAttributeTest, PhyXp80ConfigDir) {
  using E = PhyXp80ConfigDir;
  using N = E::NotifieeConst;
  everyAttribute<PhyXp80ConfigDirListener>(
      [] { return new PhyXp80ConfigDir("dir"); },
      {
          owns(
              258, "phyConfig", &E::phyConfig,
              [](E& on, Mox::Name key) {
                return on.phyConfigIs(key, nullptr, "api", "1.0", 1, XpSerdesId(2), 3, 4, true,
                                      false, TxEq(), TxEq(), TxEq());
              },
              [](E& on, Mox::Name key) {
                return on.newPhyConfig(key, nullptr, "api", "1.0", 1, XpSerdesId(2), 3, 4, true,
                                       false, TxEq(), TxEq(), TxEq());
              },
              &E::phyConfigDel, &E::phyConfigDelAll, &E::phyConfigNotify, &E::phyConfigCount,
              &N::onPhyConfig, "a", "b"),
      });
}

class PhyXp80StatusPtrDirListener : public Noting<PhyXp80StatusPtrDir> {
  void onPhyStatus(Mox::Name key) override { note("phyStatus", key); }
};

TEST(EveryAttributeTest, PhyXp80StatusPtrDir) {
  using E = PhyXp80StatusPtrDir;
  using N = E::NotifieeConst;
  everyAttribute<PhyXp80StatusPtrDirListener>(
      [] { return new PhyXp80StatusPtrDir("dir"); },
      {
          refs(258, "phyStatus", &E::phyStatus, &E::phyStatusIs, &E::newPhyStatus, &E::phyStatusDel,
               &E::phyStatusDelAll, &E::phyStatusNotify, &E::phyStatusCount, &N::onPhyStatus, "a",
               sampleStatus("a"), sampleStatus("a"),
               "null _phyStatus parameter to mutator for Kestrel::PhyXp80StatusPtrDir::phyStatus "
               "not allowed\""),
      });
}

class PhyXp80ConfigPtrDirListener : public Noting<PhyXp80ConfigPtrDir> {
  void onPhyConfig(Mox::Name key) override { note("phyConfig", key); }
};

TEST(EveryAttributeTest, PhyXp80ConfigPtrDir) {
  using E = PhyXp80ConfigPtrDir;
  using N = E::NotifieeConst;
  everyAttribute<PhyXp80ConfigPtrDirListener>(
      [] { return new PhyXp80ConfigPtrDir("dir"); },
      {
          refs(258, "phyConfig", &E::phyConfig, &E::phyConfigIs, &E::newPhyConfig, &E::phyConfigDel,
               &E::phyConfigDelAll, &E::phyConfigNotify, &E::phyConfigCount, &N::onPhyConfig, "a",
               sampleConfig("a"), sampleConfig("a"),
               "null _phyConfig parameter to mutator for Kestrel::PhyXp80ConfigPtrDir::phyConfig "
               "not allowed\""),
      });
}

}  // namespace
}  // namespace Kestrel::attributes
