// The language of the tests of values by number.
#pragma once

#include "hwmodel/ByNumberTest.h"

#include <vector>

namespace Kestrel::attributes {

template <class T>
GenericIf::Ptr face(T const& value, bool isConst = false) {
  return T::_fwkType()->genericIf(&value, isConst);
}
template <class T>
T valueOf(GenericIf::PtrConst const& of) {
  return *static_cast<T const*>(of->voidPtrIs(T::_fwkType()));
}
template <class T>
GenericIf::Ptr number(T value) {
  return Mox::primitiveIf(value, false);
}
inline GenericIf::Ptr list(std::vector<GenericIf::PtrConst> const& entries) {
  Mox::Ptr<GenericIf::List_> const made = new GenericIf::List_;
  for (auto const& entry : entries) made->genericIfEnq(entry);
  return made;
}
template <class T>
T made(std::vector<GenericIf::PtrConst> const& entries) {
  return valueOf<T>(face(T(), true)->genericIfListConstructor(list(entries)));
}
inline std::string read(GenericIf::Ptr const& of, Mox::AttributeId id) {
  return of->attributeOp({id})->strRep().charPtr();
}
inline void write(GenericIf::Ptr const& of, Mox::AttributeId id, GenericIf::PtrConst const& value) {
  EXPECT_FALSE(of->attributeOp({id, GenericIf::opWrite}, nullptr, value));
}

/// What must hold of each value that is not the mark of an unset one.
template <class T>
void expectRoundTrip(T const& value) {
  auto const text = face(value)->strRep();
  for (bool const isConst : {false, true}) {
    auto const back = T::_fwkType()->genericIf(text, isConst);
    EXPECT_TRUE(valueOf<T>(back) == value) << text.charPtr();
    EXPECT_EQ(back->isConst(), isConst);
    EXPECT_EQ(back->clone()->isConst(), isConst);
    EXPECT_TRUE(valueOf<T>(back->clone()) == value);
  }
}

/// The text of each attribute by the descriptor: "devId 1, portId 2, hash 2".
template <class T>
std::string fields(T const& value) {
  std::string text;
  auto const of = face(value);
  for (auto const& entry : T::_fwkType()->attributeQ()) {
    auto const name = entry.value()->moxName().stringValue();
    EXPECT_EQ(of->attributeId(name), entry.key());
    EXPECT_EQ(of->attributeOp({entry.key()})->type(), entry.value()->type());
    text += (text.empty() ? "" : ", ") + std::string(name.view()) + " " + read(of, entry.key());
  }
  return text;
}

/// A computed attribute is only read.
template <class T>
void expectReadOnly(Mox::AttributeId id, std::string const& name) {
  EXPECT_EQ(refusal<Mox::OpNotSupportedException>([&] {
              face(T())->attributeOp({id, 128}, nullptr, number(U32{1}));
            }),
            "'" + name + "' does not support operation 128");
}

}  // namespace Kestrel::attributes
