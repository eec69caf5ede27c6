// What happens in the hardware by itself: links, counters, lanes, ports.
#include "tools/kestrel/model/Model.h"
#include "tools/kestrel/model/ModelParts.h"

namespace kestrel {

namespace {

using Kestrel::XpPortId;

/// Something that happens around a lane.
using Event = void (*)(ModelParts& parts, U8 lane, std::mt19937& random);

// Plain remainders: a distribution of the standard library differs from one to another.
U32 below(U32 end, std::mt19937& random) { return static_cast<U32>(random() % end); }

/// A link goes down or comes up.
void flap(ModelParts& parts, U8 lane, std::mt19937&) {
  auto const phy = parts.phy(lane);
  bool const up = phy->signalOk().value() == 0;
  phy->signalOkIs(up ? 1 : 0);
  phy->signalOkChangesInc(1);
  phy->lastSignalOkChangeIs(parts.now);
  phy->linkUpIs(up);
  phy->fecCounters()->fecLockedIs(up);
  if (auto const port = parts.hardware()->portStatus(XpPortId(lane))) port->portValidIs(up);
}

/// Errors that the code corrects.
void correct(ModelParts& parts, U8 lane, std::mt19937& random) {
  auto const fec = parts.phy(lane)->fecCounters();
  U32 const errors = 1 + below(100, random);
  fec->fecCorrectedIs(fec->fecCorrected() + errors);
  U8 const number = lane % lanesOfCage;
  fec->fecSymbolErrorsIs(number, fec->fecSymbolErrors(number) + errors);
}

/// A disturbance on all lanes at once.
void disturb(ModelParts& parts, U8 lane, std::mt19937& random) {
  auto const fec = parts.phy(lane)->fecCounters();
  for (U8 number = 0; number < lanesOfCage; ++number) {
    U32 const errors = 1 + below(1000, random);
    fec->fecSymbolErrorsIs(number, fec->fecSymbolErrors(number) + errors);
    fec->bipErrorsIs(number, static_cast<U16>(fec->bipErrors(number) + errors % 7));
  }
  fec->fecUncorrectedIs(fec->fecUncorrected() + 1);
}

/// The receiver's equaliser goes one step on; at the end stand new settings.
void tune(ModelParts& parts, U8 lane, std::mt19937& random) {
  auto const phy = parts.phy(lane);
  auto const state = phy->xpSerdesStatus()->state();
  bool const done = state == Kestrel::DfeDone;
  phy->xpSerdesStatus()->stateIs(done ? Kestrel::StopDfe
                                      : static_cast<Kestrel::XpSerdesSmState>(state + 1));
  if (state != Kestrel::DfeTuning) return;
  phy->cursorsIs(Kestrel::TxEq(static_cast<S8>(-static_cast<S32>(below(6, random))), 1,
                               static_cast<U8>(below(5, random))));
  phy->eyescoreIs(60 + below(40, random));
}

/// A port goes, or comes back.
void plug(ModelParts& parts, U8 lane, std::mt19937&) {
  if (modeOf(lane) == Kestrel::portModeDisabled) return;
  if (parts.hardware()->portStatus(XpPortId(lane)))
    parts.hardware()->portStatusDel(XpPortId(lane));
  else
    parts.layPort(lane);
}

/// The coprocessor starts anew, or has started.
void restart(ModelParts& parts, U8, std::mt19937&) {
  auto const coprocessor = parts.coprocessors->coprocessorStatus("cop0");
  bool const up = coprocessor->state() == Kestrel::copStateOk;
  coprocessor->stateIs(up ? Kestrel::copStateUninitialized : Kestrel::copStateOk);
  if (!up) coprocessor->genIdInc(1);
}

// As often as it stands here.
constexpr Event events[] = {flap, flap, correct, correct, correct, disturb,
                            tune, tune, tune,    plug,    restart};

}  // namespace

void Model::live(std::mt19937& random) {
  ++parts_->now;
  Event const event = events[below(std::size(events), random)];
  U8 const lane = static_cast<U8>(below(lanes, random));
  event(*parts_, lane, random);
}

}  // namespace kestrel
