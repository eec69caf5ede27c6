// Delivery: what lies off its fast path.
#include "frame/Deliver.h"

namespace frame {

void hookFailed(Notifiee& member, Mox::AttributeId id) { member.onNotificationException(id); }

template void deliver<>(Mox::BaseCollection const&, Mox::AttributeId, Mox::NotifieeLevel const*,
                        Hook<>);

}  // namespace frame
