// everyShape::Shelf: one line for each operation.  Made by schemac from everyShape.schema.
#include "everyShape/Shelf.h"

#include "everyShape/Shelf.tags.h"
#include "everyShape/Shelf.reflect.h"
#include "everyShape/EveryShape.module.h"
#include "frame/Descriptor.h"
#include "frame/Map.h"

namespace everyShape {

namespace {

Mox::MoxType* shelfType = nullptr;

constexpr frame::ArgRow constructorArgs[] = {
    {"shelfId", "U8"},
};

constexpr frame::AttributeRow attributeRows[] = {
    {130, "shelfId", Mox::Builtin<U8>::_fwkType, nullptr, {0x220109, 0x40000400}, 2},
    {131, "books", Mox::Builtin<bool>::_fwkType, Mix::_fwkType, {0x1A20103, 0x400}, 2},
    {132, "labels", Mox::Builtin<Mox::String8>::_fwkType, Mox::Builtin<U32>::_fwkType,
        {0x1A20103, 0x400}, 2},
};

Mox::MoxAttr const* attributeCache[std::size(attributeRows)];

}  // namespace

frame::TypeRow const shelfRow = {"Shelf", "everyShape::Shelf", frame::TypeKind::object,
    Shelf::_fwkType, [] { return Mox::MoxType::opaque("Mox::PtrInterface"); }, sizeof(Shelf),
    constructorArgs, attributeRows, attributeCache};

Mox::MoxType* Shelf::_fwkType() { return frame::descriptor<_Type>(shelfType, moxInitEveryShape); }
Mox::MoxType const* Shelf::fwkType() const { return _fwkType(); }

Shelf::Shelf(U8 shelfId) : shelfId_(shelfId) {}

Shelf::~Shelf() = default;

Mox::Ptr<Shelf> Shelf::ShelfIs(U8 shelfId) { return new Shelf(shelfId); }

bool Shelf::books(Mix key) const {
  return frame::mapRead<Tags::Books>(*this, key);
}
void Shelf::booksIs(Mix key, bool value) {
  frame::mapIs<Tags::Books>(*this, key, value);
}
Mox::Ptr<Shelf::MoxBooks> Shelf::newBooks(Mix key, bool value) {
  return frame::mapNew<Tags::Books>(*this, key, value);
}
bool Shelf::booksDel(Mix key) {
  return frame::mapDel<Tags::Books>(*this, key);
}
bool Shelf::booksDel(BooksMap::Iterator const& at) {
  return frame::mapDelAt<Tags::Books>(*this, at);
}
void Shelf::booksDelAll() { frame::mapDelAll<Tags::Books>(*this); }
void Shelf::booksNotify(Mix) {}

Mox::String8 Shelf::labels(U32 key) const {
  return frame::mapRead<Tags::Labels>(*this, key);
}
void Shelf::labelsIs(U32 key, Mox::String8 const& value) {
  frame::mapIs<Tags::Labels>(*this, key, value);
}
Mox::Ptr<Shelf::MoxLabels> Shelf::newLabels(U32 key, Mox::String8 const& value) {
  return frame::mapNew<Tags::Labels>(*this, key, value);
}
Mox::String8 Shelf::labelsDel(U32 key) {
  return frame::mapDel<Tags::Labels>(*this, key);
}
Mox::String8 Shelf::labelsDel(LabelsMap::Iterator const& at) {
  return frame::mapDelAt<Tags::Labels>(*this, at);
}
void Shelf::labelsDelAll() { frame::mapDelAll<Tags::Labels>(*this); }
void Shelf::labelsNotify(U32) {}

Mox::Ptr<Shelf> shelfFactory(U8 shelfId) { return new Shelf(shelfId); }

}  // namespace everyShape
