// Observing: the order of steps when a notifiee registers, moves or goes.
#include "frame/Observe.h"

namespace frame {

namespace {

/// Counted objects stand in lists of their own class; the list's link is theirs to change.
Notifiee* linked(Notifiee const& member) { return const_cast<Notifiee*>(&member); }

bool isAdapter(Notifiee const* reactor) {
  return dynamic_cast<Mox::Entity::MoxNboAttrLogSa const*>(reactor) != nullptr;
}

/// A notifiee that registers in its own constructor is held by nobody yet: a reference taken and
/// dropped would be its last.
bool isForLog(Notifiee const& member) {
  if (member.references() == 0) return isAdapter(member.moxRawReactor());
  return isAdapter(member.moxReactor().ptr());
}

}  // namespace

void link(Mox::BaseCollection& list, Notifiee const& member) {
  if (isForLog(member))
    list.linkHead(linked(member));
  else
    list.linkTail(linked(member));
}

void registeredIs(Notifiee const& member, bool registered, ListOf listOf) {
  if (member.isRegisteredNotifiee() == registered) return;
  member.moxRegisteredIs(registered);
  if (!member.moxNotifier()) return;
  auto& list = listOf(*member.moxNotifier());
  if (registered)
    link(list, member);
  else
    list.unlink(linked(member));
}

void notifierIs(Mox::Entity::NotifieeConst& member, Mox::PtrInterface const* notifier,
                ListOf listOf) {
  Mox::Ptr<Mox::PtrInterface const> const former = member.moxNotifier();
  if (notifier == former.ptr()) return;
  member.Mox::Entity::NotifieeConst::notifierIs(notifier);
  if (member.isWeakReference()) {
    // The base counts as for a strong observer; a weak one hands no reference over.
    if (former) former->referencesInc();
    if (notifier) notifier->referencesDec();
  }
  if (!member.isRegisteredNotifiee()) return;
  if (former) listOf(*former).unlink(&member);
  if (notifier) link(listOf(*notifier), member);
}

void observerGone(Notifiee& member, ListOf listOf) {
  auto const* notifier = member.moxNotifier();
  // Balances the reference that the base's destructor drops.
  if (notifier && member.isWeakReference()) notifier->referencesInc();
  if (!notifier || !member.isRegisteredNotifiee() || member.moxMarkedForDeletion()) return;
  Mox::Ptr<Mox::PtrInterface const> const held = notifier;
  listOf(*notifier).unlink(&member);
}

void zeroReferences(Mox::BaseCollection const& list) {
  constexpr Mox::AttributeId zeroReferencesId = 5;
  if (list.empty()) return;
  // Of the last reference those are told too that don't hear.
  deliverToAll(list, zeroReferencesId, EveryLevel(), &Notifiee::onZeroReferences);
}

}  // namespace frame
