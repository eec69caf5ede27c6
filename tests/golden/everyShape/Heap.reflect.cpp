// everyShape::Heap by attribute number: one line for each operation.  Made by schemac from everyShape.schema.
#include "everyShape/Heap.reflect.h"

#include "everyShape/Heap.tags.h"
#include "reflect/Arguments.h"
#include "reflect/Perform.h"
#include "reflect/Steps.h"
#include "reflect/Walk.h"

namespace everyShape {

struct [[gnu::visibility("hidden")]] Heap::GenericIf_::MoxTable {
  static constexpr reflect::Row rows[] = {
      {.id = 2, .name = "item", .type = Mox::Builtin<bool>::_fwkType,
          .key = Mox::Builtin<U32>::_fwkType, .collection = &reflect::collection<Heap::Tags::Item>},
      {.id = 3, .name = "hash", .type = Mox::Builtin<U32>::_fwkType,
          .read = reflect::read<&Heap::hash>},
  };
  static Heap* objectOf(GenericIf_ const& face) { return const_cast<Heap*>(&face.value_); }
  [[noreturn]] static Mox::GenericIf::Ptr performWithoutRow(GenericIf_&, AttributeOp,
      PtrConst const&, PtrConst const&) {
    throwUnknownAttrException("Heap");
  }
};

Mox::GenericIf::Ptr Heap::_Type::genericIf(void const* value, bool isConst) const {
  return reflect::active(new GenericIf_(*static_cast<Heap const*>(value), isConst));
}
Mox::GenericIf::Ptr Heap::_Type::genericIf(Mox::String8 const& text, bool isConst) const {
  return reflect::active(new GenericIf_(Mox::strepToValue<Heap>(text), isConst));
}

Heap::GenericIf_::GenericIf_(Heap const& value, bool isConst) : GenericIf(Heap::_fwkType(),
    isConst), value_(value) {
  heldIs(&value_);
}

Mox::GenericIf::Ptr Heap::GenericIf_::attributeOp(AttributeOp op, PtrConst const& index,
    PtrConst const& value) {
  requireWritable(op);
  return reflect::performByTable<MoxTable>(*this, op, index, value);
}
Mox::GenericIf::AttributeIteratorConst Heap::GenericIf_::attributeIteratorConst(
    Mox::AttributeId id) const {
  auto const* const row = reflect::collectionOf(MoxTable::rows, id);
  return row ? reflect::walk(*this, *row,
      MoxTable::objectOf(*this)) : MoxBase::attributeIteratorConst(id);
}
Mox::GenericIf::AttributeIteratorConst Heap::GenericIf_::attributeIteratorKeyConst(
    Mox::AttributeId id, PtrConst const& key) const {
  auto const* const row = reflect::collectionOf(MoxTable::rows, id);
  return row ? reflect::walk(*this, *row, MoxTable::objectOf(*this),
      key) : MoxBase::attributeIteratorKeyConst(id, key);
}
Mox::GenericIf::Ptr Heap::GenericIf_::clone() {
  return reflect::active(new GenericIf_(value_, isConst()));
}
Mox::String8 Heap::GenericIf_::strRep() const { return valueToStrep(value_); }

}  // namespace everyShape
