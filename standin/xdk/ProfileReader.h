// Reads profiles from JSON.
#pragma once

#include "standin/xdk/Json.h"
#include "standin/xdk/Profile.h"

#include <string>
#include <string_view>

namespace xdksim {

/// Reads the profile in `text`; `file` is how complaints name it.  Throws `ProfileFault` with one
/// line for the first fault: "lab.json: /tables/42/copyNum: -1 is negative".
Profile readProfile(std::string_view text, std::string const& file);

/// Reads the profile in that file.  Throws `ProfileFault` also where the file can't be read, or is
/// larger than 4 MiB.
Profile readProfileFile(std::string const& file);

}  // namespace xdksim
