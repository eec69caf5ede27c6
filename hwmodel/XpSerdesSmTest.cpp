// Settings and state of a serdes' state machine.
#include "Kestrel/XpSerdesSmStatus.h"
#include "hwmodel/SampleTest.h"

namespace Kestrel {
namespace {

class Listener : public XpSerdesSmConfig::NotifieeConst {
 public:
  void onSerdesResetCount() override { ++calls; }
  int calls = 0;
};

TEST(XpSerdesSmConfigTest, FineTuningIsEnabledFromTheStart) {
  Mox::Ptr<XpSerdesSmConfig> const config = new XpSerdesSmConfig("serdes", 3);
  EXPECT_TRUE(config->fineTuneEnabled());
  EXPECT_EQ(config->version(), 0u);
}

TEST(XpSerdesSmConfigTest, CountingAResetLeavesTheVersionAlone) {
  Mox::Ptr<XpSerdesSmConfig> const config = new XpSerdesSmConfig("serdes", 3);
  auto const listener = observerOf<Listener>(config);
  EXPECT_EQ(config->serdesResetCountInc(1), 1u);
  EXPECT_EQ(config->version(), 0u);
  EXPECT_EQ(listener->calls, 1);
}

TEST(XpSerdesSmConfigTest, InterfaceIsReferredToAndCanBeDropped) {
  Mox::Ptr<XpSerdesSmConfig> const config = new XpSerdesSmConfig("serdes", 3);
  auto const intf = intfStatus();
  config->intfStatusIs(intf);
  EXPECT_EQ(config->intfStatus(), intf);
  EXPECT_EQ(intf->parent(), nullptr);
  config->intfStatusIs(nullptr);
  EXPECT_EQ(config->intfStatus(), nullptr);
}

TEST(XpSerdesSmStatusTest, StateIsKeptAsItIsTold) {
  Mox::Ptr<XpSerdesSmStatus> const status = new XpSerdesSmStatus("serdes", 3);
  EXPECT_EQ(status->state(), Idle);
  for (auto state : {DfeDone, StopDfe, DfeTuning, DfeStartTune, Idle}) {
    status->stateIs(state);
    EXPECT_EQ(status->state(), state);
  }
  EXPECT_EQ(status->version(), 5u);
}

}  // namespace
}  // namespace Kestrel
