// The language of the compiler's tests: a schema in a few lines, and what comes out of it.
#pragma once

#include "tools/schemac/Checker.h"
#include "tools/schemac/Parser.h"
#include "tools/schemac/Renderer.h"

#include <filesystem>
#include <string>

namespace schemac::story {

/// The folder of the real templates.
inline std::filesystem::path const templates =
    std::filesystem::path(KESTREL_SOURCE_DIR) / "tools" / "schemac" / "templates";

/// A few types that every schema of a story knows.
inline Schema builtin() {
  Diagnostics diagnostics;
  return parse("builtin",
               "extern primitive bool zero false wire 1\n"
               "extern primitive U8 zero 0 wire 1 field u8 integer range 0..255\n"
               "extern primitive U32 zero 0 wire 4 field u32 integer range 0..4294967295\n"
               "extern primitive double\n"
               "extern value Mox::Name byReference\n",
               diagnostics);
}

/// What the parser says about `source`; "" for nothing.  The file is called "s".
inline std::string parseErrors(std::string const& source) {
  Diagnostics diagnostics;
  parse("s", source, diagnostics);
  return diagnostics.text();
}

/// The schema in `source`, which the parser must accept.
inline Schema parsed(std::string const& source) {
  Diagnostics diagnostics;
  Schema schema = parse("s", source, diagnostics);
  return diagnostics.failed() ? Schema{} : schema;
}

/// The type that one block makes.
inline Type block(std::string const& source) {
  Schema const schema = parsed(source);
  return schema.types.empty() ? Type{} : schema.types.front();
}

/// The row of an entity that one line makes.
inline Row row(std::string const& line) {
  Type const type = block("entity X\n" + line + "\nend\n");
  return type.rows.empty() ? Row{} : type.rows.front();
}

/// What parser and checker say about `source` in module M; "" for nothing.
inline std::string errors(std::string const& source) {
  Diagnostics diagnostics;
  std::vector<Schema> const schemas = {parse("s", "module M\n" + source, diagnostics)};
  if (!diagnostics.failed()) check(builtin(), schemas, diagnostics);
  return diagnostics.text();
}

/// The errors of `rows`, which stand from line 3 on in an entity with these parameters and options.
inline std::string inEntity(std::string const& rows, std::string const& head = "(name Mox::Name)") {
  return errors("entity X " + head + "\n" + rows + "\nend\n");
}

/// What `source`, a template, makes of `scope`, with the parts in `library`; or the error.
inline std::string rendered(std::string const& source, Scope const& scope,
                            Library const& library = {}) {
  try {
    return Renderer(library, {&scope}).text(parseTemplate(source, {"t", 1, 1}));
  } catch (TemplateError const& error) {
    return errorLine(error.at, error.what);
  }
}

}  // namespace schemac::story
