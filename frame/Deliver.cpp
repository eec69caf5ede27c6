// Delivery: what lies off its fast path.
#include "frame/Deliver.h"

namespace frame {

void Snapshot::dropLast(Notifiee const& member) {
  Mox::Expect const& scope = *Mox::Expect::current();
  scope.close();
  member.handleZeroRef();
  scope.open();
}

void Snapshot::report(Notifiee& member, Mox::AttributeId id) { member.onNotificationException(id); }

template void deliver<EveryLevel>(Mox::BaseCollection const&, Mox::AttributeId, EveryLevel, Hook<>);
template void deliver<OneLevel>(Mox::BaseCollection const&, Mox::AttributeId, OneLevel, Hook<>);

}  // namespace frame
