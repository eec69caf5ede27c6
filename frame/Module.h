// A module: the types that are registered together.
#pragma once

#include "frame/Descriptor.h"

#include <span>

namespace frame {

/// What one module registers, and how far it has come.
class Module {
 public:
  /// `used` names the types of other libraries that the module's rows refer to; `types` are its
  /// own, in the order of registration, `alphabetical` the same in the order in which descriptors
  /// are made.
  constexpr Module(char const* nameSpace, std::span<TypeOf const> used,
                   std::span<TypeOf const> alphabetical, std::span<TypeRow const* const> types)
      : nameSpace_(nameSpace), used_(used), alphabetical_(alphabetical), types_(types) {}

  /// Describes all types to the reactor, once.  While the reactor isn't ready, nothing happens, and
  /// a later call does the work.
  void initialise();

  /// What is done at load: registers each type under its full name, looks its attributes up for the
  /// reactor's dispatch, and initialises.
  void load();

  std::span<TypeRow const* const> types() const noexcept { return types_; }
  bool done() const noexcept { return done_; }

 private:
  void describeAll(Mox::IntrospectionReactor& reactor) const;
  void lookUpAttributes() const;

  char const* nameSpace_;
  std::span<TypeOf const> used_;
  std::span<TypeOf const> alphabetical_;
  std::span<TypeRow const* const> types_;
  bool done_ = false;
};

}  // namespace frame
