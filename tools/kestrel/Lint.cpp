// Going through a profile, and what reports make of what is found.
#include "tools/kestrel/Lint.h"

#include "XpLib/XpTableManSmTables.h"
#include "tools/kestrel/LintRuns.h"
#include "tools/kestrel/Ranges.h"

#include <algorithm>
#include <map>
#include <set>

namespace kestrel {

using namespace xdksim;

namespace {

/// Whether the report gets no further than such a context.
bool stops(Harm harm, Report report) {
  switch (harm) {
    case Harm::none:
      return false;
    case Harm::noWay:
      return report != Report::detail;
    case Harm::endless:
      return report == Report::sram;
    case Harm::noRow:
    case Harm::pastArray:
    case Harm::assertion:
      break;
  }
  return true;
}

/// "summary, detail and sram": those that the harm stops.
std::string stoppedBy(Harm harm) {
  std::vector<std::string> names;
  for (Report report : stoppedReports(harm)) names.push_back(reportName(report));
  std::string text;
  for (std::size_t i = 0; i < names.size(); ++i)
    text += (i == 0 ? "" : i + 1 == names.size() ? " and " : ", ") + names[i];
  return text;
}

using Users = std::map<SramBlock, std::set<U32>>;

/// Calls `visit(tableId, copy, context)` for each context of the tables in use.
template <class Visit>
void eachContext(Profile const& profile, Visit const& visit) {
  for (auto const& [id, table] : profile.tables) {
    U32 const tableId = id;
    std::visit(
        [&visit, tableId](auto const& contexts) {
          if (contexts.empty() || !isInUse(contexts.front())) return;
          for (U32 copy = 0; copy < contexts.size(); ++copy) visit(tableId, copy, contexts[copy]);
        },
        table.contexts);
  }
}

Users usersOf(Profile const& profile) {
  Users users;
  eachContext(profile, [&users](U32 tableId, U32, xpTableContext const& context) {
    for (SramRun const& run : sramRuns(context))
      for (SramBlock const& block : sramBlocks(run)) users[block].insert(tableId);
  });
  return users;
}

/// The doubt about a run of a context that doesn't declare that it shares.
void checkSharing(std::vector<Doubt>& doubts, U32 tableId, xpTableContext const& context,
                  SramRun const& run, Users const& users) {
  std::set<U32> others;
  std::vector<U32> blocks;
  for (SramBlock const& block : sramBlocks(run)) {
    std::set<U32> const& there = users.at(block);
    others.insert(there.begin(), there.end());
    if (there.size() > 1) blocks.push_back(block.block);
  }
  others.erase(tableId);
  if (others.empty()) return;
  RunField const start = startField(context, run);
  doubts.push_back({start.name, start.value,
                    start.subject + " shares " + (blocks.size() == 1 ? "block " : "blocks ") +
                        rangesText(blocks) + " of pool " + std::to_string(run.pool) + " with " +
                        (others.size() == 1 ? "table " : "tables ") +
                        rangesText({others.begin(), others.end()}) + ", undeclared"});
}

}  // namespace

char const* reportName(Report report) {
  constexpr char const* names[] = {"summary", "detail", "sram"};
  return names[static_cast<U8>(report)];
}

std::vector<Report> stoppedReports(Harm harm) {
  std::vector<Report> reports;
  for (Report report : {Report::summary, Report::detail, Report::sram})
    if (stops(harm, report)) reports.push_back(report);
  return reports;
}

std::string Finding::line() const {
  std::string const name = tableName.empty() ? "" : " (" + tableName + ')';
  std::string const stopped = stoppedBy(doubt.harm);
  bool const asserted = doubt.harm == Harm::assertion;
  std::string const effect =
      asserted ? " (" + stopped + " end by assertion)" : " (stops " + stopped + ')';
  return "table " + std::to_string(tableId) + name + ", copy " + std::to_string(copy) + ": " +
         doubt.field + ": " + std::to_string(doubt.value) + ' ' + doubt.what +
         (stopped.empty() ? "" : effect);
}

Finding const* firstStop(Report report, std::vector<Finding> const& findings) {
  auto first = [report, &findings](bool endless) {
    return std::ranges::find_if(findings, [report, endless](Finding const& finding) {
      Harm const harm = finding.doubt.harm;
      return stops(harm, report) && (harm == Harm::endless) == endless;
    });
  };
  auto found = first(false);
  if (found == findings.end()) found = first(true);
  return found == findings.end() ? nullptr : &*found;
}

std::vector<Finding> findingsOf(Profile const& profile) {
  Users const users = usersOf(profile);
  std::vector<Finding> findings;
  eachContext(profile, [&](U32 tableId, U32 copy, xpTableContext const& context) {
    std::vector<Doubt> doubts = doubtsOf(context);
    if (!declaresShared(context))
      for (SramRun const& run : sramRuns(context))
        checkSharing(doubts, tableId, context, run, users);
    std::string const name(Kestrel::xpTableManSm::publishedName(tableId).view());
    for (Doubt const& doubt : doubts) findings.push_back({tableId, name, copy, doubt});
  });
  return findings;
}

}  // namespace kestrel
