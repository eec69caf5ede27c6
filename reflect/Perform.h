// What is asked of an attribute, done by its row.
#pragma once

#include "reflect/Row.h"

namespace reflect {

/// Raises `RangeException` "null <type>".
[[noreturn]] void nullObject(GenericIf const& face);

/// The rest of `perform`.
GenericIf::Ptr performOther(Row const& row, Target const& target, GenericIf::OpId op,
                            GenericIf::PtrConst const& index, GenericIf::PtrConst const& value);

/// Does what `op` asks of the attribute of `row`; for what is raised see `GenericIf::attributeOp`.
/// An operation of an object is called by `opWrite`: `value` holds its argument, a `List_` where
/// there are several; one that is missing raises `TypeException` with its name.
// Inline is what is asked most: to read and write a scalar.
inline GenericIf::Ptr perform(Row const& row, Target const& target, GenericIf::OpId op,
                              GenericIf::PtrConst const& index, GenericIf::PtrConst const& value) {
  if (index) [[unlikely]]
    return performOther(row, target, op, index, value);
  if (op == GenericIf::opRead && row.read) return row.read(target.object, target.isConst, row.type);
  if (op == GenericIf::opWrite && row.write) {
    row.write(target.object, GenericIf::requireHeld(value, row.type(), row.name));
    return nullptr;
  }
  return performOther(row, target, op, index, value);
}

/// The same for an attribute of the base of a value's type, of which `held` is the base's part; one
/// that the base doesn't have either is unknown to the type of `face`.
GenericIf::Ptr performInBase(GenericIf const& face, void const* held, GenericIf::AttributeOp op,
                             GenericIf::PtrConst const& index, GenericIf::PtrConst const& value);

/// The object of an interface as its rows' steps want it; raises `RangeException` "null <type>" for
/// null.
template <class X>
Target targetOf(Mox::PtrInterface* object, GenericIf const& face) {
  if (!object) [[unlikely]]
    nullObject(face);
  return {static_cast<X*>(object), object, face.isConst()};
}

/// A walk over the collection of `row`, from the start or from `key` on.
GenericIf::AttributeIteratorConst walk(GenericIf const& face, Row const& row, Target const& target);
GenericIf::AttributeIteratorConst walk(GenericIf const& face, Row const& row, Target const& target,
                                       GenericIf::PtrConst const& key);

}  // namespace reflect
