// everyShape::Hue by attribute number: one line for each operation.  Made by schemac from everyShape.schema.
#include "everyShape/Hue.reflect.h"

#include "reflect/Arguments.h"
#include "reflect/Perform.h"
#include "reflect/Steps.h"

namespace everyShape {

struct [[gnu::visibility("hidden")]] Hue::GenericIf_::MoxTable {
  static constexpr reflect::Row rows[] = {
      {.id = 2, .name = "value", .type = Mox::Builtin<U16>::_fwkType,
          .read = reflect::read<&Hue::value>, .write = reflect::construct<Hue, U16>},
      {.id = 3, .name = "hash", .type = Mox::Builtin<U16>::_fwkType,
          .read = reflect::read<&Hue::hash>},
  };
  static Hue* objectOf(GenericIf_ const& face) { return const_cast<Hue*>(&face.value_); }
  [[noreturn]] static Mox::GenericIf::Ptr performWithoutRow(GenericIf_&, AttributeOp,
      PtrConst const&, PtrConst const&) {
    throwUnknownAttrException("Hue");
  }
};

Mox::GenericIf::Ptr Hue::_Type::genericIf(void const* value, bool isConst) const {
  return reflect::active(new GenericIf_(*static_cast<Hue const*>(value), isConst));
}
Mox::GenericIf::Ptr Hue::_Type::genericIf(Mox::String8 const& text, bool isConst) const {
  return reflect::active(new GenericIf_(Mox::strepToValue<Hue>(text), isConst));
}

Hue::GenericIf_::GenericIf_(Hue const& value, bool isConst) : GenericIf(Hue::_fwkType(), isConst),
    value_(value) {
  heldIs(&value_);
}

Mox::GenericIf::Ptr Hue::GenericIf_::attributeOp(AttributeOp op, PtrConst const& index,
    PtrConst const& value) {
  requireWritable(op);
  return reflect::performByTable<MoxTable>(*this, op, index, value);
}
Mox::GenericIf::Ptr Hue::GenericIf_::clone() {
  return reflect::active(new GenericIf_(value_, isConst()));
}
Mox::GenericIf::Ptr Hue::GenericIf_::genericIfListConstructor(PtrConst const& list) const {
  Hue made;
  reflect::assignFields(MoxTable::rows, list, &made, "Hue");
  return reflect::active(new GenericIf_(made, false));
}
Mox::String8 Hue::GenericIf_::strRep() const { return valueToStrep(value_); }

}  // namespace everyShape
