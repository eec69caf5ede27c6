// The commands of `kestrel report`: bring a chip up, refuse what can't be drawn, print the rest.
#include "tools/kestrel/Commands.h"
#include "tools/kestrel/OutputFiles.h"
#include "tools/kestrel/Refusal.h"
#include "tools/kestrel/ReportJson.h"
#include "tools/kestrel/RequestedChip.h"
#include "tools/kestrel/SramPicture.h"
#include "tools/kestrel/UsageFault.h"

#include <ostream>

namespace kestrel {

namespace {

/// A chip that is up, and what reports on it.
class Reported {
 public:
  explicit Reported(Request const& request) : chip_(chipFor(request)), insight_(request.insight) {
    chip_.bringUp();
    reports_ = chip_.reports();
  }

  Kestrel::TableCliHelper& reports() { return *reports_; }

  /// The reports, once it is sure that this one can be drawn of what is asked for.
  Kestrel::TableCliHelper& reportsFor(Report report, Request const& request) {
    XpSystem::ChipStatus const& status = *reports_->chipStatus();
    if (request.tableId && !status.tableContext(*request.tableId))
      throw UsageFault("--table: the chip has no table " + std::to_string(*request.tableId) +
                       " (\"kestrel report tables\" lists those that it has)");
    refuseWhatStops(report, status, request.tableId);
    return *reports_;
  }

 private:
  Chip chip_;
  Insight insight_;
  Kestrel::TableCliHelper::Ptr reports_;
};

/// A line with id and name for each table.
void printTables(Kestrel::TableCliHelper& reports, std::ostream& out) {
  auto const tables = reports.getTableCollection();
  for (auto at = tables->tableNameIteratorConst(); at; ++at)
    out << Mox::format("%u %s\n", at.key(), at.value().charPtr());
}

void writePictures(Request const& request, SramModel const& model) {
  std::vector<OutputFile> files;
  if (request.svg) files.push_back({*request.svg, sramSvg(model)});
  if (request.html) files.push_back({*request.html, sramHtml(model)});
  writeFiles(files);
}

}  // namespace

ExitStatus reportSummary(Request const& request, std::ostream& out) {
  Reported chip(request);
  Kestrel::TableCliHelper& reports = chip.reportsFor(Report::summary, request);
  if (request.json)
    printSummaryAsJson(reports, request.tableId, out);
  else if (request.tableId)
    out << reports.displaySingleDynamicTableSummary(*request.tableId);
  else
    out << reports.displayAllDynamicTablesSummary();
  return success;
}

ExitStatus reportDetail(Request const& request, std::ostream& out) {
  Reported chip(request);
  Kestrel::TableCliHelper& reports = chip.reportsFor(Report::detail, request);
  if (request.json)
    printDetailAsJson(reports, request.tableId, out);
  else if (request.tableId)
    out << reports.displaySingleDynamicTableDetail(*request.tableId);
  else
    out << reports.displayAllDynamicTablesDetail();
  return success;
}

ExitStatus reportSram(Request const& request, std::ostream& out) {
  if (request.json && (request.svg || request.html))
    throw UsageFault("--json can't stand beside --svg or --html");
  Reported chip(request);
  Kestrel::TableCliHelper& reports = chip.reportsFor(Report::sram, request);
  if (request.svg || request.html)
    writePictures(request, sramModel(*reports.chipStatus()));
  else if (request.json)
    printSramAsJson(sramModel(*reports.chipStatus()), out);
  else
    out << reports.displaySramAllocationGraph();
  return success;
}

ExitStatus reportTables(Request const& request, std::ostream& out) {
  Reported chip(request);
  if (request.json)
    printTablesAsJson(chip.reports(), out);
  else
    printTables(chip.reports(), out);
  return success;
}

}  // namespace kestrel
