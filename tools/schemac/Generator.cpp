// What a run makes of its schemas.
#include "tools/schemac/Generator.h"

#include "tools/schemac/Layout.h"
#include "tools/schemac/Renderer.h"
#include "tools/schemac/View.h"

#include <set>

namespace schemac {

namespace {

class Generator {
 public:
  Generator(Library const& library, bool pathsOnly) : library_(library), pathsOnly_(pathsOnly) {}

  void schema(Scope const& schema) {
    for (Scope const& type : schema.lists.at("types")) {
      stack_ = {&schema, &type};
      folder(type.shape);
    }
    stack_ = {&schema};
    folder("module");
  }

  void set(Scope const& run) {
    stack_ = {&run};
    folder("set");
  }

  // Pages are laid out by their templates alone.
  void reference(Scope const& run) {
    laidOut_ = false;
    for (Scope const& schema : run.lists.at("openSchemas")) {
      stack_ = {&run, &schema};
      folder("reference/module");
    }
    stack_ = {&run};
    folder("reference/set");
  }

  std::vector<Output> outputs() { return std::move(outputs_); }

 private:
  void folder(std::string const& name) {
    auto files = library_.files.find(name);
    if (files == library_.files.end()) return;
    for (FileTemplate const& file : files->second) output(file);
  }

  void output(FileTemplate const& file) {
    Renderer renderer(library_, stack_);
    bool wanted = file.condition.empty() || renderer.isSet(file.condition, file.at) != file.negated;
    if (!wanted) return;
    std::string path = renderer.text(file.output);
    if (!paths_.insert(path).second)
      throw TemplateError{file.at, "\"" + path + "\" would be written twice"};
    std::string const text = pathsOnly_ ? "" : renderer.text(file.body);
    outputs_.push_back({path, laidOut_ ? layout(text) : text});
  }

  Library const& library_;
  bool pathsOnly_;
  bool laidOut_ = true;
  std::vector<Scope const*> stack_;
  std::vector<Output> outputs_;
  std::set<std::string> paths_;
};

}  // namespace

std::vector<Output> generate(Library const& library, std::vector<Schema> const& schemas,
                             Wanted wanted) {
  std::vector<Scope> views;
  for (Schema const& schema : schemas) views.push_back(viewOf(library.builtin, schema));
  Generator generator(library, wanted.pathsOnly);
  Scope const run = viewOf(views);
  if (wanted.reference) {
    generator.reference(run);
    return generator.outputs();
  }
  for (Scope const& view : views) generator.schema(view);
  if (wanted.set) generator.set(run);
  return generator.outputs();
}

}  // namespace schemac
