// everyShape::Every by attribute number: its interface, and its descriptor.  Made by schemac from everyShape.schema.
#pragma once

#include "everyShape/Every.h"
#include "frame/Adapter.h"
#include "reflect/Batch.h"

namespace everyShape {

class Every::_Type : public Mox::MoxType {
 public:
  _Type() : MoxType("Every", nullptr, Mox::Entity::_fwkType(), {}) {}
  using MoxType::genericIf_;
  Mox::GenericIf::Ptr genericIf_(Mox::PtrInterface* object, bool isConst) const override;
};

class Every::GenericIf_ : public Mox::GenericIfEntity {
 public:
  class GenericIf_Adapter_;

  GenericIf_(Mox::Ptr<Every> const& object, bool isConst);
  ~GenericIf_() override;

  /// The entity; null once it has gone.
  Mox::Ptr<Every> obj() const;

  Ptr attributeOp(AttributeOp op, PtrConst const& index, PtrConst const& value) override;
  AttributeIteratorConst attributeIteratorConst(Mox::AttributeId id) const override;
  AttributeIteratorConst attributeIteratorKeyConst(Mox::AttributeId id,
      PtrConst const& key) const override;
  using GenericIf::clone;
  Ptr clone() override;
  Ptr genericIfListConstructor(PtrConst const& list) const override;
  void handleNotification(Mox::ActivityConfig* activity) override;
  void notifierIs(Mox::Ptr<Mox::PtrInterface const> const& notifier) override;
  void moxDoZombieReactors(bool zombie) override;
  void hasNotificationActiveIs(bool active) override;
  void moxAdaptersHearIs(bool hears) override;

  /// Tells of a change: at once, or in the next batch.
  virtual void onLevel();
  /// Tells of a change: at once, or in the next batch.
  virtual void onGauge();
  /// Tells of a change: at once, or in the next batch.
  virtual void onRatio();
  /// Tells of a change: at once, or in the next batch.
  virtual void onLabel();
  /// Tells of a change: at once, or in the next batch.
  virtual void onMix();
  /// Tells of a change: at once, or in the next batch.
  virtual void onMood();
  /// Tells of a change: at once, or in the next batch.
  virtual void onBounded();
  /// Tells of a change: at once, or in the next batch.
  virtual void onHits();
  /// Tells of a change under `key`: at once, or in the next batch, in which several are one without a
  /// key.
  virtual void onBytes(U8 key);
  virtual void onBytes();
  /// Tells of a change under `key`: at once, or in the next batch, in which several are one without a
  /// key.
  virtual void onWords(U32 key);
  virtual void onWords();
  /// Tells of a change under `key`: at once, or in the next batch, in which several are one without a
  /// key.
  virtual void onTexts(Mox::String8 key);
  virtual void onTexts();
  /// Tells of a change: at once, or in the next batch.
  virtual void onBuddy();
  /// Tells of a change under `key`: at once, or in the next batch, in which several are one without a
  /// key.
  virtual void onKnown(Mox::Name key);
  virtual void onKnown();
  /// Tells of a change under `key`: at once, or in the next batch, in which several are one without a
  /// key.
  virtual void onSeats(U8 key);
  virtual void onSeats();
  /// Tells of a change: at once, or in the next batch.
  virtual void onBest();
  /// Tells of a change under `key`: at once, or in the next batch, in which several are one without a
  /// key.
  virtual void onLeaves(Mox::Name key);
  virtual void onLeaves();
  /// Tells of a change under `key`: at once, or in the next batch, in which several are one without a
  /// key.
  virtual void onLanes(U8 key);
  virtual void onLanes();
  /// Tells of a change: at once, or in the next batch.
  virtual void onOdd();

 protected:
  GenericIf_(Mox::Ptr<Every> const& object, Mox::MoxType const* type, bool isConst);

 private:
  using MoxBase = Mox::GenericIfEntity;
  struct MoxTable;

  Mox::Ptr<GenericIf_Adapter_> adapter_;
};

class Every::GenericIf_::GenericIf_Adapter_ : public frame::Adapter<Every::Notifiee,
    Every::GenericIf_> {
 public:
  using Adapter::Adapter;

  void onLevel() override { if (auto* const owner = moxReactorAdapter()) owner->onLevel(); }
  void onGauge() override { if (auto* const owner = moxReactorAdapter()) owner->onGauge(); }
  void onRatio() override { if (auto* const owner = moxReactorAdapter()) owner->onRatio(); }
  void onLabel() override { if (auto* const owner = moxReactorAdapter()) owner->onLabel(); }
  void onMix() override { if (auto* const owner = moxReactorAdapter()) owner->onMix(); }
  void onMood() override { if (auto* const owner = moxReactorAdapter()) owner->onMood(); }
  void onBounded() override { if (auto* const owner = moxReactorAdapter()) owner->onBounded(); }
  void onHits() override { if (auto* const owner = moxReactorAdapter()) owner->onHits(); }
  void onBytes(U8 key) override {
      if (auto* const owner = moxReactorAdapter()) owner->onBytes(key); }
  void onBytes() override { if (auto* const owner = moxReactorAdapter()) owner->onBytes(); }
  void onWords(U32 key) override {
      if (auto* const owner = moxReactorAdapter()) owner->onWords(key); }
  void onWords() override { if (auto* const owner = moxReactorAdapter()) owner->onWords(); }
  void onTexts(Mox::String8 key) override {
      if (auto* const owner = moxReactorAdapter()) owner->onTexts(key); }
  void onTexts() override { if (auto* const owner = moxReactorAdapter()) owner->onTexts(); }
  void onBuddy() override { if (auto* const owner = moxReactorAdapter()) owner->onBuddy(); }
  void onKnown(Mox::Name key) override {
      if (auto* const owner = moxReactorAdapter()) owner->onKnown(key); }
  void onKnown() override { if (auto* const owner = moxReactorAdapter()) owner->onKnown(); }
  void onSeats(U8 key) override {
      if (auto* const owner = moxReactorAdapter()) owner->onSeats(key); }
  void onSeats() override { if (auto* const owner = moxReactorAdapter()) owner->onSeats(); }
  void onBest() override { if (auto* const owner = moxReactorAdapter()) owner->onBest(); }
  void onLeaves(Mox::Name key) override {
      if (auto* const owner = moxReactorAdapter()) owner->onLeaves(key); }
  void onLeaves() override { if (auto* const owner = moxReactorAdapter()) owner->onLeaves(); }
  void onLanes(U8 key) override {
      if (auto* const owner = moxReactorAdapter()) owner->onLanes(key); }
  void onLanes() override { if (auto* const owner = moxReactorAdapter()) owner->onLanes(); }
  void onOdd() override { if (auto* const owner = moxReactorAdapter()) owner->onOdd(); }

  /// What the next batch tells of each collection.
  struct Noted {
    reflect::Pending<U8> bytes;
    reflect::Pending<U32> words;
    reflect::Pending<Mox::String8> texts;
    reflect::Pending<Mox::Name> known;
    reflect::Pending<U8> seats;
    reflect::Pending<Mox::Name> leaves;
    reflect::Pending<U8> lanes;
  };
  Noted noted;
};

}  // namespace everyShape
