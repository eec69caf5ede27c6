// The interface of bounded integers, and their descriptors.
#pragma once

#include "Mox/Builtin.h"

namespace Mox {

/// The interface of a bounded integer `T`, whose one attribute is `value`.
template <class T>
class BoundedIf : public GenericIf {
 public:
  static constexpr AttributeId valueId = 2;

  BoundedIf(T const& value, bool isConst) : GenericIf(T::_fwkType(), isConst), value_(value) {
    heldIs(&value_);
    hasNotificationActiveIs(true);
  }

  Ptr attributeOp(AttributeOp op, PtrConst const& index, PtrConst const& value) override {
    requireWritable(op);
    if (op.attrId != valueId) throwUnknownAttrException(type()->moxName().stringValue());
    if (index) throwBadIndexAttrException("value");
    if (op.opId == opRead) return primitiveIf(value_.value(), isConst());
    if (op.opId != opWrite) throwOpNotSupportedException("value", op.opId, false);
    value_ = T(numberOf(value));
    return nullptr;
  }
  Ptr clone() override { return new BoundedIf(value_, isConst()); }
  Ptr genericIfListConstructor(PtrConst const& list) const override {
    List_::Entries entries;
    List_::entriesOf(list, entries);
    auto const first = entries.deq();
    Storage const number = first ? numberOf(first->value()) : Storage();
    if (!entries.empty()) throwUnknownArgException(type()->moxName().stringValue());
    return new BoundedIf(T(number), false);
  }
  String8 strRep() const override { return valueToStrep(value_); }

 private:
  using Storage = typename T::Storage;

  static Storage numberOf(PtrConst const& given) { return primitiveIn<Storage>(given); }

  T value_;
};

/// The descriptor of a bounded integer: a value whose one field is `value`.
template <class T>
class BoundedType : public MoxType {
 public:
  explicit BoundedType(Name const& name) : MoxType(name, nullptr, nullptr, {}) {
    constexpr AttrFlags mutableField{0x22010F, 0x400};
    sizeIs(sizeof(T));
    isValueIs(true);
    hasGenericIfSupportIs(true);
    auto const value = defNoninstantiatingAttr(Builtin<typename T::Storage>::_fwkType(), "value",
                                               nullptr, mutableField, 2, BoundedIf<T>::valueId);
    attributeQEnq(value);
    valAttrIs(value.ptr());
  }
  Ptr<GenericIf> genericIf(void const* value, bool isConst) const override {
    return new BoundedIf<T>(*static_cast<T const*>(value), isConst);
  }
  Ptr<GenericIf> genericIf(String8 const& text, bool isConst) const override {
    return new BoundedIf<T>(strepToValue<T>(text), isConst);
  }
};

/// The one descriptor of a bounded integer, made on first use.
template <class T>
MoxType* boundedType(char const* name) {
  static MoxType* const type = immortal(new BoundedType<T>(name));
  return type;
}

}  // namespace Mox
