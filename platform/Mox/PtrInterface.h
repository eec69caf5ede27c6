// The base of every counted object.
#pragma once

#include "Mox/Ptr.h"
#include "Mox/ReferenceWord.h"

#include <cstddef>

namespace Mox {

class MoxType;

/// The face of the reference word that increments go through.
class VFPtrInterface {
 public:
  /// The process-wide switch: while set, counts of objects and of string data change atomically.
  /// Set it before the second thread starts, and while no walk of a map is under way.
  static constexpr bool& enableThreadSafePointers = ReferenceWord::threadSafe;

  [[gnu::always_inline]] void referencesInc() const noexcept { referenceWord_.inc(); }
  /// References held at this moment, flags left out.
  U32 references() const noexcept { return referenceWord_.count(); }
  /// Count and flags as they stand.
  U32 referenceWord() const noexcept { return referenceWord_.word(); }

  static void operator delete(void* object, std::size_t size) noexcept;

 protected:
  VFPtrInterface() = default;
  ~VFPtrInterface() = default;

  mutable ReferenceWord referenceWord_;
};

/// A counted object: two words (virtual table, reference word) ahead of the derived members.  It is
/// made with `new`, held by `Ptr`, and deletes itself when the last reference goes.
class PtrInterface : public VFPtrInterface {
 public:
  class NotifieeConst;
  class Notifiee;

  PtrInterface() = default;
  PtrInterface(PtrInterface const&) = delete;
  PtrInterface& operator=(PtrInterface const&) = delete;

  /// Storage for a counted object, from a free list of its size where there is one.
  static void* operator new(std::size_t size);
  static void* operator new(std::size_t, void* place) noexcept { return place; }
  static void operator delete(void*, void*) noexcept {}
  // Not inline: compilers that see new and delete of two classes meet take them for a mismatch.
  static void operator delete(void* object, std::size_t size) noexcept;

  // The virtual operations stand in the order that the platform's binaries expect.
  virtual void hasNotificationActiveIs(bool active);
  /// Audits by the runtime and by the type; nothing to find here.
  virtual void moxAuditErrors(U32 depth) const;
  virtual void auditErrors(U32 depth) const;
  /// Told when the last reference has gone; who takes a reference meanwhile keeps the object.
  virtual void zeroReferencesIs(bool zero);
  /// The type descriptor; null for a type without one.
  virtual MoxType const* fwkType() const;
  virtual ~PtrInterface() = default;

  /// One reference fewer; at the last, `handleZeroRef`.
  void referencesDec() const {
    if (referencesDecIsLast()) handleZeroRef();
  }
  /// The same, but for the last: true, and `handleZeroRef` is the caller's to call.
  [[gnu::always_inline]] bool referencesDecIsLast() const noexcept { return referenceWord_.dec(); }
  /// The same two while counts are plain; the reference mustn't be the last.
  void referencesIncPlain() const noexcept { referenceWord_.incPlain(); }
  void referencesDecPlain() const noexcept { referenceWord_.decPlain(); }
  /// Tells the object by `zeroReferencesIs`, and deletes it unless something holds it again.
  void handleZeroRef() const;

  bool hasNotificationActive() const noexcept {
    return referenceWord_.has(ReferenceWord::notificationActive);
  }
  bool moxMarkedForDeletion() const noexcept {
    return referenceWord_.has(ReferenceWord::markedForDeletion);
  }
  void moxMarkedForDeletionIs(bool marked) const noexcept;
};

/// Called by the module initialisers with the address of a pair of pointers; does nothing to it.
void forcePointerAccessH(void const* pair);

/// Diagnostics: when set, objects that are made immortal are struck from the tracker.
extern bool ptrifTrackOn_;

/// The tracker of counted objects; see `ptrifTrackOn_`.
class PtrTrack {
 public:
  /// Strikes one object from the tracker.
  static void ptrifDel(void* object);
  /// Enters one object.
  static void ptrifNew(void* object);
  /// How many objects the tracker holds.
  static std::size_t tracked();
};

}  // namespace Mox
