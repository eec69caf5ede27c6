// The order of a report, table by table.
#include "tools/kestrel/Refusal.h"

#include "XpLib/XpTableCliHelperTypes.h"
#include "tools/kestrel/UsageFault.h"

namespace kestrel {

namespace {

using Entry = XpXdk::TableContextEntry;

/// What lint says of the copies that the table was published with.
std::vector<xdksim::Finding> findingsOf(Entry const& entry) {
  std::vector<xdksim::Finding> findings;
  U32 const copies = Kestrel::xpTableCliHelper::numCopies(entry);
  for (U32 copy = 0; copy < copies; ++copy) {
    auto const context = Kestrel::xpTableCliHelper::contextOf(
        entry, static_cast<U8>(copy), "std::vector<Finding> kestrel::findingsOf(Entry const&)");
    std::vector<xdksim::Doubt> const doubts =
        std::visit([](auto const& record) { return xdksim::doubtsOf(record); }, context);
    for (xdksim::Doubt const& doubt : doubts)
      findings.push_back({entry.tableId(), std::string(entry.tableName().view()), copy, doubt});
  }
  return findings;
}

enum class Outcome : U8 { drawn, asserted };

Outcome outcomeOn(Entry const& entry, xdksim::Report report) {
  std::vector<xdksim::Finding> const findings = findingsOf(entry);
  xdksim::Finding const* const stop = xdksim::firstStop(report, findings);
  if (!stop) return Outcome::drawn;
  if (stop->doubt.harm == xdksim::Harm::assertion) return Outcome::asserted;
  throw UsageFault(stop->line());
}

}  // namespace

void refuseWhatStops(xdksim::Report report, XpSystem::ChipStatus const& status,
                     std::optional<U32> tableId) {
  if (tableId) {
    outcomeOn(*status.tableContext(*tableId), report);
    return;
  }
  for (auto at = status.tableContextIteratorConst(); at; ++at)
    if (outcomeOn(*at.value(), report) == Outcome::asserted) return;
}

}  // namespace kestrel
