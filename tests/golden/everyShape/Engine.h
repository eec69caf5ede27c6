// everyShape::Engine.  Made by schemac from everyShape.schema.
#pragma once

#include "Mox/Mox.h"
#include "everyShape/Grove.h"

namespace everyShape {

/// An object whose life is made by hand.
class Engine : public Mox::PtrInterface {
 public:
  using Ptr = Mox::Ptr<Engine>;
  using PtrConst = Mox::Ptr<Engine const>;

  class _Type;
  class GenericIf_;
  struct Tags;

  Engine(Mox::Ptr<Grove> const& grove, Mox::String8 const& note);
  ~Engine() override;
  /// A new one, counted.
  static Mox::Ptr<Engine> EngineIs(Mox::Ptr<Grove> const& grove, Mox::String8 const& note);

  Mox::Ptr<Grove> grove() const { return grove_; }

  Mox::String8 note() const { return note_; }

  bool running() const { return running_; }
  /// A plain store; nobody is told.
  void runningIs(bool value) { running_ = value; }

  void start();

  U32 heat() const;

  void hasNotificationActiveIs(bool active) override;
  Mox::MoxType const* fwkType() const override;
  virtual void moxDoZombieReactors(bool on);
  Mox::ActivityConfig* moxFwkActivity();
  Mox::ActivityConfig const* moxFwkActivity() const;
  static Mox::MoxType* _fwkType();

 private:
  Mox::Ptr<Grove> const grove_;
  Mox::String8 const note_;
  bool running_ = true;
};

/// Makes a free-standing `Engine`, without a parent.
Mox::Ptr<Engine> engineFactory(Mox::Ptr<Grove> const& grove, Mox::String8 const& note);

}  // namespace everyShape
