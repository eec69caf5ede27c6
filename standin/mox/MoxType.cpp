// Descriptors: attributes in their scopes, types in the process's registry.
#include "Mox/MoxType.h"

#include "Mox/Strep.h"

#include <algorithm>
#include <map>

namespace Mox {

namespace {

std::map<Name, MoxType const*>& typeNodes() {
  static auto* const nodes = new std::map<Name, MoxType const*>;
  return *nodes;
}

}  // namespace

MoxAttr::MoxAttr(Name const& name, MoxType const* type, MoxType const* keyType, AttrFlags flags,
                 AttributeId id)
    : Entity(name), type_(type), keyType_(keyType), flags_(flags), id_(id) {}

MoxAttr::~MoxAttr() = default;

Ptr<MoxAttr> MoxAttr::attr(Name const& name) const {
  for (Ptr<MoxAttr> const& attribute : attributes_)
    if (attribute->moxName() == name) return attribute;
  return nullptr;
}

Ptr<MoxAttr> MoxAttr::attrDel(Name const& name) {
  Ptr<MoxAttr> const struck = attr(name);
  std::erase(attributes_, struck);
  return struck;
}

Ptr<MoxAttr> MoxAttr::attrIs(Name const& name, MoxType const* type, Name const& keyAttr,
                             std::nullptr_t, AttrFlags flags, AttributeId id) {
  MoxAttr* const key = type && !keyAttr.empty() ? type->attr(keyAttr).ptr() : nullptr;
  Ptr<MoxAttr> const made = new MoxAttr(name, type, key ? key->type() : nullptr, flags, id);
  made->keyAttr_ = keyAttr;
  attributes_.push_back(made);
  return made;
}

MoxType const* MoxAttr::fwkType() const { return MoxType::opaque("Mox::MoxAttr"); }

MoxType::MoxType(Name const& shortName, MoxType* scope, MoxType* base, MoxTypeFlags const& flags)
    : MoxAttr(shortName, nullptr, nullptr, {}, 0),
      base_(base),
      fullTypeName_(scope ? scope->fullTypeName().stringValue() + "::" + shortName.stringValue()
                          : shortName.stringValue()),
      flags_(flags) {}

MoxType::~MoxType() = default;

Ptr<MoxAttr> MoxType::defNoninstantiatingAttr(MoxType const* type, Name const& name,
                                              MoxType const* keyType, AttrFlags flags,
                                              U32 introspectionFlags, AttributeId id) {
  Ptr<MoxAttr> const made = new MoxAttr(name, type, keyType, flags, id);
  made->introspectionFlagsIs(introspectionFlags);
  attributes_.push_back(made);
  return made;
}

void MoxType::attributeQEnq(Ptr<MoxAttr> const& attribute) {
  byName_.deleteAll();
  queue_.enq(new MapNode<AttributeId, Ptr<MoxAttr>>(attribute->id(), attribute));
}

MoxAttr const* MoxType::attributeById(AttributeId id) const noexcept {
  auto const* const entry = queue_.find(id);
  return entry ? entry->value().ptr() : nullptr;
}

// Flattened: by name is how tools ask, and a call of the search costs as much as half of it.
[[gnu::flatten]] MoxAttr const* MoxType::attributeByName(String8 const& name) const {
  if (byName_.empty()) [[unlikely]]
    indexNames();
  auto const* const node = byName_.find(name);
  return node ? node->value() : nullptr;
}

[[gnu::noinline]] void MoxType::indexNames() const {
  for (auto const& entry : queue_) {
    String8 const& name = entry.value()->moxName().stringValue();
    if (!byName_.isMember(name))
      byName_.newMember(new MapNode<String8, MoxAttr const*>(name, entry.value().ptr()));
  }
}

Ptr<GenericIf> MoxType::genericIf(void const* value, bool isConst) const {
  return genericIf_(*static_cast<PtrInterface* const*>(value), isConst);
}

Ptr<GenericIf> MoxType::genericIf(String8 const& text, bool isConst) const {
  if (!isEntity()) throwRangeException(fullTypeName().stringValue() + " has no text form");
  auto at = text.begin();
  auto const entity = sequenceToValueOfPtr(at, text.end(), static_cast<Entity*>(nullptr));
  requireEnd(at);
  return genericIf_(entity.ptr(), isConst);
}

Ptr<GenericIf> MoxType::genericIf_(PtrInterface*, bool) const {
  throw OpNotSupportedException("'" + fullTypeName().stringValue() + "' has no access by number");
}

Ptr<Entity> MoxType::newEntity(Name const&, Dir*) const { return nullptr; }

void MoxType::typeNodeIs(MoxType const* type, Name const& fullName) {
  typeNodes()[fullName] = type;
}

MoxType const* MoxType::typeNode(Name const& fullName) {
  auto const found = typeNodes().find(fullName);
  return found == typeNodes().end() ? nullptr : found->second;
}

MoxType* immortal(MoxType* type) {
  type->referencesInc();
  if (ptrifTrackOn_) PtrTrack::ptrifDel(type);
  return type;
}

MoxType* MoxType::opaque(char const* name) {
  static auto* const known = new std::map<Name, MoxType*>;
  MoxType*& type = (*known)[name];
  if (!type) type = immortal(new MoxType(name, nullptr, nullptr, {}));
  return type;
}

MoxType* MoxType::_fwkType() { return opaque("Mox::MoxType"); }
MoxType* Entity::_fwkType() { return MoxType::opaque("Mox::Entity"); }

Ptr<IntrospectionReactor> IntrospectionReactor::global() {
  static Ptr<IntrospectionReactor> const reactor = new IntrospectionReactor;
  return reactor;
}

void IntrospectionReactor::handleNameSpace(char const* name) { nameSpace_ = name; }

void IntrospectionReactor::handleType(Ptr<MoxType const> const& type, Ptr<MoxType const> const&) {
  // Only the reactor writes to a descriptor that it was handed for reading: its place in a
  // namespace.
  auto* const opened = const_cast<MoxType*>(type.ptr());
  if (!nameSpace_.empty()) opened->fullTypeNameIs(nameSpace_ + "::" + opened->name().stringValue());
  types_.push_back(opened);
  ++depth_;
}

void IntrospectionReactor::handleAttr(Ptr<MoxAttr> const&) { ++depth_; }
void IntrospectionReactor::handleAttrContextExit() { --depth_; }
void IntrospectionReactor::handleScopeExit() { --depth_; }

}  // namespace Mox
