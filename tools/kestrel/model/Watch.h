// Changes of the model, told as they come.
#pragma once

#include "Mox/Activity.h"
#include "tools/kestrel/model/Place.h"

#include <iosfwd>
#include <memory>

namespace kestrel {

class Watched;

/// Writes a line "PATH: TEXT" for each change at some paths: of an entity for each of its
/// attributes, of a collection for each of its elements.  What has gone has the text "gone"; a
/// collection stands without a key, and with its count, where several of its elements are told at
/// once.  What stands as before isn't told.
class Watch {
 public:
  /// Changes are told in batches if `batched`.  Paths and stream outlive it.
  Watch(Paths const& paths, bool batched, std::ostream& out);
  ~Watch();
  Watch(Watch const&) = delete;
  Watch& operator=(Watch const&) = delete;

  /// Throws `UsageFault` for a path at which nothing stands, or nothing that an entity holds.
  void add(std::string const& path);
  /// Tells what has been noted, and that entities have gone or are back.
  void settle();

 private:
  Paths const& paths_;
  Mox::Ptr<Mox::ActivityConfig> activity_;  // null: at once
  std::ostream& out_;
  std::vector<Mox::Ptr<Watched>> watched_;
};

}  // namespace kestrel
