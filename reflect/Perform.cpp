// What is asked of an attribute, done by its row.
#include "reflect/Perform.h"

#include "Mox/Exception.h"
#include "reflect/Arguments.h"

namespace reflect {

namespace {

void const* keyOf(Row const& row, GenericIf::PtrConst const& index) {
  return GenericIf::requireHeld(index.ptr(), row.key(), row.name);
}

void const* valueOf(Row const& row, GenericIf::PtrConst const& value) {
  return GenericIf::requireHeld(value.ptr(), row.type(), row.name);
}

void writeElement(Row const& row, void* object, GenericIf::PtrConst const& index,
                  GenericIf::PtrConst const& value) {
  Collection const& collection = *row.collection;
  if (collection.write) {
    void const* const key = keyOf(row, index);
    return collection.write(object, key, valueOf(row, value));
  }
  if (!collection.enter)
    GenericIf::throwOpNotSupportedException(row.name, GenericIf::opWrite, false);
  // The element bears its key.
  if (index) GenericIf::throwBadIndexAttrException(row.name);
  collection.enter(object, valueOf(row, value));
}

GenericIf::Ptr performOnCollection(Row const& row, void* object, GenericIf const& face,
                                   GenericIf::OpId op, GenericIf::PtrConst const& index,
                                   GenericIf::PtrConst const& value) {
  Collection const& collection = *row.collection;
  switch (op) {
    case GenericIf::opRead:
      return collection.read(row, object, face, keyOf(row, index));
    case GenericIf::opCount:
      return Mox::primitiveIf(collection.count(object), face.isConst());
    case GenericIf::opChanges:
      return Mox::primitiveIf(collection.changes(object), face.isConst());
    case GenericIf::opIsMember:
      return Mox::primitiveIf(collection.isMember(object, keyOf(row, index)), face.isConst());
    case GenericIf::opWrite:
      writeElement(row, object, index, value);
      return nullptr;
    case GenericIf::opErase:
      collection.erase(object, keyOf(row, index));
      return nullptr;
    default:
      GenericIf::throwOpNotSupportedException(row.name, op, false);
  }
}

}  // namespace

void nullObject(GenericIf const& face) {
  Mox::throwRangeException("null " + face.type()->moxName().stringValue());
}

GenericIf::Ptr performOther(Row const& row, void* object, GenericIf const& face, GenericIf::OpId op,
                            GenericIf::PtrConst const& index, GenericIf::PtrConst const& value) {
  if (row.collection) return performOnCollection(row, object, face, op, index, value);
  if (index) GenericIf::throwBadIndexAttrException(row.name);
  if (op == GenericIf::opWrite && row.call) {
    Arguments const arguments(row, value);
    return row.call(row, object, face, arguments.held());
  }
  GenericIf::throwOpNotSupportedException(row.name, op, false);
}

GenericIf::Ptr performInBase(GenericIf const& face, void const* held, GenericIf::AttributeOp op,
                             GenericIf::PtrConst const& index, GenericIf::PtrConst const& value) {
  Mox::MoxType const& type = *face.type();
  if (!type.attributeById(op.attrId))
    GenericIf::throwUnknownAttrException(type.moxName().stringValue());
  return type.base()->genericIf(held, face.isConst())->attributeOp(op, index, value);
}

GenericIf::AttributeIteratorConst walk(GenericIf const& face, Row const& row, void* object) {
  return {&face, row.collection->walk(row, object, face, nullptr)};
}

GenericIf::AttributeIteratorConst walk(GenericIf const& face, Row const& row, void* object,
                                       GenericIf::PtrConst const& key) {
  return {&face, row.collection->walk(row, object, face, keyOf(row, key))};
}

}  // namespace reflect
