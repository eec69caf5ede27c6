// everyShape::Level by attribute number: its interface, and its descriptor.  Made by schemac from everyShape.schema.
#pragma once

#include "everyShape/Level.h"

namespace everyShape {

class Level::_Type : public Mox::MoxType {
 public:
  _Type() : MoxType("Level", nullptr, nullptr, {}) {}
  Mox::GenericIf::Ptr genericIf(void const* value, bool isConst) const override;
  Mox::GenericIf::Ptr genericIf(Mox::String8 const& text, bool isConst) const override;
};

class Level::GenericIf_ : public Mox::GenericIf {
 public:
  GenericIf_(Level const& value, bool isConst);

  Ptr attributeOp(AttributeOp op, PtrConst const& index, PtrConst const& value) override;
  using GenericIf::clone;
  Ptr clone() override;
  Ptr genericIfListConstructor(PtrConst const& list) const override;
  Mox::String8 strRep() const override;

 private:
  using MoxBase = Mox::GenericIf;
  struct MoxTable;

  Level value_;
};

}  // namespace everyShape
