// The attribute tags of everyShape::Leaf.  Made by schemac from everyShape.schema.
#pragma once

#include "everyShape/Leaf.h"
#include "frame/Deliver.h"
#include "frame/Reinstantiation.h"

namespace everyShape {

struct Leaf::Tags {
  struct Lit {
    using Owner = Leaf;
    using Value = bool;
    static constexpr Mox::AttributeId id = 260;
    static constexpr char const* name = "lit";
    static constexpr char const* ownerName = "everyShape::Leaf";
    static constexpr auto level = nullptr;
    static constexpr void (NotifieeConst::*hook)() = &NotifieeConst::onLit;
    static Value& field(Owner& owner) { return owner.lit_; }
  };
};

}  // namespace everyShape
