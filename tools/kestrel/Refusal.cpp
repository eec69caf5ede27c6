// The order of a report, table by table.
#include "tools/kestrel/Refusal.h"

#include "XpLib/XpTableCliHelperTypes.h"
#include "tools/kestrel/UsageFault.h"

namespace kestrel {

namespace {

using Entry = XpXdk::TableContextEntry;

/// What lint says of the copies that the table was published with.
//
// The signature is for the assertion on a code of no table type.  It is never seen: nothing is
// published without a type.
std::vector<Finding> findingsOnCopies(Entry const& entry) {
  std::vector<Finding> findings;
  U32 const copies = Kestrel::xpTableCliHelper::numCopies(entry);
  for (U32 copy = 0; copy < copies; ++copy) {
    auto const context = Kestrel::xpTableCliHelper::contextOf(
        entry, static_cast<U8>(copy),
        "std::vector<Finding> kestrel::findingsOnCopies(Entry const&)");
    std::vector<Doubt> const doubts =
        std::visit([](auto const& record) { return doubtsOf(record); }, context);
    for (Doubt const& doubt : doubts)
      findings.push_back({entry.tableId(), std::string(entry.tableName().view()), copy, doubt});
  }
  return findings;
}

enum class Outcome : U8 { drawn, asserted };

Outcome outcomeOn(Entry const& entry, Report report) {
  std::vector<Finding> const findings = findingsOnCopies(entry);
  Finding const* const stop = firstStop(report, findings);
  if (!stop) return Outcome::drawn;
  if (stop->doubt.harm == Harm::assertion) return Outcome::asserted;
  throw UsageFault(stop->line());
}

}  // namespace

void refuseWhatStops(Report report, XpSystem::ChipStatus const& status,
                     std::optional<U32> tableId) {
  if (tableId) {
    outcomeOn(*status.tableContext(*tableId), report);
    return;
  }
  for (auto at = status.tableContextIteratorConst(); at; ++at)
    if (outcomeOn(*at.value(), report) == Outcome::asserted) return;
}

}  // namespace kestrel
