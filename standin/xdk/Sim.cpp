// The simulated SDK's state and its one road for all calls.
#include "standin/xdk/Sim.h"

#include "Xdk/Xdk.h"
#include "standin/xdk/BringUpWatch.h"
#include "standin/xdk/History.h"
#include "standin/xdk/LastWords.h"
#include "standin/xdk/Misuse.h"
#include "standin/xdk/SimDevice.h"
#include "standin/xdk/StatusRules.h"
#include "standin/xdk/Strict.h"

#include <algorithm>
#include <exception>
#include <map>
#include <stdexcept>
#include <unordered_map>

namespace xdksim {
namespace {

Sim* live = nullptr;

}  // namespace

/// What a reset makes anew.
struct Sim::State {
  State();
  ~State();

  void fillIds();
  void deviceIs(Profile profile);
  xpPrimitiveMgr* object(ManagerId id);
  ManagerId identityOf(xpPrimitiveMgr const& manager, Call call) const;
  SimDevice* deviceOf(U32 deviceId) const;
  XP_STATUS answer(ManagerId id, Call call);

  std::map<U32, std::unique_ptr<SimDevice>> devices;
  std::map<std::pair<Manager const*, U32>, std::unique_ptr<xpPrimitiveMgr>> objects;
  std::unordered_map<xpPrimitiveMgr const*, ManagerId> identities;
  U32 lastPlMgrId = 0;
  StatusRules rules;
  FaultRules faults;
  BringUpWatch watch;
  Strict strict;
  CallLog log;
  History history;
};

Sim::State::State() {
  for (Manager const& row : managers()) {
    if (row.isSingleton()) identities[row.declared.object()] = {&row, 0};
  }
  fillIds();
}

// Ids that name no manager any more must not outlive it.
Sim::State::~State() {
  for (Manager const& row : managers()) {
    if (row.declared.ids) row.declared.ids->clear();
  }
}

void Sim::State::fillIds() {
  for (Manager const& row : managers()) {
    if (!row.declared.ids) continue;
    row.declared.ids->assign(row.lastIndex + 1, 0);
    for (U32 index = row.firstIndex; index <= row.lastIndex; ++index)
      (*row.declared.ids)[index] = ++lastPlMgrId;
  }
}

// All that can be refused comes first, so that a refusal changes nothing.
void Sim::State::deviceIs(Profile profile) {
  auto device = std::make_unique<SimDevice>(std::move(profile));
  Profile const& known = device->profile();
  StatusRules changed = rules;
  for (auto const& [key, statuses] : known.sdkStatus) changed.statusIs(operationKey(key), statuses);
  for (std::string const& key : known.nullManagers) changed.managerNullIs(managerKey(key), true);
  rules = std::move(changed);
  devices[known.deviceId] = std::move(device);
}

xpPrimitiveMgr* Sim::State::object(ManagerId id) {
  auto& object = objects[{id.row, id.index}];
  if (!object) {
    object.reset(id.row->declared.object());
    identities[object.get()] = id;
  }
  return object.get();
}

ManagerId Sim::State::identityOf(xpPrimitiveMgr const& manager, Call call) const {
  auto identity = identities.find(&manager);
  if (identity == identities.end())
    misuse(std::string(operationOf(call).name) +
           " is called on a manager that it never handed out");
  ManagerId id = identity->second;
  if (!id.row->has(call)) misuse(id.name() + " lacks " + operationOf(call).shown());
  return id;
}

SimDevice* Sim::State::deviceOf(U32 deviceId) const {
  auto device = devices.find(deviceId);
  return device == devices.end() ? nullptr : device->second.get();
}

XP_STATUS Sim::State::answer(ManagerId id, Call call) {
  auto const fault = faults.atCall(id, call);
  XP_STATUS status = fault ? *fault : rules.next(id, call);
  faults.answered(id, call);
  return status;
}

Sim::Sim(Profile profile) : profile_(std::move(profile)) {
  if (live) throw std::logic_error("a simulated SDK lives already");
  reset();
  live = this;
  lastWords_ = std::make_unique<LastWords>(tellLast);
}

// An exception that is under way has broken its caller's work off.
Sim::~Sim() {
  if (std::uncaught_exceptions() == 0) state_->strict.ends();
  lastWords_.reset();
  live = nullptr;
}

// In a signal handler: no state while a reset is between two.
void Sim::tellLast() {
  if (!live || !live->state_) return;
  live->state_->history.tell();
  live->state_->faults.tell();
}

Sim& Sim::current() {
  if (!live) misuse("it is called while there is none; make an xdksim::Sim first");
  return *live;
}

// The old state goes first: both would use the same `myId`.
void Sim::reset() {
  state_.reset();
  state_ = std::make_unique<State>();
  state_->deviceIs(profile_);
}

void Sim::deviceIs(Profile profile) { state_->deviceIs(std::move(profile)); }

Profile const& Sim::profile(U32 deviceId) const { return state_->devices.at(deviceId)->profile(); }

xpTableProfile& Sim::tableProfile(U32 deviceId) {
  return state_->devices.at(deviceId)->tableProfile();
}

void Sim::tableProfileNullIs(U32 deviceId, bool isNull) {
  state_->devices.at(deviceId)->tableProfileNullIs(isNull);
}

void Sim::statusIs(std::string_view operation, std::vector<S32> statuses) {
  state_->rules.statusIs(operationKey(operation), std::move(statuses));
}

void Sim::managerNullIs(std::string_view manager, bool isNull) {
  state_->rules.managerNullIs(managerKey(manager), isNull);
}

void Sim::newFault(std::string_view rule) { state_->faults.add(faultRule(rule)); }

std::vector<FaultCount> Sim::faults() const { return state_->faults.counts(); }

std::string Sim::faultReport() const { return state_->faults.report(); }

void Sim::idsDelAll(std::string_view manager) {
  auto* ids = managerKey(manager).manager->declared.ids;
  if (ids) ids->clear();
}

void Sim::strictIs(bool isStrict) { state_->strict.isOnIs(isStrict); }

void Sim::callLogIs(CallLog log) { state_->log = std::move(log); }

XP_STATUS Sim::call(xpPrimitiveMgr const& manager, Call call, CallArguments const& arguments) {
  ManagerId id = state_->identityOf(manager, call);
  BringUpWatch::Inside inside(state_->watch, id, call);
  SimDevice* device = state_->deviceOf(arguments.device);
  state_->history.callBegins(id, call, arguments, device ? &device->tableProfile() : nullptr);
  XP_STATUS status = state_->answer(id, call);
  state_->strict.called({id, call, arguments, state_->watch.number(), device, status});
  state_->history.callEnds(status);
  if (state_->log) state_->log(state_->history.last());
  return status;
}

// The vectors are the register of ids: callers that extend them name new managers thereby.
xpPrimitiveMgr* Sim::manager(Reach layer, U32 plMgrId) {
  if (plMgrId == 0) return nullptr;
  for (Manager const& row : managers()) {
    if (row.reach != layer || !row.declared.ids) continue;
    auto const& ids = *row.declared.ids;
    auto place = std::ranges::find(ids, plMgrId);
    if (place == ids.end()) continue;
    ManagerId id{&row, static_cast<U32>(place - ids.begin())};
    bool isNull = state_->faults.isNullAtLookUp(id) || state_->rules.isNull(id);
    return isNull ? nullptr : state_->object(id);
  }
  return nullptr;
}

U32 Sim::newPlMgrId() { return ++state_->lastPlMgrId; }

xpDevice& Sim::device(U32 deviceId) {
  auto device = state_->devices.find(deviceId);
  if (device == state_->devices.end())
    misuse("it doesn't know a device " + std::to_string(deviceId));
  return *device->second;
}

xpTableProfile* Sim::takeTableProfile(xpDevice& device) {
  auto& known = static_cast<SimDevice&>(device);
  state_->watch.profileTaken(known.profile().deviceId);
  return known.tableProfileNull() ? nullptr : &known.tableProfile();
}

BringUp::BringUp(Sim& sim, U32 deviceId) : sim_(sim) { sim_.state_->watch.announced(deviceId); }

BringUp::~BringUp() { sim_.state_->watch.announcedEnds(); }

}  // namespace xdksim
