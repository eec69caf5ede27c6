// everyShape::Branch: one line for each operation.  Made by schemac from everyShape.schema.
#include "everyShape/Branch.h"

#include "everyShape/Branch.tags.h"
#include "everyShape/Branch.reflect.h"
#include "everyShape/EveryShape.module.h"
#include "frame/Descriptor.h"
#include "frame/Observe.h"
#include "frame/Own.h"

namespace everyShape {

namespace {

Mox::MoxType* branchType = nullptr;

constexpr frame::ArgRow twigArgs[] = {
    {"name", "Mox::Name"},
    {"lane", "U8"},
    {"mix", "everyShape::Mix"},
};

constexpr frame::ArgRow budArgs[] = {
    {"name", "Mox::Name"},
    {"lane", "U8"},
    {"mix", "everyShape::Mix"},
};

constexpr frame::ArgRow constructorArgs[] = {
    {"port", "U16"},
    {"leaf", "everyShape::Leaf"},
    {"mood", "everyShape::Mood"},
};

constexpr frame::AttributeRow attributeRows[] = {
    {0, "fwkKey", Mox::Builtin<U16>::_fwkType, nullptr, {0x200001, 0x400}, 0},
    {154, "moxHasAttrLogInterface", Mox::Builtin<bool>::_fwkType, nullptr, {0x22001, 0x400}, 8},
    {386, "leaf", Leaf::_fwkType, nullptr, {0x8220109, 0x40000400}, 2},
    {387, "mood", everyShape::_fwkType_Mood, nullptr, {0x220109, 0x40000400}, 2},
    {388, "twig", Leaf::_fwkType, nullptr, {0x8220143, 0x11000400}, 2, frame::Entry::replaced, "",
        twigArgs},
    {389, "bud", Leaf::_fwkType, nullptr, {0x8220143, 0x11000400}, 2, frame::Entry::replaced, "",
        budArgs},
    {390, "tone", everyShape::_fwkType_Mood, nullptr, {0x220001, 0x40000400}, 0},
};

Mox::MoxAttr const* attributeCache[std::size(attributeRows)];

}  // namespace

frame::TypeRow const branchRow = {"Branch", "everyShape::Branch", frame::TypeKind::entity,
    Branch::_fwkType, Stem::_fwkType, sizeof(Branch), constructorArgs, attributeRows,
    attributeCache};

Mox::MoxType* Branch::_fwkType() { return frame::descriptor<_Type>(branchType, moxInitEveryShape); }
Mox::MoxType const* Branch::fwkType() const { return _fwkType(); }

Branch::Branch(U16 port, Mox::Ptr<Leaf> const& leaf, Mood mood)
    : Stem(port), leaf_(leaf), mood_(mood) {
  Stem::girthIs(3);
}

Branch::~Branch() {
  moxNotifiees().clear();
  frame::ownForsake<Tags::Twig>(*this);
  frame::ownForsake<Tags::Bud>(*this);
}

Mox::Ptr<Leaf> Branch::twig() const { return moxRead(twig_); }
Mox::Ptr<Leaf> Branch::twigIs(Mox::Name const& name, U8 lane, Mix mix) {
  return frame::ownIs<Tags::Twig>(*this, name, lane, mix);
}
Mox::Ptr<Leaf> Branch::newTwig(Mox::Name const& name, U8 lane, Mix mix) {
  return frame::ownNew<Tags::Twig>(*this, name, lane, mix);
}
Mox::Ptr<Leaf> Branch::twigDel() { return frame::ownDel<Tags::Twig>(*this); }

Mox::Ptr<Leaf> Branch::bud() const { return moxRead(bud_); }
Mox::Ptr<Leaf> Branch::budIs(Mox::Name const& name, U8 lane, Mix mix) {
  return frame::ownIs<Tags::Bud>(*this, name, lane, mix);
}
Mox::Ptr<Leaf> Branch::newBud(Mox::Name const& name, U8 lane, Mix mix) {
  return frame::ownNew<Tags::Bud>(*this, name, lane, mix);
}
Mox::Ptr<Leaf> Branch::budDel() { return frame::ownDel<Tags::Bud>(*this); }

Mox::String8 Branch::attributeString(Mox::AttributeId id) const {
  auto const* name = frame::attributeName(attributeRows, id);
  return name ? Mox::String8(name) : Stem::attributeString(id);
}

void Branch::zeroReferencesIs(bool) { frame::zeroReferences(moxNotifiees()); }

Mox::NotifieeLevel const Branch::NotifieeConst::moxLevel_{&Stem::NotifieeConst::moxLevel_};

Branch::NotifieeConst::NotifieeConst() { moxLevelIs(&moxLevel_); }
Branch::NotifieeConst::~NotifieeConst() = default;
Branch::PtrConst Branch::NotifieeConst::notifier() const {
  return static_cast<Branch const*>(moxNotifier());
}
void Branch::NotifieeConst::notifierIs(Mox::Ptr<Mox::PtrInterface const> const& notifier) {
  frame::notifierIs<Branch>(*this, notifier);
}
Branch::Ptr Branch::Notifiee::notifier() const {
  return const_cast<Branch*>(static_cast<Branch const*>(moxNotifier()));
}

}  // namespace everyShape
