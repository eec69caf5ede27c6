// everyShape::Shelf by attribute number: its interface, and its descriptor.  Made by schemac from everyShape.schema.
#pragma once

#include "everyShape/Shelf.h"

namespace everyShape {

class Shelf::_Type : public Mox::MoxType {
 public:
  _Type() : MoxType("Shelf", nullptr, Mox::MoxType::opaque("Mox::PtrInterface"), {}) {}
  using MoxType::genericIf_;
  Mox::GenericIf::Ptr genericIf_(Mox::PtrInterface* object, bool isConst) const override;
};

class Shelf::GenericIf_ : public Mox::GenericIf {
 public:
  GenericIf_(Mox::Ptr<Shelf> const& object, bool isConst);

  /// The object, which this interface keeps alive; null where there is none.
  Mox::Ptr<Shelf> obj() const;

  Ptr attributeOp(AttributeOp op, PtrConst const& index, PtrConst const& value) override;
  AttributeIteratorConst attributeIteratorConst(Mox::AttributeId id) const override;
  AttributeIteratorConst attributeIteratorKeyConst(Mox::AttributeId id,
      PtrConst const& key) const override;
  using GenericIf::clone;
  Ptr clone() override;
  Mox::String8 strRep() const override;

 private:
  using MoxBase = Mox::GenericIf;
  struct MoxTable;
};

}  // namespace everyShape
