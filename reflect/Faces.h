// From values, objects and entities to their interfaces, and back.
#pragma once

#include "Mox/Builtin.h"
#include "Mox/Exception.h"
#include "Mox/GenericIfEntity.h"
#include "frame/Descriptor.h"

#include <type_traits>

namespace reflect {

using Mox::GenericIf;

/// Switches a new interface on.
GenericIf::Ptr active(GenericIf* made);
/// The same of an entity's, which needn't hear until somebody watches.
GenericIf::Ptr unwatched(Mox::GenericIfEntity* made);

/// The interface of an object or entity by the descriptor of its own class; by `declared` for null.
GenericIf::Ptr faceOf(Mox::PtrInterface const* target, frame::TypeOf declared, bool isConst);

/// The interface of a value of `type`, or of what a pointer points at.
template <class T>
GenericIf::Ptr faceOf(T const& value, [[maybe_unused]] frame::TypeOf type, bool isConst) {
  if constexpr (Mox::Primitive<T>)
    return Mox::primitiveIf(value, isConst);
  else
    return type()->genericIf(&value, isConst);
}
template <class T>
GenericIf::Ptr faceOf(Mox::Ptr<T> const& target, frame::TypeOf declared, bool isConst) {
  return faceOf(static_cast<Mox::PtrInterface const*>(target.ptr()), declared,
                isConst || std::is_const_v<T>);
}

/// What stands at an address that an interface has handed out.
template <class T>
struct Held {
  static T const& at(void const* held) { return *static_cast<T const*>(held); }
};
template <class T>
struct Held<Mox::Ptr<T>> {
  static Mox::Ptr<T> at(void const* held) {
    auto* const object = *static_cast<Mox::PtrInterface* const*>(held);
    return static_cast<T*>(object);
  }
};

/// `object` seen as an `X`; raises `TypeException` for one of another class.  Null stays null.
template <class X>
X* requireObject(Mox::PtrInterface* object) {
  auto* const typed = dynamic_cast<X*>(object);
  if (object && !typed) GenericIf::throwTypeException(X::_fwkType()->moxName().stringValue());
  return typed;
}

/// The interface of a new entity, which keeps it alive.
GenericIf::Ptr owningFaceOf(Mox::Entity* made);

}  // namespace reflect
