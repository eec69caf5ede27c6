// The language of the frame's tests: an entity of every shape, and observers that write down what
// they hear.
#pragma once

#include "everyShape/everyShape.h"

#include <functional>
#include <string>

namespace frametest {

inline everyShape::Mix const mix;

/// What the runtime's exception says that `step` throws; "" for none.
inline std::string complaintOf(std::function<void()> const& step) {
  try {
    step();
  } catch (Mox::Exception const& exception) {
    return exception.what();
  }
  return "";
}

/// Writes each hook down, as "level;" or "bytes 3;".  A story may act in a hook: `then` is called
/// after the note.
class Listener : public everyShape::Derived::NotifieeConst {
 public:
  std::string heard;
  std::function<void()> then;
  std::vector<Mox::AttributeId> failures;

  void onLevel() override { note("level"); }
  void onGauge() override { note("gauge"); }
  void onRatio() override { note("ratio"); }
  void onLabel() override { note("label"); }
  void onMix() override { note("mix"); }
  void onMood() override { note("mood"); }
  void onBounded() override { note("bounded"); }
  void onHits() override { note("hits"); }
  void onBytes(U8 key) override { note("bytes " + std::to_string(key)); }
  void onWords(U32 key) override { note("words " + std::to_string(key)); }
  void onTexts(Mox::String8 key) override { note("texts " + std::string(key.view())); }
  void onBuddy() override { note("buddy"); }
  void onKnown(Mox::Name key) override { note("known " + std::string(key.view())); }
  void onSeats(U8 key) override { note("seats " + std::to_string(key)); }
  void onBest() override { note("best"); }
  void onLeaves(Mox::Name key) override { note("leaves " + std::string(key.view())); }
  void onLanes(U8 key) override { note("lanes " + std::to_string(key)); }
  void onExtra() override { note("extra"); }
  void onMarks(U8 key) override { note("marks " + std::to_string(key)); }

  void onZeroReferences() override { note("gone"); }
  void onNotificationException(Mox::AttributeId id) override { failures.push_back(id); }

 private:
  void note(std::string const& what) {
    heard += what + ";";
    if (then) then();
  }
};

/// Lets `observer` watch `entity`.
template <class Observer, class Entity>
void watch(Mox::Ptr<Observer> const& observer, Mox::Ptr<Entity> const& entity) {
  observer->notifierIs(entity);
  observer->isRegisteredNotifieeIs(true);
}

/// Observes what `Every` has, and is no observer of `Derived`.
class PlainListener : public everyShape::Every::NotifieeConst {
 public:
  std::string heard;
  std::function<void()> then;
  std::vector<Mox::AttributeId> failures;

  void onLevel() override { note("level;"); }
  void onBytes(U8 key) override { note("bytes " + std::to_string(key) + ";"); }
  void onBest() override { note("best;"); }
  void onZeroReferences() override { note("gone;"); }
  void onNotificationException(Mox::AttributeId id) override { failures.push_back(id); }

 private:
  void note(std::string const& what) {
    heard += what;
    if (then) then();
  }
};

/// An entity of every shape with one observer; `heard()` hands its notes over and begins anew.
class Watched {
 public:
  Watched() { watch(listener, entity); }

  everyShape::Derived* operator->() const { return entity.ptr(); }
  std::string heard() { return std::exchange(listener->heard, ""); }

  Mox::Ptr<everyShape::Derived> entity = new everyShape::Derived("every", 3);
  Mox::Ptr<Listener> listener = new Listener;
};

/// A leaf under any name.
inline Mox::Ptr<everyShape::Leaf> leaf(char const* name, U8 lane = 0) {
  return new everyShape::Leaf(name, lane, everyShape::Mix());
}

}  // namespace frametest
