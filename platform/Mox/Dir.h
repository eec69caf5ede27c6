// A directory of the platform's tree.
#pragma once

#include "Mox/Entity.h"

#include <map>

namespace Mox {

/// Holds entities under names of the directory's own.
class Dir : public Entity {
 public:
  using Entity::Entity;

  /// The top of the process's tree.  Entities are found by their full names from here on; an agent
  /// enters its roots under their names.
  static Ptr<Dir> const& root();

  /// The entry of that name; null where there is none.
  Ptr<Entity> entry(Name const& name) const;
  /// Enters `entity` under `name`, in the place of what stood there; null takes the entry away.
  void entryIs(Name const& name, Ptr<Entity> const& entity);
  std::map<Name, Ptr<Entity>> const& entries() const noexcept { return entries_; }

 private:
  std::map<Name, Ptr<Entity>> entries_;
};

}  // namespace Mox
