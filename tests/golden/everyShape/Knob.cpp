// everyShape::Knob: one line for each operation.  Made by schemac from everyShape.schema.
#include "everyShape/Knob.h"

#include "everyShape/Knob.tags.h"
#include "everyShape/Knob.reflect.h"
#include "everyShape/EveryShape.module.h"
#include "frame/Descriptor.h"

namespace everyShape {

namespace {

Mox::MoxType* knobType = nullptr;

constexpr frame::AttributeRow attributeRows[] = {
    {2, "turn", Mox::Builtin<U8>::_fwkType, nullptr, {0x22010F, 0x400}, 2},
    {3, "hash", Mox::Builtin<U32>::_fwkType, nullptr, {0x220007, 0x400}, 0},
};

Mox::MoxAttr const* attributeCache[std::size(attributeRows)];

}  // namespace

frame::TypeRow const knobRow = {"Knob", "everyShape::Knob", frame::TypeKind::value, Knob::_fwkType,
    nullptr, sizeof(Knob), {}, attributeRows, attributeCache};

Mox::MoxType* Knob::_fwkType() { return frame::descriptor<_Type>(knobType, moxInitEveryShape); }
Mox::MoxType const* Knob::fwkType() const { return _fwkType(); }

Knob::Knob(Mox::String8::IteratorConst& at, Mox::String8::IteratorConst const& end) {
  frame::recordParse(Fields::table, this, at, end);
}
Knob::Knob(Mox::NboAttrLog::In* in, Mox::StreamBogon) {
  frame::recordRead(Fields::table, this, *in);
}

U32 Knob::hash() const { return frame::recordHash(Fields::table, this); }

bool Knob::operator==(Knob const& other) const {
  return frame::recordEqual(Fields::table, this, &other);
}

Mox::String8 valueToStrep(Knob const& value) {
  return frame::recordText(Knob::Fields::table, &value);
}
std::ostream& operator<<(std::ostream& out, Knob const& value) {
  return out << valueToStrep(value);
}
Mox::Ptr<Mox::NboAttrLog::Out> const& operator<<(Mox::Ptr<Mox::NboAttrLog::Out> const& out,
    Knob const& value) {
  frame::recordWrite(Knob::Fields::table, out, &value);
  return out;
}

}  // namespace everyShape
