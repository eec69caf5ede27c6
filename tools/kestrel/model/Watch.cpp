// One watcher for each path.
#include "tools/kestrel/model/Watch.h"

#include "Mox/GenericIfEntity.h"
#include "tools/kestrel/model/PlainText.h"
#include "tools/kestrel/model/Show.h"

#include <map>
#include <optional>
#include <ostream>

namespace kestrel {

namespace {

using Face = Mox::GenericIfEntity;

Face* entityFace(Place const& place) {
  auto* const face = dynamic_cast<Face*>(place.face.ptr());
  return face && face->entity() ? face : nullptr;
}

/// The nearest entity on the way up, and behind it the places down to `place`.
std::vector<Place> chainTo(Place const& place) {
  std::vector<Place> chain = {place};
  while (!entityFace(chain.front())) {
    if (!chain.front().above) throw faultAt(place.path, "no entity holds what stands there");
    chain.insert(chain.begin(), Place(*chain.front().above));
  }
  return chain;
}

}  // namespace

/// What is told of one path.
class Watched : public Face::Watcher {
 public:
  Watched(Paths const& paths, Place const& place, Mox::ActivityConfig* activity, std::ostream& out)
      : paths_(paths), activity_(activity), out_(out), chain_(chainTo(place)) {}

  // Not a constructor's work: to be told takes a reference.
  void start(Face& entity) {
    auto const own = entity.clone();
    face_ = static_cast<Face*>(own.ptr());
    face_->watcherIs(this);
    face_->activityIs(activity_);
    for (MoxAttr const* const attribute : attributesOf(*face_->type()))
      if (auto const told = toldOf(*attribute, nullptr); told && !told->asCount)
        last_[told->path] = textAt(told->path);
  }
  void start() { start(*entityFace(chain_.front())); }
  void stop() {
    if (face_) face_->watcherIs(nullptr);
    face_ = nullptr;
  }

  void onAttribute(Face& changed, Mox::AttributeId id, GenericIf::PtrConst const& key) override {
    auto const told = toldOf(*changed.type()->attributeById(id), key);
    if (!told) return;
    if (told->asCount) last_.erase(told->path);  // other elements may make the same count
    tell(told->path);
  }

  /// The entity may have gone, or another have come in its place.
  void follow() {
    Face* const there = faceThere();
    bool const watched = face_ && there && face_->entity() == there->entity();
    if (watched || (!face_ && !there)) return;
    stop();
    tell(target().path);
    if (there) start(*there);
  }

 private:
  /// Where a change is told.
  struct Told {
    std::string path;
    bool asCount;  ///< several elements of a collection
  };

  Place const& target() const { return chain_.back(); }

  Face* faceThere() {
    try {
      there_ = paths_.at(chain_.front().path);
      return entityFace(there_);
    } catch (UsageFault const&) {
      return nullptr;
    }
  }

  /// None for a change beside what is watched.
  std::optional<Told> toldOf(MoxAttr const& attribute, GenericIf::PtrConst const& key) const {
    bool const whole = chain_.size() == 1;
    if (!whole && chain_[1].attribute->id() != attribute.id()) return std::nullopt;
    if (!whole && target().kind != Place::Kind::collection) return Told{target().path, false};
    std::string const path = target().path + (whole ? "/" + nameOf(attribute) : "");
    if (key) return Told{path + "/" + encoded(plainText(*key)), false};
    return Told{path, isCollection(attribute)};
  }

  std::string textAt(std::string const& path) const {
    try {
      return lineAt(paths_.requireAt(path));
    } catch (UsageFault const&) {
      return "gone";
    }
  }

  void tell(std::string const& path) {
    std::string text = textAt(path);
    auto const [place, isNew] = last_.try_emplace(path);
    if (!isNew && place->second == text) return;
    out_ << path << ": " << text << '\n';
    place->second = std::move(text);
  }

  Paths const& paths_;
  Mox::Ptr<Mox::ActivityConfig> activity_;
  std::ostream& out_;
  std::vector<Place> chain_;
  Place there_;
  Mox::Ptr<Face> face_;
  std::map<std::string, std::string> last_;
};

Watch::Watch(Paths const& paths, bool batched, std::ostream& out) : paths_(paths), out_(out) {
  if (batched) activity_ = new Mox::ActivityConfig("watch");
}

Watch::~Watch() {
  for (auto const& watched : watched_) watched->stop();
}

void Watch::add(std::string const& path) {
  Mox::Ptr<Watched> const added =
      new Watched(paths_, paths_.requireAt(path), activity_.ptr(), out_);
  watched_.push_back(added);
  added->start();
}

void Watch::settle() {
  if (activity_) activity_->activitySm()->run();
  for (auto const& watched : watched_) watched->follow();
}

}  // namespace kestrel
