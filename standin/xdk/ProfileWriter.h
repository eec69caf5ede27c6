// Writes profiles as JSON.
#pragma once

#include "standin/xdk/Profile.h"

#include <string>

namespace xdksim {

/// The profile as a file's text, which `readProfile` reads back to an equal one.  Contexts stand a
/// line each, prefix tables too.
std::string writeProfile(Profile const& profile);

}  // namespace xdksim
