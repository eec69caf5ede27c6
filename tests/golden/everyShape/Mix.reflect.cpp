// everyShape::Mix by attribute number: one line for each operation.  Made by schemac from everyShape.schema.
#include "everyShape/Mix.reflect.h"

#include "everyShape/Mix.tags.h"
#include "reflect/Arguments.h"
#include "reflect/Perform.h"
#include "reflect/Steps.h"

namespace everyShape {

struct [[gnu::visibility("hidden")]] Mix::GenericIf_::MoxTable {
  static constexpr reflect::Row rows[] = {
      {.id = 2, .name = "small", .type = Mox::Builtin<U8>::_fwkType,
          .read = reflect::read<&Mix::small>, .write = reflect::store<U8, offsetof(Mix, small_)>},
      {.id = 3, .name = "below", .type = Mox::Builtin<S8>::_fwkType,
          .read = reflect::read<&Mix::below>, .write = reflect::store<S8, offsetof(Mix, below_)>},
      {.id = 4, .name = "medium", .type = Mox::Builtin<U16>::_fwkType,
          .read = reflect::read<&Mix::medium>, .write = reflect::store<U16,
          offsetof(Mix, medium_)>},
      {.id = 5, .name = "large", .type = Mox::Builtin<U32>::_fwkType,
          .read = reflect::read<&Mix::large>, .write = reflect::store<U32, offsetof(Mix, large_)>},
      {.id = 6, .name = "text", .type = Mox::Builtin<Mox::String8>::_fwkType,
          .read = reflect::read<&Mix::text>, .write = reflect::store<Mox::String8,
          offsetof(Mix, text_)>},
      {.id = 7, .name = "hash", .type = Mox::Builtin<U32>::_fwkType,
          .read = reflect::read<&Mix::hash>},
  };
  static Mix* objectOf(GenericIf_ const& face) { return const_cast<Mix*>(&face.value_); }
  [[noreturn]] static Mox::GenericIf::Ptr performWithoutRow(GenericIf_&, AttributeOp,
      PtrConst const&, PtrConst const&) {
    throwUnknownAttrException("Mix");
  }
};

Mox::GenericIf::Ptr Mix::_Type::genericIf(void const* value, bool isConst) const {
  return reflect::active(new GenericIf_(*static_cast<Mix const*>(value), isConst));
}
Mox::GenericIf::Ptr Mix::_Type::genericIf(Mox::String8 const& text, bool isConst) const {
  return reflect::active(new GenericIf_(Mox::strepToValue<Mix>(text), isConst));
}

Mix::GenericIf_::GenericIf_(Mix const& value, bool isConst) : GenericIf(Mix::_fwkType(), isConst),
    value_(value) {
  heldIs(&value_);
}

Mox::GenericIf::Ptr Mix::GenericIf_::attributeOp(AttributeOp op, PtrConst const& index,
    PtrConst const& value) {
  requireWritable(op);
  return reflect::performByTable<MoxTable>(*this, op, index, value);
}
Mox::GenericIf::Ptr Mix::GenericIf_::clone() {
  return reflect::active(new GenericIf_(value_, isConst()));
}
Mox::GenericIf::Ptr Mix::GenericIf_::genericIfListConstructor(PtrConst const& list) const {
  Mix made;
  reflect::assignFields(MoxTable::rows, list, &made, "Mix");
  return reflect::active(new GenericIf_(made, false));
}
Mox::String8 Mix::GenericIf_::strRep() const { return valueToStrep(value_); }

}  // namespace everyShape
