// everyShape::Derived: one line for each operation.  Made by schemac from everyShape.schema.
#include "everyShape/Derived.h"

#include "everyShape/Derived.tags.h"
#include "everyShape/Derived.reflect.h"
#include "everyShape/EveryShape.module.h"
#include "frame/Descriptor.h"
#include "frame/Observe.h"
#include "frame/Scalar.h"
#include "frame/Map.h"

namespace everyShape {

namespace {

Mox::MoxType* derivedType = nullptr;

constexpr frame::ArgRow constructorArgs[] = {
    {"name", "Mox::Name"},
    {"port", "U16"},
};

constexpr frame::AttributeRow attributeRows[] = {
    {154, "moxHasAttrLogInterface", Mox::Builtin<bool>::_fwkType, nullptr, {0x22001, 0x400}, 8},
    {386, "extra", Mox::Builtin<U32>::_fwkType, nullptr, {0x220143, 0x1000400}, 2},
    {387, "marks", Mox::Builtin<bool>::_fwkType, Mox::Builtin<U8>::_fwkType, {0x1A20143, 0x1000400},
        2},
};

Mox::MoxAttr const* attributeCache[std::size(attributeRows)];

}  // namespace

frame::TypeRow const derivedRow = {"Derived", "everyShape::Derived", frame::TypeKind::entity,
    Derived::_fwkType, Every::_fwkType, sizeof(Derived), constructorArgs, attributeRows,
    attributeCache};

Mox::MoxType* Derived::_fwkType() {
  return frame::descriptor<_Type>(derivedType, moxInitEveryShape);
}
Mox::MoxType const* Derived::fwkType() const { return _fwkType(); }

Derived::Derived(Mox::Name const& name, U16 port)
    : Every(name, port) {}

Derived::~Derived() {
  moxNotifiees().clear();
}

void Derived::extraIs(U32 value) { frame::scalarIs<Tags::Extra>(*this, value); }

bool Derived::marks(U8 key) const {
  return frame::mapRead<Tags::Marks>(*this, key);
}
void Derived::marksIs(U8 key, bool value) {
  frame::mapIs<Tags::Marks>(*this, key, value);
}
Mox::Ptr<Derived::MoxMarks> Derived::newMarks(U8 key, bool value) {
  return frame::mapNew<Tags::Marks>(*this, key, value);
}
bool Derived::marksDel(U8 key) {
  return frame::mapDel<Tags::Marks>(*this, key);
}
bool Derived::marksDel(MarksMap::Iterator const& at) {
  return frame::mapDelAt<Tags::Marks>(*this, at);
}
void Derived::marksDelAll() { frame::mapDelAll<Tags::Marks>(*this); }
void Derived::marksNotify(U8 key) {
  frame::mapNotify<Tags::Marks>(*this, key);
}

Mox::String8 Derived::attributeString(Mox::AttributeId id) const {
  auto const* name = frame::attributeName(attributeRows, id);
  return name ? Mox::String8(name) : Every::attributeString(id);
}

void Derived::zeroReferencesIs(bool) { frame::zeroReferences(moxNotifiees()); }

Mox::NotifieeLevel const Derived::NotifieeConst::moxLevel_{&Every::NotifieeConst::moxLevel_};

Derived::NotifieeConst::NotifieeConst() { moxLevelIs(&moxLevel_); }
Derived::NotifieeConst::~NotifieeConst() = default;
Derived::PtrConst Derived::NotifieeConst::notifier() const {
  return static_cast<Derived const*>(moxNotifier());
}
void Derived::NotifieeConst::notifierIs(Mox::Ptr<Mox::PtrInterface const> const& notifier) {
  frame::notifierIs<Derived>(*this, notifier);
}
Derived::Ptr Derived::Notifiee::notifier() const {
  return const_cast<Derived*>(static_cast<Derived const*>(moxNotifier()));
}

}  // namespace everyShape
