// everyShape::Leaf by attribute number: one line for each operation.  Made by schemac from everyShape.schema.
#include "everyShape/Leaf.reflect.h"

#include "everyShape/Leaf.tags.h"
#include "reflect/Arguments.h"
#include "reflect/Perform.h"
#include "reflect/Steps.h"

namespace everyShape {

struct [[gnu::visibility("hidden")]] Leaf::GenericIf_::MoxTable {
  static constexpr reflect::Argument constructorTypes[] = {
      {"name", Mox::Name::_fwkType},
      {"lane", Mox::Builtin<U8>::_fwkType},
      {"mix", Mix::_fwkType},
  };
  static constexpr reflect::Row rows[] = {
      {.id = 258, .name = "lane", .type = Mox::Builtin<U8>::_fwkType,
          .read = reflect::read<&Leaf::lane>},
      {.id = 259, .name = "mix", .type = Mix::_fwkType, .read = reflect::read<&Leaf::mix>},
      {.id = 260, .name = "lit", .type = Mox::Builtin<bool>::_fwkType,
          .read = reflect::read<&Leaf::lit>, .write = reflect::write<&Leaf::litIs>},
      {.id = 154, .name = "moxHasAttrLogInterface", .type = Mox::Builtin<bool>::_fwkType,
          .read = reflect::read<&Leaf::moxHasAttrLogInterface>},
      {.id = 0, .name = "fwkKey"},
  };
  static Leaf* objectOf(GenericIf_ const& face) { return reflect::observed<Leaf>(face); }
  static Mox::GenericIf::Ptr performWithoutRow(GenericIf_& face, AttributeOp op,
      PtrConst const& index, PtrConst const& value) {
    return face.MoxBase::attributeOp(op, index, value);
  }
  static constexpr reflect::Told told[] = {
      {260, false, [](Mox::GenericIfEntity& face) { static_cast<GenericIf_&>(face).onLit(); }},
  };
};

Mox::GenericIf::Ptr Leaf::_Type::genericIf_(Mox::PtrInterface* object, bool isConst) const {
  return reflect::unwatched(new GenericIf_(reflect::requireObject<Leaf>(object), isConst));
}

Leaf::GenericIf_::GenericIf_(Mox::Ptr<Leaf> const& object, bool isConst) : GenericIf_(object,
    Leaf::_fwkType(), isConst) {}
Leaf::GenericIf_::GenericIf_(Mox::Ptr<Leaf> const& object, Mox::MoxType const* type,
    bool isConst) : MoxBase(object, type, isConst) {
  adapter_ = frame::adapterFor<GenericIf_Adapter_>(object.ptr(), this);
}
Leaf::GenericIf_::~GenericIf_() { frame::unhook(*adapter_); }

Mox::Ptr<Leaf> Leaf::GenericIf_::obj() const { return static_cast<Leaf*>(entity()); }

Mox::GenericIf::Ptr Leaf::GenericIf_::attributeOp(AttributeOp op, PtrConst const& index,
    PtrConst const& value) {
  requireWritable(op);
  return reflect::performByTable<MoxTable>(*this, op, index, value);
}
Mox::GenericIf::AttributeIteratorConst Leaf::GenericIf_::attributeIteratorConst(
    Mox::AttributeId id) const {
  auto const* const row = reflect::collectionOf(MoxTable::rows, id);
  return row ? reflect::walk(*this, *row,
      MoxTable::objectOf(*this)) : MoxBase::attributeIteratorConst(id);
}
Mox::GenericIf::AttributeIteratorConst Leaf::GenericIf_::attributeIteratorKeyConst(
    Mox::AttributeId id, PtrConst const& key) const {
  auto const* const row = reflect::collectionOf(MoxTable::rows, id);
  return row ? reflect::walk(*this, *row, MoxTable::objectOf(*this),
      key) : MoxBase::attributeIteratorKeyConst(id, key);
}
Mox::GenericIf::Ptr Leaf::GenericIf_::clone() {
  return reflect::unwatched(new GenericIf_(obj(), isConst()));
}
Mox::GenericIf::Ptr Leaf::GenericIf_::genericIfListConstructor(PtrConst const& list) const {
  reflect::Arguments const given(MoxTable::constructorTypes, list, "Leaf");
  return reflect::owningFaceOf(reflect::make<Leaf, Mox::Name, U8, Mix>(given.held()));
}

void Leaf::GenericIf_::handleNotification(Mox::ActivityConfig* activity) {
  reflect::handleNotification(*this, MoxTable::told,
      [](Mox::GenericIfEntity& face,
      Mox::ActivityConfig* activity) {
      static_cast<GenericIf_&>(face).MoxBase::handleNotification(activity); }, activity);
}
void Leaf::GenericIf_::notifierIs(Mox::Ptr<Mox::PtrInterface const> const& notifier) {
  auto const own = Mox::ptrCast<Leaf const>(notifier);
  adapter_->notifierIs(own);
  MoxBase::notifierIs(own);
}
void Leaf::GenericIf_::moxDoZombieReactors(bool zombie) {
  if (zombie == moxMarkedForDeletion()) return;
  MoxBase::moxDoZombieReactors(zombie);
  adapter_->moxDoZombieReactors(zombie);
}
void Leaf::GenericIf_::hasNotificationActiveIs(bool active) {
  if (active == hasNotificationActive()) return;
  MoxBase::hasNotificationActiveIs(active);
  if (adapter_) adapter_->hasNotificationActiveIs(active);
}

void Leaf::GenericIf_::moxAdaptersHearIs(bool hears) {
  MoxBase::moxAdaptersHearIs(hears);
  adapter_->moxHearsIs(hears);
}

void Leaf::GenericIf_::onLit() { reflect::changed(*this, 260); }

}  // namespace everyShape
