// Collections by number: the steps of one, and the walk over it.
#pragma once

#include "reflect/Faces.h"
#include "reflect/Row.h"

namespace reflect {

/// A walk over the collection of tag `A`.
template <class A>
class Walk : public GenericIf::IteratorState {
 public:
  using Owner = typename A::Owner;
  using Iterator = typename std::remove_cvref_t<decltype(A::map(std::declval<Owner&>()))>::Iterator;

  /// `keeper` keeps the collection while this walk stands in it.
  Walk(Row const& row, Mox::PtrInterface const* keeper, Iterator const& at)
      : row_(row), keeper_(keeper), at_(at) {}

  GenericIf::Ptr obj(bool isConst) const override {
    return faceOf(at_.value(), row_.type, isConst);
  }
  GenericIf::PtrConst key() const override { return faceOf(at_.key(), row_.key, true); }
  bool inc() override { return static_cast<bool>(++at_); }
  Mox::Ptr<GenericIf::IteratorState> clone() const override {
    return new Walk(row_, keeper_.ptr(), at_);
  }

 private:
  Row const& row_;  // of a constant table
  Mox::Ptr<Mox::PtrInterface const> keeper_;
  Iterator at_;
};

/// The steps of the collection of tag `A`.
template <class A>
struct CollectionOf {
  using Owner = typename A::Owner;
  using Key = typename A::Key;

  static Owner const& of(void const* object) { return *static_cast<Owner const*>(object); }
  static Owner& of(void* object) { return *static_cast<Owner*>(object); }
  static Key const& keyAt(void const* key) { return Held<Key>::at(key); }

  static U32 count(void const* object) { return A::map(of(object)).count(); }
  static U32 changes(void const* object) { return A::map(of(object)).changes(); }
  static bool isMember(void const* object, void const* key) {
    return A::map(of(object)).isMember(keyAt(key));
  }
  static GenericIf::Ptr read(Row const& row, void const* object, GenericIf const& face,
                             void const* key) {
    bool const isConst = face.isConst();
    return faceOf(A::read(of(object), keyAt(key)), row.type, isConst);
  }
  static void write(void* object, void const* key, void const* value) {
    A::write(of(object), keyAt(key), Held<typename A::Value>::at(value));
  }
  static void enter(void* object, void const* value) {
    A::enter(of(object), Held<typename A::Value>::at(value));
  }
  static void erase(void* object, void const* key) { A::erase(of(object), keyAt(key)); }
  static Mox::Ptr<GenericIf::IteratorState> walk(Row const& row, void* object,
                                                 GenericIf const& face, void const* key) {
    using Iterator = typename Walk<A>::Iterator;
    Owner& owner = of(object);
    Mox::PtrInterface const* keeper = &face;  // which holds a value's copy
    if constexpr (std::derived_from<Owner, Mox::PtrInterface>) keeper = &owner;
    auto& map = A::map(owner);
    Iterator const at = key ? Iterator(map, keyAt(key)) : Iterator(map);
    return at ? new Walk<A>(row, keeper, at) : nullptr;
  }
};

/// Writes under a key that is given apart.
template <class A>
constexpr auto writeStep() {
  if constexpr (requires { &A::write; })
    return &CollectionOf<A>::write;
  else
    return nullptr;
}
/// Writes under the key that the element bears.
template <class A>
constexpr auto enterStep() {
  if constexpr (requires { &A::enter; })
    return &CollectionOf<A>::enter;
  else
    return nullptr;
}

template <class A>
inline constexpr Collection collection = {
    CollectionOf<A>::count, CollectionOf<A>::changes, CollectionOf<A>::isMember,
    CollectionOf<A>::read,  writeStep<A>(),           enterStep<A>(),
    CollectionOf<A>::erase, CollectionOf<A>::walk,
};

}  // namespace reflect
