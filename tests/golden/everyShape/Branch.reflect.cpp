// everyShape::Branch by attribute number: one line for each operation.  Made by schemac from everyShape.schema.
#include "everyShape/Branch.reflect.h"

#include "everyShape/Branch.tags.h"
#include "reflect/Arguments.h"
#include "reflect/Perform.h"
#include "reflect/Steps.h"

namespace everyShape {

struct [[gnu::visibility("hidden")]] Branch::GenericIf_::MoxTable {
  static constexpr reflect::Argument constructorTypes[] = {
      {"port", Mox::Builtin<U16>::_fwkType},
      {"leaf", Leaf::_fwkType},
      {"mood", everyShape::_fwkType_Mood},
  };
  static constexpr reflect::Row rows[] = {
      {.id = 386, .name = "leaf", .type = Leaf::_fwkType, .read = reflect::read<&Branch::leaf>},
      {.id = 387, .name = "mood", .type = everyShape::_fwkType_Mood,
          .read = reflect::read<&Branch::mood>},
      {.id = 388, .name = "twig", .type = Leaf::_fwkType, .read = reflect::read<&Branch::twig>},
      {.id = 389, .name = "bud", .type = Leaf::_fwkType, .read = reflect::read<&Branch::bud>},
      {.id = 390, .name = "tone", .type = everyShape::_fwkType_Mood,
          .read = reflect::read<&Branch::tone>},
      {.id = 154, .name = "moxHasAttrLogInterface", .type = Mox::Builtin<bool>::_fwkType,
          .read = reflect::read<&Branch::moxHasAttrLogInterface>},
      {.id = 0, .name = "fwkKey"},
  };
  static Branch* objectOf(GenericIf_ const& face) { return reflect::observed<Branch>(face); }
  static Mox::GenericIf::Ptr performWithoutRow(GenericIf_& face, AttributeOp op,
      PtrConst const& index, PtrConst const& value) {
    return face.MoxBase::attributeOp(op, index, value);
  }
  static constexpr reflect::Told told[] = {
      {388, false, [](Mox::GenericIfEntity& face) { static_cast<GenericIf_&>(face).onTwig(); }},
      {389, false, [](Mox::GenericIfEntity& face) { static_cast<GenericIf_&>(face).onBud(); }},
  };
};

Mox::GenericIf::Ptr Branch::_Type::genericIf_(Mox::PtrInterface* object, bool isConst) const {
  return reflect::unwatched(new GenericIf_(reflect::requireObject<Branch>(object), isConst));
}

Branch::GenericIf_::GenericIf_(Mox::Ptr<Branch> const& object, bool isConst) : GenericIf_(object,
    Branch::_fwkType(), isConst) {}
Branch::GenericIf_::GenericIf_(Mox::Ptr<Branch> const& object, Mox::MoxType const* type,
    bool isConst) : MoxBase(object, type, isConst) {
  adapter_ = frame::adapterFor<GenericIf_Adapter_>(object.ptr(), this);
}
Branch::GenericIf_::~GenericIf_() { frame::unhook(*adapter_); }

Mox::Ptr<Branch> Branch::GenericIf_::obj() const { return static_cast<Branch*>(entity()); }

Mox::GenericIf::Ptr Branch::GenericIf_::attributeOp(AttributeOp op, PtrConst const& index,
    PtrConst const& value) {
  requireWritable(op);
  return reflect::performByTable<MoxTable>(*this, op, index, value);
}
Mox::GenericIf::AttributeIteratorConst Branch::GenericIf_::attributeIteratorConst(
    Mox::AttributeId id) const {
  auto const* const row = reflect::collectionOf(MoxTable::rows, id);
  return row ? reflect::walk(*this, *row,
      MoxTable::objectOf(*this)) : MoxBase::attributeIteratorConst(id);
}
Mox::GenericIf::AttributeIteratorConst Branch::GenericIf_::attributeIteratorKeyConst(
    Mox::AttributeId id, PtrConst const& key) const {
  auto const* const row = reflect::collectionOf(MoxTable::rows, id);
  return row ? reflect::walk(*this, *row, MoxTable::objectOf(*this),
      key) : MoxBase::attributeIteratorKeyConst(id, key);
}
Mox::GenericIf::Ptr Branch::GenericIf_::clone() {
  return reflect::unwatched(new GenericIf_(obj(), isConst()));
}
Mox::GenericIf::Ptr Branch::GenericIf_::genericIfListConstructor(PtrConst const& list) const {
  reflect::Arguments const given(MoxTable::constructorTypes, list, "Branch");
  return reflect::owningFaceOf(reflect::make<Branch, U16, Mox::Ptr<Leaf>, Mood>(given.held()));
}

void Branch::GenericIf_::handleNotification(Mox::ActivityConfig* activity) {
  reflect::handleNotification(*this, MoxTable::told,
      [](Mox::GenericIfEntity& face,
      Mox::ActivityConfig* activity) {
      static_cast<GenericIf_&>(face).MoxBase::handleNotification(activity); }, activity);
}
void Branch::GenericIf_::notifierIs(Mox::Ptr<Mox::PtrInterface const> const& notifier) {
  auto const own = Mox::ptrCast<Branch const>(notifier);
  adapter_->notifierIs(own);
  MoxBase::notifierIs(own);
}
void Branch::GenericIf_::moxDoZombieReactors(bool zombie) {
  if (zombie == moxMarkedForDeletion()) return;
  MoxBase::moxDoZombieReactors(zombie);
  adapter_->moxDoZombieReactors(zombie);
}
void Branch::GenericIf_::hasNotificationActiveIs(bool active) {
  if (active == hasNotificationActive()) return;
  MoxBase::hasNotificationActiveIs(active);
  if (adapter_) adapter_->hasNotificationActiveIs(active);
}

void Branch::GenericIf_::moxAdaptersHearIs(bool hears) {
  MoxBase::moxAdaptersHearIs(hears);
  adapter_->moxHearsIs(hears);
}

void Branch::GenericIf_::onTwig() { reflect::changed(*this, 388); }
void Branch::GenericIf_::onBud() { reflect::changed(*this, 389); }

}  // namespace everyShape
