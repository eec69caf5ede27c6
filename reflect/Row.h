// The tables that say how each attribute of one class is reached by its number.
#pragma once

#include "Mox/Builtin.h"
#include "frame/Descriptor.h"

#include <span>

namespace reflect {

using Mox::GenericIf;

struct Row;

/// The typed steps of a collection.  `object` is whose attribute is asked for: an entity, an
/// object, or the copy that the value's interface `face` holds.  Keys and values come as addresses
/// of what interfaces hold, their types checked.
// `object` and `face` come apart: a record of the two would be passed through memory.
struct Collection {
  U32 (*count)(void const* object);
  U32 (*changes)(void const* object);
  bool (*isMember)(void const* object, void const* key);
  GenericIf::Ptr (*read)(Row const& row, void const* object, GenericIf const& face,
                         void const* key);
  void (*write)(void* object, void const* key, void const* value);  ///< null: not by key
  void (*enter)(void* object, void const* value);                   ///< null: not by its own key
  void (*erase)(void* object, void const* key);
  /// A walk from `key` on, or from the start for null.
  Mox::Ptr<GenericIf::IteratorState> (*walk)(Row const& row, void* object, GenericIf const& face,
                                             void const* key);
};

/// One argument of an operation or a constructor.
struct Argument {
  char const* name;
  frame::TypeOf type;
};

/// One attribute.  `object` and `face` are as in `Collection`; `write` checks the type of `value`
/// itself, and raises `TypeException` with the row's name.  What an attribute can't do has no step;
/// `fwkKey` and its like have none at all.
struct Row {
  Mox::AttributeId id;
  char const* name;
  frame::TypeOf type = nullptr;  ///< of the value, or of an operation's result
  frame::TypeOf key = nullptr;   ///< of a collection's keys
  GenericIf::Ptr (*read)(Row const& row, void const* object, GenericIf const& face) = nullptr;
  void (*write)(Row const& row, void* object, GenericIf::PtrConst const& value) = nullptr;
  Collection const* collection = nullptr;
  GenericIf::Ptr (*call)(Row const& row, void* object, GenericIf const& face,
                         void const* const* arguments) = nullptr;
  std::span<Argument const> arguments = {};
};

/// How many rows from the first on have numbers that follow each other: mostly all but the
/// runtime's, which stand last.
constexpr std::size_t placedCount(std::span<Row const> rows) {
  std::size_t count = 0;
  while (count < rows.size() && rows[count].id == rows.front().id + count) ++count;
  return count;
}
/// The attribute of that number, if its place among the rows of `Table` tells; null otherwise.
template <class Table>
Row const* placedRow(Mox::AttributeId id) {
  constexpr std::size_t placed = placedCount(Table::rows);
  std::size_t const place = id - Table::rows[0].id;
  return place < placed ? &Table::rows[place] : nullptr;
}

/// The attribute of that number; null where there is none.  Searches, as `placedRow` doesn't.
Row const* rowOf(std::span<Row const> rows, Mox::AttributeId id);

/// The same, of collections alone.
inline Row const* collectionOf(std::span<Row const> rows, Mox::AttributeId id) {
  Row const* const row = rowOf(rows, id);
  return row && row->collection ? row : nullptr;
}

}  // namespace reflect
