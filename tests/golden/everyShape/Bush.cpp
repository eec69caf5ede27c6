// everyShape::Bush: one line for each operation.  Made by schemac from everyShape.schema.
#include "everyShape/Bush.h"

#include "everyShape/Bush.tags.h"
#include "everyShape/Bush.reflect.h"
#include "everyShape/EveryShape.module.h"
#include "frame/Descriptor.h"
#include "frame/Observe.h"
#include "frame/Owns.h"

namespace everyShape {

namespace {

Mox::MoxType* bushType = nullptr;

constexpr frame::ArgRow branchesArgs[] = {
    {"port", "U16"},
    {"leaf", "everyShape::Leaf"},
    {"mood", "everyShape::Mood"},
};

constexpr frame::ArgRow constructorArgs[] = {
    {"name", "Mox::Name"},
    {"parentBush", "everyShape::Bush"},
};

constexpr frame::AttributeRow attributeRows[] = {
    {154, "moxHasAttrLogInterface", Mox::Builtin<bool>::_fwkType, nullptr, {0x22001, 0x400}, 8},
    {258, "parentBush", Bush::_fwkType, nullptr, {0x8220109, 0x40000400}, 2},
    {259, "branches", Branch::_fwkType, Mox::Builtin<U16>::_fwkType, {0x9A20143, 0x11000400}, 2,
        frame::Entry::replaced, "port", branchesArgs},
};

Mox::MoxAttr const* attributeCache[std::size(attributeRows)];

}  // namespace

frame::TypeRow const bushRow = {"Bush", "everyShape::Bush", frame::TypeKind::entity, Bush::_fwkType,
    Mox::Entity::_fwkType, sizeof(Bush), constructorArgs, attributeRows, attributeCache};

Mox::MoxType* Bush::_fwkType() { return frame::descriptor<_Type>(bushType, moxInitEveryShape); }
Mox::MoxType const* Bush::fwkType() const { return _fwkType(); }

Bush::Bush(Mox::Name const& name, Mox::Ptr<Bush> const& parentBush)
    : Mox::Entity(name), parentBush_(parentBush) {}

Bush::~Bush() {
  moxNotifiees().clear();
  frame::ownsForsake<Tags::Branches>(*this);
}

Mox::Ptr<Branch> Bush::branches(U16 port) const {
  return frame::ownsRead<Tags::Branches>(*this, port);
}
Mox::Ptr<Branch> Bush::branchesIs(U16 port, Mox::Ptr<Leaf> const& leaf, Mood mood) {
  return frame::ownsIs<Tags::Branches>(*this, port, leaf, mood);
}
Mox::Ptr<Branch> Bush::newBranches(U16 port, Mox::Ptr<Leaf> const& leaf, Mood mood) {
  return frame::ownsNew<Tags::Branches>(*this, port, leaf, mood);
}
Mox::Ptr<Branch> Bush::branchesDel(U16 port) { return frame::ownsDel<Tags::Branches>(*this, port); }
Mox::Ptr<Branch> Bush::branchesDel(BranchesMap::Iterator const& at) {
  return frame::ownsDelAt<Tags::Branches>(*this, at);
}
void Bush::branchesDelAll() { frame::ownsDelAll<Tags::Branches>(*this); }
void Bush::branchesNotify(U16 key) { frame::mapNotify<Tags::Branches>(*this, key); }

Mox::String8 Bush::attributeString(Mox::AttributeId id) const {
  auto const* name = frame::attributeName(attributeRows, id);
  return name ? Mox::String8(name) : Mox::Entity::attributeString(id);
}

void Bush::zeroReferencesIs(bool) { frame::zeroReferences(moxNotifiees()); }

Mox::NotifieeLevel const Bush::NotifieeConst::moxLevel_{nullptr};

Bush::NotifieeConst::NotifieeConst() { moxLevelIs(&moxLevel_); }
Bush::NotifieeConst::~NotifieeConst() { frame::observerGone<Bush>(*this); }
Bush::PtrConst Bush::NotifieeConst::notifier() const {
  return static_cast<Bush const*>(moxNotifier());
}
void Bush::NotifieeConst::notifierIs(Mox::Ptr<Mox::PtrInterface const> const& notifier) {
  frame::notifierIs<Bush>(*this, notifier);
}
void Bush::NotifieeConst::isRegisteredNotifieeIs(bool registered) const {
  frame::registeredIs<Bush>(*this, registered);
}
Bush::Ptr Bush::Notifiee::notifier() const {
  return const_cast<Bush*>(static_cast<Bush const*>(moxNotifier()));
}

}  // namespace everyShape
