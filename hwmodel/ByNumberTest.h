// What access to one attribute by its number must give, told by the attribute's typed accessors.
#pragma once

#include "Mox/GenericIfEntity.h"
#include "Mox/Mox.h"
#include "Mox/MoxType.h"

#include <array>
#include <gtest/gtest.h>
#include <initializer_list>
#include <string>
#include <type_traits>
#include <utility>

namespace Kestrel::attributes {

using Mox::GenericIf;

/// What `step` is refused with as `Exception`; "" if it isn't.
template <class Exception, class Step>
std::string refusal(Step const& step) {
  try {
    step();
  } catch (Exception const& exception) {
    return exception.what();
  }
  return "";
}

/// Notes changes as "260 3;", with the key's text.
class NumberNotes : public Mox::GenericIfEntity::Watcher {
 public:
  void onAttribute(Mox::GenericIfEntity&, Mox::AttributeId id,
                   GenericIf::PtrConst const& key) override;
  std::string heard() { return std::exchange(heard_, ""); }

 private:
  std::string heard_;
};

/// One attribute of an entity.
class ByNumber {
 public:
  ByNumber(Mox::Ptr<Mox::Entity> const& entity, Mox::AttributeId id, std::string const& name);

  /// What is set by `set` and read by `get`.
  template <class V, class Get, class Set>
  void scalar(Get const& get, Set const& set, V const& first, V const& other) const {
    set(other);
    holds(read(), other);
    write(nullptr, given(first));
    EXPECT_TRUE(get() == first);
    hears({nullptr, nullptr});
    refusesIndex({GenericIf::opRead, GenericIf::opWrite, 1, 129});
    refusesValueOfAnotherType(nullptr);
    refusesAll({1, 2, 3, 129});
    isNoCollection();
  }

  /// What is read alone and gives `value`.
  template <class V>
  void readOnly(V const& value) const {
    holds(read(), value);
    refusesIndex({GenericIf::opRead, GenericIf::opWrite, 1, 129});
    refusesAll({1, 2, 3, 128, 129});
    isNoCollection();
  }

  /// A collection that has `value` alone, under `key`; it is erased by its number.
  template <class K, class V>
  void collection(K const& key, V const& value) const {
    auto const index = keyed(key);
    holds(read(index), value);
    EXPECT_EQ(text(ask(GenericIf::opCount)), "1");
    EXPECT_EQ(text(ask(GenericIf::opIsMember, index)), "True");
    walks(key, value);
    refusesKeyOfAnotherType();
    refusesAll({4, 127, 130});
    std::string const changes = text(ask(GenericIf::opChanges));
    EXPECT_FALSE(ask(GenericIf::opErase, index));
    EXPECT_EQ(text(ask(GenericIf::opCount)), "0");
    EXPECT_EQ(text(ask(GenericIf::opIsMember, index)), "False");
    EXPECT_NE(text(ask(GenericIf::opChanges)), changes);
    EXPECT_FALSE(face_->attributeIteratorConst(id_));
    hears({index});
  }

  /// Writes an element: under a key, or with none where it bears its own.
  void write(GenericIf::PtrConst const& index, GenericIf::PtrConst const& value) const;
  void refusesValueOfAnotherType(GenericIf::PtrConst const& index) const;
  void refusesAll(std::initializer_list<GenericIf::OpId> ops) const;
  void refusesIndex(std::initializer_list<GenericIf::OpId> ops) const;

  template <class V>
  GenericIf::Ptr given(V const& value) const {
    return faceOf(attribute_.type(), value);
  }
  template <class K>
  GenericIf::Ptr keyed(K const& key) const {
    return faceOf(attribute_.keyType(), key);
  }
  /// Since last asked changes were told under these keys; null is that of a scalar.
  void hears(std::initializer_list<GenericIf::PtrConst> keys) const;

 private:
  static std::string text(GenericIf::PtrConst const& face) { return face->strRep().charPtr(); }
  template <class V>
  static GenericIf::Ptr faceOf(Mox::MoxType const* type, V const& value) {
    return type->genericIf(&value, false);
  }
  template <class T>
  static GenericIf::Ptr faceOf(Mox::MoxType const* type, Mox::Ptr<T> const& target) {
    return type->genericIf_(const_cast<std::remove_const_t<T>*>(target.ptr()), false);
  }
  /// No attribute of the model is a list.
  static GenericIf::Ptr anotherType() { return new GenericIf::List_; }
  static std::array<GenericIf::PtrConst, 2> wrongOnes() { return {nullptr, anotherType()}; }
  std::string wrongType() const;

  GenericIf::Ptr ask(GenericIf::OpId op, GenericIf::PtrConst const& index = nullptr,
                     GenericIf::PtrConst const& value = nullptr) const {
    return face_->attributeOp({id_, op}, index, value);
  }
  GenericIf::Ptr read(GenericIf::PtrConst const& index = nullptr) const {
    EXPECT_TRUE(constant_->attributeOp({id_}, index)->isConst());
    return ask(GenericIf::opRead, index);
  }

  template <class V>
  void holds(GenericIf::PtrConst const& answer, V const& value) const {
    EXPECT_EQ(answer->type(), attribute_.type());
    EXPECT_EQ(text(answer), text(given(value)));
    EXPECT_FALSE(answer->isConst());
  }
  template <class T>
  void holds(GenericIf::PtrConst const& answer, Mox::Ptr<T> const& target) const {
    EXPECT_EQ(dynamic_cast<Mox::GenericIfEntity const&>(*answer).entity(), target.ptr());
    EXPECT_EQ(answer->type(), target ? target->fwkType() : attribute_.type());
  }
  template <class K, class V>
  void walks(K const& key, V const& value) const {
    auto const index = keyed(key);
    for (auto at :
         {face_->attributeIteratorConst(id_), face_->attributeIteratorKeyConst(id_, index)}) {
      ASSERT_TRUE(at);
      EXPECT_EQ(at.key()->type(), attribute_.keyType());
      EXPECT_EQ(text(at.key()), text(index));
      holds(at.obj(), value);
      ++at;
      EXPECT_FALSE(at);
    }
    EXPECT_TRUE(constant_->attributeIteratorConst(id_).obj()->isConst());
    EXPECT_EQ(
        refusal<Mox::TypeException>([&] { face_->attributeIteratorKeyConst(id_, anotherType()); }),
        wrongType());
  }
  void isNoCollection() const;
  void refusesKeyOfAnotherType() const;

  std::string name_;
  GenericIf::Ptr face_;
  GenericIf::Ptr constant_;
  Mox::AttributeId id_;
  Mox::MoxAttr const& attribute_;
  Mox::Ptr<NumberNotes> notes_ = new NumberNotes;
};

}  // namespace Kestrel::attributes
