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
class PrimitiveIf : public GenericIf {
 public:
  PrimitiveIf(T const& value, bool isConst)
      : GenericIf(Builtin<T>::_fwkType(), isConst), value_(value) {
    heldIs(&value_);
    referenceWord_.flagIs(ReferenceWord::notificationActive, true);
  }

  // A value has nothing to observe: nothing is kept that its next use could find.
  void notifierIs(Mox::Ptr<PtrInterface const> const&) override {}
  void mox_bitSetIs(Mox_BitSet) override {}

  Ptr clone() override { return primitiveIf(value_, isConst()); }
  String8 strRep() const override { return textOf(value_); }

  /// Hands this interface out with another value, if nobody but the keeper of spares holds it.
  bool servesAgain(typename Builtin<T>::Passed value, bool isConst) {
    constexpr U32 kept = ReferenceWord::notificationActive | 1;
    if (referenceWord() != kept) return false;
    // Stored, not counted up: the count that was dropped last needn't have reached the memory yet.
    referenceWord_ = ReferenceWord(kept + 1);
    value_ = value;
    isConstIs(isConst);
    return true;
  }

 private:
  T value_;
};

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
MoxType* primitive(char const* name) {
  static MoxType* const type = immortal(new PrimitiveType<T>(name));
  return type;
}

/// What is read and let go again and again: one interface of each type stays, with what it held
/// last.
template <class T>
constinit PrimitiveIf<T>* spare = nullptr;

}  // namespace

template <class T>
GenericIf::Ptr Builtin<T>::genericIf(Passed value, bool isConst) {
  if (!FreeList::keeps()) [[unlikely]]
    return new PrimitiveIf<T>(value, isConst);
  PrimitiveIf<T>*& one = spare<T>;
  if (one && one->servesAgain(value, isConst)) [[likely]]
    return Ptr<GenericIf>::adopt(one);
  if (one) one->referencesDec();
  one = new PrimitiveIf<T>(value, isConst);
  one->referencesInc();
  return one;
}

MoxType* Builtin<void>::_fwkType() { return MoxType::opaque("void"); }
template <>
MoxType* Builtin<void*>::_fwkType() {
  return primitive<void*>("VoidPtr");
}
template <>
MoxType* Builtin<bool>::_fwkType() {
  return primitive<bool>("bool");
}
template <>
MoxType* Builtin<U8>::_fwkType() {
  return primitive<U8>("U8");
}
template <>
MoxType* Builtin<S8>::_fwkType() {
  return primitive<S8>("S8");
}
template <>
MoxType* Builtin<U16>::_fwkType() {
  return primitive<U16>("U16");
}
template <>
MoxType* Builtin<U32>::_fwkType() {
  return primitive<U32>("U32");
}
template <>
MoxType* Builtin<S32>::_fwkType() {
  return primitive<S32>("S32");
}
template <>
MoxType* Builtin<U64>::_fwkType() {
  return primitive<U64>("U64");
}
template <>
MoxType* Builtin<double>::_fwkType() {
  return primitive<double>("double");
}
template <>
MoxType* Builtin<String8>::_fwkType() {
  return primitive<String8>("Mox::String");
}
template <>
MoxType* Builtin<Name>::_fwkType() {
  return primitive<Name>("Mox::Name");
}

template GenericIf::Ptr Builtin<bool>::genericIf(Passed, bool);
template GenericIf::Ptr Builtin<U8>::genericIf(Passed, bool);
template GenericIf::Ptr Builtin<S8>::genericIf(Passed, bool);
template GenericIf::Ptr Builtin<U16>::genericIf(Passed, bool);
template GenericIf::Ptr Builtin<U32>::genericIf(Passed, bool);
template GenericIf::Ptr Builtin<S32>::genericIf(Passed, bool);
template GenericIf::Ptr Builtin<U64>::genericIf(Passed, bool);
template GenericIf::Ptr Builtin<double>::genericIf(Passed, bool);
template GenericIf::Ptr Builtin<String8>::genericIf(Passed, bool);
template GenericIf::Ptr Builtin<Name>::genericIf(Passed, bool);
template GenericIf::Ptr Builtin<void*>::genericIf(Passed, bool);

MoxType* Name::_fwkType() { return Builtin<Name>::_fwkType(); }

}  // namespace Mox

Mox::MoxType* U1::_fwkType() { return Mox::boundedType<U1>("U1"); }
Mox::MoxType* U4::_fwkType() { return Mox::boundedType<U4>("U4"); }
Mox::MoxType* U6::_fwkType() { return Mox::boundedType<U6>("U6"); }
Mox::MoxType* U22::_fwkType() { return Mox::boundedType<U22>("U22"); }
