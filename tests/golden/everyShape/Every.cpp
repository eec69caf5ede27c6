// everyShape::Every: one line for each operation.  Made by schemac from everyShape.schema.
#include "everyShape/Every.h"

#include "everyShape/Every.tags.h"
#include "everyShape/Every.reflect.h"
#include "everyShape/EveryShape.module.h"
#include "frame/Descriptor.h"
#include "frame/Observe.h"
#include "frame/Scalar.h"
#include "frame/Counter.h"
#include "frame/Map.h"
#include "frame/Ref.h"
#include "frame/Refs.h"
#include "frame/Own.h"
#include "frame/Owns.h"

namespace everyShape {

namespace {

Mox::MoxType* everyType = nullptr;

constexpr frame::ArgRow bestArgs[] = {
    {"name", "Mox::Name"},
    {"lane", "U8"},
    {"mix", "everyShape::Mix"},
};

constexpr frame::ArgRow leavesArgs[] = {
    {"name", "Mox::Name"},
    {"lane", "U8"},
    {"mix", "everyShape::Mix"},
};

constexpr frame::ArgRow constructorArgs[] = {
    {"name", "Mox::Name"},
    {"port", "U16"},
};

constexpr frame::AttributeRow attributeRows[] = {
    {154, "moxHasAttrLogInterface", Mox::Builtin<bool>::_fwkType, nullptr, {0x22001, 0x400}, 8},
    {258, "port", Mox::Builtin<U16>::_fwkType, nullptr, {0x220109, 0x40000400}, 2},
    {259, "level", Mox::Builtin<U32>::_fwkType, nullptr, {0x220143, 0x1000400}, 2},
    {260, "gauge", Mox::Builtin<U8>::_fwkType, nullptr, {0x220143, 0x1000400}, 2},
    {261, "ratio", Mox::Builtin<double>::_fwkType, nullptr, {0x220143, 0x1000400}, 2},
    {262, "label", Mox::Builtin<Mox::String8>::_fwkType, nullptr, {0x220143, 0x1000400}, 2},
    {263, "mix", Mix::_fwkType, nullptr, {0x220143, 0x1000400}, 2},
    {264, "mood", everyShape::_fwkType_Mood, nullptr, {0x220143, 0x1000400}, 2},
    {265, "bounded", U4::_fwkType, nullptr, {0x220143, 0x1000400}, 2},
    {266, "hits", Mox::Builtin<U16>::_fwkType, nullptr, {0x220143, 0x1000400}, 2},
    {267, "bytes", Mox::Builtin<U32>::_fwkType, Mox::Builtin<U8>::_fwkType, {0x1A20143, 0x1000400},
        2},
    {268, "words", Mox::Builtin<Mox::String8>::_fwkType, Mox::Builtin<U32>::_fwkType,
        {0x1A20143, 0x1000400}, 2},
    {269, "texts", Mox::Builtin<bool>::_fwkType, Mox::Builtin<Mox::String8>::_fwkType,
        {0x1A20143, 0x1000400}, 2},
    {270, "buddy", Leaf::_fwkType, nullptr, {0x8220143, 0x1000400}, 2},
    {271, "known", Leaf::_fwkType, Mox::Name::_fwkType, {0x9A20143, 0x1000400}, 2,
        frame::Entry::replaced, "name"},
    {272, "seats", Leaf::_fwkType, Mox::Builtin<U8>::_fwkType, {0x9A20143, 0x1000400}, 2},
    {273, "best", Leaf::_fwkType, nullptr, {0x8220143, 0x11000400}, 2, frame::Entry::replaced, "",
        bestArgs},
    {274, "leaves", Leaf::_fwkType, Mox::Name::_fwkType, {0x9A20143, 0x11000400}, 2,
        frame::Entry::replaced, "name", leavesArgs},
    {275, "lanes", Mox::Builtin<U8>::_fwkType, Mox::Builtin<U8>::_fwkType, {0x1A20143, 0x1000400},
        2},
    {276, "odd", Mox::Builtin<U32>::_fwkType, nullptr, {0x220143, 0x1000400}, 2},
};

Mox::MoxAttr const* attributeCache[std::size(attributeRows)];

}  // namespace

frame::TypeRow const everyRow = {"Every", "everyShape::Every", frame::TypeKind::entity,
    Every::_fwkType, Mox::Entity::_fwkType, sizeof(Every), constructorArgs, attributeRows,
    attributeCache};

Mox::MoxType* Every::_fwkType() { return frame::descriptor<_Type>(everyType, moxInitEveryShape); }
Mox::MoxType const* Every::fwkType() const { return _fwkType(); }

Every::Every(Mox::Name const& name, U16 port)
    : Mox::Entity(name), port_(port) {}

Every::~Every() {
  moxNotifiees().clear();
  frame::ownForsake<Tags::Best>(*this);
  frame::ownsForsake<Tags::Leaves>(*this);
}

void Every::levelIs(U32 value) { frame::scalarIs<Tags::Level>(*this, value); }

void Every::gaugeIs(U8 value) { frame::scalarIs<Tags::Gauge>(*this, value); }

void Every::ratioIs(double const& value) { frame::scalarIs<Tags::Ratio>(*this, value); }

void Every::labelIs(Mox::String8 const& value) { frame::scalarIs<Tags::Label>(*this, value); }

void Every::mixIs(Mix value) { frame::scalarIs<Tags::Mix>(*this, value); }

void Every::moodIs(Mood value) { frame::scalarIs<Tags::Mood>(*this, value); }

void Every::boundedIs(U4 value) { frame::scalarIs<Tags::Bounded>(*this, value); }

void Every::hitsIs(U16 value) { frame::scalarIs<Tags::Hits>(*this, value); }
U16 Every::hitsInc(U16 delta) {
  return frame::counterInc<Tags::Hits>(*this, delta);
}

U32 Every::bytes(U8 key) const {
  return frame::mapRead<Tags::Bytes>(*this, key);
}
void Every::bytesIs(U8 key, U32 value) {
  frame::mapIs<Tags::Bytes>(*this, key, value);
}
Mox::Ptr<Every::MoxBytes> Every::newBytes(U8 key, U32 value) {
  return frame::mapNew<Tags::Bytes>(*this, key, value);
}
U32 Every::bytesDel(U8 key) {
  return frame::mapDel<Tags::Bytes>(*this, key);
}
U32 Every::bytesDel(BytesMap::Iterator const& at) {
  return frame::mapDelAt<Tags::Bytes>(*this, at);
}
void Every::bytesDelAll() { frame::mapDelAll<Tags::Bytes>(*this); }
void Every::bytesNotify(U8 key) {
  frame::mapNotify<Tags::Bytes>(*this, key);
}

Mox::String8 Every::words(U32 key) const {
  return frame::mapRead<Tags::Words>(*this, key);
}
void Every::wordsIs(U32 key, Mox::String8 const& value) {
  frame::mapIs<Tags::Words>(*this, key, value);
}
Mox::Ptr<Every::MoxWords> Every::newWords(U32 key, Mox::String8 const& value) {
  return frame::mapNew<Tags::Words>(*this, key, value);
}
Mox::String8 Every::wordsDel(U32 key) {
  return frame::mapDel<Tags::Words>(*this, key);
}
Mox::String8 Every::wordsDel(WordsMap::Iterator const& at) {
  return frame::mapDelAt<Tags::Words>(*this, at);
}
void Every::wordsDelAll() { frame::mapDelAll<Tags::Words>(*this); }
void Every::wordsNotify(U32 key) {
  frame::mapNotify<Tags::Words>(*this, key);
}

bool Every::texts(Mox::String8 const& key) const {
  return frame::mapRead<Tags::Texts>(*this, key);
}
void Every::textsIs(Mox::String8 const& key, bool value) {
  frame::mapIs<Tags::Texts>(*this, key, value);
}
Mox::Ptr<Every::MoxTexts> Every::newTexts(Mox::String8 const& key, bool value) {
  return frame::mapNew<Tags::Texts>(*this, key, value);
}
bool Every::textsDel(Mox::String8 const& key) {
  return frame::mapDel<Tags::Texts>(*this, key);
}
bool Every::textsDel(TextsMap::Iterator const& at) {
  return frame::mapDelAt<Tags::Texts>(*this, at);
}
void Every::textsDelAll() { frame::mapDelAll<Tags::Texts>(*this); }
void Every::textsNotify(Mox::String8 const& key) {
  frame::mapNotify<Tags::Texts>(*this, key);
}

Mox::Ptr<Leaf> Every::buddy() const { return moxRead(buddy_); }
void Every::buddyIs(Mox::Ptr<Leaf> const& target) { frame::refIs<Tags::Buddy>(*this, target); }

Mox::Ptr<Leaf> Every::known(Mox::Name const& name) const {
  return frame::mapRead<Tags::Known>(*this, name);
}
void Every::knownIs(Mox::Ptr<Leaf> const& target) { frame::refsIs<Tags::Known>(*this, target); }
Mox::Ptr<Every::MoxKnown> Every::newKnown(Mox::Ptr<Leaf> const& target) {
  return frame::refsNew<Tags::Known>(*this, target);
}
Mox::Ptr<Leaf> Every::knownDel(Mox::Name const& key) {
  return frame::mapDel<Tags::Known>(*this, key);
}
Mox::Ptr<Leaf> Every::knownDel(KnownMap::Iterator const& at) {
  return frame::mapDelAt<Tags::Known>(*this, at);
}
void Every::knownDelAll() { frame::mapDelAll<Tags::Known>(*this); }
void Every::knownNotify(Mox::Name const& key) {
  frame::mapNotify<Tags::Known>(*this, key);
}

Mox::Ptr<Leaf> Every::seats(U8 key) const {
  return frame::mapRead<Tags::Seats>(*this, key);
}
void Every::seatsIs(U8 key, Mox::Ptr<Leaf> const& value) {
  frame::mapIs<Tags::Seats>(*this, key, value);
}
Mox::Ptr<Every::MoxSeats> Every::newSeats(U8 key, Mox::Ptr<Leaf> const& value) {
  return frame::mapNew<Tags::Seats>(*this, key, value);
}
Mox::Ptr<Leaf> Every::seatsDel(U8 key) {
  return frame::mapDel<Tags::Seats>(*this, key);
}
Mox::Ptr<Leaf> Every::seatsDel(SeatsMap::Iterator const& at) {
  return frame::mapDelAt<Tags::Seats>(*this, at);
}
void Every::seatsDelAll() { frame::mapDelAll<Tags::Seats>(*this); }
void Every::seatsNotify(U8 key) {
  frame::mapNotify<Tags::Seats>(*this, key);
}

Mox::Ptr<Leaf> Every::best() const { return moxRead(best_); }
Mox::Ptr<Leaf> Every::bestIs(Mox::Name const& name, U8 lane, Mix mix) {
  return frame::ownIs<Tags::Best>(*this, name, lane, mix);
}
Mox::Ptr<Leaf> Every::newBest(Mox::Name const& name, U8 lane, Mix mix) {
  return frame::ownNew<Tags::Best>(*this, name, lane, mix);
}
Mox::Ptr<Leaf> Every::bestDel() { return frame::ownDel<Tags::Best>(*this); }

Mox::Ptr<Leaf> Every::leaves(Mox::Name const& name) const {
  return frame::ownsRead<Tags::Leaves>(*this, name);
}
Mox::Ptr<Leaf> Every::leavesIs(Mox::Name const& name, U8 lane, Mix mix) {
  return frame::ownsIs<Tags::Leaves>(*this, name, lane, mix);
}
Mox::Ptr<Leaf> Every::newLeaves(Mox::Name const& name, U8 lane, Mix mix) {
  return frame::ownsNew<Tags::Leaves>(*this, name, lane, mix);
}
Mox::Ptr<Leaf> Every::leavesDel(Mox::Name const& name) {
  return frame::ownsDel<Tags::Leaves>(*this, name);
}
Mox::Ptr<Leaf> Every::leavesDel(LeavesMap::Iterator const& at) {
  return frame::ownsDelAt<Tags::Leaves>(*this, at);
}
void Every::leavesDelAll() { frame::ownsDelAll<Tags::Leaves>(*this); }
void Every::leavesNotify(Mox::Name const& key) { frame::mapNotify<Tags::Leaves>(*this, key); }

U8 Every::lanes(U8 key) const {
  return frame::mapRead<Tags::Lanes>(*this, key);
}
void Every::lanesIs(U8 key, U8 value) {
  frame::mapIs<Tags::Lanes>(*this, key, value);
}
Mox::Ptr<Every::MoxLanes> Every::newLanes(U8 key, U8 value) {
  return frame::mapNew<Tags::Lanes>(*this, key, value);
}
U8 Every::lanesDel(U8 key) {
  return frame::mapDel<Tags::Lanes>(*this, key);
}
U8 Every::lanesDel(LanesMap::Iterator const& at) {
  return frame::mapDelAt<Tags::Lanes>(*this, at);
}
void Every::lanesDelAll() { frame::mapDelAll<Tags::Lanes>(*this); }
void Every::lanesNotify(U8 key) {
  frame::mapNotify<Tags::Lanes>(*this, key);
}

Mox::String8 Every::attributeString(Mox::AttributeId id) const {
  auto const* name = frame::attributeName(attributeRows, id);
  return name ? Mox::String8(name) : Mox::Entity::attributeString(id);
}

void Every::zeroReferencesIs(bool) { frame::zeroReferences(moxNotifiees()); }

Mox::NotifieeLevel const Every::NotifieeConst::moxLevel_{nullptr};

Every::NotifieeConst::NotifieeConst() { moxLevelIs(&moxLevel_); }
Every::NotifieeConst::~NotifieeConst() { frame::observerGone<Every>(*this); }
Every::PtrConst Every::NotifieeConst::notifier() const {
  return static_cast<Every const*>(moxNotifier());
}
void Every::NotifieeConst::notifierIs(Mox::Ptr<Mox::PtrInterface const> const& notifier) {
  frame::notifierIs<Every>(*this, notifier);
}
void Every::NotifieeConst::isRegisteredNotifieeIs(bool registered) const {
  frame::registeredIs<Every>(*this, registered);
}
Every::Ptr Every::Notifiee::notifier() const {
  return const_cast<Every*>(static_cast<Every const*>(moxNotifier()));
}

Mox::Ptr<Every> everyFactory(Mox::Name const& name, U16 port) { return new Every(name, port); }

}  // namespace everyShape
