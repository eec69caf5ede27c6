// Laying a profile out.
#include "standin/xdk/SimDevice.h"

#include <algorithm>
#include <stdexcept>

namespace xdksim {
namespace {

std::size_t roomFor(Profile const& profile) {
  std::size_t room = 2;
  for (auto const& [id, table] : profile.tables)
    room = std::max<std::size_t>(room, table.copyNum & 0xFF);
  return room;
}

/// Pads the array and gives all its elements the type; returns the first, or null of none.
template <class Context>
xpTableContext* padded(std::vector<Context>& contexts, U32 type, std::size_t room) {
  if (contexts.empty()) return nullptr;
  contexts.resize(std::max(room, contexts.size()));
  for (Context& context : contexts) context.tableType = type;
  return contexts.data();
}

xpTableContext const* elementOf(Contexts const& array, std::size_t index) {
  return std::visit(
      [index](auto const& contexts) -> xpTableContext const* {
        return index < contexts.size() ? &contexts[index] : nullptr;
      },
      array);
}

}  // namespace

SimDevice::SimDevice(Profile profile) : profile_(std::move(profile)) {
  std::size_t room = roomFor(profile_);
  for (auto const& [id, table] : profile_.tables) layOut(id, table, room);
}

void SimDevice::layOut(U32 tableId, Table const& table, std::size_t room) {
  if (tableId >= xpTableProfile::numTables)
    throw std::out_of_range("no table id: " + std::to_string(tableId));
  Contexts& array = arrays_[tableId] = table.contexts;
  tableProfile_.copyNum[tableId] = table.copyNum;
  tableProfile_.tblCtx[tableId] = std::visit(
      [&table, room](auto& contexts) { return padded(contexts, table.type, room); }, array);
}

std::optional<U32> SimDevice::tableAt(xpTableContext const* first) const {
  for (auto const& [id, array] : arrays_) {
    if (first && elementOf(array, 0) == first) return id;
  }
  return {};
}

xpTableContext const* SimDevice::context(U32 tableId, U32 copy) const {
  return elementOf(arrays_.at(tableId), copy);
}

}  // namespace xdksim
