// The attribute tags of everyShape::Derived.  Made by schemac from everyShape.schema.
#pragma once

#include "everyShape/Derived.h"
#include "frame/Deliver.h"
#include "frame/Reinstantiation.h"

namespace everyShape {

struct Derived::Tags {
  struct Extra {
    using Owner = Derived;
    using Value = U32;
    static constexpr Mox::AttributeId id = 386;
    static constexpr char const* name = "extra";
    static constexpr char const* ownerName = "everyShape::Derived";
    static constexpr auto level = &NotifieeConst::moxLevel_;
    static constexpr void (NotifieeConst::*hook)() = &NotifieeConst::onExtra;
    static Value& field(Owner& owner) { return owner.extra_; }
  };

  struct Marks {
    using Owner = Derived;
    using Key = U8;
    using Value = bool;
    using Node = MoxMarks;
    static constexpr Mox::AttributeId id = 387;
    static constexpr char const* name = "marks";
    static constexpr char const* ownerName = "everyShape::Derived";
    static constexpr auto level = &NotifieeConst::moxLevel_;
    static constexpr void (NotifieeConst::*hook)(Key) = &NotifieeConst::onMarks;
    static auto& map(Owner& owner) { return owner.marks_; }
    static auto const& map(Owner const& owner) { return owner.marks_; }
    static auto read(Owner const& owner, Key const& key) { return owner.marks(key); }
    static void erase(Owner& owner, Key const& key) { owner.marksDel(key); }
    static void write(Owner& owner, Key const& key, Value const& value) {
      owner.marksIs(key, value);
    }
  };
};

}  // namespace everyShape
