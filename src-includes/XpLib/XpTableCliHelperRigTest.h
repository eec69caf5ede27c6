// The language of the reports' tests: tables with contexts, and the memory that they take as text.
#pragma once

#include "Mox/Trace.h"
#include "Xdk/LpmTableContext.h"
#include "Xdk/TableContexts.h"
#include "XpLib/XpTableCliHelper.h"
#include "XpLib/XpTableCliHelperDecoding.h"
#include "XpSystem/ChipStatus.h"

#include <algorithm>
#include <csignal>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace Kestrel::xpTableCliHelper {

using EntryPtr = Mox::Ptr<XpXdk::TableContextEntry>;

/// Where a run begins.
struct Run {
  U32 poolId;
  U32 rowBlkStartId;
};

inline xpHashTableContext hash(U32 entries, U16 keySize, U16 valueSize,
                               std::vector<Run> const& ways) {
  xpHashTableContext context;
  context.numOfEntries = entries;
  context.keySize = keySize;
  context.valueSize = valueSize;
  context.numOfWays = static_cast<U8>(ways.size());
  for (std::size_t way = 0; way < ways.size(); ++way) {
    context.poolId[way] = ways[way].poolId;
    context.rowBlkStartId[way] = ways[way].rowBlkStartId;
  }
  return context;
}

inline xpDirectTableContext direct(U32 entries, U16 entryWidth, Run run) {
  xpDirectTableContext context;
  context.numOfEntries = entries;
  context.entryWidth = entryWidth;
  context.poolId = run.poolId;
  context.rowBlkStartId = run.rowBlkStartId;
  return context;
}

/// A table that takes whole blocks of one pool, one behind the other.
inline xpDirectTableContext blocks(U32 poolId, U32 start, U32 count) {
  return direct(1024 * count, 256, {poolId, start});
}

inline xpMatchTableContext match(U32 numDb, U8 startDb, U16 keySize = 0, U16 valueSize = 0) {
  xpMatchTableContext context;
  context.numDb = numDb;
  context.keySize = keySize;
  context.valueSize = valueSize;
  context.startDb = startDb;
  return context;
}

inline xpIsmeTableContext isme(U32 ismeNum, U32 entries, U32 tileStartId, U32 ldeNum = 0) {
  xpIsmeTableContext context;
  context.ismeNum = ismeNum;
  context.ldeNum = ldeNum;
  context.numOfEntries = entries;
  context.tileStartId = tileStartId;
  return context;
}

/// The runs tell pools and starts; a pool's element that no run names is 0.
inline xpNhTableContext nh(U32 entries, U32 entryWidth, std::vector<Run> const& runs) {
  xpNhTableContext context;
  context.numEntries = entries;
  context.entryWidth = entryWidth;
  for (Run const& run : runs) {
    context.poolBitmap |= 1u << run.poolId;
    context.rowBlkStartId[run.poolId] = run.rowBlkStartId;
  }
  return context;
}

inline xpLpmPrefixTable prefix(U32 entries, U32 entryWidth, Run run) {
  return {1, entries, entryWidth, 0, run.poolId, run.rowBlkStartId};
}

/// A published table without copies.
inline EntryPtr bare(U32 tableId, char const* name) {
  return new XpXdk::TableContextEntry(tableId, name);
}

/// A published table with those copies.
template <class Context>
EntryPtr table(U32 tableId, char const* name, std::vector<Context> const& copies) {
  EntryPtr const entry = bare(tableId, name);
  for (std::size_t copy = 0; copy < copies.size(); ++copy)
    entry->xpTblContextIs(static_cast<U8>(copy), &copies[copy]);
  return entry;
}
template <class Context>
EntryPtr table(Context const& onlyCopy) {
  return table(1, "T", std::vector{onlyCopy});
}

template <class Context>
EntryPtr named(U32 tableId, char const* name, Context const& onlyCopy) {
  return table(tableId, name, std::vector{onlyCopy});
}

/// A status that has those tables.
inline XpSystem::ChipStatus::Ptr chipWith(std::vector<EntryPtr> const& tables) {
  XpSystem::ChipStatus::Ptr const status = new XpSystem::ChipStatus("chip");
  for (EntryPtr const& entry : tables) status->tableContextIs(entry);
  return status;
}

/// The reports of a chip that has those tables.
inline TableCliHelper::Ptr helper(std::vector<EntryPtr> const& tables) {
  return tableCliHelperFactory(chipWith(tables));
}

inline TableMemCollection::Ptr memoryOf(EntryPtr const& entry) {
  XpXdk::TableContextEntry::PtrConst reading = entry;
  return tableMemory(reading);
}

inline std::string span(U8 start, U8 end) {
  return std::to_string(start) + '-' + std::to_string(end);
}
inline std::string shown(TableSramChunk const& chunk) {
  return std::to_string(chunk.poolId()) + ':' + span(chunk.startRowBlkId(), chunk.endRowBlkId());
}
inline std::string shown(TableTcamChunk const& chunk) {
  return span(chunk.startDb(), chunk.endDb());
}
inline std::string shown(TableIsmeChunk const& chunk) {
  return std::to_string(chunk.ismeId()) + ':' + span(chunk.startTileId(), chunk.endTileId());
}

/// " sram 4:0-1" for each chunk, in the set's order; one that is there as false shows a "!".
template <class Iterator>
std::string shown(char const* kind, Iterator chunk) {
  std::string text;
  for (; chunk; ++chunk)
    text += std::string(" ") + kind + (chunk.value() ? " " : " !") + shown(chunk.key());
  return text;
}

/// All chunks of a table's copies: " sram 4:0-1 sram 5:0-1".
inline std::string chunks(EntryPtr const& entry) {
  auto const memory = memoryOf(entry);
  return shown("sram", memory->sramChunkIteratorConst()) +
         shown("tcam", memory->tcamChunkIteratorConst()) +
         shown("isme", memory->ismeChunkIteratorConst());
}
template <class Context>
std::string chunks(Context const& onlyCopy) {
  return chunks(table(onlyCopy));
}

/// `text` with the numbers behind "XpTableCliHelper:" struck out.
inline std::string withoutLines(std::string text) {
  std::string const path = "XpTableCliHelper:";
  for (std::size_t at = text.find(path); at != text.npos; at = text.find(path, at + 1)) {
    std::size_t const digits = at + path.size();
    text.erase(digits, text.find_first_not_of("0123456789", digits) - digits);
  }
  return text;
}

/// `step` ends the process by that assertion of the module and says no more.
template <class Step>
void expectAssertion(Step const& step, std::string const& text, std::string const& signature) {
  std::string const expected = "xplib_tests: src-includes/XpLib/XpTableCliHelper:: " + signature +
                               ": Assertion `" + text + "' failed.\n";
  EXPECT_EXIT(step(), testing::KilledBySignal(SIGABRT), testing::ResultOf(withoutLines, expected));
}

/// Takes the module's traces for as long as it lives; their line numbers are struck out.
class Traced {
 public:
  Traced() : former_(Mox::traceSinkIs([this](std::string_view line) { take(line); })) {
    Mox::traceEnable("XpTableCliHelper/0-9");
  }
  ~Traced() {
    Mox::traceDisable("XpTableCliHelper/0-9");
    Mox::traceSinkIs(former_);
  }
  Traced(Traced const&) = delete;
  Traced& operator=(Traced const&) = delete;

  std::vector<std::string> lines;

 private:
  void take(std::string_view line) { lines.push_back(withoutLines(std::string(line))); }

  Mox::TraceSink former_;
};

/// A trace of the module as `Traced` takes it.
inline std::string trace(int level, std::string const& operation, std::string const& text) {
  return "XpTableCliHelper " + std::to_string(level) +
         " src-includes/XpLib/XpTableCliHelper: " + operation + " <unknown>: " + text;
}

}  // namespace Kestrel::xpTableCliHelper
