// The attribute tags of everyShape::Branch.  Made by schemac from everyShape.schema.
#pragma once

#include "everyShape/Branch.h"
#include "frame/Deliver.h"
#include "frame/Reinstantiation.h"

namespace everyShape {

struct Branch::Tags {
  struct Twig {
    using Owner = Branch;
    using Child = ::everyShape::Leaf;
    using Value = Mox::Ptr<Child>;
    static constexpr Mox::AttributeId id = 388;
    static constexpr char const* name = "twig";
    static constexpr char const* ownerName = "everyShape::Branch";
    static constexpr auto level = &NotifieeConst::moxLevel_;
    static constexpr void (NotifieeConst::*hook)() = &NotifieeConst::onTwig;
    static Value& field(Owner& owner) { return owner.twig_; }
    /// Whether the version steps when the child is kept.
    static constexpr bool keepingSteps = true;
    static bool isKept(Child const& child, ::Mox::Name const& name, U8 lane,
        ::everyShape::Mix mix) {
      return child.name() == name && child.lane() == lane && child.mix() == mix;
    }
  };

  struct Bud {
    using Owner = Branch;
    using Child = ::everyShape::Leaf;
    using Value = Mox::Ptr<Child>;
    static constexpr Mox::AttributeId id = 389;
    static constexpr char const* name = "bud";
    static constexpr char const* ownerName = "everyShape::Branch";
    static constexpr auto level = &NotifieeConst::moxLevel_;
    static constexpr void (NotifieeConst::*hook)() = &NotifieeConst::onBud;
    static Value& field(Owner& owner) { return owner.bud_; }
    /// Whether the version steps when the child is kept.
    static constexpr bool keepingSteps = false;
    static bool isKept(Child const& child, ::Mox::Name const& name, U8 lane,
        ::everyShape::Mix mix) {
      return child.name() == name && child.lane() == lane && child.mix() == mix;
    }
  };
};

}  // namespace everyShape
