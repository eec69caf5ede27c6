// everyShape::Mix: one line for each operation.  Made by schemac from everyShape.schema.
#include "everyShape/Mix.h"

#include "everyShape/Mix.tags.h"
#include "everyShape/Mix.reflect.h"
#include "everyShape/EveryShape.module.h"
#include "frame/Descriptor.h"

namespace everyShape {

namespace {

Mox::MoxType* mixType = nullptr;

constexpr frame::ArgRow constructorArgs[] = {
    {"small", "U8"},
    {"below", "S8"},
    {"medium", "U16"},
    {"large", "U32"},
    {"text", "Mox::String"},
};

constexpr frame::AttributeRow attributeRows[] = {
    {2, "small", Mox::Builtin<U8>::_fwkType, nullptr, {0x220109, 0x40000400}, 2},
    {3, "below", Mox::Builtin<S8>::_fwkType, nullptr, {0x220109, 0x40000400}, 2},
    {4, "medium", Mox::Builtin<U16>::_fwkType, nullptr, {0x220109, 0x40000400}, 2},
    {5, "large", Mox::Builtin<U32>::_fwkType, nullptr, {0x220109, 0x40000400}, 2},
    {6, "text", Mox::Builtin<Mox::String8>::_fwkType, nullptr, {0x220109, 0x40000400}, 2},
    {7, "hash", Mox::Builtin<U32>::_fwkType, nullptr, {0x220001, 0x40000400}, 0},
};

Mox::MoxAttr const* attributeCache[std::size(attributeRows)];

}  // namespace

frame::TypeRow const mixRow = {"Mix", "everyShape::Mix", frame::TypeKind::value, Mix::_fwkType,
    nullptr, sizeof(Mix), constructorArgs, attributeRows, attributeCache};

Mox::MoxType* Mix::_fwkType() { return frame::descriptor<_Type>(mixType, moxInitEveryShape); }
Mox::MoxType const* Mix::fwkType() const { return _fwkType(); }

Mix::Mix(U8 small, S8 below, U16 medium, U32 large, Mox::String8 const& text) : small_(small),
    below_(below), medium_(medium), large_(large), text_(text) {}
Mix::Mix(Mox::String8::IteratorConst& at, Mox::String8::IteratorConst const& end) {
  frame::recordParse(Fields::table, this, at, end);
}
Mix::Mix(Mox::NboAttrLog::In* in, Mox::StreamBogon) { frame::recordRead(Fields::table, this, *in); }

U32 Mix::hash() const { return frame::recordHash(Fields::table, this); }

bool Mix::operator==(Mix const& other) const {
  return frame::recordEqual(Fields::table, this, &other);
}
bool Mix::operator<(Mix const& other) const {
  return frame::recordLess(Fields::table, this, &other);
}

Mox::String8 valueToStrep(Mix const& value) {
  return frame::recordText(Mix::Fields::table, &value);
}
std::ostream& operator<<(std::ostream& out, Mix const& value) { return out << valueToStrep(value); }
Mox::Ptr<Mox::NboAttrLog::Out> const& operator<<(Mox::Ptr<Mox::NboAttrLog::Out> const& out,
    Mix const& value) {
  frame::recordWrite(Mix::Fields::table, out, &value);
  return out;
}

}  // namespace everyShape
