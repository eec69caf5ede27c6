// Paths into the model, and what they lead to.
//
// A path names a root, then an attribute, of a collection the key next, and so on through owned and
// referred entities, and at last, maybe, through the fields of a value.
#pragma once

#include "Mox/Exception.h"
#include "tools/kestrel/UsageFault.h"
#include "tools/kestrel/model/Attributes.h"
#include "tools/kestrel/model/Roots.h"

#include <memory>

namespace kestrel {

/// A complaint about what stands at a path.
UsageFault faultAt(std::string const& path, std::string const& complaint);

/// "there are a, b and c"; what is beyond the first names is counted.
std::string listed(std::vector<std::string> const& names);

/// What `act` answers; a complaint of the library's becomes one about the path.
template <class Act>
decltype(auto) askedAt(std::string const& path, Act const& act) {
  try {
    return act();
  } catch (Mox::Exception const& complaint) {
    throw faultAt(path, textOf(complaint.message()));
  }
}

/// One place in the model.  It is read when it is looked up, and isn't kept up.
struct Place {
  enum class Kind : U8 { top, root, scalar, collection, element, operation };

  Kind kind = Kind::top;
  std::string path = "/";  ///< in its canonical form
  std::shared_ptr<Place const> above = nullptr;
  Root const* root = nullptr;          ///< where its path begins; null for the top
  GenericIf::Ptr holder = nullptr;     ///< whose attribute this is
  MoxAttr const* attribute = nullptr;  ///< of a root and of the top null
  GenericIf::PtrConst key = nullptr;   ///< of an element
  /// Of what stands here; null for the top, a collection, an operation, what can't be read, and an
  /// element that isn't there.
  GenericIf::Ptr face = nullptr;

  /// An entity or object stands here, not none.
  bool isObject() const { return face && kestrel::isObject(*face->type()) && !isNull(*face); }
};

/// Looks paths up.
class Paths {
 public:
  /// The roots outlive it.
  explicit Paths(Roots const& roots) : roots_(roots) {}

  /// What stands at the path; the last step alone may name an element that isn't there.  Throws
  /// `UsageFault`, which says what exists, for one that leads nowhere.
  Place at(std::string const& path) const;
  /// The same, where something must stand that can be read.
  Place requireAt(std::string const& path) const;
  /// The next steps from there, in their order and as paths have them.
  std::vector<std::string> stepsBelow(Place const& place) const;

 private:
  Place below(Place const& place, std::string const& step) const;
  Place rootAt(Place const& top, std::string const& name) const;
  // A complaint about the step, and what could stand in its place.
  UsageFault unknown(Place const& place, std::string const& step,
                     std::string const& complaint) const;
  UsageFault absent(Place const& place) const;
  Place attributeAt(Place const& place, std::string const& name) const;
  Place elementAt(Place const& place, std::string const& key) const;

  Roots const& roots_;
};

/// The value of that type and text (PlainText.h); an entity's may be the path to it, too.  Raises
/// `RangeException` as there, for an enumeration with the names that it has.
GenericIf::Ptr valueOf(Paths const& paths, MoxType const& type, std::string const& text);

/// Sets what stands there, a field in the value that it stands in, to the value of that text.
/// Throws `UsageFault` where nothing can be set, with the library's complaint where it has one;
/// nothing has changed then.
void set(Paths const& paths, Place const& place, std::string const& text);

}  // namespace kestrel
