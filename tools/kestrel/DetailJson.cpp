// Line by line: a copy's head, its fields, and the parts below them.
#include "tools/kestrel/DetailJson.h"

#include "Mox/Integers.h"

#include <nlohmann/json.hpp>
#include <sstream>
#include <string>
#include <vector>

namespace kestrel {

using Json = nlohmann::ordered_json;

namespace {

using Words = std::vector<std::string>;

Words wordsOf(std::string const& line) {
  std::istringstream in(line);
  Words words;
  for (std::string word; in >> word;) words.push_back(word);
  return words;
}

Json valueOf(std::string const& word) {
  if (word == "yes" || word == "no") return word == "yes";
  return std::stoull(word);
}

/// Adds the names and values that alternate from word `first` on.
void addFields(Json& fields, Words const& words, std::size_t first) {
  for (std::size_t i = first; i + 1 < words.size(); i += 2)
    fields[words[i]] = valueOf(words[i + 1]);
}

/// Adds a line "Way 3: ..." to the list, with its number first.
void addPart(Json& list, char const* number, Words const& words) {
  Json& part = list.emplace_back(Json::object());
  part[number] = std::stoul(words[1]);
  addFields(part, words, 2);
}

void addNhiTable(Json& table, Words const& words) {
  table = Json::object();
  addFields(table, words, 1);
  table["tiles"] = Json::array();
}

void addLine(Json& copies, Words const& words) {
  std::string const& head = words.front();
  if (head == "Copy") {
    copies.push_back({{"copy", std::stoul(words[1])}, {"empty", false}});
    return;
  }
  Json& copy = copies.back();
  if (head == "(empty)")
    copy["empty"] = true;
  else if (head == "Way")
    addPart(copy["ways"], "way", words);
  else if (head == "PrefixTable")
    addPart(copy["prefixTables"], "slot", words);
  else if (head == "NhiTable:")
    addNhiTable(copy["nhiTable"], words);
  else if (head == "Tile")
    addPart(copy["nhiTable"]["tiles"], "tile", words);
  else
    addFields(copy, words, 0);
}

}  // namespace

Json detailCopies(std::string_view text) {
  Json copies = Json::array();
  std::istringstream in{std::string(text)};
  for (std::string line; std::getline(in, line);) addLine(copies, wordsOf(line));
  return copies;
}

}  // namespace kestrel
