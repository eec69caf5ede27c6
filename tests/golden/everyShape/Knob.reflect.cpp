// everyShape::Knob by attribute number: one line for each operation.  Made by schemac from everyShape.schema.
#include "everyShape/Knob.reflect.h"

#include "everyShape/Knob.tags.h"
#include "reflect/Arguments.h"
#include "reflect/Perform.h"
#include "reflect/Steps.h"

namespace everyShape {

struct [[gnu::visibility("hidden")]] Knob::GenericIf_::MoxTable {
  static constexpr reflect::Row rows[] = {
      {.id = 2, .name = "turn", .type = Mox::Builtin<U8>::_fwkType,
          .read = reflect::read<&Knob::turn>, .write = reflect::store<U8, offsetof(Knob, turn_)>},
      {.id = 3, .name = "hash", .type = Mox::Builtin<U32>::_fwkType,
          .read = reflect::read<&Knob::hash>},
  };
  static Knob* objectOf(GenericIf_ const& face) { return const_cast<Knob*>(&face.value_); }
  [[noreturn]] static Mox::GenericIf::Ptr performWithoutRow(GenericIf_&, AttributeOp,
      PtrConst const&, PtrConst const&) {
    throwUnknownAttrException("Knob");
  }
};

Mox::GenericIf::Ptr Knob::_Type::genericIf(void const* value, bool isConst) const {
  return reflect::active(new GenericIf_(*static_cast<Knob const*>(value), isConst));
}
Mox::GenericIf::Ptr Knob::_Type::genericIf(Mox::String8 const& text, bool isConst) const {
  return reflect::active(new GenericIf_(Mox::strepToValue<Knob>(text), isConst));
}

Knob::GenericIf_::GenericIf_(Knob const& value, bool isConst) : GenericIf(Knob::_fwkType(),
    isConst), value_(value) {
  heldIs(&value_);
}

Mox::GenericIf::Ptr Knob::GenericIf_::attributeOp(AttributeOp op, PtrConst const& index,
    PtrConst const& value) {
  requireWritable(op);
  return reflect::performByTable<MoxTable>(*this, op, index, value);
}
Mox::GenericIf::Ptr Knob::GenericIf_::clone() {
  return reflect::active(new GenericIf_(value_, isConst()));
}
Mox::GenericIf::Ptr Knob::GenericIf_::genericIfListConstructor(PtrConst const& list) const {
  Knob made;
  reflect::assignFields(MoxTable::rows, list, &made, "Knob");
  return reflect::active(new GenericIf_(made, false));
}
Mox::String8 Knob::GenericIf_::strRep() const { return valueToStrep(value_); }

}  // namespace everyShape
