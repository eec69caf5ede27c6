// How complaints name the place of a run.
#pragma once

#include "standin/xdk/Placement.h"

#include <string>

namespace kestrel {

/// The field that says where a run lies.
struct RunField {
  std::string name;     ///< "rowBlkStartId[2]"
  U32 value;            ///< what it holds
  std::string subject;  ///< goes on behind the value, and a verb behind it: "begins a run that"
};

/// The field from which the start of the run, a run of `context`, comes.
RunField startField(xpTableContext const& context, xdksim::SramRun const& run);

/// The name of the field from which the pool of a run comes.
std::string poolField(xdksim::SramRun const& run);

}  // namespace kestrel
