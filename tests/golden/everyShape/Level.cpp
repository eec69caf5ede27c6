// everyShape::Level: one line for each operation.  Made by schemac from everyShape.schema.
#include "everyShape/Level.h"

#include "everyShape/Level.reflect.h"
#include "everyShape/EveryShape.module.h"
#include "frame/Descriptor.h"
#include "frame/SingleField.h"

namespace everyShape {

namespace {

Mox::MoxType* levelType = nullptr;

constexpr frame::ArgRow constructorArgs[] = {
    {"value", "U8"},
};

constexpr frame::AttributeRow attributeRows[] = {
    {2, "value", Mox::Builtin<U8>::_fwkType, nullptr, {0x220109, 0x40000400}, 2},
    {3, "hash", Mox::Builtin<U32>::_fwkType, nullptr, {0x220001, 0x40000400}, 0},
};

Mox::MoxAttr const* attributeCache[std::size(attributeRows)];

}  // namespace

frame::TypeRow const levelRow = {"Level", "everyShape::Level", frame::TypeKind::value,
    Level::_fwkType, nullptr, sizeof(Level), constructorArgs, attributeRows, attributeCache,
    "value"};

Mox::MoxType* Level::_fwkType() { return frame::descriptor<_Type>(levelType, moxInitEveryShape); }
Mox::MoxType const* Level::fwkType() const { return _fwkType(); }

Level::Level(U8 number) : value_(number) {
  frame::requireAtMost(number, 9, "Level::value < 0 or > 9 not allowed");
}
Level::Level(Mox::String8::IteratorConst& at,
    Mox::String8::IteratorConst const& end) : Level(frame::singleParse<U8>(at, end, "value")) {}
Level::Level(Mox::NboAttrLog::In* in, Mox::StreamBogon) : value_(in->nextInteger<U8>()) {}

Mox::String8 valueToStrep(Level const& value) { return Mox::valueToStrep(value.value()); }
std::ostream& operator<<(std::ostream& out, Level const& value) {
  return out << valueToStrep(value);
}
Mox::Ptr<Mox::NboAttrLog::Out> const& operator<<(Mox::Ptr<Mox::NboAttrLog::Out> const& out,
    Level const& value) {
  return out << value.value();
}

}  // namespace everyShape
