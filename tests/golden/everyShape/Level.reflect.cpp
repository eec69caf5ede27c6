// everyShape::Level by attribute number: one line for each operation.  Made by schemac from everyShape.schema.
#include "everyShape/Level.reflect.h"

#include "reflect/Arguments.h"
#include "reflect/Perform.h"
#include "reflect/Steps.h"

namespace everyShape {

struct [[gnu::visibility("hidden")]] Level::GenericIf_::MoxTable {
  static constexpr reflect::Row rows[] = {
      {.id = 2, .name = "value", .type = Mox::Builtin<U8>::_fwkType,
          .read = reflect::read<&Level::value>, .write = reflect::construct<Level, U8>},
      {.id = 3, .name = "hash", .type = Mox::Builtin<U32>::_fwkType,
          .read = reflect::read<&Level::hash>},
  };
  static Level* objectOf(GenericIf_ const& face) { return const_cast<Level*>(&face.value_); }
  [[noreturn]] static Mox::GenericIf::Ptr performWithoutRow(GenericIf_&, AttributeOp,
      PtrConst const&, PtrConst const&) {
    throwUnknownAttrException("Level");
  }
};

Mox::GenericIf::Ptr Level::_Type::genericIf(void const* value, bool isConst) const {
  return reflect::active(new GenericIf_(*static_cast<Level const*>(value), isConst));
}
Mox::GenericIf::Ptr Level::_Type::genericIf(Mox::String8 const& text, bool isConst) const {
  return reflect::active(new GenericIf_(Mox::strepToValue<Level>(text), isConst));
}

Level::GenericIf_::GenericIf_(Level const& value, bool isConst) : GenericIf(Level::_fwkType(),
    isConst), value_(value) {
  heldIs(&value_);
}

Mox::GenericIf::Ptr Level::GenericIf_::attributeOp(AttributeOp op, PtrConst const& index,
    PtrConst const& value) {
  requireWritable(op);
  return reflect::performByTable<MoxTable>(*this, op, index, value);
}
Mox::GenericIf::Ptr Level::GenericIf_::clone() {
  return reflect::active(new GenericIf_(value_, isConst()));
}
Mox::GenericIf::Ptr Level::GenericIf_::genericIfListConstructor(PtrConst const& list) const {
  Level made;
  reflect::assignFields(MoxTable::rows, list, &made, "Level");
  return reflect::active(new GenericIf_(made, false));
}
Mox::String8 Level::GenericIf_::strRep() const { return valueToStrep(value_); }

}  // namespace everyShape
