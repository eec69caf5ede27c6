// everyShape::Hue: one line for each operation.  Made by schemac from everyShape.schema.
#include "everyShape/Hue.h"

#include "everyShape/Hue.reflect.h"
#include "everyShape/EveryShape.module.h"
#include "frame/Descriptor.h"
#include "frame/SingleField.h"

namespace everyShape {

namespace {

Mox::MoxType* hueType = nullptr;

constexpr frame::ArgRow constructorArgs[] = {
    {"value", "U16"},
};

constexpr frame::AttributeRow attributeRows[] = {
    {2, "value", Mox::Builtin<U16>::_fwkType, nullptr, {0x220109, 0x40000400}, 2},
    {3, "hash", Mox::Builtin<U16>::_fwkType, nullptr, {0x220001, 0x40000400}, 0},
};

Mox::MoxAttr const* attributeCache[std::size(attributeRows)];

}  // namespace

frame::TypeRow const hueRow = {"Hue", "everyShape::Hue", frame::TypeKind::value, Hue::_fwkType,
    nullptr, sizeof(Hue), constructorArgs, attributeRows, attributeCache, "value"};

Mox::MoxType* Hue::_fwkType() { return frame::descriptor<_Type>(hueType, moxInitEveryShape); }
Mox::MoxType const* Hue::fwkType() const { return _fwkType(); }

Hue::Hue(U16 number) : value_(number) {}
Hue::Hue(Mox::String8::IteratorConst& at,
    Mox::String8::IteratorConst const& end) : Hue(frame::singleParse<U16>(at, end, "value")) {}
Hue::Hue(Mox::NboAttrLog::In* in, Mox::StreamBogon) : value_(in->nextInteger<U16>()) {}

Mox::String8 valueToStrep(Hue const& value) { return Mox::valueToStrep(value.value()); }
std::ostream& operator<<(std::ostream& out, Hue const& value) { return out << valueToStrep(value); }
Mox::Ptr<Mox::NboAttrLog::Out> const& operator<<(Mox::Ptr<Mox::NboAttrLog::Out> const& out,
    Hue const& value) {
  return out << value.value();
}

}  // namespace everyShape
