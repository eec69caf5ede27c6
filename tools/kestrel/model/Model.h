// The model that the commands on paths work on: one slice with its chip, ports and PHYs.
#pragma once

#include "tools/kestrel/Chip.h"
#include "tools/kestrel/model/Roots.h"

#include <memory>
#include <random>

namespace kestrel {

struct ModelParts;

/// The built-in slice around a chip that is up, the same each time.  While it lives, its entities
/// stand in the process's directory, so that references to them can be read.
class Model {
 public:
  /// The chip outlives it.
  explicit Model(Chip const& chip);
  ~Model();
  Model(Model const&) = delete;
  Model& operator=(Model const&) = delete;

  Roots const& roots() const { return roots_; }

  /// Lets one thing happen in the hardware, such as a link that goes down.
  void live(std::mt19937& random);

 private:
  std::unique_ptr<ModelParts> parts_;
  Roots roots_;
};

}  // namespace kestrel
