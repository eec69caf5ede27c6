// The attribute tags of everyShape::Stem.  Made by schemac from everyShape.schema.
#pragma once

#include "everyShape/Stem.h"
#include "frame/Deliver.h"
#include "frame/Reinstantiation.h"

namespace everyShape {

struct Stem::Tags {
  struct Girth {
    using Owner = Stem;
    using Value = U32;
    static constexpr Mox::AttributeId id = 259;
    static constexpr char const* name = "girth";
    static constexpr char const* ownerName = "everyShape::Stem";
    static constexpr auto level = nullptr;
    static constexpr void (NotifieeConst::*hook)() = &NotifieeConst::onGirth;
    static Value& field(Owner& owner) { return owner.girth_; }
  };

  struct Rings {
    using Owner = Stem;
    using Value = U8;
    static constexpr Mox::AttributeId id = 260;
    static constexpr char const* name = "rings";
    static constexpr char const* ownerName = "everyShape::Stem";
    static constexpr auto level = nullptr;
    static constexpr void (NotifieeConst::*hook)() = &NotifieeConst::onRings;
    static Value& field(Owner& owner) { return owner.rings_; }
  };

  struct Root {
    using Owner = Stem;
    using Value = Mox::Ptr<::everyShape::Leaf>;
    static constexpr Mox::AttributeId id = 261;
    static constexpr char const* name = "root";
    static constexpr char const* ownerName = "everyShape::Stem";
    static constexpr auto level = nullptr;
    static constexpr void (NotifieeConst::*hook)() = &NotifieeConst::onRoot;
    static Value& field(Owner& owner) { return owner.root_; }
  };
};

}  // namespace everyShape
