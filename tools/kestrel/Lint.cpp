// Findings with names, in both forms.
#include "tools/kestrel/Lint.h"

#include "tools/kestrel/Chip.h"

#include <map>
#include <nlohmann/json.hpp>
#include <ostream>

namespace kestrel {

namespace {

// The library tells the names of the tables that it publishes, and the built-in chip has all of
// them but one, which stands in place of others.
std::map<U32, std::string> tableNames() {
  Chip chip(xdksim::defaultProfile(), "the built-in profile");
  chip.bringUp();
  std::map<U32, std::string> names;
  auto const tables = chip.reports()->getTableCollection();
  for (auto at = tables->tableNameIteratorConst(); at; ++at)
    names.emplace(at.key(), std::string(at.value().view()));
  return names;
}

nlohmann::ordered_json json(xdksim::Finding const& finding) {
  using namespace xdksim;
  Doubt const& doubt = finding.doubt;
  nlohmann::ordered_json stopped = nlohmann::ordered_json::array();
  for (Report report : {Report::summary, Report::detail, Report::sram})
    if (stops(doubt.harm, report)) stopped.push_back(reportName(report));
  return {{"table", finding.tableId},
          {"name", finding.tableName.empty() ? nlohmann::ordered_json()
                                             : nlohmann::ordered_json(finding.tableName)},
          {"copy", finding.copy},
          {"field", doubt.field},
          {"value", doubt.value},
          {"what", doubt.what},
          {"stops", stopped},
          {"assertion", doubt.harm == Harm::assertion}};
}

}  // namespace

std::vector<xdksim::Finding> findingsOf(xdksim::Profile const& profile) {
  std::vector<xdksim::Finding> findings = xdksim::lint(profile);
  if (findings.empty()) return findings;
  std::map<U32, std::string> const names = tableNames();
  for (xdksim::Finding& finding : findings) {
    auto const name = names.find(finding.tableId);
    if (name != names.end()) finding.tableName = name->second;
  }
  return findings;
}

void printFindings(std::vector<xdksim::Finding> const& findings, std::ostream& out) {
  for (xdksim::Finding const& finding : findings) out << finding.line() << '\n';
}

void printFindingsAsJson(std::vector<xdksim::Finding> const& findings, std::ostream& out) {
  nlohmann::ordered_json list = nlohmann::ordered_json::array();
  for (xdksim::Finding const& finding : findings) list.push_back(json(finding));
  out << nlohmann::ordered_json{{"findings", list}}.dump(1) << '\n';
}

}  // namespace kestrel
