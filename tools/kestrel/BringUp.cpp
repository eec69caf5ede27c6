// The call log, with the tables among the calls.
#include "tools/kestrel/BringUp.h"

#include <utility>

namespace kestrel {

EntryWatch::EntryWatch(xdksim::CallLog log) : log_(std::move(log)) {}

// Not a constructor's work: to be entered in a list takes a reference.
Mox::Ptr<EntryWatch> EntryWatch::start(Kestrel::ChipStatus::Ptr const& status,
                                       xdksim::CallLog log) {
  Mox::Ptr<EntryWatch> const watch = new EntryWatch(std::move(log));
  for (auto at = status->tableContextEntryIteratorConst(); at; ++at) watch->shown_.insert(at.key());
  watch->notifierIs(status);
  watch->isRegisteredNotifieeIs(true);
  return watch;
}

void EntryWatch::onTableContextEntry(U32 tableId) {
  XpXdk::TableContextEntry::PtrConst const entry = notifier()->tableContextEntry(tableId);
  if (!entry && shown_.erase(tableId) != 0)
    log_(Mox::format("gone %u", tableId).view());
  else if (entry && shown_.insert(tableId).second)
    log_(Mox::format("entry %u %s", tableId, entry->tableName().charPtr()).view());
}

void printCalls(Chip& chip, std::ostream& out, std::function<void()> const& run) {
  xdksim::CallLog const log = xdksim::streamLog(out);
  auto const watch = EntryWatch::start(chip.status(), log);
  chip.sdk().callLogIs(log);
  run();
  chip.sdk().callLogIs({});
}

void printBringUp(Chip& chip, std::ostream& out) {
  printCalls(chip, out, [&chip] { chip.bringUp(); });
}

void printBringUpAndDown(Chip& chip, std::ostream& out) {
  printCalls(chip, out, [&chip, &out] {
    chip.bringUp();
    out << "down" << std::endl;
    chip.takeDown();
  });
}

}  // namespace kestrel
