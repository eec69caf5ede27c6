// The command that brings a chip up and shows each step.
#pragma once

#include "Kestrel/ChipStatus.h"
#include "standin/xdk/CallLog.h"
#include "tools/kestrel/Chip.h"

#include <functional>
#include <iosfwd>
#include <set>

namespace kestrel {

/// Writes "entry <id> <name>" for each table as it appears in a chip's status and "gone <id>" as it
/// goes, one line each.  A table that is published again stays and isn't written.
class EntryWatch : public Kestrel::ChipStatus::Notifiee {
 public:
  /// A watch that has started; tables that are there already count as written.
  static Mox::Ptr<EntryWatch> start(Kestrel::ChipStatus::Ptr const& status, xdksim::CallLog log);

  void onTableContextEntry(U32 tableId) override;

 private:
  explicit EntryWatch(xdksim::CallLog log);

  xdksim::CallLog log_;
  std::set<U32> shown_;
};

/// Writes the call log of what `run` does with the chip to `out`, each line flushed as it comes.
void printCalls(Chip& chip, std::ostream& out, std::function<void()> const& run);

/// Brings the chip up and writes its call log to `out`, each line flushed as it comes.
void printBringUp(Chip& chip, std::ostream& out);

/// Does so, writes a line "down", takes the chip down and writes the log of that.
void printBringUpAndDown(Chip& chip, std::ostream& out);

}  // namespace kestrel
