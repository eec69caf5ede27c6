// The fields and tags of everyShape::Heap.  Made by schemac from everyShape.schema.
#pragma once

#include <cstddef>

#include "everyShape/Heap.h"
#include "frame/Record.h"

namespace everyShape {

struct Heap::Tags {
  struct Item {
    using Owner = Heap;
    using Key = U32;
    using Value = bool;
    using Node = MoxItem;
    static auto& map(Owner& owner) { return owner.item_; }
    static auto const& map(Owner const& owner) { return owner.item_; }
    static auto read(Owner const& owner, Key const& key) { return owner.item(key); }
    static void erase(Owner& owner, Key const& key) { owner.itemDel(key); }
    static void write(Owner& owner, Key const& key, Value const& value) {
      owner.itemIs(key, value);
    }
  };
};

}  // namespace everyShape
