// The bodies by hand of values, of the odd entity, and of the object whose life is made by hand.
#include "everyShape/everyShape.h"

namespace everyShape {

U32 Level::hash() const { return value(); }

Heap::Heap(Mox::String8::IteratorConst&, Mox::String8::IteratorConst const&) {
  Mox::throwRangeException("a heap isn't read from text");
}

U32 Heap::hash() const { return itemCount(); }

bool Heap::operator==(Heap const& other) const { return itemCount() == other.itemCount(); }

bool Heap::operator<(Heap const& other) const { return itemCount() < other.itemCount(); }

Mox::String8 valueToStrep(Heap const& heap) { return Mox::format("%u items", heap.itemCount()); }

U32 Grove::treeSum() const { return treeCount(); }

U8 Grove::prune(U8 from, Knob const& knob) const { return static_cast<U8>(from + knob.turn()); }

void Grove::water() {}

Engine::Engine(Mox::Ptr<Grove> const& grove, Mox::String8 const& note)
    : grove_(grove), note_(note) {}

Engine::~Engine() = default;

Mox::Ptr<Engine> Engine::EngineIs(Mox::Ptr<Grove> const& grove, Mox::String8 const& note) {
  return new Engine(grove, note);
}

Mox::Ptr<Engine> engineFactory(Mox::Ptr<Grove> const& grove, Mox::String8 const& note) {
  return Engine::EngineIs(grove, note);
}

void Engine::hasNotificationActiveIs(bool active) {
  Mox::PtrInterface::hasNotificationActiveIs(active);
}

void Engine::moxDoZombieReactors(bool on) { moxMarkedForDeletionIs(on); }

Mox::ActivityConfig* Engine::moxFwkActivity() { return nullptr; }
Mox::ActivityConfig const* Engine::moxFwkActivity() const { return nullptr; }

void Engine::start() { runningIs(true); }

U32 Engine::heat() const { return running() ? 1 : 0; }

}  // namespace everyShape
