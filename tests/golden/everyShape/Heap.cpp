// everyShape::Heap: one line for each operation.  Made by schemac from everyShape.schema.
#include "everyShape/Heap.h"

#include "everyShape/Heap.tags.h"
#include "everyShape/Heap.reflect.h"
#include "everyShape/EveryShape.module.h"
#include "frame/Descriptor.h"
#include "frame/Map.h"

namespace everyShape {

namespace {

Mox::MoxType* heapType = nullptr;

constexpr frame::AttributeRow attributeRows[] = {
    {2, "item", Mox::Builtin<bool>::_fwkType, Mox::Builtin<U32>::_fwkType, {0x1A20103, 0x400}, 2},
    {3, "hash", Mox::Builtin<U32>::_fwkType, nullptr, {0x220001, 0x40000400}, 0},
};

Mox::MoxAttr const* attributeCache[std::size(attributeRows)];

}  // namespace

frame::TypeRow const heapRow = {"Heap", "everyShape::Heap", frame::TypeKind::value, Heap::_fwkType,
    nullptr, sizeof(Heap), {}, attributeRows, attributeCache};

Mox::MoxType* Heap::_fwkType() { return frame::descriptor<_Type>(heapType, moxInitEveryShape); }
Mox::MoxType const* Heap::fwkType() const { return _fwkType(); }

bool Heap::item(U32 key) const {
  return frame::mapRead<Tags::Item>(*this, key);
}
void Heap::itemIs(U32 key, bool value) {
  frame::mapIs<Tags::Item>(*this, key, value);
}
Mox::Ptr<Heap::MoxItem> Heap::newItem(U32 key, bool value) {
  return frame::mapNew<Tags::Item>(*this, key, value);
}
bool Heap::itemDel(U32 key) {
  return frame::mapDel<Tags::Item>(*this, key);
}
bool Heap::itemDel(ItemMap::Iterator const& at) {
  return frame::mapDelAt<Tags::Item>(*this, at);
}
void Heap::itemDelAll() { frame::mapDelAll<Tags::Item>(*this); }
void Heap::itemNotify(U32) {}

std::ostream& operator<<(std::ostream& out, Heap const& value) {
  return out << valueToStrep(value);
}

}  // namespace everyShape
