// Changes of an entity as its interface tells them.
#include "reflect/Batch.h"

#include "Mox/Flagged.h"

namespace reflect {

namespace {

using Face = Mox::GenericIfEntity;

void tell(Face& face, Told const& attribute) {
  try {
    attribute.tell(face);
  } catch (...) {
    face.onNotificationException(attribute.id);
  }
}

Told const* find(std::span<Told const> own, S32 id) {
  for (Told const& attribute : own)
    if (attribute.id == static_cast<Mox::AttributeId>(id)) return &attribute;
  return nullptr;
}

}  // namespace

void handleNotification(Face& face, std::span<Told const> own, BaseHandler base,
                        Mox::ActivityConfig* activity) {
  S32 const noted = face.notification();
  Mox::Flagged const telling(face.moxTelling());
  if (Told const* const attribute = noted >= 0 ? find(own, noted) : nullptr) {
    face.notificationIs(Face::nothing);
    return tell(face, *attribute);
  }
  base(face, activity);
  if (noted != Face::all && noted != Face::allCollections) return;
  for (Told const& attribute : own) {
    if (noted == Face::allCollections && !attribute.isCollection) continue;
    tell(face, attribute);
    if (&attribute != &own.back()) face.redispatch(face.actsm());
  }
}

void changed(Face& face, Mox::AttributeId id) {
  if (!face.moxOnAttribute(id, nullptr)) face.onAttribute(id);
}

}  // namespace reflect
