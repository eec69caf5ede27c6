// everyShape::Every by attribute number: one line for each operation.  Made by schemac from everyShape.schema.
#include "everyShape/Every.reflect.h"

#include "everyShape/Every.tags.h"
#include "reflect/Arguments.h"
#include "reflect/Perform.h"
#include "reflect/Steps.h"
#include "reflect/Walk.h"

namespace everyShape {

struct [[gnu::visibility("hidden")]] Every::GenericIf_::MoxTable {
  static constexpr reflect::Argument constructorTypes[] = {
      {"name", Mox::Name::_fwkType},
      {"port", Mox::Builtin<U16>::_fwkType},
  };
  static constexpr reflect::Row rows[] = {
      {.id = 258, .name = "port", .type = Mox::Builtin<U16>::_fwkType,
          .read = reflect::read<&Every::port>},
      {.id = 259, .name = "level", .type = Mox::Builtin<U32>::_fwkType,
          .read = reflect::read<&Every::level>, .write = reflect::write<&Every::levelIs>},
      {.id = 260, .name = "gauge", .type = Mox::Builtin<U8>::_fwkType,
          .read = reflect::read<&Every::gauge>, .write = reflect::write<&Every::gaugeIs>},
      {.id = 261, .name = "ratio", .type = Mox::Builtin<double>::_fwkType,
          .read = reflect::read<&Every::ratio>, .write = reflect::write<&Every::ratioIs>},
      {.id = 262, .name = "label", .type = Mox::Builtin<Mox::String8>::_fwkType,
          .read = reflect::read<&Every::label>, .write = reflect::write<&Every::labelIs>},
      {.id = 263, .name = "mix", .type = Mix::_fwkType, .read = reflect::read<&Every::mix>,
          .write = reflect::write<&Every::mixIs>},
      {.id = 264, .name = "mood", .type = everyShape::_fwkType_Mood,
          .read = reflect::read<&Every::mood>, .write = reflect::write<&Every::moodIs>},
      {.id = 265, .name = "bounded", .type = U4::_fwkType, .read = reflect::read<&Every::bounded>,
          .write = reflect::write<&Every::boundedIs>},
      {.id = 266, .name = "hits", .type = Mox::Builtin<U16>::_fwkType,
          .read = reflect::read<&Every::hits>, .write = reflect::write<&Every::hitsIs>},
      {.id = 267, .name = "bytes", .type = Mox::Builtin<U32>::_fwkType,
          .key = Mox::Builtin<U8>::_fwkType,
          .collection = &reflect::collection<Every::Tags::Bytes>},
      {.id = 268, .name = "words", .type = Mox::Builtin<Mox::String8>::_fwkType,
          .key = Mox::Builtin<U32>::_fwkType,
          .collection = &reflect::collection<Every::Tags::Words>},
      {.id = 269, .name = "texts", .type = Mox::Builtin<bool>::_fwkType,
          .key = Mox::Builtin<Mox::String8>::_fwkType,
          .collection = &reflect::collection<Every::Tags::Texts>},
      {.id = 270, .name = "buddy", .type = Leaf::_fwkType, .read = reflect::read<&Every::buddy>,
          .write = reflect::write<&Every::buddyIs>},
      {.id = 271, .name = "known", .type = Leaf::_fwkType, .key = Mox::Name::_fwkType,
          .collection = &reflect::collection<Every::Tags::Known>},
      {.id = 272, .name = "seats", .type = Leaf::_fwkType, .key = Mox::Builtin<U8>::_fwkType,
          .collection = &reflect::collection<Every::Tags::Seats>},
      {.id = 273, .name = "best", .type = Leaf::_fwkType, .read = reflect::read<&Every::best>},
      {.id = 274, .name = "leaves", .type = Leaf::_fwkType, .key = Mox::Name::_fwkType,
          .collection = &reflect::collection<Every::Tags::Leaves>},
      {.id = 275, .name = "lanes", .type = Mox::Builtin<U8>::_fwkType,
          .key = Mox::Builtin<U8>::_fwkType,
          .collection = &reflect::collection<Every::Tags::Lanes>},
      {.id = 276, .name = "odd", .type = Mox::Builtin<U32>::_fwkType,
          .read = reflect::read<&Every::odd>, .write = reflect::write<&Every::oddIs>},
      {.id = 154, .name = "moxHasAttrLogInterface", .type = Mox::Builtin<bool>::_fwkType,
          .read = reflect::read<&Every::moxHasAttrLogInterface>},
  };
  static Every* objectOf(GenericIf_ const& face) { return reflect::observed<Every>(face); }
  static Mox::GenericIf::Ptr performWithoutRow(GenericIf_& face, AttributeOp op,
      PtrConst const& index, PtrConst const& value) {
    return face.MoxBase::attributeOp(op, index, value);
  }
  static constexpr reflect::Told told[] = {
      {259, false, [](Mox::GenericIfEntity& face) { static_cast<GenericIf_&>(face).onLevel(); }},
      {260, false, [](Mox::GenericIfEntity& face) { static_cast<GenericIf_&>(face).onGauge(); }},
      {261, false, [](Mox::GenericIfEntity& face) { static_cast<GenericIf_&>(face).onRatio(); }},
      {262, false, [](Mox::GenericIfEntity& face) { static_cast<GenericIf_&>(face).onLabel(); }},
      {263, false, [](Mox::GenericIfEntity& face) { static_cast<GenericIf_&>(face).onMix(); }},
      {264, false, [](Mox::GenericIfEntity& face) { static_cast<GenericIf_&>(face).onMood(); }},
      {265, false, [](Mox::GenericIfEntity& face) { static_cast<GenericIf_&>(face).onBounded(); }},
      {266, false, [](Mox::GenericIfEntity& face) { static_cast<GenericIf_&>(face).onHits(); }},
      {267, true, [](Mox::GenericIfEntity& face) {
        auto& own = static_cast<GenericIf_&>(face);
        if (auto const* const key = reflect::onlyKey(own, 267,
            own.adapter_->noted.bytes)) own.onBytes(*key);
      }},
      {268, true, [](Mox::GenericIfEntity& face) {
        auto& own = static_cast<GenericIf_&>(face);
        if (auto const* const key = reflect::onlyKey(own, 268,
            own.adapter_->noted.words)) own.onWords(*key);
      }},
      {269, true, [](Mox::GenericIfEntity& face) {
        auto& own = static_cast<GenericIf_&>(face);
        if (auto const* const key = reflect::onlyKey(own, 269,
            own.adapter_->noted.texts)) own.onTexts(*key);
      }},
      {270, false, [](Mox::GenericIfEntity& face) { static_cast<GenericIf_&>(face).onBuddy(); }},
      {271, true, [](Mox::GenericIfEntity& face) {
        auto& own = static_cast<GenericIf_&>(face);
        if (auto const* const key = reflect::onlyKey(own, 271,
            own.adapter_->noted.known)) own.onKnown(*key);
      }},
      {272, true, [](Mox::GenericIfEntity& face) {
        auto& own = static_cast<GenericIf_&>(face);
        if (auto const* const key = reflect::onlyKey(own, 272,
            own.adapter_->noted.seats)) own.onSeats(*key);
      }},
      {273, false, [](Mox::GenericIfEntity& face) { static_cast<GenericIf_&>(face).onBest(); }},
      {274, true, [](Mox::GenericIfEntity& face) {
        auto& own = static_cast<GenericIf_&>(face);
        if (auto const* const key = reflect::onlyKey(own, 274,
            own.adapter_->noted.leaves)) own.onLeaves(*key);
      }},
      {275, true, [](Mox::GenericIfEntity& face) {
        auto& own = static_cast<GenericIf_&>(face);
        if (auto const* const key = reflect::onlyKey(own, 275,
            own.adapter_->noted.lanes)) own.onLanes(*key);
      }},
      {276, false, [](Mox::GenericIfEntity& face) { static_cast<GenericIf_&>(face).onOdd(); }},
  };
};

Mox::GenericIf::Ptr Every::_Type::genericIf_(Mox::PtrInterface* object, bool isConst) const {
  return reflect::unwatched(new GenericIf_(reflect::requireObject<Every>(object), isConst));
}

Every::GenericIf_::GenericIf_(Mox::Ptr<Every> const& object, bool isConst) : GenericIf_(object,
    Every::_fwkType(), isConst) {}
Every::GenericIf_::GenericIf_(Mox::Ptr<Every> const& object, Mox::MoxType const* type,
    bool isConst) : MoxBase(object, type, isConst) {
  adapter_ = frame::adapterFor<GenericIf_Adapter_>(object.ptr(), this);
}
Every::GenericIf_::~GenericIf_() { frame::unhook(*adapter_); }

Mox::Ptr<Every> Every::GenericIf_::obj() const { return static_cast<Every*>(entity()); }

Mox::GenericIf::Ptr Every::GenericIf_::attributeOp(AttributeOp op, PtrConst const& index,
    PtrConst const& value) {
  requireWritable(op);
  return reflect::performByTable<MoxTable>(*this, op, index, value);
}
Mox::GenericIf::AttributeIteratorConst Every::GenericIf_::attributeIteratorConst(
    Mox::AttributeId id) const {
  auto const* const row = reflect::collectionOf(MoxTable::rows, id);
  return row ? reflect::walk(*this, *row,
      MoxTable::objectOf(*this)) : MoxBase::attributeIteratorConst(id);
}
Mox::GenericIf::AttributeIteratorConst Every::GenericIf_::attributeIteratorKeyConst(
    Mox::AttributeId id, PtrConst const& key) const {
  auto const* const row = reflect::collectionOf(MoxTable::rows, id);
  return row ? reflect::walk(*this, *row, MoxTable::objectOf(*this),
      key) : MoxBase::attributeIteratorKeyConst(id, key);
}
Mox::GenericIf::Ptr Every::GenericIf_::clone() {
  return reflect::unwatched(new GenericIf_(obj(), isConst()));
}
Mox::GenericIf::Ptr Every::GenericIf_::genericIfListConstructor(PtrConst const& list) const {
  reflect::Arguments const given(MoxTable::constructorTypes, list, "Every");
  return reflect::owningFaceOf(reflect::make<Every, Mox::Name, U16>(given.held()));
}

void Every::GenericIf_::handleNotification(Mox::ActivityConfig* activity) {
  reflect::handleNotification(*this, MoxTable::told,
      [](Mox::GenericIfEntity& face,
      Mox::ActivityConfig* activity) {
      static_cast<GenericIf_&>(face).MoxBase::handleNotification(activity); }, activity);
}
void Every::GenericIf_::notifierIs(Mox::Ptr<Mox::PtrInterface const> const& notifier) {
  auto const own = Mox::ptrCast<Every const>(notifier);
  if (own && own.ptr() != entity()) adapter_->noted = {};
  adapter_->notifierIs(own);
  MoxBase::notifierIs(own);
}
void Every::GenericIf_::moxDoZombieReactors(bool zombie) {
  if (zombie == moxMarkedForDeletion()) return;
  MoxBase::moxDoZombieReactors(zombie);
  adapter_->moxDoZombieReactors(zombie);
}
void Every::GenericIf_::hasNotificationActiveIs(bool active) {
  if (active == hasNotificationActive()) return;
  MoxBase::hasNotificationActiveIs(active);
  if (adapter_) adapter_->hasNotificationActiveIs(active);
}

void Every::GenericIf_::moxAdaptersHearIs(bool hears) {
  MoxBase::moxAdaptersHearIs(hears);
  adapter_->moxHearsIs(hears);
}

void Every::GenericIf_::onLevel() { reflect::changed(*this, 259); }
void Every::GenericIf_::onGauge() { reflect::changed(*this, 260); }
void Every::GenericIf_::onRatio() { reflect::changed(*this, 261); }
void Every::GenericIf_::onLabel() { reflect::changed(*this, 262); }
void Every::GenericIf_::onMix() { reflect::changed(*this, 263); }
void Every::GenericIf_::onMood() { reflect::changed(*this, 264); }
void Every::GenericIf_::onBounded() { reflect::changed(*this, 265); }
void Every::GenericIf_::onHits() { reflect::changed(*this, 266); }
void Every::GenericIf_::onBytes(U8 key) {
  reflect::changed(*this, 267, adapter_->noted.bytes, key, Mox::Builtin<U8>::_fwkType);
}
void Every::GenericIf_::onBytes() { onAttribute(267); }
void Every::GenericIf_::onWords(U32 key) {
  reflect::changed(*this, 268, adapter_->noted.words, key, Mox::Builtin<U32>::_fwkType);
}
void Every::GenericIf_::onWords() { onAttribute(268); }
void Every::GenericIf_::onTexts(Mox::String8 key) {
  reflect::changed(*this, 269, adapter_->noted.texts, key, Mox::Builtin<Mox::String8>::_fwkType);
}
void Every::GenericIf_::onTexts() { onAttribute(269); }
void Every::GenericIf_::onBuddy() { reflect::changed(*this, 270); }
void Every::GenericIf_::onKnown(Mox::Name key) {
  reflect::changed(*this, 271, adapter_->noted.known, key, Mox::Name::_fwkType);
}
void Every::GenericIf_::onKnown() { onAttribute(271); }
void Every::GenericIf_::onSeats(U8 key) {
  reflect::changed(*this, 272, adapter_->noted.seats, key, Mox::Builtin<U8>::_fwkType);
}
void Every::GenericIf_::onSeats() { onAttribute(272); }
void Every::GenericIf_::onBest() { reflect::changed(*this, 273); }
void Every::GenericIf_::onLeaves(Mox::Name key) {
  reflect::changed(*this, 274, adapter_->noted.leaves, key, Mox::Name::_fwkType);
}
void Every::GenericIf_::onLeaves() { onAttribute(274); }
void Every::GenericIf_::onLanes(U8 key) {
  reflect::changed(*this, 275, adapter_->noted.lanes, key, Mox::Builtin<U8>::_fwkType);
}
void Every::GenericIf_::onLanes() { onAttribute(275); }
void Every::GenericIf_::onOdd() { reflect::changed(*this, 276); }

}  // namespace everyShape
