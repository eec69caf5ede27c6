// everyShape::Heap.  Made by schemac from everyShape.schema.
#pragma once

#include <ostream>

#include "Mox/Mox.h"

namespace everyShape {

/// A set with an order, a text form and a parser of its own.
class Heap {
 public:
  class _Type;
  class GenericIf_;
  struct Fields;
  struct Tags;

  /// A node of `item`.
  class MoxItem : public Mox::MapNode<U32, bool> {
   public:
    using MapNode::MapNode;
  };
  using ItemMap = Mox::HashMap<MoxItem, U32, bool>;

  Heap() = default;
  Heap(Mox::String8::IteratorConst& at, Mox::String8::IteratorConst const& end);

  bool item(U32 key) const;
  /// Sets the value under `key`, or inserts it.
  void itemIs(U32 key, bool value);
  /// Inserts; the key must be absent.
  Mox::Ptr<MoxItem> newItem(U32 key, bool value);
  /// Removes, and returns the value that stood there; for a missing key the default of the type.
  bool itemDel(U32 key);
  bool itemDel(ItemMap::Iterator const& at);
  void itemDelAll();
  /// Nobody observes this object: does nothing.
  void itemNotify(U32 key);
  U32 itemCount() const { return item_.count(); }
  ItemMap::Iterator itemIterator() { return ItemMap::Iterator(item_); }
  ItemMap::IteratorConst itemIteratorConst() const { return ItemMap::IteratorConst(item_); }

  U32 hash() const;

  bool operator==(Heap const& other) const;
  bool operator<(Heap const& other) const;
  bool operator<=(Heap const& other) const { return !(other < *this); }
  bool operator>(Heap const& other) const { return !(*this <= other); }
  bool operator>=(Heap const& other) const { return !(*this < other); }

  Mox::MoxType const* fwkType() const;
  static Mox::MoxType* _fwkType();

 private:
  ItemMap item_{4};
};

Mox::String8 valueToStrep(Heap const& value);
std::ostream& operator<<(std::ostream& out, Heap const& value);

}  // namespace everyShape
