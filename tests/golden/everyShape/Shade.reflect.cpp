// everyShape::Shade by attribute number: one line for each operation.  Made by schemac from everyShape.schema.
#include "everyShape/Shade.reflect.h"

#include "reflect/Arguments.h"
#include "reflect/Perform.h"
#include "reflect/Steps.h"

namespace everyShape {

struct [[gnu::visibility("hidden")]] Shade::GenericIf_::MoxTable {
  static constexpr reflect::Row rows[] = {
      {.id = 2, .name = "value", .type = Mox::Builtin<U16>::_fwkType,
          .read = reflect::read<&Shade::value>, .write = reflect::construct<Shade, U16>},
  };
  static Shade* objectOf(GenericIf_ const& face) { return const_cast<Shade*>(&face.value_); }
  static Mox::GenericIf::Ptr performWithoutRow(GenericIf_& face, AttributeOp op,
      PtrConst const& index, PtrConst const& value) {
    return reflect::performInBase(face, static_cast<Hue const*>(&face.value_), op, index, value);
  }
};

Mox::GenericIf::Ptr Shade::_Type::genericIf(void const* value, bool isConst) const {
  return reflect::active(new GenericIf_(*static_cast<Shade const*>(value), isConst));
}
Mox::GenericIf::Ptr Shade::_Type::genericIf(Mox::String8 const& text, bool isConst) const {
  return reflect::active(new GenericIf_(Mox::strepToValue<Shade>(text), isConst));
}

Shade::GenericIf_::GenericIf_(Shade const& value, bool isConst) : GenericIf(Shade::_fwkType(),
    isConst), value_(value) {
  heldIs(&value_);
}

Mox::GenericIf::Ptr Shade::GenericIf_::attributeOp(AttributeOp op, PtrConst const& index,
    PtrConst const& value) {
  requireWritable(op);
  return reflect::performByTable<MoxTable>(*this, op, index, value);
}
Mox::GenericIf::Ptr Shade::GenericIf_::clone() {
  return reflect::active(new GenericIf_(value_, isConst()));
}
Mox::GenericIf::Ptr Shade::GenericIf_::genericIfListConstructor(PtrConst const& list) const {
  Shade made;
  reflect::assignFields(MoxTable::rows, list, &made, "Shade");
  return reflect::active(new GenericIf_(made, false));
}
Mox::String8 Shade::GenericIf_::strRep() const { return valueToStrep(value_); }

}  // namespace everyShape
