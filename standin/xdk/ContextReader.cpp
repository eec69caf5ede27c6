// From JSON to the fields of the records.
#include "standin/xdk/ContextReader.h"

#include "Xdk/ContextFields.h"

#include <algorithm>
#include <type_traits>

namespace xdksim {
namespace {

// One overload for each kind of field; which fields there are, the record's own list says.
void readField(JsonCursor const& cursor, xpLpmNhiTable& table);
void readField(JsonCursor const& cursor, xpLpmPrefixTable (&tables)[32]);

template <class Integer>
requires std::is_integral_v<Integer>
void readField(JsonCursor const& cursor, Integer& field) { field = cursor.integer<Integer>(); }

std::vector<JsonCursor> elementsFor(JsonCursor const& cursor, std::size_t room) {
  auto elements = cursor.elements();
  if (elements.size() > room)
    cursor.refuse(std::to_string(elements.size()) + " elements, and room for " +
                  std::to_string(room));
  return elements;
}

template <class Integer, std::size_t room>
void readField(JsonCursor const& cursor, Integer (&field)[room]) {
  auto const elements = elementsFor(cursor, room);
  std::fill(std::begin(field), std::end(field), 0);
  for (std::size_t i = 0; i < elements.size(); ++i) readField(elements[i], field[i]);
}

/// Whether the record has a field of that name, which is read then.
template <class Record>
bool readNamed(std::string const& name, JsonCursor const& cursor, Record& record) {
  bool isKnown = false;
  Xdk::visitFields(record, [&](char const* field, auto& value) {
    if (name != field) return;
    readField(cursor, value);
    isKnown = true;
  });
  return isKnown;
}

template <class Record>
void readFields(JsonCursor const& cursor, Record& record) {
  for (auto const& [name, member] : cursor.members()) {
    if (!readNamed(name, member, record)) member.refuse("no such field");
  }
}

void readField(JsonCursor const& cursor, xpLpmNhiTable& table) { readFields(cursor, table); }

void readField(JsonCursor const& cursor, xpLpmPrefixTable (&tables)[32]) {
  for (auto const& [key, member] : cursor.members()) {
    xpLpmPrefixTable& table = tables[numberKey(member, key, 31, "slot of a prefix table")];
    table.valid = 1;
    readFields(member, table);
  }
}

}  // namespace

void readContexts(JsonCursor const& cursor, Contexts& contexts) {
  constexpr std::size_t mostCopies = 256;  // a copy's number is a byte
  auto readAll = [&cursor](auto& records) {
    for (JsonCursor const& element : elementsFor(cursor, mostCopies)) {
      auto& context = records.emplace_back();
      context.first = 0;
      readFields(element, context);
    }
  };
  std::visit(readAll, contexts);
}

}  // namespace xdksim
