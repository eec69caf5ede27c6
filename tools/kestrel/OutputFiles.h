// Files that appear whole or not at all.
#pragma once

#include <string>
#include <vector>

namespace kestrel {

/// A file to be, and what it will hold.
struct OutputFile {
  std::string path;
  std::string text;
};

/// Writes all files, or none if one can't be: each is written beside its place and moved there when
/// all are, so that what stood there before stays until then.  A device, a pipe and a file without
/// a name are written to as they are, behind the others.  Throws `std::runtime_error` with "path:
/// cannot be written: reason", and `UsageFault` if two of the paths lead to one file.
void writeFiles(std::vector<OutputFile> const& files);

}  // namespace kestrel
