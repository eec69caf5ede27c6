// everyShape::Shade: one line for each operation.  Made by schemac from everyShape.schema.
#include "everyShape/Shade.h"

#include "everyShape/Shade.reflect.h"
#include "everyShape/EveryShape.module.h"
#include "frame/Descriptor.h"
#include "frame/SingleField.h"

namespace everyShape {

namespace {

Mox::MoxType* shadeType = nullptr;

constexpr frame::ArgRow constructorArgs[] = {
    {"value", "U16"},
};

}  // namespace

frame::TypeRow const shadeRow = {"Shade", "everyShape::Shade", frame::TypeKind::value,
    Shade::_fwkType, Hue::_fwkType, sizeof(Shade), constructorArgs, {}, nullptr, "value"};

Mox::MoxType* Shade::_fwkType() { return frame::descriptor<_Type>(shadeType, moxInitEveryShape); }
Mox::MoxType const* Shade::fwkType() const { return _fwkType(); }

Shade::Shade(U16 number) : Hue(number) {
  frame::requireAtMost(number, 359, "Shade::value < 0 or > 359 not allowed");
}
Shade::Shade(Mox::String8::IteratorConst& at,
    Mox::String8::IteratorConst const& end) : Shade(frame::singleParse<U16>(at, end, "value")) {}
Shade::Shade(Mox::NboAttrLog::In* in, Mox::StreamBogon bogon) : Hue(in, bogon) {}

}  // namespace everyShape
