// References to entities as texts: from the full name down the tree, through nothing but
// interfaces.
#include "Mox/Dir.h"
#include "Mox/GenericIf.h"
#include "Mox/GenericIfEntity.h"
#include "Mox/MoxType.h"
#include "Mox/Strep.h"

#include <algorithm>
#include <vector>

namespace Mox {

namespace {

using Found = std::vector<Ptr<Entity>>;

/// An entity that is looked for.
struct Wanted {
  String8 type;
  String8 fullName;
};

/// What is left of `path` below an entity of that name; false where it doesn't lead there.  Names
/// may hold slashes themselves.
bool leadsTo(Name const& name, std::string_view path, std::string_view& rest) {
  if (!path.starts_with(name.view())) return false;
  rest = path.substr(name.size());
  return rest.empty() || rest.front() == '/';
}

void search(Ptr<Entity> const& entity, std::string_view path, Wanted const& wanted, Found& found);

void searchChild(GenericIf::Ptr const& child, std::string_view path, Wanted const& wanted,
                 Found& found) {
  auto const* const face = dynamic_cast<GenericIfEntity const*>(child.ptr());
  if (face && face->entity()) search(face->entity(), path, wanted, found);
}

void searchChildren(Entity& entity, std::string_view path, Wanted const& wanted, Found& found) {
  if (!entity.fwkType()->hasGenericIfSupport()) return;
  auto const face = entity.fwkType()->genericIf_(&entity, true);
  for (auto const& entry : entity.fwkType()->attributeQ()) {
    MoxAttr const& attribute = *entry.value();
    if (!attribute.isInstantiating()) continue;
    if (!attribute.keyType()) {
      searchChild(face->attributeOp({attribute.id()}), path, wanted, found);
      continue;
    }
    for (auto at = face->attributeIteratorConst(attribute.id()); at; ++at)
      searchChild(at.obj(), path, wanted, found);
  }
}

void search(Ptr<Entity> const& entity, std::string_view path, Wanted const& wanted, Found& found) {
  std::string_view rest;
  if (!leadsTo(entity->name(), path, rest)) return;
  bool const fits = rest.empty() && entity->fwkType()->fullTypeName() == Name(wanted.type);
  // The root directory may have one entity under several names.
  if (fits && std::ranges::find(found, entity) == found.end()) found.push_back(entity);
  if (!rest.empty()) searchChildren(*entity, rest.substr(1), wanted, found);
}

Ptr<Entity> theOne(Wanted const& wanted) {
  Found found;
  for (auto const& [name, root] : Dir::root()->entries())
    search(root, wanted.fullName.view(), wanted, found);
  auto const what = wanted.type + " " + valueToStrep(wanted.fullName);
  if (found.empty()) throwRangeException("there is no " + what);
  if (found.size() > 1) throwRangeException("there is more than one " + what);
  return found.front();
}

bool readsNone(String8::IteratorConst& at, String8::IteratorConst const& end) {
  auto const start = at;
  try {
    needString(at, end, "None");
    return true;
  } catch (RangeException const&) {
    at = start;
    return false;
  }
}

}  // namespace

Ptr<Entity> sequenceToValueOfPtr(String8::IteratorConst& at, String8::IteratorConst const& end,
                                 Entity*) {
  if (readsNone(at, end)) return nullptr;
  Wanted wanted;
  needString(at, end, "Entity ( ");
  sequenceToValue(at, end, &wanted.type);
  needString(at, end, " , ");
  sequenceToValue(at, end, &wanted.fullName);
  needString(at, end, " )");
  return theOne(wanted);
}

Ptr<PtrInterface> sequenceToValueOfPtr(String8::IteratorConst& at,
                                       String8::IteratorConst const& end, PtrInterface*) {
  needString(at, end, "None");
  return nullptr;
}

}  // namespace Mox
