// The language of the tests of access by number: interfaces, what they answer as text, and what
// they refuse.
#pragma once

#include "Mox/GenericIfEntity.h"
#include "everyShape/everyShape.h"

#include <gtest/gtest.h>
#include <string>
#include <typeindex>
#include <vector>

namespace reflecttest {

using Mox::GenericIf;
using Id = Mox::AttributeId;

/// The interface of a value: a primitive, a record, or what a pointer points at.
template <class T>
GenericIf::Ptr given(T const& value, bool isConst = false) {
  if constexpr (Mox::Primitive<T>)
    return Mox::primitiveIf(value, isConst);
  else
    return T::_fwkType()->genericIf(&value, isConst);
}
template <class T>
GenericIf::Ptr given(Mox::Ptr<T> const& target, bool isConst = false) {
  return T::_fwkType()->genericIf_(target.ptr(), isConst);
}
inline GenericIf::Ptr given(everyShape::Mood mood) {
  return everyShape::_fwkType_Mood()->genericIf(&mood, false);
}
inline GenericIf::Ptr text(char const* bytes) { return given(Mox::String8(bytes)); }

/// A list of interfaces.
inline GenericIf::Ptr list(std::vector<GenericIf::PtrConst> const& entries = {}) {
  Mox::Ptr<GenericIf::List_> const made = new GenericIf::List_;
  for (auto const& entry : entries) made->genericIfEnq(entry);
  return made;
}

/// The text of an answer; "null" without one.
inline std::string shown(GenericIf::PtrConst const& answer) {
  return answer ? answer->strRep().charPtr() : "null";
}

/// What `step` raises, as "Type: wrong type for 'level'"; "done" if it raises nothing.
template <class Step>
std::string refusal(Step const& step) {
  static std::pair<std::type_index, char const*> const kinds[] = {
      {typeid(Mox::ConstException), "Const"},
      {typeid(Mox::BadIndexAttrException), "BadIndexAttr"},
      {typeid(Mox::TypeException), "Type"},
      {typeid(Mox::OpNotSupportedException), "OpNotSupported"},
      {typeid(Mox::UnknownAttrException), "UnknownAttr"},
      {typeid(Mox::UnknownArgException), "UnknownArg"},
      {typeid(Mox::RangeException), "Range"},
  };
  try {
    step();
    return "done";
  } catch (Mox::Exception const& raised) {
    for (auto const& [type, kind] : kinds)
      if (type == typeid(raised)) return std::string(kind) + ": " + raised.what();
    return std::string("another exception: ") + raised.what();
  }
}

/// An interface that is asked.
class Face {
 public:
  explicit Face(GenericIf::Ptr const& face) : face_(face) {}
  template <class T>
  explicit Face(Mox::Ptr<T> const& target, bool isConst = false)
      : face_(target->fwkType()->genericIf_(target.ptr(), isConst)) {}

  GenericIf* operator->() const { return face_.ptr(); }
  GenericIf::Ptr const& ptr() const { return face_; }

  GenericIf::Ptr ask(Id id, GenericIf::OpId op, GenericIf::PtrConst const& index = nullptr,
                     GenericIf::PtrConst const& value = nullptr) const {
    return face_->attributeOp({id, op}, index, value);
  }
  std::string read(Id id, GenericIf::PtrConst const& index = nullptr) const {
    return shown(ask(id, GenericIf::opRead, index));
  }
  void write(Id id, GenericIf::PtrConst const& value) const {
    EXPECT_FALSE(ask(id, GenericIf::opWrite, nullptr, value));
  }
  void write(Id id, GenericIf::PtrConst const& index, GenericIf::PtrConst const& value) const {
    EXPECT_FALSE(ask(id, GenericIf::opWrite, index, value));
  }
  /// What asking is refused with.
  std::string refused(Id id, GenericIf::OpId op, GenericIf::PtrConst const& index = nullptr,
                      GenericIf::PtrConst const& value = nullptr) const {
    return refusal([&] { ask(id, op, index, value); });
  }

 private:
  GenericIf::Ptr face_;
};

/// The entity of an interface; null once it has gone.
inline Mox::Entity* entityOf(GenericIf::PtrConst const& face) {
  return dynamic_cast<Mox::GenericIfEntity const&>(*face).entity();
}

/// What an iterator meets from where it stands on: "1=10 2=20 ".
inline std::string rest(GenericIf::AttributeIteratorConst at) {
  std::string met;
  for (; at; ++at) met += shown(at.key()) + "=" + shown(at.obj()) + " ";
  return met;
}

/// Numbers of everyShape's attributes.
namespace every {
inline constexpr Id port = 258, level = 259, gauge = 260, ratio = 261, label = 262, mix = 263,
                    mood = 264, bounded = 265, hits = 266, bytes = 267, words = 268, texts = 269,
                    buddy = 270, known = 271, seats = 272, best = 273, leaves = 274, lanes = 275,
                    odd = 276, extra = 386, marks = 387, hasAttrLogInterface = 154;
}
namespace grove {
inline constexpr Id tree = 258, row = 259, treeSum = 260, prune = 261, brook = 262, level = 263,
                    byLevel = 264;
}
namespace engine {
inline constexpr Id grove = 130, note = 131, running = 132, start = 133, heat = 134;
}

/// A leaf under any name.
inline Mox::Ptr<everyShape::Leaf> leaf(char const* name, U8 lane = 0) {
  return new everyShape::Leaf(name, lane, everyShape::Mix());
}

/// An entity of a derived class, and its interface.
struct EveryFixture : testing::Test {
  Mox::Ptr<everyShape::Derived> entity = new everyShape::Derived("e0", 7);
  Face face{entity};
  Face constant{entity, true};
};

}  // namespace reflecttest
