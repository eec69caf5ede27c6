// everyShape::Bush by attribute number: one line for each operation.  Made by schemac from everyShape.schema.
#include "everyShape/Bush.reflect.h"

#include "everyShape/Bush.tags.h"
#include "reflect/Arguments.h"
#include "reflect/Perform.h"
#include "reflect/Steps.h"
#include "reflect/Walk.h"

namespace everyShape {

struct [[gnu::visibility("hidden")]] Bush::GenericIf_::MoxTable {
  static constexpr reflect::Argument constructorTypes[] = {
      {"name", Mox::Name::_fwkType},
      {"parentBush", Bush::_fwkType},
  };
  static constexpr reflect::Row rows[] = {
      {.id = 258, .name = "parentBush", .type = Bush::_fwkType,
          .read = reflect::read<&Bush::parentBush>},
      {.id = 259, .name = "branches", .type = Branch::_fwkType, .key = Mox::Builtin<U16>::_fwkType,
          .collection = &reflect::collection<Bush::Tags::Branches>},
      {.id = 154, .name = "moxHasAttrLogInterface", .type = Mox::Builtin<bool>::_fwkType,
          .read = reflect::read<&Bush::moxHasAttrLogInterface>},
  };
  static Bush* objectOf(GenericIf_ const& face) { return reflect::observed<Bush>(face); }
  static Mox::GenericIf::Ptr performWithoutRow(GenericIf_& face, AttributeOp op,
      PtrConst const& index, PtrConst const& value) {
    return face.MoxBase::attributeOp(op, index, value);
  }
  static constexpr reflect::Told told[] = {
      {259, true, [](Mox::GenericIfEntity& face) {
        auto& own = static_cast<GenericIf_&>(face);
        if (auto const* const key = reflect::onlyKey(own, 259,
            own.adapter_->noted.branches)) own.onBranches(*key);
      }},
  };
};

Mox::GenericIf::Ptr Bush::_Type::genericIf_(Mox::PtrInterface* object, bool isConst) const {
  return reflect::unwatched(new GenericIf_(reflect::requireObject<Bush>(object), isConst));
}

Bush::GenericIf_::GenericIf_(Mox::Ptr<Bush> const& object, bool isConst) : GenericIf_(object,
    Bush::_fwkType(), isConst) {}
Bush::GenericIf_::GenericIf_(Mox::Ptr<Bush> const& object, Mox::MoxType const* type,
    bool isConst) : MoxBase(object, type, isConst) {
  adapter_ = frame::adapterFor<GenericIf_Adapter_>(object.ptr(), this);
}
Bush::GenericIf_::~GenericIf_() { frame::unhook(*adapter_); }

Mox::Ptr<Bush> Bush::GenericIf_::obj() const { return static_cast<Bush*>(entity()); }

Mox::GenericIf::Ptr Bush::GenericIf_::attributeOp(AttributeOp op, PtrConst const& index,
    PtrConst const& value) {
  requireWritable(op);
  return reflect::performByTable<MoxTable>(*this, op, index, value);
}
Mox::GenericIf::AttributeIteratorConst Bush::GenericIf_::attributeIteratorConst(
    Mox::AttributeId id) const {
  auto const* const row = reflect::collectionOf(MoxTable::rows, id);
  return row ? reflect::walk(*this, *row,
      MoxTable::objectOf(*this)) : MoxBase::attributeIteratorConst(id);
}
Mox::GenericIf::AttributeIteratorConst Bush::GenericIf_::attributeIteratorKeyConst(
    Mox::AttributeId id, PtrConst const& key) const {
  auto const* const row = reflect::collectionOf(MoxTable::rows, id);
  return row ? reflect::walk(*this, *row, MoxTable::objectOf(*this),
      key) : MoxBase::attributeIteratorKeyConst(id, key);
}
Mox::GenericIf::Ptr Bush::GenericIf_::clone() {
  return reflect::unwatched(new GenericIf_(obj(), isConst()));
}
Mox::GenericIf::Ptr Bush::GenericIf_::genericIfListConstructor(PtrConst const& list) const {
  reflect::Arguments const given(MoxTable::constructorTypes, list, "Bush");
  return reflect::owningFaceOf(reflect::make<Bush, Mox::Name, Mox::Ptr<Bush>>(given.held()));
}

void Bush::GenericIf_::handleNotification(Mox::ActivityConfig* activity) {
  reflect::handleNotification(*this, MoxTable::told,
      [](Mox::GenericIfEntity& face,
      Mox::ActivityConfig* activity) {
      static_cast<GenericIf_&>(face).MoxBase::handleNotification(activity); }, activity);
}
void Bush::GenericIf_::notifierIs(Mox::Ptr<Mox::PtrInterface const> const& notifier) {
  auto const own = Mox::ptrCast<Bush const>(notifier);
  if (own && own.ptr() != entity()) adapter_->noted = {};
  adapter_->notifierIs(own);
  MoxBase::notifierIs(own);
}
void Bush::GenericIf_::moxDoZombieReactors(bool zombie) {
  if (zombie == moxMarkedForDeletion()) return;
  MoxBase::moxDoZombieReactors(zombie);
  adapter_->moxDoZombieReactors(zombie);
}
void Bush::GenericIf_::hasNotificationActiveIs(bool active) {
  if (active == hasNotificationActive()) return;
  MoxBase::hasNotificationActiveIs(active);
  if (adapter_) adapter_->hasNotificationActiveIs(active);
}

void Bush::GenericIf_::moxAdaptersHearIs(bool hears) {
  MoxBase::moxAdaptersHearIs(hears);
  adapter_->moxHearsIs(hears);
}

void Bush::GenericIf_::onBranches(U16 key) {
  reflect::changed(*this, 259, adapter_->noted.branches, key, Mox::Builtin<U16>::_fwkType);
}
void Bush::GenericIf_::onBranches() { onAttribute(259); }

}  // namespace everyShape
