// everyShape::Dial by attribute number: one line for each operation.  Made by schemac from everyShape.schema.
#include "everyShape/Dial.reflect.h"

#include "reflect/Arguments.h"
#include "reflect/Perform.h"
#include "reflect/Steps.h"

namespace everyShape {

struct [[gnu::visibility("hidden")]] Dial::GenericIf_::MoxTable {
  static constexpr reflect::Row rows[] = {
      {.id = 2, .name = "value", .type = Mox::Builtin<U32>::_fwkType,
          .read = reflect::read<&Dial::value>, .write = reflect::construct<Dial, U32>},
      {.id = 3, .name = "hash", .type = Mox::Builtin<U32>::_fwkType,
          .read = reflect::read<&Dial::hash>},
  };
  static Dial* objectOf(GenericIf_ const& face) { return const_cast<Dial*>(&face.value_); }
  [[noreturn]] static Mox::GenericIf::Ptr performWithoutRow(GenericIf_&, AttributeOp,
      PtrConst const&, PtrConst const&) {
    throwUnknownAttrException("Dial");
  }
};

Mox::GenericIf::Ptr Dial::_Type::genericIf(void const* value, bool isConst) const {
  return reflect::active(new GenericIf_(*static_cast<Dial const*>(value), isConst));
}
Mox::GenericIf::Ptr Dial::_Type::genericIf(Mox::String8 const& text, bool isConst) const {
  return reflect::active(new GenericIf_(Mox::strepToValue<Dial>(text), isConst));
}

Dial::GenericIf_::GenericIf_(Dial const& value, bool isConst) : GenericIf(Dial::_fwkType(),
    isConst), value_(value) {
  heldIs(&value_);
}

Mox::GenericIf::Ptr Dial::GenericIf_::attributeOp(AttributeOp op, PtrConst const& index,
    PtrConst const& value) {
  requireWritable(op);
  return reflect::performByTable<MoxTable>(*this, op, index, value);
}
Mox::GenericIf::Ptr Dial::GenericIf_::clone() {
  return reflect::active(new GenericIf_(value_, isConst()));
}
Mox::GenericIf::Ptr Dial::GenericIf_::genericIfListConstructor(PtrConst const& list) const {
  Dial made;
  reflect::assignFields(MoxTable::rows, list, &made, "Dial");
  return reflect::active(new GenericIf_(made, false));
}
Mox::String8 Dial::GenericIf_::strRep() const { return valueToStrep(value_); }

}  // namespace everyShape
