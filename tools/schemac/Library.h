// The folder of templates.
#pragma once

#include "tools/schemac/Schema.h"
#include "tools/schemac/Template.h"

#include <filesystem>
#include <map>
#include <string>
#include <vector>

namespace schemac {

/// A template of one output file.
struct FileTemplate {
  Nodes output;           ///< the path of the output, below the output folder
  std::string condition;  ///< the output exists only if this name is set; empty for always
  bool negated = false;   ///< ... only if it is not set
  Nodes body;
  Position at;
};

/// The parts of one shape, by name.
struct PartSet {
  std::map<std::string, Nodes> parts;
  std::string like;  ///< the shape that has the parts which this one lacks; empty for none
};

/// All templates: `builtin.schema`; `<kind>/*.tmpl`, one for each output file of a type of that
/// kind, and in the same way `module/` for each schema and `set/` for a run of several;
/// `reference/module/` for each schema that isn't closed and `reference/set/` for a run, for the
/// pages of the reference; and `parts/**/<shape>.tmpl`, the parts of a shape, which may be spread
/// over several files.
struct Library {
  Schema builtin;
  std::map<std::string, std::vector<FileTemplate>> files;  ///< by folder
  std::map<std::string, PartSet> shapes;

  /// The part `part` of `shape`, or of the shape that it is like; null if there is none.
  Nodes const* find(std::string const& shape, std::string const& part) const;
  /// True if any shape has that part.
  bool hasPart(std::string const& part) const;
};

/// Reads the folder.  Throws `TemplateError`.
Library loadLibrary(std::filesystem::path const& folder);

/// Adds the parts in `source` to `shape`: "@@ name" begins a part, "@like shape" above the first
/// one names the shape to fall back to.  Blank lines around a part don't count.
void addParts(PartSet& shape, std::string_view source, Position at);

/// Reads a template whose first directive is "@output path", maybe with "if name" behind it.
FileTemplate parseFileTemplate(std::string_view source, Position at);

}  // namespace schemac
