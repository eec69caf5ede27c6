// Level by level.
#include "tools/kestrel/model/Tree.h"

#include "tools/kestrel/model/PlainText.h"
#include "tools/kestrel/model/Show.h"

#include <algorithm>
#include <ostream>

namespace kestrel {

namespace {

class Tree {
 public:
  explicit Tree(std::ostream& out) : out_(out) {}

  void entity(std::string const& name, GenericIf& face, U32 depth) {
    line(name + " " + textOf(face.type()->fullTypeName().stringValue()));
    ++level_;
    for (MoxAttr const* const attribute : attributesOf(*face.type()))
      if (isCollection(*attribute))
        collection(face, *attribute, depth);
      else if (attribute->isInstantiating() && depth > 0)
        child(nameOf(*attribute), *read(face, *attribute), depth);
    --level_;
  }

  /// Its elements stand below if they belong to it.
  void collection(GenericIf& face, MoxAttr const& attribute, U32 depth) {
    line(nameOf(attribute) + " " + countText(face, attribute));
    if (!attribute.isInstantiating() || depth == 0) return;
    ++level_;
    for (auto at = face.attributeIteratorConst(attribute.id()); at; ++at)
      child(encoded(plainText(*at.key())), *at.obj(), depth);
    --level_;
  }

  /// `depth` isn't 0: the child takes a level.
  void child(std::string const& name, GenericIf& face, U32 depth) {
    if (!isNull(face)) entity(name, face, depth - 1);
  }

 private:
  void line(std::string const& text) { out_ << std::string(2 * level_, ' ') << text << '\n'; }

  std::ostream& out_;
  std::size_t level_ = 0;
};

std::string lastStep(std::string const& path) { return path.substr(path.rfind('/') + 1); }

}  // namespace

void printTree(Place const& place, Roots const& roots, U32 depth, std::ostream& out) {
  Tree tree(out);
  if (place.kind == Place::Kind::top)
    for (Root const& root : roots)
      tree.child(encoded(root.name), *root.face, std::max(depth, U32{1}));
  else if (place.kind == Place::Kind::collection)
    tree.collection(*place.holder, *place.attribute, depth);
  else if (place.isObject())
    tree.entity(lastStep(place.path), *place.face, depth);
  else
    throw faultAt(place.path, "no entity stands there: " + lineAt(place));
}

}  // namespace kestrel
