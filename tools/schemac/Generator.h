// What a run makes of its schemas.
#pragma once

#include "tools/schemac/Library.h"
#include "tools/schemac/Schema.h"

#include <filesystem>
#include <string>
#include <vector>

namespace schemac {

/// A file to write.
struct Output {
  std::filesystem::path path;  ///< below the output folder
  std::string text;
};

/// What of the outputs is wanted.
struct Wanted {
  bool set = false;        ///< also those of the run as a whole, such as the list of all types
  bool reference = false;  ///< the pages of the reference, in place of all others
  bool pathsOnly = false;  ///< leave the texts empty
};

/// The outputs of checked `schemas`, in order.  Throws `TemplateError`, also where two templates
/// would write the same file.
std::vector<Output> generate(Library const& library, std::vector<Schema> const& schemas,
                             Wanted wanted);

}  // namespace schemac
