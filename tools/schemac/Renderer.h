// Turns templates and names into text.
#pragma once

#include "tools/schemac/Library.h"
#include "tools/schemac/Scope.h"

#include <string>
#include <vector>

namespace schemac {

/// Renders with the names of a stack of scopes, the innermost first.  All operations throw
/// `TemplateError` for a name or part that doesn't exist.
class Renderer {
 public:
  /// `scopes` from the outermost to the innermost; they and the library outlive the renderer.
  Renderer(Library const& library, std::vector<Scope const*> scopes)
      : library_(library), stack_(std::move(scopes)) {}

  std::string text(Nodes const& nodes);
  /// True if `name` is a text or list that isn't empty.  `at` is where it is asked for.
  bool isSet(std::string const& name, Position const& at);

 private:
  void append(Nodes const& nodes, std::string& out);
  void append(Node const& node, std::string& out);
  void each(Node const& node, std::string& out);
  void parts(Node const& node, std::string& out);
  void part(std::string const& shape, Node const& node, std::string& out);
  std::string value(std::string const& name, Position const& at);
  std::string member(Scope const& scope, std::string const& name, Position const& at);
  std::string const* findText(std::string const& name) const;
  std::vector<Scope> const* findList(std::string const& name) const;
  std::vector<Scope> const& list(std::string const& name, Position const& at) const;
  std::string inScope(Scope const& scope, Nodes const& nodes);
  void addIndented(std::string const& text, Node const& node, std::string& out) const;

  Library const& library_;
  std::vector<Scope const*> stack_;
};

}  // namespace schemac
