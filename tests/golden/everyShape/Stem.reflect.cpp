// everyShape::Stem by attribute number: one line for each operation.  Made by schemac from everyShape.schema.
#include "everyShape/Stem.reflect.h"

#include "everyShape/Stem.tags.h"
#include "reflect/Arguments.h"
#include "reflect/Perform.h"
#include "reflect/Steps.h"

namespace everyShape {

struct [[gnu::visibility("hidden")]] Stem::GenericIf_::MoxTable {
  static constexpr reflect::Argument constructorTypes[] = {
      {"port", Mox::Builtin<U16>::_fwkType},
  };
  static constexpr reflect::Row rows[] = {
      {.id = 258, .name = "port", .type = Mox::Builtin<U16>::_fwkType,
          .read = reflect::read<&Stem::port>},
      {.id = 259, .name = "girth", .type = Mox::Builtin<U32>::_fwkType,
          .read = reflect::read<&Stem::girth>, .write = reflect::write<&Stem::girthIs>},
      {.id = 260, .name = "rings", .type = Mox::Builtin<U8>::_fwkType,
          .read = reflect::read<&Stem::rings>, .write = reflect::write<&Stem::ringsIs>},
      {.id = 261, .name = "root", .type = Leaf::_fwkType, .read = reflect::read<&Stem::root>,
          .write = reflect::write<&Stem::rootIs>},
      {.id = 154, .name = "moxHasAttrLogInterface", .type = Mox::Builtin<bool>::_fwkType,
          .read = reflect::read<&Stem::moxHasAttrLogInterface>},
      {.id = 0, .name = "fwkKey"},
  };
  static Stem* objectOf(GenericIf_ const& face) { return reflect::observed<Stem>(face); }
  static Mox::GenericIf::Ptr performWithoutRow(GenericIf_& face, AttributeOp op,
      PtrConst const& index, PtrConst const& value) {
    return face.MoxBase::attributeOp(op, index, value);
  }
  static constexpr reflect::Told told[] = {
      {259, false, [](Mox::GenericIfEntity& face) { static_cast<GenericIf_&>(face).onGirth(); }},
      {260, false, [](Mox::GenericIfEntity& face) { static_cast<GenericIf_&>(face).onRings(); }},
      {261, false, [](Mox::GenericIfEntity& face) { static_cast<GenericIf_&>(face).onRoot(); }},
  };
};

Mox::GenericIf::Ptr Stem::_Type::genericIf_(Mox::PtrInterface* object, bool isConst) const {
  return reflect::unwatched(new GenericIf_(reflect::requireObject<Stem>(object), isConst));
}

Stem::GenericIf_::GenericIf_(Mox::Ptr<Stem> const& object, bool isConst) : GenericIf_(object,
    Stem::_fwkType(), isConst) {}
Stem::GenericIf_::GenericIf_(Mox::Ptr<Stem> const& object, Mox::MoxType const* type,
    bool isConst) : MoxBase(object, type, isConst) {
  adapter_ = frame::adapterFor<GenericIf_Adapter_>(object.ptr(), this);
}
Stem::GenericIf_::~GenericIf_() { frame::unhook(*adapter_); }

Mox::Ptr<Stem> Stem::GenericIf_::obj() const { return static_cast<Stem*>(entity()); }

Mox::GenericIf::Ptr Stem::GenericIf_::attributeOp(AttributeOp op, PtrConst const& index,
    PtrConst const& value) {
  requireWritable(op);
  return reflect::performByTable<MoxTable>(*this, op, index, value);
}
Mox::GenericIf::AttributeIteratorConst Stem::GenericIf_::attributeIteratorConst(
    Mox::AttributeId id) const {
  auto const* const row = reflect::collectionOf(MoxTable::rows, id);
  return row ? reflect::walk(*this, *row,
      MoxTable::objectOf(*this)) : MoxBase::attributeIteratorConst(id);
}
Mox::GenericIf::AttributeIteratorConst Stem::GenericIf_::attributeIteratorKeyConst(
    Mox::AttributeId id, PtrConst const& key) const {
  auto const* const row = reflect::collectionOf(MoxTable::rows, id);
  return row ? reflect::walk(*this, *row, MoxTable::objectOf(*this),
      key) : MoxBase::attributeIteratorKeyConst(id, key);
}
Mox::GenericIf::Ptr Stem::GenericIf_::clone() {
  return reflect::unwatched(new GenericIf_(obj(), isConst()));
}
Mox::GenericIf::Ptr Stem::GenericIf_::genericIfListConstructor(PtrConst const& list) const {
  reflect::Arguments const given(MoxTable::constructorTypes, list, "Stem");
  return reflect::owningFaceOf(reflect::make<Stem, U16>(given.held()));
}

void Stem::GenericIf_::handleNotification(Mox::ActivityConfig* activity) {
  reflect::handleNotification(*this, MoxTable::told,
      [](Mox::GenericIfEntity& face,
      Mox::ActivityConfig* activity) {
      static_cast<GenericIf_&>(face).MoxBase::handleNotification(activity); }, activity);
}
void Stem::GenericIf_::notifierIs(Mox::Ptr<Mox::PtrInterface const> const& notifier) {
  auto const own = Mox::ptrCast<Stem const>(notifier);
  adapter_->notifierIs(own);
  MoxBase::notifierIs(own);
}
void Stem::GenericIf_::moxDoZombieReactors(bool zombie) {
  if (zombie == moxMarkedForDeletion()) return;
  MoxBase::moxDoZombieReactors(zombie);
  adapter_->moxDoZombieReactors(zombie);
}
void Stem::GenericIf_::hasNotificationActiveIs(bool active) {
  if (active == hasNotificationActive()) return;
  MoxBase::hasNotificationActiveIs(active);
  if (adapter_) adapter_->hasNotificationActiveIs(active);
}

void Stem::GenericIf_::moxAdaptersHearIs(bool hears) {
  MoxBase::moxAdaptersHearIs(hears);
  adapter_->moxHearsIs(hears);
}

void Stem::GenericIf_::onGirth() { reflect::changed(*this, 259); }
void Stem::GenericIf_::onRings() { reflect::changed(*this, 260); }
void Stem::GenericIf_::onRoot() { reflect::changed(*this, 261); }

}  // namespace everyShape
