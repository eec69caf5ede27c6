// The reports for programs say what the texts say.
#include "tests/tool/ToolRun.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

namespace tool {

namespace {

using Json = nlohmann::ordered_json;

/// Profiles on which all reports are drawn; the built-in one, and some with odd figures.
class JsonTest : public testing::TestWithParam<char const*> {
 protected:
  static std::string text(std::string const& report) {
    return kestrel("report " + report + profile(), KESTREL_SOURCE_DIR "/tests/tool/profiles").out;
  }
  static Json json(std::string const& report) { return Json::parse(text(report + " --json")); }

 private:
  static std::string profile() {
    std::string const name = GetParam();
    return name.empty() ? "" : " --profile " + name + ".json";
  }
};

/// The values of an object as words, in their order.
std::vector<std::string> valuesOf(Json const& object) {
  std::vector<std::string> values;
  for (auto const& [name, value] : object.items())
    values.push_back(value.is_string() ? value.get<std::string>() : value.dump());
  return values;
}

TEST_P(JsonTest, Summary) {
  std::vector<std::string> const lines = linesOf(text("summary"));
  Json const tables = json("summary").at("tables");
  ASSERT_EQ(tables.size(), lines.size() - 1);
  for (std::size_t i = 0; i < tables.size(); ++i) {
    Json figures = tables[i];
    figures.erase("id");
    EXPECT_EQ(valuesOf(figures), words(lines[i + 1]));
  }
}

TEST_P(JsonTest, Tables) {
  std::string lines;
  Json const report = json("tables");
  for (Json const& table : report.at("tables"))
    lines += table.at("id").dump() + ' ' + table.at("name").get<std::string>() + '\n';
  EXPECT_EQ(lines, text("tables"));
}

/// All numbers of a value in their order; true and false count as "yes" and "no", and what only
/// says that a copy has entries doesn't.
void addFigures(std::vector<std::string>& figures, Json const& value) {
  for (auto const& [name, member] : value.items())
    if (member.is_structured())
      addFigures(figures, member);
    else if (member.is_boolean() && name != "empty")
      figures.push_back(member.get<bool>() ? "yes" : "no");
    else if (member.is_number())
      figures.push_back(member.dump());
}

TEST_P(JsonTest, Detail) {
  std::string const report = text("detail");
  std::vector<std::string> expected;
  for (std::string const& line : linesOf(report))
    if (!line.starts_with("Table "))
      for (std::string word : words(line)) {
        if (word.back() == ':') word.pop_back();
        bool const isNumber = word.find_first_not_of("0123456789") == word.npos;
        if (isNumber || word == "yes" || word == "no") expected.push_back(word);
      }
  std::vector<std::string> found;
  std::string heads;
  std::size_t empty = 0;
  Json const detail = json("detail");
  for (Json const& table : detail.at("tables")) {
    addFigures(found, table.at("copies"));
    heads += "Table " + table.at("name").get<std::string>() + " type " +
             table.at("type").get<std::string>() + ":\n";
    for (Json const& copy : table.at("copies")) empty += copy.at("empty").get<bool>();
  }
  EXPECT_EQ(found, expected);
  std::string expectedHeads;
  std::size_t expectedEmpty = 0;
  for (std::string const& line : linesOf(report)) {
    if (line.starts_with("Table ")) expectedHeads += line + '\n';
    expectedEmpty += line == "    (empty)";
  }
  EXPECT_EQ(heads, expectedHeads);
  EXPECT_EQ(empty, expectedEmpty);
}

/// How the text shows a group: the first 52 by their letter.
char mark(Json const& letter) {
  if (letter.is_null()) return '.';
  std::string const text = letter.get<std::string>();
  return text.size() == 1 ? text[0] : '?';
}

TEST_P(JsonTest, Sram) {
  std::vector<std::string> const lines = linesOf(text("sram"));
  Json const sram = json("sram");
  std::size_t free = 0;
  for (Json const& pool : sram.at("pools")) {
    std::size_t const column = 8 + 10 * pool.at("pool").get<std::size_t>();
    std::size_t freeOfPool = 0;
    for (std::size_t tile = 0; tile < pool.at("tiles").size(); ++tile)
      for (std::size_t row = 0; row < 8; ++row) {
        Json const& letter = pool.at("tiles")[tile].at(row);
        std::string const& line = lines.at(2 + 9 * tile + row);
        EXPECT_EQ(line.substr(column, 10), "  " + std::string(8, mark(letter))) << line;
        freeOfPool += letter.is_null();
      }
    EXPECT_EQ(pool.at("free"), freeOfPool);
    EXPECT_EQ(pool.at("blocks"), 8 * pool.at("tiles").size());
    free += freeOfPool;
  }
  EXPECT_EQ(sram.at("free"), free);
  EXPECT_EQ(sram.at("blocks"), 448u);
}

TEST_P(JsonTest, LegendOfTheSram) {
  std::multiset<std::string> expected;
  for (std::string const& line : linesOf(text("sram")))
    if (line.size() > 3 && line.starts_with("  ") && line[3] == ':' && line[2] != '.')
      expected.insert(line);
  std::multiset<std::string> found;
  Json const sram = json("sram");
  for (Json const& group : sram.at("groups")) {
    std::string line = std::string("  ") + mark(group.at("letter")) + ':';
    for (Json const& table : group.at("tables")) line += ' ' + table.at("name").get<std::string>();
    found.insert(line);
  }
  EXPECT_EQ(found, expected);
}

INSTANTIATE_TEST_SUITE_P(Profiles, JsonTest,
                         testing::Values("", "types", "absent", "binary", "beyond", "odd"),
                         [](auto const& profile) {
                           return *profile.param ? profile.param : "builtIn";
                         });

}  // namespace

}  // namespace tool
