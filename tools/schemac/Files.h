// Reading and writing of whole files.
#pragma once

#include <filesystem>
#include <optional>
#include <string>

namespace schemac {

/// What stands in the file, or nothing if it can't be read.
std::optional<std::string> readFile(std::filesystem::path const& path);

/// Makes `text` the content of the file, and its folders where they are missing.  Leaves a file
/// that has this content already untouched, so that nothing is built anew for it; a reader never
/// sees half of a file.  False if it can't be written.
bool writeIfChanged(std::filesystem::path const& path, std::string const& text);

}  // namespace schemac
