// Directories: entities by name.
#include "Mox/Dir.h"

namespace Mox {

Ptr<Dir> const& Dir::root() {
  static auto const* const root = new Ptr<Dir>(new Dir(""));
  return *root;
}

Ptr<Entity> Dir::entry(Name const& name) const {
  auto const found = entries_.find(name);
  return found == entries_.end() ? nullptr : found->second;
}

void Dir::entryIs(Name const& name, Ptr<Entity> const& entity) {
  if (entity)
    entries_[name] = entity;
  else
    entries_.erase(name);
}

}  // namespace Mox
