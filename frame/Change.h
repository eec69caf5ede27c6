// What follows a change: an entity steps its version and tells its notifiees, a plain object does
// neither.
#pragma once

#include "Mox/Entity.h"
#include "frame/Deliver.h"

#include <concepts>

namespace frame {

/// An attribute of an entity; its tag names the hook, and the level of the observer class that has
/// it.
template <class A>
concept EntityAttribute = std::derived_from<typename A::Owner, Mox::Entity>;

/// Tells the notifiees that attribute `A` has changed, unless none of them hears.  An entity
/// that nobody watches pays one compare.
template <EntityAttribute A>
void notify(typename A::Owner& owner) {
  auto const& list = owner.moxNotifiees();
  if (!list.anyMayHear()) [[likely]]
    return;
  deliver(list, A::id, A::level, static_cast<Hook<>>(A::hook));
}

/// Tells the notifiees that the element of attribute `A` under `key` has changed.  They hear of
/// that key whatever becomes of the caller's variable meanwhile.
template <EntityAttribute A>
void notifyKey(typename A::Owner& owner, typename A::Key const& key) {
  auto const& list = owner.moxNotifiees();
  if (!list.anyMayHear()) [[likely]]
    return;
  using Key = typename A::Key;
  Key const changed = key;
  deliver(list, A::id, A::level, static_cast<Hook<Key>>(A::hook), changed);
}

/// Holds an owner for a step that goes on behind a delivery, or behind the end of a former target:
/// the last reference may have gone meanwhile.  An owner that nobody holds, as in its own
/// constructor and destructor, isn't held here either: it would end with the step.  Values have no
/// references at all.
class Held {
 public:
  template <class Owner>
  explicit Held(Owner& owner) {
    if constexpr (std::derived_from<Owner, Mox::PtrInterface>)
      if (owner.references() > 0) owner_ = &owner;
  }

 private:
  Mox::Ptr<Mox::PtrInterface> owner_;
};

/// The step behind a change of a scalar.
template <EntityAttribute A>
void changed(typename A::Owner& owner) {
  owner.moxVersionInc();
  notify<A>(owner);
}

/// The step behind a change of an element.
template <class A>
void changedKey(typename A::Owner& owner, typename A::Key const& key) {
  if constexpr (EntityAttribute<A>) {
    owner.moxVersionInc();
    notifyKey<A>(owner, key);
  }
}

/// Hands a value out, and counts the read where the owner is an entity.
template <class A, class Value>
Value const& read(typename A::Owner const& owner, Value const& value) {
  if constexpr (EntityAttribute<A>) owner.moxRead(value);
  return value;
}

}  // namespace frame
