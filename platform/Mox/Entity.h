// The base of every observable model object.
#pragma once

#include "Mox/AttributeId.h"
#include "Mox/ListRaw.h"
#include "Mox/Mox_BitSet.h"
#include "Mox/Name.h"
#include "Mox/NboAttrLog.h"
#include "Mox/Notifiee.h"
#include "Mox/PtrInterface.h"

namespace Mox {

class MoxAttr;

/// An object with a name, a version that counts its writes, a count of its reads, and a place in a
/// tree.  Entities are not locked: one thread at a time.
class Entity : public PtrInterface {
 public:
  class NotifieeConst;
  class Notifiee;
  class MoxNboAttrLogSa;

  explicit Entity(Name const& name);
  ~Entity() override;

  // The virtual operations stand in the order that the platform's binaries expect.
  virtual Name name() const;
  /// The owner; null for a root, and once the owner has gone.
  virtual Ptr<Entity const> parent() const;
  virtual Ptr<Entity> parent();
  /// Attaches this entity to an owner, which it doesn't hold; null detaches it.  Ends in
  /// `handleParent` with the former owner, unless that is the same.
  virtual void parentIs(Ptr<Entity> const& parent);
  /// The attribute of the parent that holds this entity; null without a parent.
  virtual Ptr<MoxAttr const> parentAttr() const;
  /// Its id; 0 while nobody has set one.
  virtual AttributeId parentAttrId() const;
  virtual void parentAttrIdIs(AttributeId id);
  /// The names from the root down, each percent-encoded behind a slash.
  virtual String8 uriPath() const;
  /// The names from the root down, joined by slashes.
  virtual String8 fullName() const;
  /// Name of an attribute; "unknown" for an id that nobody knows.
  virtual String8 attributeString(AttributeId id) const;
  /// Lets a further adapter of this entity's kind observe `entity`; nothing to do here.
  virtual void moxNotifieeAdapterIs(Ptr<Entity const> const& entity);
  /// Told after the parent has changed.
  virtual void handleParent(Ptr<Entity> const& former);
  /// The adapter of this entity on a log; null where there is none.
  virtual Ptr<MoxNboAttrLogSa const> moxNboAttrLogSa(Ptr<NboAttrLog::Out const> const& out) const;
  /// True for an entity that can stand on an attribute log.
  virtual bool moxHasAttrLogInterface() const;
  virtual Ptr<MoxNboAttrLogSa> moxNboAttrLogSa(Ptr<NboAttrLog::Out const> const& out);
  virtual Ptr<MoxNboAttrLogSa const> moxNboAttrLogSaForMsgChannel(
      Ptr<MoxNboAttrLogSa> const& sibling) const;
  /// Finds or makes the adapter on a log.  An entity that can't stand on a log throws
  /// `RangeException` "null ValidPtr".
  virtual Ptr<MoxNboAttrLogSa> moxNboAttrLogSaIs(Mox_BitSet flags, U32 entityVersion,
                                                 Ptr<NboAttrLog::Out> const& out,
                                                 PtrInterface* msgChannelEntry);
  virtual Ptr<MoxNboAttrLogSa> moxNboAttrLogSaDel(Ptr<NboAttrLog::Out const> const& out);

  MoxType const* fwkType() const override;
  static MoxType* _fwkType();

  /// Writes so far.  Reading it counts as no read.
  U32 version() const noexcept { return version_; }
  /// Reads so far.
  U32 readCount() const noexcept { return readCount_; }
  /// The runtime's flag word; its low half starts at 136.
  U32 moxFlags() const noexcept { return flags_; }

  /// The same as `name()`, without a copy.
  Name const& moxName() const noexcept { return name_; }

  /// One write more.
  void moxVersionInc() noexcept { ++version_; }
  /// Counts a read, and hands `value` through.
  template <class T>
  T const& moxRead(T const& value) const noexcept {
    ++readCount_;
    return value;
  }
  /// The owner goes without a word to its children: only the pointer is cleared.
  void moxParentGone() noexcept { parent_ = nullptr; }

 private:
  static constexpr U32 initialFlags = 136;
  static constexpr U32 parentAttrShift = 16;

  Name name_;
  U32 version_ = 0;
  mutable U32 readCount_ = 0;
  U32 flags_ = initialFlags;  // the id of the parent's attribute stands in the high half
  Entity* parent_ = nullptr;  // the owner outlives it, or clears it by `moxParentGone`
};

/// An observer of an entity.
class Entity::NotifieeConst : public PtrInterface::NotifieeConst {
 public:
  Name name() const override;
  /// Something that is no entity counts as null.
  void notifierIs(Ptr<PtrInterface const> const& notifier) override;
  virtual void onParent() {}
  virtual void onVersion() {}
};

/// An observer that may write to the entity.
class Entity::Notifiee : public Entity::NotifieeConst {};

/// The adapter that ties one entity to one attribute log.  Registered notifiees that forward to one
/// hear of a change ahead of all others.
class Entity::MoxNboAttrLogSa : public Entity::Notifiee {
 public:
  bool isStreamAdapter() const override { return true; }
};

}  // namespace Mox
