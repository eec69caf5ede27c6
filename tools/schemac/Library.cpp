// The folder of templates.
#include "tools/schemac/Library.h"

#include "tools/schemac/Files.h"
#include "tools/schemac/Parser.h"

#include <algorithm>

namespace schemac {

namespace {

namespace fs = std::filesystem;

// Takes the first line, its newline included, off `source`.
std::string_view takeLine(std::string_view& source) {
  std::size_t length = std::min(source.find('\n'), source.size() - 1) + 1;
  std::string_view line = source.substr(0, length);
  source.remove_prefix(length);
  return line;
}

bool isBlank(std::string_view line) { return line.find_first_not_of(" \n") == line.npos; }

bool isComment(std::string_view line) {
  std::size_t first = line.find_first_not_of(' ');
  return first != line.npos && line.substr(first, 2) == "@#";
}

// `text` without blank lines around it; `at` goes with its beginning.
std::string_view trimmed(std::string_view text, Position& at) {
  while (!text.empty()) {
    std::string_view rest = text;
    if (!isBlank(takeLine(rest))) break;
    text = rest;
    ++at.line;
  }
  while (!text.empty() && (text.back() == '\n' || text.back() == ' ')) text.remove_suffix(1);
  return text;
}

std::vector<fs::path> templatesIn(fs::path const& folder) {
  std::vector<fs::path> result;
  if (!fs::is_directory(folder)) return result;
  for (auto const& entry : fs::recursive_directory_iterator(folder))
    if (entry.is_regular_file() && entry.path().extension() == ".tmpl")
      result.push_back(entry.path());
  std::ranges::sort(result);
  return result;
}

std::string readOrThrow(fs::path const& path) {
  auto text = readFile(path);
  if (!text) throw TemplateError{{path.string(), 1, 1}, "can't read this file"};
  return *text;
}

// Follows what `shape` is like to its end, which comes after as many steps as there are shapes.
void checkLikeness(Library const& library, std::string const& shape, Position const& at) {
  std::string here = shape;
  for (std::size_t step = 0; step <= library.shapes.size(); ++step) {
    std::string const like = library.shapes.at(here).like;
    if (like.empty()) return;
    if (!library.shapes.count(like))
      throw TemplateError{at, "\"" + here + "\" is like \"" + like + "\", which has no parts"};
    here = like;
  }
  throw TemplateError{at, "\"" + shape + "\" is like itself in the end"};
}

Schema builtinSchema(fs::path const& path) {
  Diagnostics diagnostics;
  Schema result = parse(path.string(), readOrThrow(path), diagnostics);
  if (!diagnostics.failed()) return result;
  throw TemplateError{{path.string(), 1, 1}, "faulty built-in types\n" + diagnostics.text()};
}

}  // namespace

Nodes const* Library::find(std::string const& shape, std::string const& part) const {
  auto set = shapes.find(shape);
  if (set == shapes.end()) return nullptr;
  auto found = set->second.parts.find(part);
  if (found != set->second.parts.end()) return &found->second;
  return set->second.like.empty() ? nullptr : find(set->second.like, part);
}

bool Library::hasPart(std::string const& part) const {
  return std::ranges::any_of(shapes,
                             [&](auto const& each) { return each.second.parts.count(part); });
}

void addParts(PartSet& shape, std::string_view source, Position at) {
  std::string name;
  std::string body;
  Position start = at;
  auto finish = [&] {
    if (name.empty()) return;
    std::string text(trimmed(body, start));
    if (!shape.parts.emplace(name, parseTemplate(text + "\n", start)).second)
      throw TemplateError{start, "part \"" + name + "\" stands twice"};
  };
  for (; !source.empty(); ++at.line) {
    std::string_view line = takeLine(source);
    auto words = directiveOf(line);
    if (words.size() == 2 && words[0] == "@") {
      finish();
      name = words[1];
      body.clear();
      start = {at.file, at.line + 1, 1};
    } else if (!name.empty()) {
      body += line;
    } else if (words.size() == 2 && words[0] == "like") {
      shape.like = words[1];
    } else if (!isBlank(line) && !isComment(line)) {
      throw TemplateError{at, "text outside of a part"};
    }
  }
  finish();
}

FileTemplate parseFileTemplate(std::string_view source, Position at) {
  std::string_view line;
  for (; !source.empty(); ++at.line) {
    line = takeLine(source);
    if (!isComment(line)) break;
  }
  auto words = directiveOf(line);
  bool conditional = words.size() == 4 && words[2] == "if";
  bool negated = words.size() == 5 && words[2] == "if" && words[3] == "not";
  bool complete = words.size() == 2 || conditional || negated;
  if (!complete || words[0] != "output")
    throw TemplateError{at, "a template begins with \"@output PATH\""};
  FileTemplate result;
  result.at = at;
  result.output = parseTemplate(words[1], at);
  result.condition = words.size() == 2 ? "" : words.back();
  result.negated = negated;
  ++at.line;
  result.body = parseTemplate(source, at);
  return result;
}

Library loadLibrary(fs::path const& folder) {
  Library result;
  result.builtin = builtinSchema(folder / "builtin.schema");
  for (char const* name :
       {"value", "enum", "entity", "object", "module", "set", "reference/module", "reference/set"})
    for (fs::path const& path : templatesIn(folder / name))
      result.files[name].push_back(parseFileTemplate(readOrThrow(path), {path.string(), 1, 1}));
  for (fs::path const& path : templatesIn(folder / "parts"))
    addParts(result.shapes[path.stem().string()], readOrThrow(path), {path.string(), 1, 1});
  for (auto const& [name, shape] : result.shapes)
    checkLikeness(result, name, {(folder / "parts").string(), 1, 1});
  return result;
}

}  // namespace schemac
