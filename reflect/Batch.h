// Changes of an entity as its interface tells them: at once, or later in batches.
#pragma once

#include "Mox/GenericIfEntity.h"
#include "frame/Descriptor.h"
#include "reflect/Faces.h"

#include <span>

namespace reflect {

/// What a batch knows of one collection: the key that changed last, and how many changes there
/// were, up to 255.
template <class Key>
struct Pending {
  Key last = Key();
  U8 count = 0;
};

/// One attribute whose changes are told.
struct Told {
  Mox::AttributeId id;
  bool isCollection;
  /// Tells of the change, or of what a collection has noted.
  void (*tell)(Mox::GenericIfEntity& face);
};

/// What the class that an interface derives from does with a notification.
using BaseHandler = void (*)(Mox::GenericIfEntity& face, Mox::ActivityConfig* activity);

/// Tells what is noted in `face`: of one attribute, or, in the order of `own` and behind the
/// base's, of all or of all collections, where other work of the activity may come between two of
/// them.  A watcher that throws is reported, and the others are still told.
void handleNotification(Mox::GenericIfEntity& face, std::span<Told const> own, BaseHandler base,
                        Mox::ActivityConfig* activity);

/// A scalar has changed.
void changed(Mox::GenericIfEntity& face, Mox::AttributeId id);

/// A collection has changed under `key`.
template <class Key>
void changed(Mox::GenericIfEntity& face, Mox::AttributeId id, Pending<Key>& pending, Key const& key,
             frame::TypeOf keyType) {
  // What is told at once leaves alone what waits.
  if (face.moxOnAttribute(id, &pending.count))
    pending.last = key;
  else
    face.onAttribute(id, faceOf(key, keyType, true));
}

/// The one key that has changed; null where there was none, or several, which are told at once.
template <class Key>
Key const* onlyKey(Mox::GenericIfEntity& face, Mox::AttributeId id, Pending<Key>& pending) {
  U8 const count = std::exchange(pending.count, U8{0});
  if (count > 1) face.onAttribute(id);
  return count == 1 ? &pending.last : nullptr;
}

}  // namespace reflect
