// The language of the table manager's tests: a simulated chip, and what is seen of its bring-up.
#pragma once

#include "Kestrel/ChipStatus.h"
#include "Xdk/Xdk.h"
#include "XpLib/XpTableManSm.h"
#include "standin/xdk/Sim.h"

#include <algorithm>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>
#include <utility>
#include <vector>

namespace Kestrel::xpTableManSm {

using Lines = std::vector<std::string>;

/// Contexts of a table that is in use, one a copy.
template <class Context>
std::vector<Context> contexts(U32 copies) {
  std::vector<Context> result(copies);
  for (Context& context : result) context.first = 0;
  return result;
}

template <class Context>
xdksim::Table table(U32 copies = 1) {
  return xdksim::tableOf(contexts<Context>(copies), copies);
}

/// The smallest device that passes the bring-up: one table of each group that mustn't be empty, the
/// LPM tables, and the next-hop table.
inline xdksim::Profile bareProfile() {
  xdksim::Profile profile;
  profile.tables[19] = table<xpDirectTableContext>();
  profile.tables[36] = table<xpHashTableContext>();
  profile.tables[50] = table<xpLpmTableContext>();
  profile.tables[51] = table<xpLpmTableContext>();
  profile.tables[52] = table<xpNhTableContext>();
  return profile;
}

/// A device that has one copy of each table.
inline xdksim::Profile fullProfile() {
  xdksim::Profile profile = bareProfile();
  for (U32 id : {0u, 1u, 2u, 4u, 5u, 8u, 13u}) profile.tables[id] = table<xpHashTableContext>();
  for (U32 id : {10u, 27u, 28u, 29u, 30u, 31u, 32u, 35u})
    profile.tables[id] = table<xpDirectTableContext>();
  for (U32 id : {12u, 33u, 34u, 60u, 61u}) profile.tables[id] = table<xpIsmeTableContext>();
  for (U32 id = 19; id <= 26; ++id) profile.tables[id] = table<xpDirectTableContext>();
  for (U32 id = 36; id <= 41; ++id) profile.tables[id] = table<xpHashTableContext>();
  for (U32 id = 42; id <= 44; ++id) profile.tables[id] = table<xpMatchTableContext>();
  for (U32 id = 53; id <= 59; ++id) profile.tables[id] = table<xpMatchTableContext>();
  return profile;
}

/// The full device with these numbers of copies for tables from `firstId` on.
inline xdksim::Profile withCopies(U32 firstId, std::vector<U32> const& copyNums) {
  auto profile = fullProfile();
  for (U32 const copyNum : copyNums) profile.tables[firstId++].copyNum = copyNum;
  return profile;
}

/// Writes down what happens to the published tables.
class Publications : public ChipStatus::NotifieeConst {
 public:
  /// `lines` outlives it.
  static Mox::Ptr<Publications> of(Mox::Ptr<ChipStatus> const& status, Lines& lines) {
    Mox::Ptr<Publications> const publications = new Publications(lines);
    publications->notifierIs(status);
    publications->isRegisteredNotifieeIs(true);
    return publications;
  }
  void onTableContextEntry(U32 tableId) override {
    auto const entry = notifier()->tableContextEntry(tableId);
    lines_.push_back(entry ? "entry " + std::to_string(tableId) + ' ' + entry->tableName().charPtr()
                           : "gone " + std::to_string(tableId));
  }

 private:
  explicit Publications(Lines& lines) : lines_(lines) {}

  Lines& lines_;
};

/// One chip with its SDK, which is strict.  `lines` are the calls of the SDK and what was
/// published, in the order in which it happened.
class Rig {
 public:
  explicit Rig(xdksim::Profile profile = fullProfile()) : sim(std::move(profile)) {
    sim.strictIs(true);
    sim.callLogIs([this](std::string_view line) { lines.emplace_back(line); });
  }

  Mox::Ptr<TableManSm> bringUp() {
    auto const& profile = sim.profile(deviceId);
    return tableManSmFactory(profile.deviceId, status,
                             static_cast<XpXdk::XpDeviceLdePipeMode>(profile.ldePipeMode),
                             profile.coldStartNeeded, lpmTreadCfg);
  }

  /// The published entry; null where there is none.
  Mox::Ptr<XpXdk::TableContextEntry> entry(U32 tableId) const {
    return status->tableContextEntry(tableId);
  }
  /// The published context of one copy, which must be there.
  template <class Context>
  Context published(U32 tableId, U8 copy = 0) const {
    Context context;
    entry(tableId)->xpTblContext(copy, &context, false);
    return context;
  }
  /// What the SDK holds itself.
  template <class Context>
  Context* sdkContext(U32 tableId) {
    return static_cast<Context*>(sim.tableProfile(deviceId).tblCtx[tableId]);
  }
  /// The lines so far, which are then forgotten.
  Lines take() { return std::exchange(lines, {}); }

  U32 deviceId = 0;
  xdksim::Sim sim;
  Lines lines;
  Mox::Ptr<ChipStatus> status = chipStatusFactory("chip");
  Mox::Ptr<XpLib::Config::LpmTreadCfg> lpmTreadCfg = new XpLib::Config::LpmTreadCfg("treads");
  Mox::Ptr<Publications> publications = Publications::of(status, lines);
};

/// What happens in one operation alone, on a chip that is up and of which nothing is published.
inline Lines linesOf(Rig& rig, void (TableManSm::*operation)()) {
  auto const sm = rig.bringUp();
  rig.status->tableContextEntryDelAll();
  rig.take();
  ((*sm).*operation)();
  return rig.take();
}

}  // namespace Kestrel::xpTableManSm
