// A chip that is up, and the model around it, as the user has asked for them.
#pragma once

#include "tools/kestrel/RequestedChip.h"
#include "tools/kestrel/model/Model.h"
#include "tools/kestrel/model/Place.h"

namespace kestrel {

/// What a command on paths works on.  Throws `UsageFault` for a bad profile or trace pattern.
class ModelSession {
 public:
  explicit ModelSession(Request const& request);

  Chip& chip() { return chip_; }
  Model& model() { return *model_; }
  Paths const& paths() const { return *paths_; }
  Roots const& roots() const { return model_->roots(); }

 private:
  Chip chip_;
  Insight insight_;
  std::optional<Model> model_;
  std::optional<Paths> paths_;
};

}  // namespace kestrel
