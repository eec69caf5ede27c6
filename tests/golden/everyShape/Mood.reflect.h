// everyShape::Mood by attribute number: its interface.  Made by schemac from everyShape.schema.
#pragma once

#include "everyShape/Mood.h"

namespace everyShape {

/// The interface of one enumerator, which its attribute 1 hands out again.
class Mood_GenericIf_ : public Mox::GenericIf {
 public:
  Mood_GenericIf_(Mood value, bool isConst);

  Ptr attributeOp(AttributeOp op, PtrConst const& index, PtrConst const& value) override;
  using GenericIf::clone;
  Ptr clone() override;
  Mox::String8 strRep() const override;

 private:
  Mood value_;
};

}  // namespace everyShape
