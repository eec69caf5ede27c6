// A whole run of the compiler.
#include "tools/schemac/Run.h"

#include "tools/schemac/Checker.h"
#include "tools/schemac/CommandLine.h"
#include "tools/schemac/Files.h"
#include "tools/schemac/Generator.h"
#include "tools/schemac/Lock.h"
#include "tools/schemac/Parser.h"

namespace schemac {

namespace {

constexpr int done = 0;
constexpr int faulty = 1;
constexpr int wrongUsage = 2;

std::vector<Schema> readSchemas(std::vector<std::string> const& paths, Diagnostics& diagnostics) {
  std::vector<Schema> result;
  for (std::string const& path : paths) {
    auto source = readFile(path);
    if (source)
      result.push_back(parse(path, *source, diagnostics));
    else
      diagnostics.error({path, 1, 1}, "can't read this file");
  }
  return result;
}

void print(std::vector<Output> const& outputs, std::string const& folder, std::ostream& out) {
  for (Output const& output : outputs)
    out << (std::filesystem::path(folder) / output.path).string() << "\n";
}

int write(std::vector<Output> const& outputs, std::string const& folder, std::ostream& err) {
  int result = done;
  for (Output const& output : outputs) {
    std::filesystem::path const path = std::filesystem::path(folder) / output.path;
    if (writeIfChanged(path, output.text)) continue;
    err << errorLine({path.string(), 1, 1}, "can't write this file") << "\n";
    result = faulty;
  }
  return result;
}

// What the pages show is compiled apart, so a schema is sound or faulty by itself there.
void check(CommandLine const& asked, Library const& library, std::vector<Schema> const& schemas,
           Diagnostics& diagnostics) {
  if (!asked.reference) return check(library.builtin, schemas, diagnostics);
  for (Schema const& schema : schemas) check(library.builtin, {schema}, diagnostics);
}

void compareLock(std::string const& path, Library const& library,
                 std::vector<Schema> const& schemas, Diagnostics& diagnostics) {
  if (auto text = readFile(path))
    checkLock(library.builtin, schemas, path, *text, diagnostics);
  else
    diagnostics.error({path, 1, 1}, "can't read this file");
}

int make(CommandLine const& asked, Library const& library, std::vector<Schema> const& schemas,
         std::ostream& out, std::ostream& err) {
  if (!asked.writeLock.empty())
    return write({{asked.writeLock, lockText(library.builtin, schemas)}}, "", err);
  auto outputs = generate(library, schemas, {asked.moxType, asked.reference, asked.list});
  if (!asked.list) return write(outputs, asked.out, err);
  print(outputs, asked.out, out);
  return done;
}

int compile(CommandLine const& asked, std::ostream& out, std::ostream& err) {
  Library const library = loadLibrary(asked.templates);
  Diagnostics diagnostics;
  std::vector<Schema> const schemas = readSchemas(asked.schemas, diagnostics);
  if (!diagnostics.failed()) check(asked, library, schemas, diagnostics);
  if (!diagnostics.failed() && !asked.lock.empty() && !asked.list)
    compareLock(asked.lock, library, schemas, diagnostics);
  if (!diagnostics.failed()) return make(asked, library, schemas, out, err);
  err << diagnostics.text();
  return faulty;
}

}  // namespace

int run(std::vector<std::string> const& arguments, std::string const& version, std::ostream& out,
        std::ostream& err) {
  std::string fault;
  auto asked = parseArguments(arguments, fault);
  if (!asked) {
    err << "schemac: error: " << fault << "\n" << usage;
    return wrongUsage;
  }
  if (asked->help || asked->version) {
    out << (asked->help ? std::string(usage) : "schemac " + version + "\n");
    return done;
  }
  try {
    return compile(*asked, out, err);
  } catch (TemplateError const& error) {
    err << errorLine(error.at, error.what) << "\n";
    return faulty;
  }
}

}  // namespace schemac
