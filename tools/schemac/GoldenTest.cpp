// What the real templates make of the schema that uses every shape, compared with the texts in
// tests/golden/.  After a deliberate change of templates: build the target `golden`, and read the
// difference.
#include "tools/schemac/Files.h"
#include "tools/schemac/Generator.h"
#include "tools/schemac/Lock.h"
#include "tools/schemac/Parser.h"
#include "tools/schemac/Vocabulary.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <set>
#include <sstream>

namespace schemac {

namespace {

namespace fs = std::filesystem;

fs::path const root = KESTREL_SOURCE_DIR;

Schema everyShape() {
  Diagnostics diagnostics;
  fs::path const path = root / "tests" / "everyShape.schema";
  Schema schema = parse(path.string(), readFile(path).value_or(""), diagnostics);
  EXPECT_EQ(diagnostics.text(), "");
  return schema;
}

// The classes, the reference, and the lock file.
std::vector<Output> generated() {
  Library const library = loadLibrary(root / "tools" / "schemac" / "templates");
  std::vector<Schema> const schemas = {everyShape()};
  auto result = generate(library, schemas, {.set = true});
  for (Output const& page : generate(library, schemas, {.reference = true}))
    result.push_back({"reference" / page.path, page.text});
  result.push_back({"schema.lock", lockText(library.builtin, schemas)});
  return result;
}

TEST(GoldenTest, EachFileIsAsItWas) {
  for (Output const& output : generated())
    EXPECT_EQ(output.text,
              readFile(root / "tests" / "golden" / output.path).value_or("no such file"))
        << output.path;
}

TEST(GoldenTest, NoFileIsLeftBehind) {
  std::set<fs::path> expected;
  for (Output const& output : generated()) expected.insert(output.path);
  for (auto const& entry : fs::recursive_directory_iterator(root / "tests" / "golden")) {
    fs::path const path = fs::relative(entry.path(), root / "tests" / "golden");
    EXPECT_TRUE(entry.is_directory() || expected.count(path)) << path;
  }
}

TEST(GoldenTest, EveryKindShapeAndOptionIsInTheSchema) {
  std::set<std::string_view> used;
  auto const note = [&used](std::string_view place, Options const& given) {
    used.insert(place);
    for (Option const& option : options())
      if (given.count(std::string(option.name))) used.insert(option.name);
  };
  Schema const schema = everyShape();
  for (Type const& type : schema.types) {
    note(kindName(type.kind), type.options);
    for (Row const& row : type.rows) note(row.shape->name, row.options);
  }
  for (Shape const& shape : shapes()) EXPECT_TRUE(used.count(shape.name)) << shape.name;
  for (Option const& option : options())
    EXPECT_TRUE(used.count(option.name) || option.places == "extern") << option.name;
}

}  // namespace

}  // namespace schemac
