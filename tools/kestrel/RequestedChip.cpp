// From a request to profile and chip.
#include "tools/kestrel/RequestedChip.h"

#include "standin/xdk/ProfileReader.h"
#include "tools/kestrel/UsageFault.h"

namespace kestrel {

xdksim::Profile profileOf(Request const& request) {
  if (!request.profile) return xdksim::defaultProfile();
  try {
    xdksim::Profile profile = xdksim::readProfileFile(*request.profile);
    deviceIdOf(profile, *request.profile);
    return profile;
  } catch (xdksim::ProfileFault const& fault) {
    throw UsageFault(fault.what());
  }
}

Chip chipFor(Request const& request) {
  xdksim::Profile profile = profileOf(request);
  profile.coldStartNeeded = request.cold.value_or(profile.coldStartNeeded);
  profile.ldePipeMode = request.pipeMode.value_or(profile.ldePipeMode);
  return Chip(profile, request.profile.value_or("the built-in profile"), request.sdk);
}

}  // namespace kestrel
