// What is asked of an attribute, done by its row.
#pragma once

#include "reflect/Row.h"

#include <concepts>

namespace reflect {

/// Raises `RangeException` "null <type>".
[[noreturn]] void nullObject(GenericIf const& face);

/// The rest of `perform`.
GenericIf::Ptr performOther(Row const& row, void* object, GenericIf const& face, GenericIf::OpId op,
                            GenericIf::PtrConst const& index, GenericIf::PtrConst const& value);

/// Does what `op` asks of the attribute of `row`; for what is raised see `GenericIf::attributeOp`.
/// An operation of an object is called by `opWrite`: `value` holds its argument, a `List_` where
/// there are several; one that is missing raises `TypeException` with its name.
// Inline is what is asked most: to read and write a scalar.
inline GenericIf::Ptr perform(Row const& row, void* object, GenericIf const& face,
                              GenericIf::OpId op, GenericIf::PtrConst const& index,
                              GenericIf::PtrConst const& value) {
  if (index) [[unlikely]]
    return performOther(row, object, face, op, index, value);
  if (op == GenericIf::opRead && row.read) return row.read(row, object, face);
  if (op == GenericIf::opWrite && row.write) {
    row.write(row, object, value);
    return nullptr;
  }
  return performOther(row, object, face, op, index, value);
}

/// What an interface says of its class: the rows, the object that they are about, and what becomes
/// of a number that they don't have.
template <class Table, class Face>
concept TableOf = requires(Face& face, GenericIf::AttributeOp op,
                           GenericIf::PtrConst const& given) {
  { rowOf(Table::rows, op.attrId) } -> std::same_as<Row const*>;
  { Table::objectOf(face) } -> std::convertible_to<void*>;
  { Table::performWithoutRow(face, op, given, given) } -> std::convertible_to<GenericIf::Ptr>;
};

/// The rest of `performByTable`.
// Apart, so that the usual way keeps its arguments in registers.
template <class Table, class Face>
[[gnu::noinline]] GenericIf::Ptr performSearched(Face& face, GenericIf::AttributeOp op,
                                                 GenericIf::PtrConst const& index,
                                                 GenericIf::PtrConst const& value) {
  Row const* const row = rowOf(Table::rows, op.attrId);
  if (!row) return Table::performWithoutRow(face, op, index, value);
  return perform(*row, Table::objectOf(face), face, op.opId, index, value);
}

/// `attributeOp` of `face`.
template <class Table, class Face>
requires TableOf<Table, Face> GenericIf::Ptr performByTable(Face& face, GenericIf::AttributeOp op,
                                                            GenericIf::PtrConst const& index,
                                                            GenericIf::PtrConst const& value) {
  Row const* const row = placedRow<Table>(op.attrId);
  if (!row) [[unlikely]]
    return performSearched<Table>(face, op, index, value);
  return perform(*row, Table::objectOf(face), face, op.opId, index, value);
}

/// `attributeOp` for an attribute of the base of a value's type; `held` is the base's part.  One
/// that the base doesn't have either is unknown to the type of `face`.
GenericIf::Ptr performInBase(GenericIf const& face, void const* held, GenericIf::AttributeOp op,
                             GenericIf::PtrConst const& index, GenericIf::PtrConst const& value);

/// What the interface of an `X` observes; raises `RangeException` "null <type>" for nothing.
template <class X>
X* observed(GenericIf const& face) {
  auto* const object = const_cast<Mox::PtrInterface*>(face.moxNotifier());
  if (!object) [[unlikely]]
    nullObject(face);
  return static_cast<X*>(object);
}

/// A walk over the collection of `row`, from the start or from `key` on.
GenericIf::AttributeIteratorConst walk(GenericIf const& face, Row const& row, void* object);
GenericIf::AttributeIteratorConst walk(GenericIf const& face, Row const& row, void* object,
                                       GenericIf::PtrConst const& key);

}  // namespace reflect
