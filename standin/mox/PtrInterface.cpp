// Counted objects: flags, release, the tracker of immortals.
#include "Mox/PtrInterface.h"

#include "standin/mox/LostException.h"

#include <unordered_set>

namespace Mox {

bool ptrifTrackOn_ = false;

namespace {

std::unordered_set<void*>& tracker() {
  static auto* const objects = new std::unordered_set<void*>;
  return *objects;
}

}  // namespace

void PtrTrack::ptrifNew(void* object) { tracker().insert(object); }
void PtrTrack::ptrifDel(void* object) { tracker().erase(object); }
std::size_t PtrTrack::tracked() { return tracker().size(); }

void forcePointerAccessH(void const*) {}

void PtrInterface::hasNotificationActiveIs(bool active) {
  referenceWord_.flagIs(ReferenceWord::notificationActive, active);
}

void PtrInterface::moxAuditErrors(U32) const {}
void PtrInterface::auditErrors(U32) const {}
void PtrInterface::zeroReferencesIs(bool) {}
MoxType const* PtrInterface::fwkType() const { return nullptr; }

void PtrInterface::moxMarkedForDeletionIs(bool marked) const noexcept {
  referenceWord_.flagIs(ReferenceWord::markedForDeletion, marked);
}

void PtrInterface::handleZeroRef() const {
  auto* self = const_cast<PtrInterface*>(this);
  // Held for the time of the call, so that a reference taken and dropped meanwhile isn't the last.
  referenceWord_.inc();
  try {
    self->zeroReferencesIs(true);
  } catch (...) {
    // Pointers let go where no exception can pass.
    traceLostException("what was told of a last reference");
  }
  if (!referenceWord_.dec()) return;
  // What the destructor touches may take references to this object again; they must not end it
  // twice.
  referenceWord_.flagIs(ReferenceWord::keptAlive, true);
  delete self;
}

}  // namespace Mox
