// Primitives: their descriptors and their interfaces; the descriptors of the bounded integers.
#include "Mox/Builtin.h"

#include "Mox/BoundedIf.h"
#include "Mox/BoundedIntegers.h"
#include "Mox/Strep.h"
#include "standin/mox/FreeList.h"

namespace Mox {

namespace {

String8 textOf(void* const& memory) { return memory ? "Object('VoidPtr')" : "None"; }
template <class T>
String8 textOf(T const& value) {
  return valueToStrep(value);
}

void* parsed(String8 const& text, void**) {
  auto at = text.begin();
  needString(at, text.end(), "None");
  requireEnd(at);
  return nullptr;
}
template <class T>
T parsed(String8 const& text, T*) {
  return strepToValue<T>(text);
}

template <class T>
class PrimitiveType : public MoxType {
 public:
  explicit PrimitiveType(char const* name) : MoxType(name, nullptr, nullptr, {}) {}
  Ptr<GenericIf> genericIf(void const* value, bool isConst) const override {
    return primitiveIf(*static_cast<T const*>(value), isConst);
  }
  Ptr<GenericIf> genericIf(String8 const& text, bool isConst) const override {
    return primitiveIf(parsed(text, static_cast<T*>(nullptr)), isConst);
  }
};

template <class T>
constexpr char const* nameOf = nullptr;
template <>
constexpr char const* nameOf<void*> = "VoidPtr";
template <>
constexpr char const* nameOf<bool> = "bool";
template <>
constexpr char const* nameOf<U8> = "U8";
template <>
constexpr char const* nameOf<S8> = "S8";
template <>
constexpr char const* nameOf<U16> = "U16";
template <>
constexpr char const* nameOf<U32> = "U32";
template <>
constexpr char const* nameOf<S32> = "S32";
template <>
constexpr char const* nameOf<U64> = "U64";
template <>
constexpr char const* nameOf<double> = "double";
template <>
constexpr char const* nameOf<String8> = "Mox::String";
template <>
constexpr char const* nameOf<Name> = "Mox::Name";

}  // namespace

template <class T>
PrimitiveIf<T>::PrimitiveIf(T const& value, bool isConst)
    : GenericIf(Builtin<T>::_fwkType(), isConst), value_(value) {
  heldIs(&value_);
  referenceWord_.flagIs(ReferenceWord::notificationActive, true);
}
template <class T>
GenericIf::Ptr PrimitiveIf<T>::clone() {
  return primitiveIf(value_, isConst());
}
template <class T>
String8 PrimitiveIf<T>::strRep() const {
  return textOf(value_);
}

template <class T>
constinit std::atomic<MoxType*> Builtin<T>::type_ = nullptr;
template <class T>
constinit PrimitiveIf<T>* Builtin<T>::spare_ = nullptr;

template <class T>
MoxType* Builtin<T>::makeType() {
  static MoxType* const made = immortal(new PrimitiveType<T>(nameOf<T>));
  type_.store(made, std::memory_order_release);
  return made;
}

template <class T>
void const* Builtin<T>::requiredOther(GenericIf const* face, char const* name) {
  return GenericIf::requireHeld(face, _fwkType(), name);
}

template <class T>
GenericIf* Builtin<T>::makeIf(Passed value, bool isConst) {
  auto* const made = new PrimitiveIf<T>(value, isConst);
  made->referencesInc();
  if (!FreeList::keeps()) return made;
  if (spare_) spare_->referencesDec();
  spare_ = made;
  made->referencesInc();
  return made;
}

MoxType* Builtin<void>::_fwkType() { return MoxType::opaque("void"); }

template struct Builtin<bool>;
template struct Builtin<U8>;
template struct Builtin<S8>;
template struct Builtin<U16>;
template struct Builtin<U32>;
template struct Builtin<S32>;
template struct Builtin<U64>;
template struct Builtin<double>;
template struct Builtin<String8>;
template struct Builtin<Name>;
template struct Builtin<void*>;

MoxType* Name::_fwkType() { return Builtin<Name>::_fwkType(); }

}  // namespace Mox

Mox::MoxType* U1::_fwkType() { return Mox::boundedType<U1>("U1"); }
Mox::MoxType* U4::_fwkType() { return Mox::boundedType<U4>("U4"); }
Mox::MoxType* U6::_fwkType() { return Mox::boundedType<U6>("U6"); }
Mox::MoxType* U22::_fwkType() { return Mox::boundedType<U22>("U22"); }
