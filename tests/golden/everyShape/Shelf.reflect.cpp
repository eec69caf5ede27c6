// everyShape::Shelf by attribute number: one line for each operation.  Made by schemac from everyShape.schema.
#include "everyShape/Shelf.reflect.h"

#include "everyShape/Shelf.tags.h"
#include "reflect/Arguments.h"
#include "reflect/Perform.h"
#include "reflect/Steps.h"
#include "reflect/Walk.h"

namespace everyShape {

struct [[gnu::visibility("hidden")]] Shelf::GenericIf_::MoxTable {
  static constexpr reflect::Row rows[] = {
      {.id = 130, .name = "shelfId", .type = Mox::Builtin<U8>::_fwkType,
          .read = reflect::read<&Shelf::shelfId>},
      {.id = 131, .name = "books", .type = Mox::Builtin<bool>::_fwkType, .key = Mix::_fwkType,
          .collection = &reflect::collection<Shelf::Tags::Books>},
      {.id = 132, .name = "labels", .type = Mox::Builtin<Mox::String8>::_fwkType,
          .key = Mox::Builtin<U32>::_fwkType,
          .collection = &reflect::collection<Shelf::Tags::Labels>},
  };
  static Shelf* objectOf(GenericIf_ const& face) { return reflect::observed<Shelf>(face); }
  [[noreturn]] static Mox::GenericIf::Ptr performWithoutRow(GenericIf_&, AttributeOp,
      PtrConst const&, PtrConst const&) {
    throwUnknownAttrException("Shelf");
  }
};

Mox::GenericIf::Ptr Shelf::_Type::genericIf_(Mox::PtrInterface* object, bool isConst) const {
  return reflect::active(new GenericIf_(reflect::requireObject<Shelf>(object), isConst));
}

Shelf::GenericIf_::GenericIf_(Mox::Ptr<Shelf> const& object,
    bool isConst) : GenericIf(Shelf::_fwkType(), isConst) {
  heldIs(&moxNotifierWord());
  notifierIs(object);
}

Mox::Ptr<Shelf> Shelf::GenericIf_::obj() const {
  return const_cast<Shelf*>(static_cast<Shelf const*>(moxNotifier()));
}

Mox::GenericIf::Ptr Shelf::GenericIf_::attributeOp(AttributeOp op, PtrConst const& index,
    PtrConst const& value) {
  requireWritable(op);
  return reflect::performByTable<MoxTable>(*this, op, index, value);
}
Mox::GenericIf::AttributeIteratorConst Shelf::GenericIf_::attributeIteratorConst(
    Mox::AttributeId id) const {
  auto const* const row = reflect::collectionOf(MoxTable::rows, id);
  return row ? reflect::walk(*this, *row,
      MoxTable::objectOf(*this)) : MoxBase::attributeIteratorConst(id);
}
Mox::GenericIf::AttributeIteratorConst Shelf::GenericIf_::attributeIteratorKeyConst(
    Mox::AttributeId id, PtrConst const& key) const {
  auto const* const row = reflect::collectionOf(MoxTable::rows, id);
  return row ? reflect::walk(*this, *row, MoxTable::objectOf(*this),
      key) : MoxBase::attributeIteratorKeyConst(id, key);
}
Mox::GenericIf::Ptr Shelf::GenericIf_::clone() {
  return reflect::active(new GenericIf_(obj(), isConst()));
}
Mox::String8 Shelf::GenericIf_::strRep() const {
  return Mox::valueToStrepOfRawPtr(moxNotifier(), typeid(Shelf));
}

}  // namespace everyShape
