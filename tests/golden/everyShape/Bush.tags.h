// The attribute tags of everyShape::Bush.  Made by schemac from everyShape.schema.
#pragma once

#include "everyShape/Bush.h"
#include "frame/Deliver.h"
#include "frame/Reinstantiation.h"

namespace everyShape {

struct Bush::Tags {
  struct Branches {
    using Owner = Bush;
    using Child = ::everyShape::Branch;
    using Key = U16;
    using Node = Child;
    static constexpr Mox::AttributeId id = 259;
    static constexpr char const* name = "branches";
    static constexpr char const* ownerName = "everyShape::Bush";
    static constexpr auto level = nullptr;
    static constexpr void (NotifieeConst::*hook)(Key) = &NotifieeConst::onBranches;
    static auto& map(Owner& owner) { return owner.branches_; }
    static auto const& map(Owner const& owner) { return owner.branches_; }
    static auto read(Owner const& owner, Key const& key) { return owner.branches(key); }
    static void erase(Owner& owner, Key const& key) { owner.branchesDel(key); }
    static Child* childOf(Node& node) { return &node; }
    static Mox::Ptr<Node> nodeFor(Mox::Ptr<Child> const& child) { return child; }
    static void requireSame(Child const& child, Mox::Ptr<::everyShape::Leaf> const& leaf,
        ::everyShape::Mood mood) {
      Key const key = child.port();
      frame::requireSame(key, "leaf", leaf, child.leaf());
      frame::requireSame(key, "mood", mood, child.mood());
    }
  };
};

}  // namespace everyShape
