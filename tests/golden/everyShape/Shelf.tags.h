// The attribute tags of everyShape::Shelf.  Made by schemac from everyShape.schema.
#pragma once

#include "everyShape/Shelf.h"

namespace everyShape {

struct Shelf::Tags {
  struct Books {
    using Owner = Shelf;
    using Key = ::everyShape::Mix;
    using Value = bool;
    using Node = MoxBooks;
    static auto& map(Owner& owner) { return owner.books_; }
    static auto const& map(Owner const& owner) { return owner.books_; }
  };

  struct Labels {
    using Owner = Shelf;
    using Key = U32;
    using Value = Mox::String8;
    using Node = MoxLabels;
    static auto& map(Owner& owner) { return owner.labels_; }
    static auto const& map(Owner const& owner) { return owner.labels_; }
  };
};

}  // namespace everyShape
