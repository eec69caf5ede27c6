// Arguments of operations and constructors, from interfaces to what they hold.
#include "reflect/Arguments.h"

#include <utility>

namespace reflect {

namespace {

using List = GenericIf::List_;

void enter(List::Entries& entries, GenericIf::PtrConst const& value) {
  entries.enq(new List::MoxGenericIf(0, value));
}

}  // namespace

void Arguments::take(std::span<Argument const> wanted, char const* name) {
  held_.reserve(wanted.size());
  for (auto const& entry : entries_) {
    if (held_.size() == wanted.size()) GenericIf::throwUnknownArgException(name);
    Argument const& argument = wanted[held_.size()];
    held_.push_back(GenericIf::requireHeld(entry.value().ptr(), argument.type(), argument.name));
  }
}

Arguments::Arguments(Row const& row, GenericIf::PtrConst const& value) {
  bool const isList = dynamic_cast<List const*>(value.ptr()) != nullptr;
  if (isList || row.arguments.size() > 1)
    List::entriesOf(value, entries_);
  else if (value)
    enter(entries_, value);
  take(row.arguments, row.name);
  if (held_.size() < row.arguments.size())
    GenericIf::throwTypeException(row.arguments[held_.size()].name);
}

Arguments::Arguments(std::span<Argument const> wanted, GenericIf::PtrConst const& list,
                     char const* type) {
  List::entriesOf(list, entries_);
  take(wanted, type);
  held_.resize(wanted.size());
}

void assignFields(std::span<Row const> rows, GenericIf::PtrConst const& list, void* record,
                  char const* type) {
  List::Entries entries;
  List::entriesOf(list, entries);
  // All types are checked before the first field is written.
  std::vector<std::pair<Row const*, GenericIf::PtrConst>> assigned;
  auto entry = entries.begin();
  for (Row const& row : rows) {
    if (entry == entries.end()) break;
    if (!row.write) continue;
    GenericIf::requireHeld((*entry).value().ptr(), row.type(), row.name);
    assigned.emplace_back(&row, (*entry).value());
    ++entry;
  }
  if (entry != entries.end()) GenericIf::throwUnknownArgException(type);
  // A bound is checked last of all.
  for (auto const& [row, value] : assigned) row->write(*row, record, value);
}

}  // namespace reflect
