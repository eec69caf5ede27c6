// Entities: their place in the tree, and what they are without a log.
#include "Mox/Entity.h"

#include "Mox/Exception.h"
#include "Mox/MoxType.h"

namespace Mox {

namespace {

String8 percentEncoded(Name const& name) {
  String8 encoded;
  for (unsigned char byte : name.view()) {
    bool const plain = (byte >= '0' && byte <= '9') || (byte >= 'A' && byte <= 'Z') ||
                       (byte >= 'a' && byte <= 'z') || byte == '-' || byte == '.' || byte == '_' ||
                       byte == '~';
    encoded += plain ? format("%c", byte) : format("%%%02X", byte);
  }
  return encoded;
}

}  // namespace

Entity::Entity(Name const& name) : name_(name) {}
Entity::~Entity() = default;

Name Entity::name() const { return name_; }
Ptr<Entity const> Entity::parent() const { return parent_; }
Ptr<Entity> Entity::parent() { return parent_; }

void Entity::parentIs(Ptr<Entity> const& parent) {
  if (parent.ptr() == parent_) return;
  Ptr<Entity> const former = parent_;
  parent_ = parent.ptr();
  handleParent(former);
}

Ptr<MoxAttr const> Entity::parentAttr() const {
  return parent_ ? parent_->fwkType()->attributeById(parentAttrId()) : nullptr;
}

AttributeId Entity::parentAttrId() const { return flags_ >> parentAttrShift; }

void Entity::parentAttrIdIs(AttributeId id) {
  flags_ = (flags_ & ((1u << parentAttrShift) - 1)) | (id << parentAttrShift);
}

String8 Entity::uriPath() const {
  String8 const above = parent_ ? parent_->uriPath() : String8();
  return above + "/" + percentEncoded(name());
}

String8 Entity::fullName() const {
  return parent_ ? parent_->fullName() + "/" + name().stringValue() : name().stringValue();
}

String8 Entity::attributeString(AttributeId) const { return "unknown"; }
void Entity::moxNotifieeAdapterIs(Ptr<Entity const> const&) {}
void Entity::handleParent(Ptr<Entity> const&) {}

Ptr<Entity::MoxNboAttrLogSa const> Entity::moxNboAttrLogSa(
    Ptr<NboAttrLog::Out const> const&) const {
  return nullptr;
}

bool Entity::moxHasAttrLogInterface() const { return false; }

Ptr<Entity::MoxNboAttrLogSa> Entity::moxNboAttrLogSa(Ptr<NboAttrLog::Out const> const&) {
  return nullptr;
}

Ptr<Entity::MoxNboAttrLogSa const> Entity::moxNboAttrLogSaForMsgChannel(
    Ptr<MoxNboAttrLogSa> const&) const {
  return nullptr;
}

Ptr<Entity::MoxNboAttrLogSa> Entity::moxNboAttrLogSaIs(Mox_BitSet, U32, Ptr<NboAttrLog::Out> const&,
                                                       PtrInterface*) {
  throwRangeException("null ValidPtr");
}

Ptr<Entity::MoxNboAttrLogSa> Entity::moxNboAttrLogSaDel(Ptr<NboAttrLog::Out const> const&) {
  return nullptr;
}

MoxType const* Entity::fwkType() const { return _fwkType(); }

void Entity::NotifieeConst::notifierIs(Ptr<PtrInterface const> const& notifier) {
  PtrInterface::NotifieeConst::notifierIs(ptrCast<Entity const>(notifier));
}

Name Entity::NotifieeConst::name() const {
  auto const* entity = static_cast<Entity const*>(moxNotifier());
  return entity ? entity->name() : Name();
}

}  // namespace Mox
