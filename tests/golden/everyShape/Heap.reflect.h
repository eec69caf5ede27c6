// everyShape::Heap by attribute number: its interface, and its descriptor.  Made by schemac from everyShape.schema.
#pragma once

#include "everyShape/Heap.h"

namespace everyShape {

class Heap::_Type : public Mox::MoxType {
 public:
  _Type() : MoxType("Heap", nullptr, nullptr, {}) {}
  Mox::GenericIf::Ptr genericIf(void const* value, bool isConst) const override;
  Mox::GenericIf::Ptr genericIf(Mox::String8 const& text, bool isConst) const override;
};

class Heap::GenericIf_ : public Mox::GenericIf {
 public:
  GenericIf_(Heap const& value, bool isConst);

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

  Heap value_;
};

}  // namespace everyShape
