// Turns templates and names into text.
#include "tools/schemac/Renderer.h"

#include <sstream>

namespace schemac {

namespace {

// Deep enough for any sensible template; a part that names itself ends here.
constexpr std::size_t deepest = 100;

std::string withoutNewline(std::string text) {
  if (!text.empty() && text.back() == '\n') text.pop_back();
  return text;
}

}  // namespace

std::string Renderer::text(Nodes const& nodes) {
  std::string out;
  append(nodes, out);
  return out;
}

void Renderer::append(Nodes const& nodes, std::string& out) {
  for (Node const& node : nodes) append(node, out);
}

void Renderer::append(Node const& node, std::string& out) {
  switch (node.kind) {
    case Node::Kind::text:
      out += node.text;
      return;
    case Node::Kind::value:
      out += value(node.text, node.at);
      return;
    case Node::Kind::each:
      return each(node, out);
    case Node::Kind::parts:
      return parts(node, out);
    case Node::Kind::part:
      return part(node.shape.empty() ? stack_.back()->shape : node.shape, node, out);
    case Node::Kind::choice:
      return append(isSet(node.text, node.at) != node.negated ? node.body : node.other, out);
  }
}

void Renderer::each(Node const& node, std::string& out) {
  bool first = true;
  for (Scope const& item : list(node.text, node.at)) {
    if (!first) append(node.other, out);
    first = false;
    out += inScope(item, node.body);
  }
}

// An item whose shape lacks the part adds nothing.
void Renderer::parts(Node const& node, std::string& out) {
  if (!library_.hasPart(node.part))
    throw TemplateError{node.at, "no shape has a part \"" + node.part + "\""};
  for (Scope const& item : list(node.text, node.at)) {
    Nodes const* found = library_.find(item.shape, node.part);
    if (!found) continue;
    std::string const text = inScope(item, *found);
    addIndented(text, node, out);
    if (node.spaced && !text.empty()) out += "\n";
  }
}

void Renderer::part(std::string const& shape, Node const& node, std::string& out) {
  Nodes const* found = library_.find(shape, node.part);
  if (!found) throw TemplateError{node.at, "\"" + shape + "\" has no part \"" + node.part + "\""};
  addIndented(inScope(*stack_.back(), *found), node, out);
}

std::string Renderer::inScope(Scope const& scope, Nodes const& nodes) {
  if (stack_.size() == deepest && !nodes.empty())
    throw TemplateError{nodes.front().at, "templates nested too deep"};
  stack_.push_back(&scope);
  std::string result = text(nodes);
  stack_.pop_back();
  return result;
}

// Inside of a line a part loses its last newline; blank lines get no indentation.
void Renderer::addIndented(std::string const& text, Node const& node, std::string& out) const {
  if (!node.whole) {
    out += withoutNewline(text);
    return;
  }
  std::istringstream lines(text);
  for (std::string line; std::getline(lines, line);)
    out += (line.empty() ? "" : node.indent) + line + "\n";
}

std::string Renderer::value(std::string const& name, Position const& at) {
  std::size_t dot = name.find('.');
  if (dot != std::string::npos) {
    auto const& owner = list(name.substr(0, dot), at);
    if (owner.empty()) throw TemplateError{at, "\"" + name.substr(0, dot) + "\" is absent here"};
    return member(owner.front(), name.substr(dot + 1), at);
  }
  if (std::string const* found = findText(name)) return *found;
  auto const& items = list(name, at);
  return items.empty() ? "" : member(items.front(), selfName, at);
}

// A name of `scope` itself, or what the part of that name of its shape gives.
std::string Renderer::member(Scope const& scope, std::string const& name, Position const& at) {
  auto found = scope.texts.find(name);
  if (found != scope.texts.end()) return found->second;
  Nodes const* part = library_.find(scope.shape, name);
  if (!part) throw TemplateError{at, "unknown name \"" + name + "\""};
  return withoutNewline(inScope(scope, *part));
}

bool Renderer::isSet(std::string const& name, Position const& at) {
  std::size_t dot = name.find('.');
  if (dot != std::string::npos && list(name.substr(0, dot), at).empty()) return false;
  if (dot != std::string::npos || findText(name)) return !value(name, at).empty();
  return !list(name, at).empty();
}

// Both look for the innermost scope that knows the name as text or list.
std::string const* Renderer::findText(std::string const& name) const {
  for (auto scope = stack_.rbegin(); scope != stack_.rend(); ++scope) {
    auto found = (*scope)->texts.find(name);
    if (found != (*scope)->texts.end()) return &found->second;
    if ((*scope)->lists.count(name)) return nullptr;
  }
  return nullptr;
}

std::vector<Scope> const* Renderer::findList(std::string const& name) const {
  for (auto scope = stack_.rbegin(); scope != stack_.rend(); ++scope) {
    auto found = (*scope)->lists.find(name);
    if (found != (*scope)->lists.end()) return &found->second;
  }
  return nullptr;
}

std::vector<Scope> const& Renderer::list(std::string const& name, Position const& at) const {
  auto const* found = findList(name);
  if (!found) throw TemplateError{at, "unknown name \"" + name + "\""};
  return *found;
}

}  // namespace schemac
