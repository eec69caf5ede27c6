// everyShape::Engine by attribute number: one line for each operation.  Made by schemac from everyShape.schema.
#include "everyShape/Engine.reflect.h"

#include "reflect/Arguments.h"
#include "reflect/Perform.h"
#include "reflect/Steps.h"

namespace everyShape {

struct [[gnu::visibility("hidden")]] Engine::GenericIf_::MoxTable {
  static constexpr reflect::Row rows[] = {
      {.id = 130, .name = "grove", .type = Grove::_fwkType, .read = reflect::read<&Engine::grove>},
      {.id = 131, .name = "note", .type = Mox::Builtin<Mox::String8>::_fwkType,
          .read = reflect::read<&Engine::note>},
      {.id = 132, .name = "running", .type = Mox::Builtin<bool>::_fwkType,
          .read = reflect::read<&Engine::running>, .write = reflect::write<&Engine::runningIs>},
      {.id = 133, .name = "start", .type = Mox::Builtin<void>::_fwkType,
          .call = reflect::call<&Engine::start>},
      {.id = 134, .name = "heat", .type = Mox::Builtin<U32>::_fwkType,
          .read = reflect::read<&Engine::heat>},
      {.id = 0, .name = "moxFwkActivity"},
  };
  static Engine* objectOf(GenericIf_ const& face) { return reflect::observed<Engine>(face); }
  [[noreturn]] static Mox::GenericIf::Ptr performWithoutRow(GenericIf_&, AttributeOp,
      PtrConst const&, PtrConst const&) {
    throwUnknownAttrException("Engine");
  }
};

Mox::GenericIf::Ptr Engine::_Type::genericIf_(Mox::PtrInterface* object, bool isConst) const {
  return reflect::active(new GenericIf_(reflect::requireObject<Engine>(object), isConst));
}

Engine::GenericIf_::GenericIf_(Mox::Ptr<Engine> const& object,
    bool isConst) : GenericIf(Engine::_fwkType(), isConst) {
  heldIs(&moxNotifierWord());
  notifierIs(object);
}

Mox::Ptr<Engine> Engine::GenericIf_::obj() const {
  return const_cast<Engine*>(static_cast<Engine const*>(moxNotifier()));
}

Mox::GenericIf::Ptr Engine::GenericIf_::attributeOp(AttributeOp op, PtrConst const& index,
    PtrConst const& value) {
  requireWritable(op);
  return reflect::performByTable<MoxTable>(*this, op, index, value);
}
Mox::GenericIf::Ptr Engine::GenericIf_::clone() {
  return reflect::active(new GenericIf_(obj(), isConst()));
}
Mox::String8 Engine::GenericIf_::strRep() const {
  return Mox::valueToStrepOfRawPtr(moxNotifier(), typeid(Engine));
}

}  // namespace everyShape
