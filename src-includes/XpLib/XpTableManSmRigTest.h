// The language of the table manager's tests: a simulated chip, and what is seen of its bring-up.
#pragma once

#include "Kestrel/ChipStatus.h"
#include "Xdk/Xdk.h"
#include "XpLib/XpTableManSm.h"
#include "standin/xdk/Sim.h"

#include <algorithm>
#include <csignal>
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

/// One call whose status is looked at.
struct Checked {
  char const* operation;  ///< of the SDK
  char const* call;       ///< what the status line says
  char const* signature;  ///< of the operation that calls
};

inline void PrintTo(Checked const& checked, std::ostream* out) { *out << checked.operation; }

/// What a failed assertion leaves on standard error; its line stands as "N".
inline std::string assertion(std::string const& text, std::string const& signature) {
  return "xplib_tests: src-includes/XpLib/XpTableManSm:N: " + signature + ": Assertion `" + text +
         "' failed.\n";
}

/// What a status that isn't accepted leaves there.
inline std::string apiError(std::string const& call, S32 status, std::string const& signature) {
  return "src-includes/XpLib/XpTableManSm:N " + call + " API ERROR " + std::to_string(status) +
         '\n' + assertion("!(true)", signature);
}

/// Takes the SDK's lines on its faults off the end of `text`.
inline void cutFaults(std::string& text) {
  auto const lastLine = [&text] {
    std::size_t const end = text.size() < 2 ? text.npos : text.rfind('\n', text.size() - 2);
    return end == text.npos ? 0 : end + 1;
  };
  while (text.compare(lastLine(), 22, "simulated SDK: fault \"") == 0) text.erase(lastLine());
}

/// Takes the SDK's history of calls off the end of `text`: a heading that tells their number, as
/// many lines of the call log, and what became of faults.  Calls stay where heading and number
/// don't agree.
inline void cutHistory(std::string& text) {
  cutFaults(text);
  std::string const heading = "simulated SDK: the last ";
  std::size_t const at = text.find(heading);
  if (at == text.npos || (at > 0 && text[at - 1] != '\n')) return;
  std::size_t const calls = text.find('\n', at) + 1;
  std::string const number = text.substr(at + heading.size(), calls - at - heading.size());
  auto const numLines =
      std::count(text.begin() + static_cast<std::ptrdiff_t>(calls), text.end(), '\n');
  bool const agrees =
      numLines == 1 ? number == "call:\n" : number == std::to_string(numLines) + " calls:\n";
  if (agrees && text.back() == '\n') text.erase(at);
}

/// Standard error is exactly `expected` with nothing but the SDK's history of calls behind it, and
/// all its lines name one and the same line of the source.
MATCHER_P(SaysInOneLine, expected, "standard error is:\n" + std::string(expected)) {
  std::string const path = "XpTableManSm:";
  std::string text = arg;
  cutHistory(text);
  std::string number;
  for (std::size_t at = text.find(path); at != text.npos; at = text.find(path, at + 1)) {
    std::size_t const digits = at + path.size();
    std::size_t const end = text.find_first_not_of("0123456789", digits);
    std::string const here = text.substr(digits, end - digits);
    if (here.empty() || (!number.empty() && here != number)) return false;
    number = here;
    text.replace(digits, here.size(), "N");
  }
  return text == expected;
}

/// `step` ends the process by `abort`, and standard error is `expected`.
template <class Step>
void expectAbort(Step const& step, std::string const& expected) {
  EXPECT_EXIT(step(), testing::KilledBySignal(SIGABRT), SaysInOneLine(expected));
}

}  // namespace Kestrel::xpTableManSm
