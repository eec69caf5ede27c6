// everyShape::Leaf: one line for each operation.  Made by schemac from everyShape.schema.
#include "everyShape/Leaf.h"

#include "everyShape/Leaf.tags.h"
#include "everyShape/Leaf.reflect.h"
#include "everyShape/EveryShape.module.h"
#include "frame/Descriptor.h"
#include "frame/Observe.h"
#include "frame/Scalar.h"

namespace everyShape {

namespace {

Mox::MoxType* leafType = nullptr;

constexpr frame::ArgRow constructorArgs[] = {
    {"name", "Mox::Name"},
    {"lane", "U8"},
    {"mix", "everyShape::Mix"},
};

constexpr frame::AttributeRow attributeRows[] = {
    {0, "fwkKey", Mox::Name::_fwkType, nullptr, {0x200001, 0x400}, 0},
    {154, "moxHasAttrLogInterface", Mox::Builtin<bool>::_fwkType, nullptr, {0x22001, 0x400}, 8},
    {258, "lane", Mox::Builtin<U8>::_fwkType, nullptr, {0x220109, 0x40000400}, 2},
    {259, "mix", Mix::_fwkType, nullptr, {0x220109, 0x40000400}, 2},
    {260, "lit", Mox::Builtin<bool>::_fwkType, nullptr, {0x220143, 0x1000400}, 2},
};

Mox::MoxAttr const* attributeCache[std::size(attributeRows)];

}  // namespace

frame::TypeRow const leafRow = {"Leaf", "everyShape::Leaf", frame::TypeKind::entity, Leaf::_fwkType,
    Mox::Entity::_fwkType, sizeof(Leaf), constructorArgs, attributeRows, attributeCache};

Mox::MoxType* Leaf::_fwkType() { return frame::descriptor<_Type>(leafType, moxInitEveryShape); }
Mox::MoxType const* Leaf::fwkType() const { return _fwkType(); }

Leaf::Leaf(Mox::Name const& name, U8 lane, Mix mix)
    : Mox::Entity(name), lane_(lane), mix_(mix) {}

Leaf::~Leaf() {
  moxNotifiees().clear();
}

void Leaf::litIs(bool value) { frame::scalarIs<Tags::Lit>(*this, value); }

Mox::String8 Leaf::attributeString(Mox::AttributeId id) const {
  auto const* name = frame::attributeName(attributeRows, id);
  return name ? Mox::String8(name) : Mox::Entity::attributeString(id);
}

void Leaf::zeroReferencesIs(bool) { frame::zeroReferences(moxNotifiees()); }

Mox::NotifieeLevel const Leaf::NotifieeConst::moxLevel_{nullptr};

Leaf::NotifieeConst::NotifieeConst() { moxLevelIs(&moxLevel_); }
Leaf::NotifieeConst::~NotifieeConst() { frame::observerGone<Leaf>(*this); }
Leaf::PtrConst Leaf::NotifieeConst::notifier() const {
  return static_cast<Leaf const*>(moxNotifier());
}
void Leaf::NotifieeConst::notifierIs(Mox::Ptr<Mox::PtrInterface const> const& notifier) {
  frame::notifierIs<Leaf>(*this, notifier);
}
void Leaf::NotifieeConst::isRegisteredNotifieeIs(bool registered) const {
  frame::registeredIs<Leaf>(*this, registered);
}
Leaf::Ptr Leaf::Notifiee::notifier() const {
  return const_cast<Leaf*>(static_cast<Leaf const*>(moxNotifier()));
}

}  // namespace everyShape
