// A directory of the platform's tree.
#pragma once

#include "Mox/Entity.h"

#include <map>

namespace Mox {

/// Holds entities under names of the directory's own.
class Dir : public Entity {
 public:
  using Entity::Entity;

  /// The entry of that name; null where there is none.
  Ptr<Entity> entry(Name const& name) const;
  /// Enters `entity` under `name`, in the place of what stood there; null takes the entry away.
  void entryIs(Name const& name, Ptr<Entity> const& entity);

 private:
  std::map<Name, Ptr<Entity>> entries_;
};

}  // namespace Mox
