// Interfaces to attributes by number: what they are without an attribute, their complaints, and
// lists of them.
#include "Mox/GenericIf.h"

#include "Mox/Exception.h"
#include "Mox/MoxType.h"

namespace Mox {

namespace {

String8 quoted(String8 const& name) { return "'" + name + "'"; }

}  // namespace

constinit GenericIf::PtrConst const GenericIf::notGiven;

GenericIf::~GenericIf() = default;

GenericIf::Ptr GenericIf::attributeOp(AttributeOp op, PtrConst const&, PtrConst const&) {
  requireWritable(op);
  throwUnknownAttrException(type()->moxName().stringValue());
}

GenericIf::AttributeIteratorConst GenericIf::attributeIteratorConst(AttributeId id) const {
  if (auto const* const attribute = type()->attributeById(id))
    throwOpNotSupportedException(attribute->moxName().stringValue(), opRead, true);
  throwUnknownAttrException(type()->moxName().stringValue());
}

GenericIf::AttributeIteratorConst GenericIf::attributeIteratorKeyConst(AttributeId id,
                                                                       PtrConst const&) const {
  return GenericIf::attributeIteratorConst(id);
}

bool GenericIf::attributeIterator_nonNull(AttributeIteratorConst const& at) const {
  return static_cast<bool>(at);
}
GenericIf::Ptr GenericIf::attributeIterator_iterObj(AttributeIteratorConst const& at) {
  return at.obj();
}
GenericIf::PtrConst GenericIf::attributeIterator_iterObj(AttributeIteratorConst const& at) const {
  return at.obj();
}
GenericIf::PtrConst GenericIf::attributeIterator_iterKey(AttributeIteratorConst const& at) const {
  return at.key();
}
void GenericIf::attributeIterator_iterInc(AttributeIteratorConst& at) const { ++at; }
void GenericIf::attributeIterator_iterDel(AttributeIteratorConst& at) const { at.clear(); }
GenericIf::AttributeIteratorConst GenericIf::attributeIterator_iterClone(
    AttributeIteratorConst const& at) const {
  return at;
}

void const* GenericIf::voidPtrIs(Mox::Ptr<MoxType const> const& type) const {
  if (type.ptr() != type_) throwTypeException(type_->moxName().stringValue());
  return held_;
}

MoxType const* GenericIf::type() const { return type_; }

AttributeId GenericIf::attributeId(String8 const& name) const {
  auto const* const attribute = type_->attributeByName(name);
  if (!attribute) throwUnknownAttrException(type()->moxName().stringValue());
  return attribute->id();
}

GenericIf::Ptr GenericIf::genericIfListConstructor(PtrConst const&) const {
  throw OpNotSupportedException(quoted(type()->moxName().stringValue()) +
                                " is not made of a list of arguments");
}

void GenericIf::moxDoZombieReactors(bool zombie) {
  if (zombie != moxMarkedForDeletion()) moxMarkedForDeletionIs(zombie);
}

void const* GenericIf::requireOther(GenericIf const* given, MoxType const* type, char const* name) {
  try {
    auto const* const held = given ? given->voidPtrIs(type) : nullptr;
    if (held) return held;
  } catch (TypeException const&) {
  }
  throwTypeException(name);
}

void GenericIf::refuseWrite() { throwConstException("attempting to modify a const instance"); }
void GenericIf::throwConstException(String8 const& complaint) { throw ConstException(complaint); }
void GenericIf::throwBadIndexAttrException(String8 const& attribute) {
  throw BadIndexAttrException("attribute " + quoted(attribute) + " takes no index");
}
void GenericIf::throwTypeException(String8 const& name) {
  throw TypeException("wrong type for " + quoted(name));
}
void GenericIf::throwOpNotSupportedException(String8 const& attribute, OpId op, bool walk) {
  if (walk) throw OpNotSupportedException(quoted(attribute) + " is no collection");
  throw OpNotSupportedException(quoted(attribute) + format(" does not support operation %u", op));
}
void GenericIf::throwUnknownAttrException(String8 const& type) {
  throw UnknownAttrException(quoted(type) + " has no such attribute");
}
void GenericIf::throwUnknownArgException(String8 const& type) {
  throw UnknownArgException("too many arguments for " + quoted(type));
}

GenericIf::List_::List_() : List_(new Inner) {}

GenericIf::List_::List_(Mox::Ptr<Inner> const& inner)
    : GenericIf(_fwkType(), false), inner_(inner) {
  heldIs(&inner_);
  hasNotificationActiveIs(true);
}

void GenericIf::List_::genericIfEnq(PtrConst const& entry) {
  if (!inner_) inner_ = new Inner;
  inner_->entries.enq(new MoxGenericIf(inner_->entries.count(), entry));
}

void GenericIf::List_::entriesOf(PtrConst const& list, Entries& entries) {
  auto const* const given = dynamic_cast<List_ const*>(list.ptr());
  if (!given) throwTypeException("Mox::GenericIf::List_");
  if (!given->inner_) throwTypeException("List");
  for (auto const& entry : given->inner_->entries)
    entries.enq(new MoxGenericIf(entry.key(), entry.value()));
}

GenericIf::Ptr GenericIf::List_::clone() {
  if (!inner_) return new List_(nullptr);
  Mox::Ptr<List_> const copy = new List_;
  entriesOf(this, copy->inner_->entries);
  return copy;
}

String8 GenericIf::List_::strRep() const {
  String8 text = "[";
  if (inner_)
    for (auto const& entry : inner_->entries) {
      if (entry.key() != 0) text += ", ";
      text += entry.value() ? entry.value()->strRep() : "None";
    }
  return text + "]";
}

MoxType* GenericIf::List_::_fwkType() { return MoxType::opaque("Mox::GenericIf::List_"); }

}  // namespace Mox
