// everyShape::Every.  Made by schemac from everyShape.schema.
#pragma once

#include "Mox/Mox.h"
#include "everyShape/Leaf.h"
#include "everyShape/Mix.h"
#include "everyShape/Mood.h"

namespace everyShape {

/// Every shape of an entity.
class Every : public Mox::Entity {
 public:
  using Ptr = Mox::Ptr<Every>;
  using PtrConst = Mox::Ptr<Every const>;

  class NotifieeConst;
  class Notifiee;
  class _Type;
  class GenericIf_;
  struct Tags;

  /// A node of `bytes`.
  class MoxBytes : public Mox::MapNode<U8, U32> {
   public:
    using MapNode::MapNode;
  };
  using BytesMap = Mox::HashMap<MoxBytes, U8, U32>;

  /// A node of `words`.
  class MoxWords : public Mox::MapNode<U32, Mox::String8> {
   public:
    using MapNode::MapNode;
  };
  using WordsMap = Mox::HashMap<MoxWords, U32, Mox::String8>;

  /// A node of `texts`.
  class MoxTexts : public Mox::MapNode<Mox::String8, bool> {
   public:
    using MapNode::MapNode;
  };
  using TextsMap = Mox::HashMap<MoxTexts, Mox::String8, bool>;

  /// A node of `known`.
  class MoxKnown : public Mox::MapNode<Mox::Name, Mox::Ptr<Leaf>> {
   public:
    using MapNode::MapNode;
  };
  using KnownMap = Mox::HashMap<MoxKnown, Mox::Name, Mox::Ptr<Leaf>>;

  /// A node of `seats`.
  class MoxSeats : public Mox::MapNode<U8, Mox::Ptr<Leaf>> {
   public:
    using MapNode::MapNode;
  };
  using SeatsMap = Mox::HashMap<MoxSeats, U8, Mox::Ptr<Leaf>>;

  using LeavesMap = Mox::HashMap<Leaf, Mox::Name, Leaf>;

  /// A node of `lanes`.
  class MoxLanes : public Mox::RbTreeNode<U8, U8> {
   public:
    using RbTreeNode::RbTreeNode;
  };
  using LanesMap = Mox::RbTreeMap<MoxLanes, U8, U8>;

  Every(Mox::Name const& name, U16 port);
  ~Every() override;

  /// The port.
  U16 port() const { return moxRead(port_); }

  U32 level() const { return moxRead(level_); }
  /// Sets `level`; a change steps the version and calls `onLevel()`.
  void levelIs(U32 value);

  /// Starts at 7.
  U8 gauge() const { return moxRead(gauge_); }
  /// Sets `gauge`; a change steps the version and calls `onGauge()`.
  void gaugeIs(U8 value);

  double ratio() const { return moxRead(ratio_); }
  /// Sets `ratio`; a change steps the version and calls `onRatio()`.
  void ratioIs(double const& value);

  Mox::String8 label() const { return moxRead(label_); }
  /// Sets `label`; a change steps the version and calls `onLabel()`.
  void labelIs(Mox::String8 const& value);

  Mix mix() const { return moxRead(mix_); }
  /// Sets `mix`; a change steps the version and calls `onMix()`.
  void mixIs(Mix value);

  Mood mood() const { return moxRead(mood_); }
  /// Sets `mood`; a change steps the version and calls `onMood()`.
  void moodIs(Mood value);

  U4 bounded() const { return moxRead(bounded_); }
  /// Sets `bounded`; a change steps the version and calls `onBounded()`.
  void boundedIs(U4 value);

  U16 hits() const { return moxRead(hits_); }
  /// Sets `hits`; a change steps the version and calls `onHits()`.
  void hitsIs(U16 value);
  /// Adds `delta`, wrapping around, and returns the new value.  A change calls `onHits()` and
  /// leaves the version alone.
  U16 hitsInc(U16 delta);

  U32 bytes(U8 key) const;
  /// Sets the value under `key`; a change steps the version and calls `onBytes(key)`.
  void bytesIs(U8 key, U32 value);
  /// Inserts without a word to version and notifiees; the key must be absent.
  Mox::Ptr<MoxBytes> newBytes(U8 key, U32 value);
  /// Removes, and returns the value that stood there; for a missing key the default of the type.
  U32 bytesDel(U8 key);
  U32 bytesDel(BytesMap::Iterator const& at);
  void bytesDelAll();
  /// Calls `onBytes(key)`.
  void bytesNotify(U8 key);
  U32 bytesCount() const { return bytes_.count(); }
  BytesMap::Iterator bytesIterator() { return BytesMap::Iterator(bytes_); }
  BytesMap::IteratorConst bytesIteratorConst() const { return BytesMap::IteratorConst(bytes_); }

  Mox::String8 words(U32 key) const;
  /// Sets the value under `key`; a change steps the version and calls `onWords(key)`.
  void wordsIs(U32 key, Mox::String8 const& value);
  /// Inserts without a word to version and notifiees; the key must be absent.
  Mox::Ptr<MoxWords> newWords(U32 key, Mox::String8 const& value);
  /// Removes, and returns the value that stood there; for a missing key the default of the type.
  Mox::String8 wordsDel(U32 key);
  Mox::String8 wordsDel(WordsMap::Iterator const& at);
  void wordsDelAll();
  /// Calls `onWords(key)`.
  void wordsNotify(U32 key);
  U32 wordsCount() const { return words_.count(); }
  WordsMap::Iterator wordsIterator() { return WordsMap::Iterator(words_); }
  WordsMap::IteratorConst wordsIteratorConst() const { return WordsMap::IteratorConst(words_); }

  bool texts(Mox::String8 const& key) const;
  /// Sets the value under `key`; a change steps the version and calls `onTexts(key)`.
  void textsIs(Mox::String8 const& key, bool value);
  /// Inserts without a word to version and notifiees; the key must be absent.
  Mox::Ptr<MoxTexts> newTexts(Mox::String8 const& key, bool value);
  /// Removes, and returns the value that stood there; for a missing key the default of the type.
  bool textsDel(Mox::String8 const& key);
  bool textsDel(TextsMap::Iterator const& at);
  void textsDelAll();
  /// Calls `onTexts(key)`.
  void textsNotify(Mox::String8 const& key);
  U32 textsCount() const { return texts_.count(); }
  TextsMap::Iterator textsIterator() { return TextsMap::Iterator(texts_); }
  TextsMap::IteratorConst textsIteratorConst() const { return TextsMap::IteratorConst(texts_); }

  Mox::Ptr<Leaf> buddy() const;
  /// Refers to `target` from now on, or to nothing; a change steps the version and calls
  /// `onBuddy()`.
  void buddyIs(Mox::Ptr<Leaf> const& target);

  Mox::Ptr<Leaf> known(Mox::Name const& name) const;
  /// Refers to `target` under the key that it bears itself; a change steps the version and calls
  /// `onKnown(key)`.  Null is refused with `RangeException`.
  void knownIs(Mox::Ptr<Leaf> const& target);
  /// Inserts without a word to version and notifiees; the key must be absent.
  Mox::Ptr<MoxKnown> newKnown(Mox::Ptr<Leaf> const& target);
  /// Removes, and returns the value that stood there; for a missing key the default of the type.
  Mox::Ptr<Leaf> knownDel(Mox::Name const& key);
  Mox::Ptr<Leaf> knownDel(KnownMap::Iterator const& at);
  void knownDelAll();
  /// Calls `onKnown(key)`.
  void knownNotify(Mox::Name const& key);
  U32 knownCount() const { return known_.count(); }
  KnownMap::Iterator knownIterator() { return KnownMap::Iterator(known_); }
  KnownMap::IteratorConst knownIteratorConst() const { return KnownMap::IteratorConst(known_); }

  Mox::Ptr<Leaf> seats(U8 key) const;
  /// Sets the value under `key`; a change steps the version and calls `onSeats(key)`.
  void seatsIs(U8 key, Mox::Ptr<Leaf> const& value);
  /// Inserts without a word to version and notifiees; the key must be absent.
  Mox::Ptr<MoxSeats> newSeats(U8 key, Mox::Ptr<Leaf> const& value);
  /// Removes, and returns the value that stood there; for a missing key the default of the type.
  Mox::Ptr<Leaf> seatsDel(U8 key);
  Mox::Ptr<Leaf> seatsDel(SeatsMap::Iterator const& at);
  void seatsDelAll();
  /// Calls `onSeats(key)`.
  void seatsNotify(U8 key);
  U32 seatsCount() const { return seats_.count(); }
  SeatsMap::Iterator seatsIterator() { return SeatsMap::Iterator(seats_); }
  SeatsMap::IteratorConst seatsIteratorConst() const { return SeatsMap::IteratorConst(seats_); }

  Mox::Ptr<Leaf> best() const;
  /// The child under that name; one that bears it already is kept, another one is replaced, which
  /// calls `onBest()`.  Raises `RangeException` "null ValidPtr" if that takes the new child away.
  Mox::Ptr<Leaf> bestIs(Mox::Name const& name, U8 lane, Mix mix);
  /// Makes a child in its place under this entity, and doesn't store it: this entity must outlive it.
  Mox::Ptr<Leaf> newBest(Mox::Name const& name, U8 lane, Mix mix);
  /// Detaches the child and returns it; null without one.
  Mox::Ptr<Leaf> bestDel();

  Mox::Ptr<Leaf> leaves(Mox::Name const& name) const;
  /// The child under that key, made if it is missing, which steps the version and calls
  /// `onLeaves(key)`.
  /// Other constructor parameters than those of the child that exists are refused with
  /// `NameInUseException`.
  Mox::Ptr<Leaf> leavesIs(Mox::Name const& name, U8 lane, Mix mix);
  /// Makes and inserts without a word to version and notifiees; the key must be absent.
  Mox::Ptr<Leaf> newLeaves(Mox::Name const& name, U8 lane, Mix mix);
  /// Detaches the child under that key and returns it; null without one.
  Mox::Ptr<Leaf> leavesDel(Mox::Name const& name);
  Mox::Ptr<Leaf> leavesDel(LeavesMap::Iterator const& at);
  void leavesDelAll();
  /// Calls `onLeaves(key)`.
  void leavesNotify(Mox::Name const& key);
  U32 leavesCount() const { return leaves_.count(); }
  LeavesMap::Iterator leavesIterator() { return LeavesMap::Iterator(leaves_); }
  LeavesMap::IteratorConst leavesIteratorConst() const { return LeavesMap::IteratorConst(leaves_); }

  U8 lanes(U8 key) const;
  /// Sets the value under `key`; a change steps the version and calls `onLanes(key)`.
  void lanesIs(U8 key, U8 value);
  /// Inserts without a word to version and notifiees; the key must be absent.
  Mox::Ptr<MoxLanes> newLanes(U8 key, U8 value);
  /// Removes, and returns the value that stood there; for a missing key the default of the type.
  U8 lanesDel(U8 key);
  U8 lanesDel(LanesMap::Iterator const& at);
  void lanesDelAll();
  /// Calls `onLanes(key)`.
  void lanesNotify(U8 key);
  U32 lanesCount() const { return lanes_.count(); }
  LanesMap::Iterator lanesIterator() { return LanesMap::Iterator(lanes_); }
  LanesMap::IteratorConst lanesIteratorConst() const { return LanesMap::IteratorConst(lanes_); }

  U32 odd() const { return moxRead(odd_); }
  /// Sets `odd`; a change steps the version and calls `onOdd()`.
  void oddIs(U32 value);

  Mox::String8 attributeString(Mox::AttributeId id) const override;
  bool moxHasAttrLogInterface() const override { return true; }
  void zeroReferencesIs(bool zero) override;
  Mox::MoxType const* fwkType() const override;
  static Mox::MoxType* _fwkType();

  /// Who observes this entity.
  Mox::ListRaw<NotifieeConst>& moxNotifiees() const { return notifiees_; }

 private:
  U16 const port_;
  U32 level_ = 0;
  U8 gauge_ = 7;
  double ratio_ = 1.5;
  Mox::String8 label_{};
  Mix mix_{};
  Mood mood_{};
  U4 bounded_ = 0;
  U16 hits_ = 0;
  BytesMap bytes_{4};
  WordsMap words_{4};
  TextsMap texts_{4};
  Mox::Ptr<Leaf> buddy_;
  KnownMap known_{4};
  SeatsMap seats_{4};
  Mox::Ptr<Leaf> best_;
  LeavesMap leaves_{4};
  LanesMap lanes_;
  U32 odd_ = 0;
  mutable Mox::ListRaw<NotifieeConst> notifiees_;
};

/// Observes a `Every`; each hook is empty.
class Every::NotifieeConst : public Mox::Entity::NotifieeConst {
 public:
  NotifieeConst();
  ~NotifieeConst() override;

  Every::PtrConst notifier() const;
  void notifierIs(Mox::Ptr<Mox::PtrInterface const> const& notifier) override;
  void isRegisteredNotifieeIs(bool registered) const override;

  static Mox::NotifieeLevel const moxLevel_;

  virtual void onLevel() {}
  virtual void onGauge() {}
  virtual void onRatio() {}
  virtual void onLabel() {}
  virtual void onMix() {}
  virtual void onMood() {}
  virtual void onBounded() {}
  virtual void onHits() {}
  /// Told of each change under a key.  The two without a key are the runtime's: no mutator calls them.
  virtual void onBytes(U8) {}
  virtual void onBytesmoxImmediate() {}
  virtual void onBytes() {}
  /// Told of each change under a key.  The two without a key are the runtime's: no mutator calls them.
  virtual void onWords(U32) {}
  virtual void onWordsmoxImmediate() {}
  virtual void onWords() {}
  /// Told of each change under a key.  The two without a key are the runtime's: no mutator calls them.
  virtual void onTexts(Mox::String8) {}
  virtual void onTextsmoxImmediate() {}
  virtual void onTexts() {}
  virtual void onBuddy() {}
  /// Told of each change under a key.  The two without a key are the runtime's: no mutator calls them.
  virtual void onKnown(Mox::Name) {}
  virtual void onKnownmoxImmediate() {}
  virtual void onKnown() {}
  /// Told of each change under a key.  The two without a key are the runtime's: no mutator calls them.
  virtual void onSeats(U8) {}
  virtual void onSeatsmoxImmediate() {}
  virtual void onSeats() {}
  virtual void onBest() {}
  /// Told of each change under a key.  The two without a key are the runtime's: no mutator calls them.
  virtual void onLeaves(Mox::Name) {}
  virtual void onLeavesmoxImmediate() {}
  virtual void onLeaves() {}
  /// Told of each change under a key.  The two without a key are the runtime's: no mutator calls them.
  virtual void onLanes(U8) {}
  virtual void onLanesmoxImmediate() {}
  virtual void onLanes() {}
  virtual void onOdd() {}
};

/// Observes a `Every` that it may write to.
class Every::Notifiee : public Every::NotifieeConst {
 public:
  Every::Ptr notifier() const;
};

/// Makes a free-standing `Every`, without a parent.
Mox::Ptr<Every> everyFactory(Mox::Name const& name, U16 port);

}  // namespace everyShape
