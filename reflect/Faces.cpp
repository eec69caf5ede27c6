// From values, objects and entities to their interfaces, and back.
#include "reflect/Faces.h"

namespace reflect {

GenericIf::Ptr active(GenericIf* made) {
  GenericIf::Ptr const face = made;
  face->hasNotificationActiveIs(true);
  return face;
}

GenericIf::Ptr unwatched(Mox::GenericIfEntity* made) {
  auto const face = active(made);
  made->moxAdaptersHearIs(false);
  return face;
}

GenericIf::Ptr faceOf(Mox::PtrInterface const* target, frame::TypeOf declared, bool isConst) {
  // Who reads through a constant interface gets one.
  auto* const object = const_cast<Mox::PtrInterface*>(target);
  return (object ? object->fwkType() : declared())->genericIf_(object, isConst);
}

GenericIf::Ptr owningFaceOf(Mox::Entity* made) {
  Mox::Ptr<Mox::Entity> const entity = made;
  auto const face = made->fwkType()->genericIf_(made, false);
  dynamic_cast<Mox::GenericIfEntity&>(*face).moxKeepsEntityIs(true);
  return face;
}

}  // namespace reflect
