// The findings of strict mode, and their words.
#include "standin/xdk/Strict.h"

#include "standin/xdk/Misuse.h"
#include "standin/xdk/SimDevice.h"

#include <algorithm>

namespace xdksim {
namespace {

bool isAdd(Call call) { return std::string_view(operationOf(call).name) == "addDevice"; }

bool isUse(Call call) {
  using enum Call;
  return call == loadDefaultValue || call == writeEntry || call == createTable ||
         call == removeDevice || call == deInit;
}

/// What the SDK's callers take for success.
bool isAccepted(XP_STATUS status) { return status == 0 || status == 9 || status == 42; }

bool canBeTakenDown(Manager const& manager) { return manager.has(Call::removeDevice); }

// One that fails is its caller's matter: that hasn't ended anything.
bool endsTakeDown(StrictCall const& call) {
  return call.call == Call::deInit && call.manager.row == managerOf("xpFlowControlMgr") &&
         isAccepted(call.status);
}

std::string shown(StrictCall const& call) {
  return call.manager.name() + "::" + operationOf(call.call).name;
}

[[noreturn]] void finding(StrictCall const& call, std::string const& what) {
  misuse("strict mode: " + shown(call) + ' ' + what);
}

bool beginsAnew(StrictCall const& call) { return isAdd(call.call) || call.call == Call::init; }

std::string shown(U32 device) { return "device " + std::to_string(device); }

std::string shown(TableCopy const& copy) {
  return "copy " + std::to_string(copy.copy) + " of table " + std::to_string(copy.table);
}

}  // namespace

void Strict::called(StrictCall const& call) {
  if (isOn_) check(call);
  keep(call);
  if (!endsTakeDown(call)) return;
  if (isOn_) checkTakenDown(shown(call) + " ends the take-down");
  isTakingDown_ = false;
}

void Strict::ends() const {
  if (isOn_ && isTakingDown_) checkTakenDown("the SDK ends behind the take-down");
}

void Strict::check(StrictCall const& call) {
  if (isTakingDown_ && beginsAnew(call))
    checkTakenDown(shown(call) + " comes behind the take-down");
  if (isAdd(call.call)) checkSecondAdd(call);
  if (isUse(call.call)) checkUse(call);
  if (call.bringUp != 0) putTables(call);
}

// An addition that the SDK refuses counts as one, but it brings nothing up.
void Strict::keep(StrictCall const& call) {
  bool isDone = isAccepted(call.status);
  Manager const* row = call.manager.row;
  UseKey key{row, call.manager.index, call.arguments.device};
  if (isAdd(call.call)) uses_[key].addedIn = call.bringUp;
  if (isDone && isAdd(call.call)) {
    uses_[key].isUp = true;
    begun_.insert(row);
  }
  auto use = uses_.find(key);
  bool isRemoval = call.call == Call::removeDevice;
  if (isDone && isRemoval && use != uses_.end()) use->second.isUp = false;
  if (isDone && call.call == Call::deInit) begun_.erase(row);
  if (canBeTakenDown(*row) && (isAdd(call.call) || isRemoval)) lastDevice_ = call.arguments.device;
  // A step that the SDK refuses ends the take-down: its caller goes no further.
  if (isRemoval || call.call == Call::deInit)
    isTakingDown_ = isDone;
  else if (beginsAnew(call))
    isTakingDown_ = false;
}

Strict::Use const* Strict::useOf(ManagerId manager, U32 device) const {
  auto use = uses_.find({manager.row, manager.index, device});
  return use == uses_.end() ? nullptr : &use->second;
}

bool Strict::hasAnyDevice(ManagerId manager) const {
  auto first = uses_.lower_bound({manager.row, manager.index, 0});
  return first != uses_.end() && std::get<0>(first->first) == manager.row &&
         std::get<1>(first->first) == manager.index;
}

void Strict::checkSecondAdd(StrictCall const& call) const {
  Use const* use = useOf(call.manager, call.arguments.device);
  if (use && call.bringUp != 0 && use->addedIn == call.bringUp)
    finding(call, "adds " + shown(call.arguments.device) + " a second time within one bring-up");
}

void Strict::checkUse(StrictCall const& call) const {
  if (call.call == Call::deInit) {
    if (!hasAnyDevice(call.manager)) finding(call, "comes before any device was added");
  } else if (!useOf(call.manager, call.arguments.device)) {
    finding(call, "comes before " + shown(call.arguments.device) + " was added");
  }
}

// Records with a number of copies of their own are of tables that differ in it.
void Strict::putTables(StrictCall const& call) {
  if (ownersBringUp_ != call.bringUp) owners_.clear();
  ownersBringUp_ = call.bringUp;
  if (call.arguments.table) put(call, call.arguments.table, call.arguments.copies);
  if (!call.arguments.list) return;
  auto const& list = *call.arguments.list;
  bool ownCopies = std::ranges::any_of(list, [](auto* record) { return record->numCopies != 0; });
  for (xpTblCtxPerIdx const* record : list)
    put(call, record->tblCtx, ownCopies ? record->numCopies : call.arguments.copies);
}

void Strict::put(StrictCall const& call, xpTableContext* const* word, U32 copies) {
  auto const table = call.device && word ? call.device->tableAt(*word) : std::nullopt;
  if (!table || !isInUse(**word)) return;
  for (U32 copy = 0; copy < copies; ++copy) {
    xpTableContext const* context = call.device->context(*table, copy);
    if (!context) return;
    auto const overlap =
        owners_.put({call.manager, *table, copy, declaresShared(*context)}, sramRuns(*context));
    if (overlap)
      finding(call, "gives " + shown(call.arguments.device) + ' ' + shown(overlap->second) +
                        ", which takes block " + std::to_string(overlap->block.block) +
                        " of SRAM pool " + std::to_string(overlap->block.pool) + ", as does " +
                        shown(overlap->first) + " of " + overlap->first.manager.name() +
                        "; not both declare it shared");
  }
}

void Strict::checkTakenDown(std::string const& where) const {
  for (Manager const& manager : managers()) {
    if (!canBeTakenDown(manager)) continue;
    Use const* use = useOf({&manager, 0}, lastDevice_);
    if (!use) continue;
    bool isBegun = manager.has(Call::deInit) && begun_.contains(&manager);
    if (use->isUp || isBegun)
      misuse("strict mode: " + where + " of " + shown(lastDevice_) + ", and " + manager.name +
             " is still up, without " + (use->isUp ? "removeDevice" : "deInit"));
  }
}

}  // namespace xdksim
