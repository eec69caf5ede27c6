// Every attribute of the records below a PHY's status.
#include "Kestrel/FecCounters.h"
#include "Kestrel/XpSerdesSmConfig.h"
#include "Kestrel/XpSerdesSmStatus.h"
#include "hwmodel/EveryAttributeTest.h"
#include "hwmodel/SampleTest.h"

namespace Kestrel::attributes {
namespace {

class FecCountersListener : public Noting<FecCounters> {
  void onFecCorrected() override { note("fecCorrected"); }
  void onFecUncorrected() override { note("fecUncorrected"); }
  void onFecSymbolErrors(U8 key) override { note("fecSymbolErrors", key); }
  void onBipErrors(U8 key) override { note("bipErrors", key); }
  void onFecLaneAlignment() override { note("fecLaneAlignment"); }
  void onFecLaneMapping() override { note("fecLaneMapping"); }
  void onFecLocked() override { note("fecLocked"); }
};

TEST(EveryAttributeTest, FecCounters) {
  using E = FecCounters;
  using N = E::NotifieeConst;
  everyAttribute<FecCountersListener>(
      [] { return new FecCounters("fec"); },
      {
          scalar(258, "fecCorrected", &E::fecCorrected, &E::fecCorrectedIs, &N::onFecCorrected, 0,
                 7),
          scalar(259, "fecUncorrected", &E::fecUncorrected, &E::fecUncorrectedIs,
                 &N::onFecUncorrected, 0, 7),
          map(260, "fecSymbolErrors", &E::fecSymbolErrors, &E::fecSymbolErrorsIs,
              &E::newFecSymbolErrors, &E::fecSymbolErrorsDel, &E::fecSymbolErrorsDelAll,
              &E::fecSymbolErrorsNotify, &E::fecSymbolErrorsCount, &N::onFecSymbolErrors, 3, 9,
              70000, 1),
          map(261, "bipErrors", &E::bipErrors, &E::bipErrorsIs, &E::newBipErrors, &E::bipErrorsDel,
              &E::bipErrorsDelAll, &E::bipErrorsNotify, &E::bipErrorsCount, &N::onBipErrors, 3, 9,
              65535, 1),
          scalar(262, "fecLaneAlignment", &E::fecLaneAlignment, &E::fecLaneAlignmentIs,
                 &N::onFecLaneAlignment, 0, 15),
          scalar(263, "fecLaneMapping", &E::fecLaneMapping, &E::fecLaneMappingIs,
                 &N::onFecLaneMapping, 0, 65535),
          scalar(264, "fecLocked", &E::fecLocked, &E::fecLockedIs, &N::onFecLocked, false, true),
      });
}

class XpSerdesSmConfigListener : public Noting<XpSerdesSmConfig> {
  void onSerdesResetCount() override { note("serdesResetCount"); }
  void onConnectionType() override { note("connectionType"); }
  void onIntfStatus() override { note("intfStatus"); }
  void onFineTuneEnabled() override { note("fineTuneEnabled"); }
};

TEST(EveryAttributeTest, XpSerdesSmConfig) {
  using E = XpSerdesSmConfig;
  using N = E::NotifieeConst;
  everyAttribute<XpSerdesSmConfigListener>(
      [] { return new XpSerdesSmConfig("serdes", 200); },
      {
          param(258, "serdesId", &E::serdesId, 200),
          counter(259, "serdesResetCount", &E::serdesResetCount, &E::serdesResetCountIs,
                  &E::serdesResetCountInc, &N::onSerdesResetCount),
          scalar(260, "connectionType", &E::connectionType, &E::connectionTypeIs,
                 &N::onConnectionType, OnBoardChipConnetion, LinearXcvrDirectConnection),
          scalar(261, "intfStatus", &E::intfStatus, &E::intfStatusIs, &N::onIntfStatus, nullptr,
                 intfStatus()),
          scalar(262, "fineTuneEnabled", &E::fineTuneEnabled, &E::fineTuneEnabledIs,
                 &N::onFineTuneEnabled, true, false),
      });
}

class XpSerdesSmStatusListener : public Noting<XpSerdesSmStatus> {
  void onFineTuneStatus() override { note("fineTuneStatus"); }
  void onState() override { note("state"); }
  void onTuneStartTime() override { note("tuneStartTime"); }
  void onDfeMode() override { note("dfeMode"); }
  void onConfig() override { note("config"); }
};

TEST(EveryAttributeTest, XpSerdesSmStatus) {
  using E = XpSerdesSmStatus;
  using N = E::NotifieeConst;
  everyAttribute<XpSerdesSmStatusListener>(
      [] { return new XpSerdesSmStatus("serdes", 200); },
      {
          param(258, "serdesId", &E::serdesId, 200),
          scalar(259, "fineTuneStatus", &E::fineTuneStatus, &E::fineTuneStatusIs,
                 &N::onFineTuneStatus, false, true),
          scalar(260, "state", &E::state, &E::stateIs, &N::onState, Idle, DfeDone),
          scalar(261, "tuneStartTime", &E::tuneStartTime, &E::tuneStartTimeIs, &N::onTuneStartTime,
                 0.0, 12.5),
          scalar(262, "dfeMode", &E::dfeMode, &E::dfeModeIs, &N::onDfeMode, NoDfeTune,
                 CtleOnlyTune),
          scalar(263, "config", &E::config, &E::configIs, &N::onConfig, nullptr,
                 new XpSerdesSmConfig("serdes", 200)),
      });
}

}  // namespace
}  // namespace Kestrel::attributes
