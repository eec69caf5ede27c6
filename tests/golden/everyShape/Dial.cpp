// everyShape::Dial: one line for each operation.  Made by schemac from everyShape.schema.
#include "everyShape/Dial.h"

#include "everyShape/Dial.reflect.h"
#include "everyShape/EveryShape.module.h"
#include "frame/Descriptor.h"
#include "frame/SingleField.h"

namespace everyShape {

namespace {

Mox::MoxType* dialType = nullptr;

constexpr frame::ArgRow constructorArgs[] = {
    {"value", "U32"},
};

constexpr frame::AttributeRow attributeRows[] = {
    {2, "value", Mox::Builtin<U32>::_fwkType, nullptr, {0x22010F, 0x400}, 2},
    {3, "hash", Mox::Builtin<U32>::_fwkType, nullptr, {0x220007, 0x400}, 0},
};

Mox::MoxAttr const* attributeCache[std::size(attributeRows)];

}  // namespace

frame::TypeRow const dialRow = {"Dial", "everyShape::Dial", frame::TypeKind::value, Dial::_fwkType,
    nullptr, sizeof(Dial), constructorArgs, attributeRows, attributeCache, "value"};

Mox::MoxType* Dial::_fwkType() { return frame::descriptor<_Type>(dialType, moxInitEveryShape); }
Mox::MoxType const* Dial::fwkType() const { return _fwkType(); }

Dial::Dial(U32 number) : value_(number) {
  frame::requireAtMost(number, 0, "Dial::value < 0 or > 0 not allowed");
}
Dial::Dial(Mox::String8::IteratorConst& at,
    Mox::String8::IteratorConst const& end) : Dial(frame::singleParse<U32>(at, end, "value")) {}
Dial::Dial(Mox::NboAttrLog::In* in, Mox::StreamBogon) : value_(in->nextInteger<U32>()) {}

Mox::String8 valueToStrep(Dial const& value) { return Mox::valueToStrep(value.value()); }
std::ostream& operator<<(std::ostream& out, Dial const& value) {
  return out << valueToStrep(value);
}
Mox::Ptr<Mox::NboAttrLog::Out> const& operator<<(Mox::Ptr<Mox::NboAttrLog::Out> const& out,
    Dial const& value) {
  return out << value.value();
}

}  // namespace everyShape
