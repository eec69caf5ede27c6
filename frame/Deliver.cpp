// Delivery: what lies off its fast path.
#include "frame/Deliver.h"

namespace frame {

void Snapshot::makeRoom() {
  overflow_.resize(size_);
  members_ = overflow_.data();
}

void hookFailed(Notifiee& member, Mox::AttributeId id) { member.onNotificationException(id); }

template void deliver<>(Mox::BaseCollection const&, Mox::AttributeId, Mox::NotifieeLevel const*,
                        Hook<>);

}  // namespace frame
