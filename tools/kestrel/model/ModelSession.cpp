// From what the user has asked for to a model.
#include "tools/kestrel/model/ModelSession.h"

namespace kestrel {

ModelSession::ModelSession(Request const& request)
    : chip_(chipFor(request)), insight_(request.insight) {
  chip_.bringUp();
  model_.emplace(chip_);
  paths_.emplace(model_->roots());
}

}  // namespace kestrel
