// The text of a profile: by hand, because contexts are best read a line each.
#include "standin/xdk/ProfileWriter.h"

#include "Xdk/ContextFields.h"
#include "standin/xdk/Json.h"
#include "standin/xdk/TableTypes.h"

#include <algorithm>

namespace xdksim {
namespace {

std::string text(bool value) { return value ? "true" : "false"; }

/// `items` with `between` between each two, without its blanks in front of a new line.
std::string joined(std::vector<std::string> const& items, std::string const& between) {
  std::string result;
  for (std::string const& item : items) {
    if (!result.empty()) result += item.starts_with('\n') ? "," : between;
    result += item;
  }
  return result;
}

std::string member(std::string const& name, std::string const& value) {
  return inQuotes(name) + ": " + value;
}

template <class Map, class Text>
std::string object(Map const& map, Text textOf) {
  std::vector<std::string> members;
  for (auto const& [key, value] : map)
    members.push_back(member(std::to_string(key), textOf(value)));
  return '{' + joined(members, ", ") + '}';
}

template <class Range>
std::string list(Range const& range) {
  std::vector<std::string> elements;
  for (auto element : range) elements.push_back(std::to_string(element));
  return '[' + joined(elements, ", ") + ']';
}

/// The elements of an array up to its last that isn't 0, and at least so many.
template <class Integer, std::size_t room>
std::vector<Integer> used(Integer const (&array)[room], std::size_t atLeast) {
  std::size_t size = room;
  while (size > std::min(atLeast, room) && array[size - 1] == 0) --size;
  return {array, array + size};
}

template <class Record>
std::string recordText(Record const& record);

/// Lists as many elements as the record uses, so that a reader sees the ways at once.
template <class Record>
std::size_t listed(Record const&) {
  return 8;
}
std::size_t listed(xpHashTableContext const& context) { return context.numOfWays; }

bool isEmpty(auto const& record) {
  return std::ranges::all_of(Xdk::integersOf(record), [](U32 integer) { return integer == 0; });
}

std::string prefixTables(xpLpmPrefixTable const (&tables)[32]) {
  std::vector<std::string> slots;
  for (U32 slot = 0; slot < 32; ++slot) {
    if (!isEmpty(tables[slot]))
      slots.push_back("\n        " + member(std::to_string(slot), recordText(tables[slot])));
  }
  return '{' + joined(slots, ",") + '}';
}

/// Whether a field holds what it has when a profile leaves it out.
template <class Record, class Field>
bool isLeftOut(Record const&, std::string_view name, Field const& field) {
  if constexpr (std::is_same_v<Field, U8>)
    if (std::is_same_v<Record, xpLpmPrefixTable> && name == "valid") return field == 1;
  if constexpr (std::is_same_v<Field, S32>)
    if (name == "first") return field == 0;
  if constexpr (std::is_same_v<Field, xpLpmNhiTable>) return isEmpty(field);
  return false;
}

template <class Record>
std::string recordText(Record const& record) {
  std::vector<std::string> fields;
  Xdk::visitFields(record, [&fields, &record]<class Field>(char const* name, Field const& field) {
    if (isLeftOut(record, name, field)) return;
    if constexpr (std::is_integral_v<Field>)
      fields.push_back(member(name, std::to_string(field)));
    else if constexpr (std::is_same_v<Field, xpLpmNhiTable>)
      fields.push_back("\n       " + member(name, recordText(field)));
    else if constexpr (std::is_same_v<Field, xpLpmPrefixTable[32]>)
      fields.push_back(member(name, prefixTables(field)));
    else
      fields.push_back(member(name, list(used(field, listed(record)))));
  });
  return '{' + joined(fields, ", ") + '}';
}

std::string contextsText(Contexts const& contexts) {
  std::vector<std::string> lines;
  std::visit(
      [&lines](auto const& records) {
        for (auto const& record : records) lines.push_back("\n      " + recordText(record));
      },
      contexts);
  return '[' + joined(lines, ",") + ']';
}

std::string tableText(Table const& table) {
  char const* name = tableTypeName(table.type);
  return '{' + member("copyNum", std::to_string(table.copyNum)) + ", " +
         member("type", name ? inQuotes(name) : std::to_string(table.type)) + ", " +
         member("contexts", contextsText(table.contexts)) + '}';
}

std::string treadText(LpmTreadCfg const& cfg) {
  auto number = [](U8 value) { return std::to_string(value); };
  return "{\n    " + member("treadV4Valid", text(cfg.treadV4Valid)) + ", " +
         member("treadV4", object(cfg.treadV4, number)) + ",\n    " +
         member("treadV6Valid", text(cfg.treadV6Valid)) + ", " +
         member("treadV6", object(cfg.treadV6, number)) + "\n  }";
}

std::string tablesText(std::map<U32, Table> const& tables) {
  std::vector<std::string> lines;
  for (auto const& [id, table] : tables)
    lines.push_back("\n    " + member(std::to_string(id), tableText(table)));
  return '{' + joined(lines, ",") + (lines.empty() ? "}" : "\n  }");
}

std::string statusText(Profile const& profile) {
  std::vector<std::string> lines;
  for (auto const& [key, statuses] : profile.sdkStatus)
    lines.push_back("\n    " + member(key, statuses.size() == 1 ? std::to_string(statuses[0])
                                                                : list(statuses)));
  for (std::string const& key : profile.nullManagers)
    lines.push_back("\n    " + member(key, inQuotes("null")));
  return '{' + joined(lines, ",") + (lines.empty() ? "}" : "\n  }");
}

}  // namespace

std::string writeProfile(Profile const& profile) {
  std::vector<std::string> members = {
      member("deviceId", std::to_string(profile.deviceId)),
      member("ldePipeMode", std::to_string(profile.ldePipeMode)),
      member("coldStartNeeded", text(profile.coldStartNeeded)),
      member("lpmTreadCfg", treadText(profile.lpmTreadCfg)),
      member("tables", tablesText(profile.tables)),
      member("sdkStatus", statusText(profile)),
  };
  return "{\n  " + joined(members, ",\n  ") + "\n}\n";
}

}  // namespace xdksim
