// everyShape::Brook by attribute number: one line for each operation.  Made by schemac from everyShape.schema.
#include "everyShape/Brook.reflect.h"

#include "everyShape/Brook.tags.h"
#include "reflect/Arguments.h"
#include "reflect/Perform.h"
#include "reflect/Steps.h"

namespace everyShape {

struct [[gnu::visibility("hidden")]] Brook::GenericIf_::MoxTable {
  static constexpr reflect::Row rows[] = {
      {.id = 258, .name = "grove", .type = Grove::_fwkType, .read = reflect::read<&Brook::grove>,
          .write = reflect::write<&Brook::groveIs>},
      {.id = 154, .name = "moxHasAttrLogInterface", .type = Mox::Builtin<bool>::_fwkType,
          .read = reflect::read<&Brook::moxHasAttrLogInterface>},
  };
  static Brook* objectOf(GenericIf_ const& face) { return reflect::observed<Brook>(face); }
  static Mox::GenericIf::Ptr performWithoutRow(GenericIf_& face, AttributeOp op,
      PtrConst const& index, PtrConst const& value) {
    return face.MoxBase::attributeOp(op, index, value);
  }
  static constexpr reflect::Told told[] = {
      {258, false, [](Mox::GenericIfEntity& face) { static_cast<GenericIf_&>(face).onGrove(); }},
  };
};

Mox::GenericIf::Ptr Brook::_Type::genericIf_(Mox::PtrInterface* object, bool isConst) const {
  return reflect::unwatched(new GenericIf_(reflect::requireObject<Brook>(object), isConst));
}

Brook::GenericIf_::GenericIf_(Mox::Ptr<Brook> const& object, bool isConst) : GenericIf_(object,
    Brook::_fwkType(), isConst) {}
Brook::GenericIf_::GenericIf_(Mox::Ptr<Brook> const& object, Mox::MoxType const* type,
    bool isConst) : MoxBase(object, type, isConst) {
  adapter_ = frame::adapterFor<GenericIf_Adapter_>(object.ptr(), this);
}
Brook::GenericIf_::~GenericIf_() { frame::unhook(*adapter_); }

Mox::Ptr<Brook> Brook::GenericIf_::obj() const { return static_cast<Brook*>(entity()); }

Mox::GenericIf::Ptr Brook::GenericIf_::attributeOp(AttributeOp op, PtrConst const& index,
    PtrConst const& value) {
  requireWritable(op);
  return reflect::performByTable<MoxTable>(*this, op, index, value);
}
Mox::GenericIf::AttributeIteratorConst Brook::GenericIf_::attributeIteratorConst(
    Mox::AttributeId id) const {
  auto const* const row = reflect::collectionOf(MoxTable::rows, id);
  return row ? reflect::walk(*this, *row,
      MoxTable::objectOf(*this)) : MoxBase::attributeIteratorConst(id);
}
Mox::GenericIf::AttributeIteratorConst Brook::GenericIf_::attributeIteratorKeyConst(
    Mox::AttributeId id, PtrConst const& key) const {
  auto const* const row = reflect::collectionOf(MoxTable::rows, id);
  return row ? reflect::walk(*this, *row, MoxTable::objectOf(*this),
      key) : MoxBase::attributeIteratorKeyConst(id, key);
}
Mox::GenericIf::Ptr Brook::GenericIf_::clone() {
  return reflect::unwatched(new GenericIf_(obj(), isConst()));
}

void Brook::GenericIf_::handleNotification(Mox::ActivityConfig* activity) {
  reflect::handleNotification(*this, MoxTable::told,
      [](Mox::GenericIfEntity& face,
      Mox::ActivityConfig* activity) {
      static_cast<GenericIf_&>(face).MoxBase::handleNotification(activity); }, activity);
}
void Brook::GenericIf_::notifierIs(Mox::Ptr<Mox::PtrInterface const> const& notifier) {
  auto const own = Mox::ptrCast<Brook const>(notifier);
  adapter_->notifierIs(own);
  MoxBase::notifierIs(own);
}
void Brook::GenericIf_::moxDoZombieReactors(bool zombie) {
  if (zombie == moxMarkedForDeletion()) return;
  MoxBase::moxDoZombieReactors(zombie);
  adapter_->moxDoZombieReactors(zombie);
}
void Brook::GenericIf_::hasNotificationActiveIs(bool active) {
  if (active == hasNotificationActive()) return;
  MoxBase::hasNotificationActiveIs(active);
  if (adapter_) adapter_->hasNotificationActiveIs(active);
}

void Brook::GenericIf_::moxAdaptersHearIs(bool hears) {
  MoxBase::moxAdaptersHearIs(hears);
  adapter_->moxHearsIs(hears);
}

void Brook::GenericIf_::onGrove() { reflect::changed(*this, 258); }

}  // namespace everyShape
