// What is done to one attribute by its number: typed steps for the rows of tables.
#pragma once

#include "reflect/Faces.h"
#include "reflect/Row.h"

#include <cstddef>
#include <utility>

namespace reflect {

/// What a pointer to a member function says: whose it is, what it takes and what comes back.
template <class Member>
struct MemberOf;
template <class C, class R, class... Args>
struct MemberOf<R (C::*)(Args...)> {
  using Class = C;
  using Result = R;
  template <template <class...> class List>
  using Arguments = List<std::remove_cvref_t<Args>...>;
};
template <class C, class R, class... Args>
struct MemberOf<R (C::*)(Args...) const> : MemberOf<R (C::*)(Args...)> {};

template <auto member>
using ClassOf = typename MemberOf<decltype(member)>::Class;

/// Reads by the accessor `get`.
template <auto get>
GenericIf::Ptr read(Row const& row, void const* object, GenericIf const& face) {
  bool const isConst = face.isConst();  // ahead of code that may let go of the interface
  return faceOf((static_cast<ClassOf<get> const*>(object)->*get)(), row.type, isConst);
}

/// What `value` holds, for the attribute of `row`; raises `TypeException` with the row's name for
/// another type.
template <class Value>
struct OneValue {
  static decltype(auto) of(Row const& row, GenericIf::PtrConst const& value) {
    if constexpr (Mox::Primitive<Value>)
      return Mox::Builtin<Value>::required(value.ptr(), row.name);
    else
      return Held<Value>::at(GenericIf::requireHeld(value.ptr(), row.type(), row.name));
  }
};

/// Writes by the mutator `set`.
template <auto set>
void write(Row const& row, void* object, GenericIf::PtrConst const& value) {
  using Value = typename MemberOf<decltype(set)>::template Arguments<OneValue>;
  (static_cast<ClassOf<set>*>(object)->*set)(Value::of(row, value));
}

/// Writes the one field of a `Record` by its constructor, with the check that it makes.
template <class Record, class Field>
void construct(Row const& row, void* record, GenericIf::PtrConst const& value) {
  *static_cast<Record*>(record) = Record(OneValue<Field>::of(row, value));
}

/// Writes the field of a record that stands `offset` bytes behind its start.
template <class Field, std::size_t offset>
void store(Row const& row, void* record, GenericIf::PtrConst const& value) {
  auto* const place = static_cast<std::byte*>(record) + offset;
  *reinterpret_cast<Field*>(place) = OneValue<Field>::of(row, value);
}

/// Types of arguments, in order.
template <class... Args>
struct Types {
  template <class Function>
  static decltype(auto) apply(void const* const* held, Function const& function) {
    return [&]<std::size_t... i>(std::index_sequence<i...>)->decltype(auto) {
      return function(Held<Args>::at(held[i])...);
    }
    (std::index_sequence_for<Args...>());
  }
  /// The same; what is null is the type's default.
  template <class Function>
  static decltype(auto) applyOrDefault(void const* const* held, Function const& function) {
    return [&]<std::size_t... i>(std::index_sequence<i...>)->decltype(auto) {
      return function((held[i] ? Args(Held<Args>::at(held[i])) : Args())...);
    }
    (std::index_sequence_for<Args...>());
  }
};

/// Calls the operation `operation`, and hands its result out.
template <auto operation>
GenericIf::Ptr call(Row const& row, void* object, GenericIf const& face,
                    [[maybe_unused]] void const* const* arguments) {
  using Member = MemberOf<decltype(operation)>;
  auto* const owner = static_cast<typename Member::Class*>(object);
  [[maybe_unused]] bool const isConst =
      face.isConst();  // ahead of what may let go of the interface
  auto const perform = [owner](auto const&... given) { return (owner->*operation)(given...); };
  using Given = typename Member::template Arguments<Types>;
  if constexpr (std::is_void_v<typename Member::Result>) {
    Given::apply(arguments, perform);
    return nullptr;
  } else {
    return faceOf(Given::apply(arguments, perform), row.type, isConst);
  }
}

/// Makes an `X` of the arguments at `held`, of which those that are null have their defaults.
template <class X, class... Args>
X* make(void const* const* held) {
  return Types<Args...>::applyOrDefault(held, [](auto const&... given) { return new X(given...); });
}

}  // namespace reflect
