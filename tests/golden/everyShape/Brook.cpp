// everyShape::Brook: one line for each operation.  Made by schemac from everyShape.schema.
#include "everyShape/Brook.h"

#include "everyShape/Brook.tags.h"
#include "everyShape/Brook.reflect.h"
#include "everyShape/EveryShape.module.h"
#include "frame/Descriptor.h"
#include "frame/Observe.h"
#include "frame/Ref.h"

namespace everyShape {

namespace {

Mox::MoxType* brookType = nullptr;

constexpr frame::ArgRow constructorArgs[] = {
    {"name", "Mox::Name"},
};

constexpr frame::AttributeRow attributeRows[] = {
    {154, "moxHasAttrLogInterface", Mox::Builtin<bool>::_fwkType, nullptr, {0x22001, 0x400}, 8},
    {258, "grove", Grove::_fwkType, nullptr, {0x8220143, 0x1000400}, 2},
};

Mox::MoxAttr const* attributeCache[std::size(attributeRows)];

}  // namespace

frame::TypeRow const brookRow = {"Brook", "everyShape::Brook", frame::TypeKind::entity,
    Brook::_fwkType, Mox::Entity::_fwkType, sizeof(Brook), constructorArgs, attributeRows,
    attributeCache};

Mox::MoxType* Brook::_fwkType() { return frame::descriptor<_Type>(brookType, moxInitEveryShape); }
Mox::MoxType const* Brook::fwkType() const { return _fwkType(); }

Brook::Brook(Mox::Name const& name)
    : Mox::Entity(name) {}

Brook::~Brook() {
  moxNotifiees().clear();
}

Mox::Ptr<Grove const> Brook::grove() const { return moxRead(grove_); }
void Brook::groveIs(Mox::Ptr<Grove const> const& target) {
  frame::refIs<Tags::Grove>(*this, target);
}

Mox::String8 Brook::attributeString(Mox::AttributeId id) const {
  auto const* name = frame::attributeName(attributeRows, id);
  return name ? Mox::String8(name) : Mox::Entity::attributeString(id);
}

void Brook::zeroReferencesIs(bool) { frame::zeroReferences(moxNotifiees()); }

Mox::NotifieeLevel const Brook::NotifieeConst::moxLevel_{nullptr};

Brook::NotifieeConst::NotifieeConst() { moxLevelIs(&moxLevel_); }
Brook::NotifieeConst::~NotifieeConst() { frame::observerGone<Brook>(*this); }
Brook::PtrConst Brook::NotifieeConst::notifier() const {
  return static_cast<Brook const*>(moxNotifier());
}
void Brook::NotifieeConst::notifierIs(Mox::Ptr<Mox::PtrInterface const> const& notifier) {
  frame::notifierIs<Brook>(*this, notifier);
}
void Brook::NotifieeConst::isRegisteredNotifieeIs(bool registered) const {
  frame::registeredIs<Brook>(*this, registered);
}
Brook::Ptr Brook::Notifiee::notifier() const {
  return const_cast<Brook*>(static_cast<Brook const*>(moxNotifier()));
}

}  // namespace everyShape
