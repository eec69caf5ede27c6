// everyShape::Grove: one line for each operation.  Made by schemac from everyShape.schema.
#include "everyShape/Grove.h"

#include "everyShape/Grove.tags.h"
#include "everyShape/Grove.reflect.h"
#include "everyShape/EveryShape.module.h"
#include "frame/Descriptor.h"
#include "frame/Observe.h"
#include "frame/Scalar.h"
#include "frame/Map.h"
#include "frame/Ref.h"
#include "frame/Refs.h"
#include "frame/Owns.h"

namespace everyShape {

namespace {

Mox::MoxType* groveType = nullptr;

constexpr frame::ArgRow treeArgs[] = {
    {"name", "Mox::Name"},
    {"lane", "U8"},
    {"mix", "everyShape::Mix"},
};

constexpr frame::ArgRow pruneArgs[] = {
    {"from", "U8"},
    {"knob", "everyShape::Knob"},
};

constexpr frame::ArgRow constructorArgs[] = {
    {"name", "Mox::Name"},
};

constexpr frame::AttributeRow attributeRows[] = {
    {154, "moxHasAttrLogInterface", Mox::Builtin<bool>::_fwkType, nullptr, {0x22001, 0x400}, 8},
    {258, "tree", Leaf::_fwkType, Mox::Name::_fwkType, {0x9A20143, 0x11000400}, 2,
        frame::Entry::replaced, "name", treeArgs},
    {259, "row", Leaf::_fwkType, Mox::Builtin<U8>::_fwkType, {0x9A20143, 0x1000400}, 2},
    {260, "treeSum", Mox::Builtin<U32>::_fwkType, nullptr, {0x220001, 0x40000400}, 0},
    {261, "prune", Mox::Builtin<U8>::_fwkType, nullptr, {0x20001, 0x400}, 8, frame::Entry::declared,
        "", pruneArgs},
    {262, "brook", Brook::_fwkType, nullptr, {0x8220143, 0x1000400}, 2},
    {263, "level", Level::_fwkType, nullptr, {0x220143, 0x1000400}, 2},
    {264, "byLevel", Knob::_fwkType, Level::_fwkType, {0x1A20143, 0x1000400}, 2},
};

Mox::MoxAttr const* attributeCache[std::size(attributeRows)];

}  // namespace

frame::TypeRow const groveRow = {"Grove", "everyShape::Grove", frame::TypeKind::entity,
    Grove::_fwkType, Mox::Entity::_fwkType, sizeof(Grove), constructorArgs, attributeRows,
    attributeCache};

Mox::MoxType* Grove::_fwkType() { return frame::descriptor<_Type>(groveType, moxInitEveryShape); }
Mox::MoxType const* Grove::fwkType() const { return _fwkType(); }

Grove::Grove(Mox::Name const& name)
    : Mox::Entity(name) {}

Grove::~Grove() {
  moxNotifiees().clear();
  frame::ownsForsake<Tags::Tree>(*this);
}

Mox::Ptr<Leaf> Grove::tree(Mox::Name const& name) const {
  return frame::ownsRead<Tags::Tree>(*this, name);
}
Mox::Ptr<Leaf> Grove::treeIs(Mox::Name const& name, U8 lane, Mix mix) {
  return frame::ownsIs<Tags::Tree>(*this, name, lane, mix);
}
Mox::Ptr<Leaf> Grove::newTree(Mox::Name const& name, U8 lane, Mix mix) {
  return frame::ownsNew<Tags::Tree>(*this, name, lane, mix);
}
Mox::Ptr<Leaf> Grove::treeDel(Mox::Name const& name) {
  return frame::ownsDel<Tags::Tree>(*this, name);
}
Mox::Ptr<Leaf> Grove::treeDel(TreeMap::Iterator const& at) {
  return frame::ownsDelAt<Tags::Tree>(*this, at);
}
void Grove::treeDelAll() { frame::ownsDelAll<Tags::Tree>(*this); }
void Grove::treeNotify(Mox::Name const& key) { frame::mapNotify<Tags::Tree>(*this, key); }

Mox::Ptr<Leaf> Grove::row(U8 key) const {
  return frame::mapRead<Tags::Row>(*this, key);
}
void Grove::rowIs(U8 key, Mox::Ptr<Leaf> const& value) {
  frame::mapIs<Tags::Row>(*this, key, value);
}
Mox::Ptr<Grove::MoxRow> Grove::newRow(U8 key, Mox::Ptr<Leaf> const& value) {
  return frame::mapNew<Tags::Row>(*this, key, value);
}
Mox::Ptr<Leaf> Grove::rowDel(U8 key) {
  return frame::mapDel<Tags::Row>(*this, key);
}
Mox::Ptr<Leaf> Grove::rowDel(RowMap::Iterator const& at) {
  return frame::mapDelAt<Tags::Row>(*this, at);
}
void Grove::rowDelAll() { frame::mapDelAll<Tags::Row>(*this); }
void Grove::rowNotify(U8 key) {
  frame::mapNotify<Tags::Row>(*this, key);
}

Mox::Ptr<Brook> Grove::brook() const { return moxRead(brook_); }
void Grove::brookIs(Mox::Ptr<Brook> const& target) { frame::refIs<Tags::Brook>(*this, target); }

void Grove::levelIs(Level value) { frame::scalarIs<Tags::Level>(*this, value); }

Knob Grove::byLevel(Level key) const {
  return frame::mapRead<Tags::ByLevel>(*this, key);
}
void Grove::byLevelIs(Level key, Knob const& value) {
  frame::mapIs<Tags::ByLevel>(*this, key, value);
}
Mox::Ptr<Grove::MoxByLevel> Grove::newByLevel(Level key, Knob const& value) {
  return frame::mapNew<Tags::ByLevel>(*this, key, value);
}
Knob Grove::byLevelDel(Level key) {
  return frame::mapDel<Tags::ByLevel>(*this, key);
}
Knob Grove::byLevelDel(ByLevelMap::Iterator const& at) {
  return frame::mapDelAt<Tags::ByLevel>(*this, at);
}
void Grove::byLevelDelAll() { frame::mapDelAll<Tags::ByLevel>(*this); }
void Grove::byLevelNotify(Level key) {
  frame::mapNotify<Tags::ByLevel>(*this, key);
}

Mox::String8 Grove::attributeString(Mox::AttributeId id) const {
  auto const* name = frame::attributeName(attributeRows, id);
  return name ? Mox::String8(name) : Mox::Entity::attributeString(id);
}

void Grove::zeroReferencesIs(bool) { frame::zeroReferences(moxNotifiees()); }

Mox::NotifieeLevel const Grove::NotifieeConst::moxLevel_{nullptr};

Grove::NotifieeConst::NotifieeConst() { moxLevelIs(&moxLevel_); }
Grove::NotifieeConst::~NotifieeConst() { frame::observerGone<Grove>(*this); }
Grove::PtrConst Grove::NotifieeConst::notifier() const {
  return static_cast<Grove const*>(moxNotifier());
}
void Grove::NotifieeConst::notifierIs(Mox::Ptr<Mox::PtrInterface const> const& notifier) {
  frame::notifierIs<Grove>(*this, notifier);
}
void Grove::NotifieeConst::isRegisteredNotifieeIs(bool registered) const {
  frame::registeredIs<Grove>(*this, registered);
}
Grove::Ptr Grove::Notifiee::notifier() const {
  return const_cast<Grove*>(static_cast<Grove const*>(moxNotifier()));
}

Mox::Ptr<Grove> groveFactory(Mox::Name const& name) { return new Grove(name); }

}  // namespace everyShape
