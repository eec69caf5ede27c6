// everyShape::Derived by attribute number: one line for each operation.  Made by schemac from everyShape.schema.
#include "everyShape/Derived.reflect.h"

#include "everyShape/Derived.tags.h"
#include "reflect/Arguments.h"
#include "reflect/Perform.h"
#include "reflect/Steps.h"
#include "reflect/Walk.h"

namespace everyShape {

struct [[gnu::visibility("hidden")]] Derived::GenericIf_::MoxTable {
  static constexpr reflect::Argument constructorTypes[] = {
      {"name", Mox::Name::_fwkType},
      {"port", Mox::Builtin<U16>::_fwkType},
  };
  static constexpr reflect::Row rows[] = {
      {.id = 386, .name = "extra", .type = Mox::Builtin<U32>::_fwkType,
          .read = reflect::read<&Derived::extra>, .write = reflect::write<&Derived::extraIs>},
      {.id = 387, .name = "marks", .type = Mox::Builtin<bool>::_fwkType,
          .key = Mox::Builtin<U8>::_fwkType,
          .collection = &reflect::collection<Derived::Tags::Marks>},
      {.id = 154, .name = "moxHasAttrLogInterface", .type = Mox::Builtin<bool>::_fwkType,
          .read = reflect::read<&Derived::moxHasAttrLogInterface>},
  };
  static Derived* objectOf(GenericIf_ const& face) { return reflect::observed<Derived>(face); }
  static Mox::GenericIf::Ptr performWithoutRow(GenericIf_& face, AttributeOp op,
      PtrConst const& index, PtrConst const& value) {
    return face.MoxBase::attributeOp(op, index, value);
  }
  static constexpr reflect::Told told[] = {
      {386, false, [](Mox::GenericIfEntity& face) { static_cast<GenericIf_&>(face).onExtra(); }},
      {387, true, [](Mox::GenericIfEntity& face) {
        auto& own = static_cast<GenericIf_&>(face);
        if (auto const* const key = reflect::onlyKey(own, 387,
            own.adapter_->noted.marks)) own.onMarks(*key);
      }},
  };
};

Mox::GenericIf::Ptr Derived::_Type::genericIf_(Mox::PtrInterface* object, bool isConst) const {
  return reflect::unwatched(new GenericIf_(reflect::requireObject<Derived>(object), isConst));
}

Derived::GenericIf_::GenericIf_(Mox::Ptr<Derived> const& object, bool isConst) : GenericIf_(object,
    Derived::_fwkType(), isConst) {}
Derived::GenericIf_::GenericIf_(Mox::Ptr<Derived> const& object, Mox::MoxType const* type,
    bool isConst) : MoxBase(object, type, isConst) {
  adapter_ = frame::adapterFor<GenericIf_Adapter_>(object.ptr(), this);
}
Derived::GenericIf_::~GenericIf_() { frame::unhook(*adapter_); }

Mox::Ptr<Derived> Derived::GenericIf_::obj() const { return static_cast<Derived*>(entity()); }

Mox::GenericIf::Ptr Derived::GenericIf_::attributeOp(AttributeOp op, PtrConst const& index,
    PtrConst const& value) {
  requireWritable(op);
  return reflect::performByTable<MoxTable>(*this, op, index, value);
}
Mox::GenericIf::AttributeIteratorConst Derived::GenericIf_::attributeIteratorConst(
    Mox::AttributeId id) const {
  auto const* const row = reflect::collectionOf(MoxTable::rows, id);
  return row ? reflect::walk(*this, *row,
      MoxTable::objectOf(*this)) : MoxBase::attributeIteratorConst(id);
}
Mox::GenericIf::AttributeIteratorConst Derived::GenericIf_::attributeIteratorKeyConst(
    Mox::AttributeId id, PtrConst const& key) const {
  auto const* const row = reflect::collectionOf(MoxTable::rows, id);
  return row ? reflect::walk(*this, *row, MoxTable::objectOf(*this),
      key) : MoxBase::attributeIteratorKeyConst(id, key);
}
Mox::GenericIf::Ptr Derived::GenericIf_::clone() {
  return reflect::unwatched(new GenericIf_(obj(), isConst()));
}
Mox::GenericIf::Ptr Derived::GenericIf_::genericIfListConstructor(PtrConst const& list) const {
  reflect::Arguments const given(MoxTable::constructorTypes, list, "Derived");
  return reflect::owningFaceOf(reflect::make<Derived, Mox::Name, U16>(given.held()));
}

void Derived::GenericIf_::handleNotification(Mox::ActivityConfig* activity) {
  reflect::handleNotification(*this, MoxTable::told,
      [](Mox::GenericIfEntity& face,
      Mox::ActivityConfig* activity) {
      static_cast<GenericIf_&>(face).MoxBase::handleNotification(activity); }, activity);
}
void Derived::GenericIf_::notifierIs(Mox::Ptr<Mox::PtrInterface const> const& notifier) {
  auto const own = Mox::ptrCast<Derived const>(notifier);
  if (own && own.ptr() != entity()) adapter_->noted = {};
  adapter_->notifierIs(own);
  MoxBase::notifierIs(own);
}
void Derived::GenericIf_::moxDoZombieReactors(bool zombie) {
  if (zombie == moxMarkedForDeletion()) return;
  MoxBase::moxDoZombieReactors(zombie);
  adapter_->moxDoZombieReactors(zombie);
}
void Derived::GenericIf_::hasNotificationActiveIs(bool active) {
  if (active == hasNotificationActive()) return;
  MoxBase::hasNotificationActiveIs(active);
  if (adapter_) adapter_->hasNotificationActiveIs(active);
}

void Derived::GenericIf_::moxAdaptersHearIs(bool hears) {
  MoxBase::moxAdaptersHearIs(hears);
  adapter_->moxHearsIs(hears);
}

void Derived::GenericIf_::onExtra() { reflect::changed(*this, 386); }
void Derived::GenericIf_::onMarks(U8 key) {
  reflect::changed(*this, 387, adapter_->noted.marks, key, Mox::Builtin<U8>::_fwkType);
}
void Derived::GenericIf_::onMarks() { onAttribute(387); }

}  // namespace everyShape
