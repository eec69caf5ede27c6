// everyShape::Shelf.  Made by schemac from everyShape.schema.
#pragma once

#include "Mox/Mox.h"
#include "everyShape/Mix.h"

namespace everyShape {

/// What stands outside the entity frame.
class Shelf : public Mox::PtrInterface {
 public:
  using Ptr = Mox::Ptr<Shelf>;
  using PtrConst = Mox::Ptr<Shelf const>;

  class _Type;
  class GenericIf_;
  struct Tags;

  /// A node of `books`.
  class MoxBooks : public Mox::RbTreeNode<Mix, bool> {
   public:
    using RbTreeNode::RbTreeNode;
  };
  using BooksMap = Mox::RbTreeMap<MoxBooks, Mix, bool>;

  /// A node of `labels`.
  class MoxLabels : public Mox::MapNode<U32, Mox::String8> {
   public:
    using MapNode::MapNode;
  };
  using LabelsMap = Mox::HashMap<MoxLabels, U32, Mox::String8>;

  explicit Shelf(U8 shelfId);
  ~Shelf() override;
  /// A new one, counted.
  static Mox::Ptr<Shelf> ShelfIs(U8 shelfId);

  U8 shelfId() const { return shelfId_; }

  bool books(Mix key) const;
  /// Sets the value under `key`, or inserts it.
  void booksIs(Mix key, bool value);
  /// Inserts; the key must be absent.
  Mox::Ptr<MoxBooks> newBooks(Mix key, bool value);
  /// Removes, and returns the value that stood there; for a missing key the default of the type.
  bool booksDel(Mix key);
  bool booksDel(BooksMap::Iterator const& at);
  void booksDelAll();
  /// Nobody observes this object: does nothing.
  void booksNotify(Mix key);
  U32 booksCount() const { return books_.count(); }
  BooksMap::Iterator booksIterator() { return BooksMap::Iterator(books_); }
  BooksMap::IteratorConst booksIteratorConst() const { return BooksMap::IteratorConst(books_); }

  Mox::String8 labels(U32 key) const;
  /// Sets the value under `key`, or inserts it.
  void labelsIs(U32 key, Mox::String8 const& value);
  /// Inserts; the key must be absent.
  Mox::Ptr<MoxLabels> newLabels(U32 key, Mox::String8 const& value);
  /// Removes, and returns the value that stood there; for a missing key the default of the type.
  Mox::String8 labelsDel(U32 key);
  Mox::String8 labelsDel(LabelsMap::Iterator const& at);
  void labelsDelAll();
  /// Nobody observes this object: does nothing.
  void labelsNotify(U32 key);
  U32 labelsCount() const { return labels_.count(); }
  LabelsMap::Iterator labelsIterator() { return LabelsMap::Iterator(labels_); }
  LabelsMap::IteratorConst labelsIteratorConst() const { return LabelsMap::IteratorConst(labels_); }

  Mox::MoxType const* fwkType() const override;
  static Mox::MoxType* _fwkType();

 private:
  U8 const shelfId_;
  BooksMap books_;
  LabelsMap labels_{4};
};

/// Makes a free-standing `Shelf`, without a parent.
Mox::Ptr<Shelf> shelfFactory(U8 shelfId);

}  // namespace everyShape
