// everyShape::Engine by attribute number: its interface, and its descriptor.  Made by schemac from everyShape.schema.
#pragma once

#include "everyShape/Engine.h"

namespace everyShape {

class Engine::_Type : public Mox::MoxType {
 public:
  _Type() : MoxType("Engine", nullptr, nullptr, {}) {}
  using MoxType::genericIf_;
  Mox::GenericIf::Ptr genericIf_(Mox::PtrInterface* object, bool isConst) const override;
};

class Engine::GenericIf_ : public Mox::GenericIf {
 public:
  GenericIf_(Mox::Ptr<Engine> const& object, bool isConst);

  /// The object, which this interface keeps alive; null where there is none.
  Mox::Ptr<Engine> obj() const;

  Ptr attributeOp(AttributeOp op, PtrConst const& index, PtrConst const& value) override;
  using GenericIf::clone;
  Ptr clone() override;
  Mox::String8 strRep() const override;

 private:
  using MoxBase = Mox::GenericIf;
  struct MoxTable;
};

}  // namespace everyShape
