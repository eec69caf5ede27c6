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
    static auto read(Owner const& owner, Key const& key) { return owner.books(key); }
    static void erase(Owner& owner, Key const& key) { owner.booksDel(key); }
    static void write(Owner& owner, Key const& key, Value const& value) {
      owner.booksIs(key, value);
    }
  };

  struct Labels {
    using Owner = Shelf;
    using Key = U32;
    using Value = Mox::String8;
    using Node = MoxLabels;
    static auto& map(Owner& owner) { return owner.labels_; }
    static auto const& map(Owner const& owner) { return owner.labels_; }
    static auto read(Owner const& owner, Key const& key) { return owner.labels(key); }
    static void erase(Owner& owner, Key const& key) { owner.labelsDel(key); }
    static void write(Owner& owner, Key const& key, Value const& value) {
      owner.labelsIs(key, value);
    }
  };
};

}  // namespace everyShape
