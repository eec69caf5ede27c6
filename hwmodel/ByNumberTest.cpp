// What access to one attribute by its number must give: all that doesn't depend on its type.
#include "hwmodel/ByNumberTest.h"

namespace Kestrel::attributes {

namespace {

std::string noteOf(Mox::AttributeId id, GenericIf::PtrConst const& key) {
  std::string note = std::to_string(id);
  if (key) note.append(" ").append(key->strRep().charPtr());
  return note.append(";");
}

}  // namespace

void NumberNotes::onAttribute(Mox::GenericIfEntity&, Mox::AttributeId id,
                              GenericIf::PtrConst const& key) {
  heard_ += noteOf(id, key);
}

ByNumber::ByNumber(Mox::Ptr<Mox::Entity> const& entity, Mox::AttributeId id,
                   std::string const& name)
    : name_(name),
      face_(entity->fwkType()->genericIf_(entity.ptr(), false)),
      constant_(entity->fwkType()->genericIf_(entity.ptr(), true)),
      id_(id),
      attribute_(*entity->fwkType()->attributeById(id_)) {
  EXPECT_EQ(face_->attributeId(Mox::String8(name)), id);
  dynamic_cast<Mox::GenericIfEntity&>(*face_).watcherIs(notes_);
}

void ByNumber::write(GenericIf::PtrConst const& index, GenericIf::PtrConst const& value) const {
  EXPECT_FALSE(ask(GenericIf::opWrite, index, value));
  EXPECT_EQ(refusal<Mox::ConstException>([&] {
              constant_->attributeOp({id_, GenericIf::opWrite}, index, value);
            }),
            "attempting to modify a const instance");
}

void ByNumber::refusesValueOfAnotherType(GenericIf::PtrConst const& index) const {
  for (auto const& wrong : wrongOnes())
    EXPECT_EQ(refusal<Mox::TypeException>([&] { ask(GenericIf::opWrite, index, wrong); }),
              wrongType());
}

void ByNumber::refusesAll(std::initializer_list<GenericIf::OpId> ops) const {
  for (GenericIf::OpId const op : ops)
    EXPECT_EQ(refusal<Mox::OpNotSupportedException>([&] { ask(op); }),
              "'" + name_ + "' does not support operation " + std::to_string(op));
}

void ByNumber::refusesIndex(std::initializer_list<GenericIf::OpId> ops) const {
  for (GenericIf::OpId const op : ops)
    EXPECT_EQ(refusal<Mox::BadIndexAttrException>([&] { ask(op, anotherType()); }),
              "attribute '" + name_ + "' takes no index");
}

void ByNumber::isNoCollection() const {
  EXPECT_EQ(refusal<Mox::OpNotSupportedException>([&] { face_->attributeIteratorConst(id_); }),
            "'" + name_ + "' is no collection");
}

void ByNumber::refusesKeyOfAnotherType() const {
  for (GenericIf::OpId const op : {GenericIf::opRead, GenericIf::opIsMember, GenericIf::opErase})
    for (auto const& wrong : wrongOnes())
      EXPECT_EQ(refusal<Mox::TypeException>([&] { ask(op, wrong); }), wrongType());
}

void ByNumber::hears(std::initializer_list<GenericIf::PtrConst> keys) const {
  std::string notes;
  for (auto const& key : keys) notes += noteOf(id_, key);
  EXPECT_EQ(notes_->heard(), notes);
}

std::string ByNumber::wrongType() const { return "wrong type for '" + name_ + "'"; }

}  // namespace Kestrel::attributes
