// The language of the tests over every attribute: a hand-written row for each, and what must hold
// of an attribute of that shape, by its accessors and by its number.
#pragma once

#include "Mox/Mox.h"
#include "Mox/MoxType.h"
#include "hwmodel/ByNumberTest.h"

#include <cstring>
#include <functional>
#include <gtest/gtest.h>
#include <limits>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

namespace Kestrel::attributes {

inline std::string text(Mox::String8 const& key) { return std::string(key.view()); }
inline std::string text(Mox::Name const& key) { return std::string(key.view()); }
template <class Key>
std::string text(Key const& key) {
  if constexpr (std::is_enum_v<Key> || std::is_integral_v<Key>)
    return std::to_string(static_cast<long long>(key));
  else
    return std::to_string(key.value());
}

/// An observer of `E` that notes its hooks as "fecLocked;" and "bipErrors 3;".
template <class E>
class Noting : public E::NotifieeConst {
 public:
  using Entity = E;

  std::string heard() { return std::exchange(heard_, ""); }

 protected:
  void note(char const* attribute) { heard_.append(attribute).append(";"); }
  template <class Key>
  void note(char const* attribute, Key const& key) {
    heard_.append(attribute).append(" ").append(text(key)).append(";");
  }

 private:
  std::string heard_;
};

/// A fresh entity under observation.
template <class E>
class Subject {
 public:
  template <class Listener>
  Subject(Mox::Ptr<E> const& made, Mox::Ptr<Listener> const& listener)
      : entity(made), heard_([listener] { return listener->heard(); }) {
    listener->notifierIs(made);
    listener->isRegisteredNotifieeIs(true);
  }

  /// `step` is a write of `steps` versions that makes these notes and counts no read.
  template <class Step>
  void expect(U32 steps, std::string const& notes, Step const& step) {
    U32 const version = entity->version();
    U32 const reads = entity->readCount();
    step();
    EXPECT_EQ(entity->version(), version + steps);
    EXPECT_EQ(entity->readCount(), reads);
    EXPECT_EQ(heard_(), notes);
  }

  /// `read` is one read that gives `value` and changes nothing.
  template <class Read, class Value>
  void expectRead(Read const& read, Value const& value) {
    U32 const version = entity->version();
    U32 const reads = entity->readCount();
    EXPECT_TRUE(read() == value);
    EXPECT_EQ(entity->version(), version);
    EXPECT_EQ(entity->readCount(), reads + 1);
    EXPECT_EQ(heard_(), "");
  }

  Mox::Ptr<E> const entity;

 private:
  std::function<std::string()> heard_;
};

/// In this ABI a pointer to a virtual member holds the offset of its slot plus one.
template <class Member>
std::ptrdiff_t slotOf(Member member) {
  std::ptrdiff_t offset = 0;
  std::memcpy(&offset, &member, sizeof offset);
  return offset / static_cast<std::ptrdiff_t>(sizeof(void*));
}

/// One attribute, with the slots that its hooks take.
template <class E>
struct Row {
  Mox::AttributeId id;
  std::string name;
  std::ptrdiff_t slot = 0;
  std::ptrdiff_t slots = 0;
  std::function<void(Subject<E>&)> holds;
  /// The same by number, on another fresh entity.
  std::function<void(E&, ByNumber const&)> holdsByNumber;
};

template <class V>
using Given = std::type_identity_t<V>;

/// What is fixed at construction.
template <class E, class V>
Row<E> param(Mox::AttributeId id, char const* name, V (E::*read)() const, Given<V> value) {
  return {id,
          name,
          0,
          0,
          [=](Subject<E>& on) { on.expectRead([&] { return (on.entity.ptr()->*read)(); }, value); },
          [=](E&, ByNumber const& by) { by.readOnly(V(value)); }};
}

/// A scalar or a reference: starts at `first`.
template <class E, class V, class Pass>
Row<E> scalar(Mox::AttributeId id, char const* name, V (E::*read)() const, void (E::*is)(Pass),
              void (E::NotifieeConst::*hook)(), Given<V> first, Given<V> other) {
  std::string const note = std::string(name) + ";";
  return {id,
          name,
          slotOf(hook),
          1,
          [=](Subject<E>& on) {
            E* const entity = on.entity.ptr();
            auto const set = [=](V const& value) { return [=] { (entity->*is)(value); }; };
            auto const get = [=] { return (entity->*read)(); };
            on.expectRead(get, first);
            on.expect(0, "", set(first));
            on.expect(1, note, set(other));
            on.expectRead(get, other);
            on.expect(0, "", set(other));
            on.expect(1, note, set(first));
            on.expectRead(get, first);
          },
          [=](E& on, ByNumber const& by) {
            by.scalar([&] { return (on.*read)(); }, [&](V const& value) { (on.*is)(value); },
                      V(first), V(other));
          }};
}

/// A counter: a scalar from 0 that can be added to, which counts a read and is no write.
template <class E, class V>
Row<E> counter(Mox::AttributeId id, char const* name, V (E::*read)() const, void (E::*is)(V),
               V (E::*inc)(V), void (E::NotifieeConst::*hook)()) {
  Row<E> row = scalar(id, name, read, is, hook, V(0), V(2));
  std::string const note = std::string(name) + ";";
  row.holds = [=, plain = row.holds](Subject<E>& on) {
    plain(on);
    E* const entity = on.entity.ptr();
    (entity->*is)(2);
    U32 const version = entity->version();
    U32 const reads = entity->readCount();
    EXPECT_EQ((entity->*inc)(5), V(7));
    EXPECT_EQ((entity->*inc)(0), V(7));
    EXPECT_EQ(entity->version(), version);
    EXPECT_EQ(entity->readCount(), reads + 2);
    on.expect(0, note + note, [] {});  // of `is` and of the first `inc`
    EXPECT_EQ((entity->*inc)(static_cast<V>(V(0) - V(8))), std::numeric_limits<V>::max());
    EXPECT_EQ((entity->*inc)(1), V(0)) << "it wraps around";
  };
  return row;
}

/// Values under a key, or references under a key that is given.
template <class E, class V, class K, class Pass, class Node>
Row<E> map(Mox::AttributeId id, char const* name, V (E::*read)(K) const, void (E::*is)(K, Pass),
           Mox::Ptr<Node> (E::*make)(K, Pass), V (E::*del)(K), void (E::*delAll)(),
           void (E::*notify)(K), U32 (E::*count)() const,
           void (E::NotifieeConst::*hook)(std::remove_cvref_t<K>), Given<std::remove_cvref_t<K>> a,
           Given<std::remove_cvref_t<K>> b, Given<V> value, Given<V> other) {
  auto const note = [=](auto const& key) { return std::string(name) + " " + text(key) + ";"; };
  return {id,
          name,
          slotOf(hook),
          3,
          [=](Subject<E>& on) {
            E* const entity = on.entity.ptr();
            auto const get = [=] { return (entity->*read)(a); };
            EXPECT_EQ((entity->*count)(), 0u);
            on.expectRead(get, V());
            // A default under a new key is an element.
            on.expect(1, note(a), [=] { (entity->*is)(a, V()); });
            on.expect(0, "", [=] { (entity->*is)(a, V()); });
            on.expect(1, note(a), [=] { (entity->*is)(a, value); });
            on.expectRead(get, value);
            on.expect(0, "", [=] { (entity->*is)(a, value); });
            on.expect(1, note(a), [=] { (entity->*is)(a, other); });
            on.expectRead(get, other);
            on.expect(0, "", [=] { EXPECT_TRUE((entity->*make)(b, value)); });
            EXPECT_EQ((entity->*count)(), 2u);
            on.expect(0, note(b), [=] { (entity->*notify)(b); });
            on.expect(1, note(b), [=] { EXPECT_TRUE((entity->*del)(b) == value); });
            on.expect(0, "", [=] { EXPECT_TRUE((entity->*del)(b) == V()); });
            on.expect(1, note(a), [=] { (entity->*delAll)(); });
            EXPECT_EQ((entity->*count)(), 0u);
          },
          [=](E& on, ByNumber const& by) {
            (on.*is)(a, V(value));
            by.write(by.keyed(b), by.given(V(other)));
            EXPECT_TRUE((on.*read)(b) == V(other));
            (on.*del)(a);
            by.hears({by.keyed(a), by.keyed(b), by.keyed(a)});
            by.refusesValueOfAnotherType(by.keyed(a));
            by.collection(b, V(other));
            EXPECT_EQ((on.*count)(), 0u);
          }};
}

/// References under a key that the element bears itself; `complaint` is what null is refused with.
template <class E, class T, class K, class Node>
Row<E> refs(Mox::AttributeId id, char const* name, Mox::Ptr<T> (E::*read)(K) const,
            void (E::*is)(Mox::Ptr<T> const&), Mox::Ptr<Node> (E::*make)(Mox::Ptr<T> const&),
            Mox::Ptr<T> (E::*del)(K), void (E::*delAll)(), void (E::*notify)(K),
            U32 (E::*count)() const, void (E::NotifieeConst::*hook)(std::remove_cvref_t<K>),
            Given<std::remove_cvref_t<K>> key, Given<Mox::Ptr<T>> target, Given<Mox::Ptr<T>> twin,
            std::string complaint) {
  std::string const note = std::string(name) + " " + text(key) + ";";
  return {id,
          name,
          slotOf(hook),
          3,
          [=](Subject<E>& on) {
            E* const entity = on.entity.ptr();
            auto const get = [=] { return (entity->*read)(key); };
            on.expectRead(get, nullptr);
            on.expect(1, note, [=] { (entity->*is)(target); });
            on.expectRead(get, target);
            EXPECT_FALSE(target->parent()) << "a reference owns nothing";
            on.expect(0, "", [=] { (entity->*is)(target); });
            on.expect(1, note, [=] { (entity->*is)(twin); });
            on.expectRead(get, twin);
            EXPECT_EQ((entity->*count)(), 1u);
            on.expect(0, "", [=] {
              try {
                (entity->*is)(nullptr);
                ADD_FAILURE() << "null was taken";
              } catch (Mox::RangeException const& exception) {
                EXPECT_EQ(exception.what(), complaint);
              }
            });
            on.expect(0, note, [=] { (entity->*notify)(key); });
            on.expect(1, note, [=] { EXPECT_EQ((entity->*del)(key), twin); });
            on.expect(0, "", [=] { EXPECT_EQ((entity->*del)(key), nullptr); });
            on.expect(0, "", [=] { EXPECT_TRUE((entity->*make)(target)); });
            on.expect(1, note, [=] { (entity->*delAll)(); });
            EXPECT_EQ((entity->*count)(), 0u);
          },
          [=](E& on, ByNumber const& by) {
            by.write(nullptr, by.given(target));
            EXPECT_EQ((on.*read)(key), target);
            (on.*is)(twin);
            by.hears({by.keyed(key), by.keyed(key)});
            by.refusesValueOfAnotherType(nullptr);
            by.refusesIndex({GenericIf::opWrite});
            by.collection(key, twin);
            EXPECT_EQ((on.*count)(), 0u);
          }};
}

/// A child that is kept by its name.  `is` and `make` take the name, and give the other parameters
/// themselves.
template <class E, class T>
Row<E> own(Mox::AttributeId id, char const* name, Mox::Ptr<T> (E::*read)() const,
           Given<std::function<Mox::Ptr<T>(E&, Mox::Name)>> is,
           Given<std::function<Mox::Ptr<T>(E&, Mox::Name)>> make, Mox::Ptr<T> (E::*del)(),
           void (E::NotifieeConst::*hook)(), U32 stepsWhenKept = 1) {
  std::string const note = std::string(name) + ";";
  return {id,
          name,
          slotOf(hook),
          1,
          [=](Subject<E>& on) {
            E* const entity = on.entity.ptr();
            auto const get = [=] { return (entity->*read)(); };
            Mox::Ptr<T> first;
            Mox::Ptr<T> second;
            on.expectRead(get, nullptr);
            on.expect(0, "", [&] { EXPECT_EQ((entity->*del)(), nullptr); });
            on.expect(1, note, [&] { first = is(*entity, "a"); });
            on.expectRead(get, first);
            EXPECT_EQ(first->parent().ptr(), entity);
            EXPECT_EQ(first->parentAttrId(), id);
            on.expect(stepsWhenKept, "", [&] { EXPECT_EQ(is(*entity, "a"), first); });
            on.expect(2, note, [&] { second = is(*entity, "b"); });
            EXPECT_NE(second, first);
            EXPECT_FALSE(first->parent());
            on.expect(0, "", [&] { EXPECT_EQ(make(*entity, "c")->parentAttrId(), id); });
            on.expectRead(get, second);
            on.expect(1, note, [&] { EXPECT_EQ((entity->*del)(), second); });
            EXPECT_FALSE(second->parent());
            on.expectRead(get, nullptr);
          },
          [=](E& on, ByNumber const& by) {
            Mox::Ptr<T> const child = is(on, "a");
            by.hears({nullptr});
            by.readOnly(child);
            (on.*del)();
            by.readOnly(Mox::Ptr<T>());
          }};
}

/// Children by key; `is` and `make` take the key, and give the other parameters themselves.
template <class E, class T, class K>
Row<E> owns(Mox::AttributeId id, char const* name, Mox::Ptr<T> (E::*read)(K) const,
            Given<std::function<Mox::Ptr<T>(E&, std::remove_cvref_t<K>)>> is,
            Given<std::function<Mox::Ptr<T>(E&, std::remove_cvref_t<K>)>> make,
            Mox::Ptr<T> (E::*del)(K), void (E::*delAll)(), void (E::*notify)(K),
            U32 (E::*count)() const, void (E::NotifieeConst::*hook)(std::remove_cvref_t<K>),
            Given<std::remove_cvref_t<K>> a, Given<std::remove_cvref_t<K>> b) {
  auto const note = [=](auto const& key) { return std::string(name) + " " + text(key) + ";"; };
  return {id,
          name,
          slotOf(hook),
          3,
          [=](Subject<E>& on) {
            E* const entity = on.entity.ptr();
            auto const get = [=] { return (entity->*read)(a); };
            Mox::Ptr<T> child;
            on.expectRead(get, nullptr);
            on.expect(1, note(a), [&] { child = is(*entity, a); });
            on.expectRead(get, child);
            EXPECT_EQ(child->parent().ptr(), entity);
            EXPECT_EQ(child->parentAttrId(), id);
            on.expect(0, "", [&] { EXPECT_EQ(is(*entity, a), child); });
            on.expect(0, "", [&] { EXPECT_EQ(make(*entity, b)->parentAttrId(), id); });
            EXPECT_EQ((entity->*count)(), 2u);
            on.expect(0, note(b), [&] { (entity->*notify)(b); });
            on.expect(1, note(b), [&] { EXPECT_FALSE((entity->*del)(b)->parent()); });
            on.expect(0, "", [&] { EXPECT_EQ((entity->*del)(b), nullptr); });
            on.expect(1, note(a), [&] { (entity->*delAll)(); });
            EXPECT_FALSE(child->parent());
            EXPECT_EQ((entity->*count)(), 0u);
          },
          [=](E& on, ByNumber const& by) {
            Mox::Ptr<T> const child = is(on, a);
            by.hears({by.keyed(a)});
            by.refusesAll({GenericIf::opWrite});
            by.collection(a, child);
            EXPECT_FALSE(child->parent());
            EXPECT_EQ((on.*count)(), 0u);
          }};
}

/// The attributes of the type's own level, but the flag that each entity has.
template <class E>
std::vector<std::string> ownAttributes() {
  std::vector<std::string> result;
  auto const* const type = E::_fwkType();
  U32 inherited = type->base()->attributeQ().count();
  for (auto const& entry : type->attributeQ()) {
    if (inherited > 0)
      --inherited;
    else if (auto const& attribute = entry.value(); attribute->id() >= 258)
      result.push_back(std::to_string(attribute->id()) + " " + text(attribute->name()));
  }
  return result;
}

/// The rows are all attributes of the type, each holds on a fresh entity, and hooks stand in the
/// rows' order.
template <class Listener, class Make>
void everyAttribute(Make const& make, std::vector<Row<typename Listener::Entity>> const& rows) {
  using E = typename Listener::Entity;
  std::vector<std::string> listed;
  std::ptrdiff_t slot = 0;
  for (auto const& row : rows) {
    SCOPED_TRACE(row.name);
    listed.push_back(std::to_string(row.id) + " " + row.name);
    Subject<E> subject(Mox::Ptr<E>(make()), Mox::Ptr<Listener>(new Listener));
    EXPECT_EQ(subject.entity->attributeString(row.id), row.name.c_str());
    EXPECT_TRUE(subject.entity->moxHasAttrLogInterface());
    EXPECT_EQ(subject.entity->fwkType(), E::_fwkType());
    row.holds(subject);
    Mox::Ptr<E> const another = make();
    row.holdsByNumber(*another, ByNumber(another, row.id, row.name));
    if (row.slots == 0) continue;
    EXPECT_TRUE(slot == 0 || row.slot == slot) << "its hook isn't behind the one before";
    slot = row.slot + row.slots;
  }
  EXPECT_EQ(listed, ownAttributes<E>());
}

}  // namespace Kestrel::attributes
