// everyShape::Engine: one line for each operation.  Made by schemac from everyShape.schema.
#include "everyShape/Engine.h"

#include "everyShape/Engine.reflect.h"
#include "everyShape/EveryShape.module.h"
#include "frame/Descriptor.h"

namespace everyShape {

namespace {

Mox::MoxType* engineType = nullptr;

constexpr frame::ArgRow constructorArgs[] = {
    {"grove", "everyShape::Grove"},
    {"note", "Mox::String"},
};

constexpr frame::AttributeRow attributeRows[] = {
    {0, "moxFwkActivity", [] { return Mox::MoxType::opaque("Mox::ActivityConfig"); }, nullptr,
        {0x200001, 0x400}, 0},
    {130, "grove", Grove::_fwkType, nullptr, {0x8220109, 0x40000400}, 2},
    {131, "note", Mox::Builtin<Mox::String8>::_fwkType, nullptr, {0x220109, 0x40000400}, 2},
    {132, "running", Mox::Builtin<bool>::_fwkType, nullptr, {0x220143, 0x1000400}, 2},
    {133, "start", Mox::Builtin<void>::_fwkType, nullptr, {0x20000, 0x400}, 8},
    {134, "heat", Mox::Builtin<U32>::_fwkType, nullptr, {0x220001, 0x40000400}, 0},
};

Mox::MoxAttr const* attributeCache[std::size(attributeRows)];

}  // namespace

frame::TypeRow const engineRow = {"Engine", "everyShape::Engine", frame::TypeKind::bareObject,
    Engine::_fwkType, nullptr, sizeof(Engine), constructorArgs, attributeRows, attributeCache};

Mox::MoxType* Engine::_fwkType() { return frame::descriptor<_Type>(engineType, moxInitEveryShape); }
Mox::MoxType const* Engine::fwkType() const { return _fwkType(); }

}  // namespace everyShape
