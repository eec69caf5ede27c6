// The attribute tags of everyShape::Brook.  Made by schemac from everyShape.schema.
#pragma once

#include "everyShape/Brook.h"
#include "frame/Deliver.h"
#include "frame/Reinstantiation.h"

namespace everyShape {

struct Brook::Tags {
  struct Grove {
    using Owner = Brook;
    using Value = Mox::Ptr<::everyShape::Grove const>;
    static constexpr Mox::AttributeId id = 258;
    static constexpr char const* name = "grove";
    static constexpr char const* ownerName = "everyShape::Brook";
    static constexpr auto level = nullptr;
    static constexpr void (NotifieeConst::*hook)() = &NotifieeConst::onGrove;
    static Value& field(Owner& owner) { return owner.grove_; }
  };
};

}  // namespace everyShape
