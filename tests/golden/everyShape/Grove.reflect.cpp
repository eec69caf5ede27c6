// everyShape::Grove by attribute number: one line for each operation.  Made by schemac from everyShape.schema.
#include "everyShape/Grove.reflect.h"

#include "everyShape/Grove.tags.h"
#include "everyShape/Brook.h"
#include "reflect/Arguments.h"
#include "reflect/Perform.h"
#include "reflect/Steps.h"
#include "reflect/Walk.h"

namespace everyShape {

struct [[gnu::visibility("hidden")]] Grove::GenericIf_::MoxTable {
  static constexpr reflect::Argument pruneArguments[] = {
      {"from", Mox::Builtin<U8>::_fwkType},
      {"knob", Knob::_fwkType},
  };
  static constexpr reflect::Row rows[] = {
      {.id = 258, .name = "tree", .type = Leaf::_fwkType, .key = Mox::Name::_fwkType,
          .collection = &reflect::collection<Grove::Tags::Tree>},
      {.id = 259, .name = "row", .type = Leaf::_fwkType, .key = Mox::Builtin<U8>::_fwkType,
          .collection = &reflect::collection<Grove::Tags::Row>},
      {.id = 260, .name = "treeSum", .type = Mox::Builtin<U32>::_fwkType,
          .read = reflect::read<&Grove::treeSum>},
      {.id = 261, .name = "prune", .type = Mox::Builtin<U8>::_fwkType,
          .call = reflect::call<&Grove::prune>, .arguments = pruneArguments},
      {.id = 262, .name = "brook", .type = Brook::_fwkType, .read = reflect::read<&Grove::brook>,
          .write = reflect::write<&Grove::brookIs>},
      {.id = 263, .name = "level", .type = Level::_fwkType, .read = reflect::read<&Grove::level>,
          .write = reflect::write<&Grove::levelIs>},
      {.id = 264, .name = "byLevel", .type = Knob::_fwkType, .key = Level::_fwkType,
          .collection = &reflect::collection<Grove::Tags::ByLevel>},
      {.id = 154, .name = "moxHasAttrLogInterface", .type = Mox::Builtin<bool>::_fwkType,
          .read = reflect::read<&Grove::moxHasAttrLogInterface>},
  };
  static Grove* objectOf(GenericIf_ const& face) { return reflect::observed<Grove>(face); }
  static Mox::GenericIf::Ptr performWithoutRow(GenericIf_& face, AttributeOp op,
      PtrConst const& index, PtrConst const& value) {
    return face.MoxBase::attributeOp(op, index, value);
  }
  static constexpr reflect::Told told[] = {
      {258, true, [](Mox::GenericIfEntity& face) {
        auto& own = static_cast<GenericIf_&>(face);
        if (auto const* const key = reflect::onlyKey(own, 258,
            own.adapter_->noted.tree)) own.onTree(*key);
      }},
      {259, true, [](Mox::GenericIfEntity& face) {
        auto& own = static_cast<GenericIf_&>(face);
        if (auto const* const key = reflect::onlyKey(own, 259,
            own.adapter_->noted.row)) own.onRow(*key);
      }},
      {262, false, [](Mox::GenericIfEntity& face) { static_cast<GenericIf_&>(face).onBrook(); }},
      {263, false, [](Mox::GenericIfEntity& face) { static_cast<GenericIf_&>(face).onLevel(); }},
      {264, true, [](Mox::GenericIfEntity& face) {
        auto& own = static_cast<GenericIf_&>(face);
        if (auto const* const key = reflect::onlyKey(own, 264,
            own.adapter_->noted.byLevel)) own.onByLevel(*key);
      }},
  };
};

Mox::Ptr<Mox::Entity> Grove::_Type::newEntity(Mox::Name const& name, Mox::Dir*) const {
  return new Grove(name);
}
Mox::GenericIf::Ptr Grove::_Type::genericIf_(Mox::PtrInterface* object, bool isConst) const {
  return reflect::unwatched(new GenericIf_(reflect::requireObject<Grove>(object), isConst));
}

Grove::GenericIf_::GenericIf_(Mox::Ptr<Grove> const& object, bool isConst) : GenericIf_(object,
    Grove::_fwkType(), isConst) {}
Grove::GenericIf_::GenericIf_(Mox::Ptr<Grove> const& object, Mox::MoxType const* type,
    bool isConst) : MoxBase(object, type, isConst) {
  adapter_ = frame::adapterFor<GenericIf_Adapter_>(object.ptr(), this);
}
Grove::GenericIf_::~GenericIf_() { frame::unhook(*adapter_); }

Mox::Ptr<Grove> Grove::GenericIf_::obj() const { return static_cast<Grove*>(entity()); }

Mox::GenericIf::Ptr Grove::GenericIf_::attributeOp(AttributeOp op, PtrConst const& index,
    PtrConst const& value) {
  requireWritable(op);
  return reflect::performByTable<MoxTable>(*this, op, index, value);
}
Mox::GenericIf::AttributeIteratorConst Grove::GenericIf_::attributeIteratorConst(
    Mox::AttributeId id) const {
  auto const* const row = reflect::collectionOf(MoxTable::rows, id);
  return row ? reflect::walk(*this, *row,
      MoxTable::objectOf(*this)) : MoxBase::attributeIteratorConst(id);
}
Mox::GenericIf::AttributeIteratorConst Grove::GenericIf_::attributeIteratorKeyConst(
    Mox::AttributeId id, PtrConst const& key) const {
  auto const* const row = reflect::collectionOf(MoxTable::rows, id);
  return row ? reflect::walk(*this, *row, MoxTable::objectOf(*this),
      key) : MoxBase::attributeIteratorKeyConst(id, key);
}
Mox::GenericIf::Ptr Grove::GenericIf_::clone() {
  return reflect::unwatched(new GenericIf_(obj(), isConst()));
}

void Grove::GenericIf_::handleNotification(Mox::ActivityConfig* activity) {
  reflect::handleNotification(*this, MoxTable::told,
      [](Mox::GenericIfEntity& face,
      Mox::ActivityConfig* activity) {
      static_cast<GenericIf_&>(face).MoxBase::handleNotification(activity); }, activity);
}
void Grove::GenericIf_::notifierIs(Mox::Ptr<Mox::PtrInterface const> const& notifier) {
  auto const own = Mox::ptrCast<Grove const>(notifier);
  if (own && own.ptr() != entity()) adapter_->noted = {};
  adapter_->notifierIs(own);
  MoxBase::notifierIs(own);
}
void Grove::GenericIf_::moxDoZombieReactors(bool zombie) {
  if (zombie == moxMarkedForDeletion()) return;
  MoxBase::moxDoZombieReactors(zombie);
  adapter_->moxDoZombieReactors(zombie);
}
void Grove::GenericIf_::hasNotificationActiveIs(bool active) {
  if (active == hasNotificationActive()) return;
  MoxBase::hasNotificationActiveIs(active);
  if (adapter_) adapter_->hasNotificationActiveIs(active);
}

void Grove::GenericIf_::moxAdaptersHearIs(bool hears) {
  MoxBase::moxAdaptersHearIs(hears);
  adapter_->moxHearsIs(hears);
}

void Grove::GenericIf_::onTree(Mox::Name key) {
  reflect::changed(*this, 258, adapter_->noted.tree, key, Mox::Name::_fwkType);
}
void Grove::GenericIf_::onTree() { onAttribute(258); }
void Grove::GenericIf_::onRow(U8 key) {
  reflect::changed(*this, 259, adapter_->noted.row, key, Mox::Builtin<U8>::_fwkType);
}
void Grove::GenericIf_::onRow() { onAttribute(259); }
void Grove::GenericIf_::onBrook() { reflect::changed(*this, 262); }
void Grove::GenericIf_::onLevel() { reflect::changed(*this, 263); }
void Grove::GenericIf_::onByLevel(Level key) {
  reflect::changed(*this, 264, adapter_->noted.byLevel, key, Level::_fwkType);
}
void Grove::GenericIf_::onByLevel() { onAttribute(264); }

}  // namespace everyShape
