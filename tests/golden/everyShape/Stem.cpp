// everyShape::Stem: one line for each operation.  Made by schemac from everyShape.schema.
#include "everyShape/Stem.h"

#include "everyShape/Stem.tags.h"
#include "everyShape/Stem.reflect.h"
#include "everyShape/EveryShape.module.h"
#include "frame/Descriptor.h"
#include "frame/Observe.h"
#include "frame/Scalar.h"
#include "frame/Counter.h"
#include "frame/Ref.h"

namespace everyShape {

namespace {

Mox::MoxType* stemType = nullptr;

constexpr frame::ArgRow constructorArgs[] = {
    {"port", "U16"},
};

constexpr frame::AttributeRow attributeRows[] = {
    {0, "fwkKey", Mox::Builtin<U16>::_fwkType, nullptr, {0x200001, 0x400}, 0},
    {154, "moxHasAttrLogInterface", Mox::Builtin<bool>::_fwkType, nullptr, {0x22001, 0x400}, 8},
    {258, "port", Mox::Builtin<U16>::_fwkType, nullptr, {0x220109, 0x40000400}, 2},
    {259, "girth", Mox::Builtin<U32>::_fwkType, nullptr, {0x220143, 0x1000400}, 2},
    {260, "rings", Mox::Builtin<U8>::_fwkType, nullptr, {0x220143, 0x1000400}, 2},
    {261, "root", Leaf::_fwkType, nullptr, {0x8220143, 0x1000400}, 2},
};

Mox::MoxAttr const* attributeCache[std::size(attributeRows)];

}  // namespace

frame::TypeRow const stemRow = {"Stem", "everyShape::Stem", frame::TypeKind::entity, Stem::_fwkType,
    Mox::Entity::_fwkType, sizeof(Stem), constructorArgs, attributeRows, attributeCache};

Mox::MoxType* Stem::_fwkType() { return frame::descriptor<_Type>(stemType, moxInitEveryShape); }
Mox::MoxType const* Stem::fwkType() const { return _fwkType(); }

Stem::Stem(U16 port)
    : Mox::Entity(Mox::Name()), port_(port) {}

Stem::~Stem() {
  moxNotifiees().clear();
}

void Stem::girthIs(U32 value) { frame::scalarIs<Tags::Girth>(*this, value); }

void Stem::ringsIs(U8 value) { frame::scalarIs<Tags::Rings>(*this, value); }
U8 Stem::ringsInc(U8 delta) {
  return frame::counterInc<Tags::Rings>(*this, delta);
}

Mox::Ptr<Leaf> Stem::root() const { return moxRead(root_); }
void Stem::rootIs(Mox::Ptr<Leaf> const& target) { frame::refIs<Tags::Root>(*this, target); }

Mox::String8 Stem::attributeString(Mox::AttributeId id) const {
  auto const* name = frame::attributeName(attributeRows, id);
  return name ? Mox::String8(name) : Mox::Entity::attributeString(id);
}

void Stem::zeroReferencesIs(bool) { frame::zeroReferences(moxNotifiees()); }

Mox::NotifieeLevel const Stem::NotifieeConst::moxLevel_{nullptr};

Stem::NotifieeConst::NotifieeConst() { moxLevelIs(&moxLevel_); }
Stem::NotifieeConst::~NotifieeConst() { frame::observerGone<Stem>(*this); }
Stem::PtrConst Stem::NotifieeConst::notifier() const {
  return static_cast<Stem const*>(moxNotifier());
}
void Stem::NotifieeConst::notifierIs(Mox::Ptr<Mox::PtrInterface const> const& notifier) {
  frame::notifierIs<Stem>(*this, notifier);
}
void Stem::NotifieeConst::isRegisteredNotifieeIs(bool registered) const {
  frame::registeredIs<Stem>(*this, registered);
}
Stem::Ptr Stem::Notifiee::notifier() const {
  return const_cast<Stem*>(static_cast<Stem const*>(moxNotifier()));
}

}  // namespace everyShape
