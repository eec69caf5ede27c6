// The attribute tags of everyShape::Grove.  Made by schemac from everyShape.schema.
#pragma once

#include "everyShape/Grove.h"
#include "everyShape/Brook.h"
#include "frame/Deliver.h"
#include "frame/Reinstantiation.h"

namespace everyShape {

struct Grove::Tags {
  struct Tree {
    using Owner = Grove;
    using Child = ::everyShape::Leaf;
    using Key = ::Mox::Name;
    using Node = MoxTree;
    static constexpr Mox::AttributeId id = 258;
    static constexpr char const* name = "tree";
    static constexpr char const* ownerName = "everyShape::Grove";
    static constexpr auto level = nullptr;
    static constexpr void (NotifieeConst::*hook)(Key) = &NotifieeConst::onTree;
    static auto& map(Owner& owner) { return owner.tree_; }
    static auto const& map(Owner const& owner) { return owner.tree_; }
    static auto read(Owner const& owner, Key const& key) { return owner.tree(key); }
    static void erase(Owner& owner, Key const& key) { owner.treeDel(key); }
    static Child* childOf(Node& node) { return node.value().ptr(); }
    static Mox::Ptr<Node> nodeFor(Mox::Ptr<Child> const& child) {
      return new Node(child->name(), child);
    }
    static void requireSame(Child const&, U8, ::everyShape::Mix) {}
  };

  struct Row {
    using Owner = Grove;
    using Key = U8;
    using Value = Mox::Ptr<::everyShape::Leaf>;
    using Node = MoxRow;
    static constexpr Mox::AttributeId id = 259;
    static constexpr char const* name = "row";
    static constexpr char const* ownerName = "everyShape::Grove";
    static constexpr auto level = nullptr;
    static constexpr void (NotifieeConst::*hook)(Key) = &NotifieeConst::onRow;
    static auto& map(Owner& owner) { return owner.row_; }
    static auto const& map(Owner const& owner) { return owner.row_; }
    static auto read(Owner const& owner, Key const& key) { return owner.row(key); }
    static void erase(Owner& owner, Key const& key) { owner.rowDel(key); }
    static void write(Owner& owner, Key const& key, Value const& target) {
      owner.rowIs(key, target);
    }
  };

  struct Brook {
    using Owner = Grove;
    using Value = Mox::Ptr<::everyShape::Brook>;
    static constexpr Mox::AttributeId id = 262;
    static constexpr char const* name = "brook";
    static constexpr char const* ownerName = "everyShape::Grove";
    static constexpr auto level = nullptr;
    static constexpr void (NotifieeConst::*hook)() = &NotifieeConst::onBrook;
    static Value& field(Owner& owner) { return owner.brook_; }
  };

  struct Level {
    using Owner = Grove;
    using Value = ::everyShape::Level;
    static constexpr Mox::AttributeId id = 263;
    static constexpr char const* name = "level";
    static constexpr char const* ownerName = "everyShape::Grove";
    static constexpr auto level = nullptr;
    static constexpr void (NotifieeConst::*hook)() = &NotifieeConst::onLevel;
    static Value& field(Owner& owner) { return owner.level_; }
  };

  struct ByLevel {
    using Owner = Grove;
    using Key = ::everyShape::Level;
    using Value = ::everyShape::Knob;
    using Node = MoxByLevel;
    static constexpr Mox::AttributeId id = 264;
    static constexpr char const* name = "byLevel";
    static constexpr char const* ownerName = "everyShape::Grove";
    static constexpr auto level = nullptr;
    static constexpr void (NotifieeConst::*hook)(Key) = &NotifieeConst::onByLevel;
    static auto& map(Owner& owner) { return owner.byLevel_; }
    static auto const& map(Owner const& owner) { return owner.byLevel_; }
    static auto read(Owner const& owner, Key const& key) { return owner.byLevel(key); }
    static void erase(Owner& owner, Key const& key) { owner.byLevelDel(key); }
    static void write(Owner& owner, Key const& key, Value const& value) {
      owner.byLevelIs(key, value);
    }
  };
};

}  // namespace everyShape
