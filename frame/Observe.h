// Observing: how notifiees take and leave their place in an entity's list.
#pragma once

#include "Mox/Entity.h"
#include "frame/Deliver.h"

namespace frame {

/// Links `member` into `list`: adapters of the attribute log at the head, all others at the tail.
void link(Mox::BaseCollection& list, Notifiee const& member);

/// `isRegisteredNotifieeIs` of an observer of `X`: the flag first, then the list of the notifier.
template <class X>
void registeredIs(Notifiee const& member, bool registered);

/// `notifierIs` of an observer of `X`; something that is no `X` counts as null.  A registered
/// notifiee moves from the old notifier's list to the new one's; a weak one keeps no reference.
template <class X>
void notifierIs(Mox::Entity::NotifieeConst& member,
                Mox::Ptr<Mox::PtrInterface const> const& notifier);

/// The destructor of an observer of `X`: it leaves the list, unless it is marked for deletion.
template <class X>
void observerGone(Mox::Entity::NotifieeConst& member);

/// `zeroReferencesIs` of an entity: its notifiees hear that the last reference has gone.
void zeroReferences(Mox::BaseCollection const& list);

/// How an observer finds the list of its notifier, which it knows only as a counted object.
using ListOf = Mox::BaseCollection& (*)(Mox::PtrInterface const& notifier);

/// The same as the templates above, once the list is known how to be found.
void registeredIs(Notifiee const& member, bool registered, ListOf listOf);
void notifierIs(Mox::Entity::NotifieeConst& member, Mox::PtrInterface const* notifier,
                ListOf listOf);
void observerGone(Notifiee& member, ListOf listOf);

template <class X>
Mox::BaseCollection& listOf(Mox::PtrInterface const& notifier) {
  return static_cast<X const&>(notifier).moxNotifiees();
}

template <class X>
void registeredIs(Notifiee const& member, bool registered) {
  registeredIs(member, registered, listOf<X>);
}

template <class X>
void notifierIs(Mox::Entity::NotifieeConst& member,
                Mox::Ptr<Mox::PtrInterface const> const& notifier) {
  notifierIs(member, dynamic_cast<X const*>(notifier.ptr()), listOf<X>);
}

template <class X>
void observerGone(Mox::Entity::NotifieeConst& member) {
  observerGone(member, listOf<X>);
}

}  // namespace frame
