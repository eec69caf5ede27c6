// Findings in both forms.
#include "tools/kestrel/PrintLint.h"

#include <nlohmann/json.hpp>
#include <ostream>

namespace kestrel {

using Json = nlohmann::ordered_json;

namespace {

Json json(Finding const& finding) {
  Doubt const& doubt = finding.doubt;
  Json stopped = Json::array();
  for (Report report : stoppedReports(doubt.harm)) stopped.push_back(reportName(report));
  return {{"table", finding.tableId},
          {"name", finding.tableName.empty() ? Json() : Json(finding.tableName)},
          {"copy", finding.copy},
          {"field", doubt.field},
          {"value", doubt.value},
          {"what", doubt.what},
          {"stops", stopped},
          {"assertion", doubt.harm == Harm::assertion}};
}

}  // namespace

void printFindings(std::vector<Finding> const& findings, std::ostream& out) {
  for (Finding const& finding : findings) out << finding.line() << '\n';
}

void printFindingsAsJson(std::vector<Finding> const& findings, std::ostream& out) {
  Json list = Json::array();
  for (Finding const& finding : findings) list.push_back(json(finding));
  out << Json{{"findings", list}}.dump(1) << '\n';
}

}  // namespace kestrel
