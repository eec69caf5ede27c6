// Doubts about one context by itself.
#include "standin/xdk/ContextClass.h"
#include "tools/kestrel/Lint.h"
#include "tools/kestrel/LintRuns.h"

#include <algorithm>
#include <iterator>

namespace kestrel {

using namespace xdksim;

namespace {

using Doubts = std::vector<Doubt>;

std::string numberText(U32 number) { return std::to_string(number); }

void checkWidth(Doubts& doubts, std::string const& field, U32 width) {
  if (!fitsRow(width))
    doubts.push_back({field, width, "is no width of an entry, which is 1 to 256", Harm::noRow});
}

void checkRun(Doubts& doubts, xpTableContext const& context, SramRun const& run) {
  RunField const start = startField(context, run);
  U32 const limit = sramPoolBlocks(run.pool);
  U64 const last = U64{run.start} + run.blocks - 1;
  bool const isPast = run.start >= limit || run.blocks > limit - run.start;
  if (limit == 0)
    doubts.push_back({poolField(run), run.pool, "is no pool, which are 0 to 7"});
  else if (isPast)
    doubts.push_back({start.name, start.value,
                      start.subject + " goes to block " + std::to_string(last) + ", and pool " +
                          numberText(run.pool) + " has 0 to " + numberText(limit - 1)});
  if (run.end() == 255)
    doubts.push_back({start.name, start.value,
                      start.subject + " ends at block 255, so that its count in 8 bits never ends",
                      Harm::endless});
}

void checkRuns(Doubts& doubts, xpTableContext const& context) {
  for (SramRun const& run : sramRuns(context))
    if (run.blocks != 0) checkRun(doubts, context, run);
}

// Runs of one context that go by one count of entries are of no block all or none.
void checkBlocks(Doubts& doubts, std::string const& field, U32 entries,
                 std::vector<SramRun> const& runs) {
  bool const isEmpty = !runs.empty() && runs.front().blocks == 0;
  bool const isEndless =
      std::ranges::any_of(runs, [](SramRun const& run) { return run.end() == 255; });
  if (isEmpty)
    doubts.push_back({field, entries,
                      std::string(entries == 1 ? "entry makes" : "entries make") +
                          " a run of no block, which is 1024 rows" +
                          (isEndless ? "; from block 0 its count in 8 bits never ends" : ""),
                      isEndless ? Harm::endless : Harm::none});
}

void checkHashWidth(Doubts& doubts, xpHashTableContext const& context) {
  U32 const width = entryWidth(context);
  std::string const wide = " are wider than a row, and not 256 and 256";
  if (width == 0)
    doubts.push_back({"keySize", 0, "and a valueSize of 0 are no width of an entry", Harm::noRow});
  else if (width > sramRowWidth && context.keySize != sramRowWidth)
    doubts.push_back({"keySize", context.keySize,
                      "and a valueSize of " + numberText(context.valueSize) + wide,
                      Harm::assertion});
  else if (width > sramRowWidth && context.valueSize != sramRowWidth)
    doubts.push_back({"valueSize", context.valueSize,
                      "and a keySize of " + numberText(context.keySize) + wide, Harm::assertion});
}

// In the order of the reports: they divide by the ways, then look at the width, then go through
// the ways.
Doubts check(xpHashTableContext const& context) {
  if (context.numOfEntries == 0) return {};
  Doubts doubts;
  if (context.numOfWays == 0)
    doubts.push_back(
        {"numOfWays", 0, "ways for " + numberText(context.numOfEntries) + " entries", Harm::noWay});
  checkHashWidth(doubts, context);
  if (context.numOfWays > std::size(context.poolId))
    doubts.push_back({"numOfWays", context.numOfWays, "ways, and room for 8", Harm::pastArray});
  checkBlocks(doubts, "numOfEntries", context.numOfEntries, sramRuns(context));
  checkRuns(doubts, context);
  return doubts;
}

// The other memories are drawn as told, and so is what has no class.
Doubts check(xpTableContext const&) { return {}; }

Doubts check(xpDirectTableContext const& context) {
  if (context.numOfEntries == 0) return {};
  Doubts doubts;
  checkWidth(doubts, "entryWidth", context.entryWidth);
  checkBlocks(doubts, "numOfEntries", context.numOfEntries, sramRuns(context));
  checkRuns(doubts, context);
  return doubts;
}

Doubts check(xpNhTableContext const& context) {
  if (context.numEntries == 0) return {};
  Doubts doubts;
  U32 const ways = numWays(context);
  if (ways == 0)
    doubts.push_back({"poolBitmap", 0,
                      "has no way for " + numberText(context.numEntries) + " entries",
                      Harm::noWay});
  if (context.poolBitmap >> sramPools != 0)
    doubts.push_back({"poolBitmap", context.poolBitmap,
                      "has " + numberText(ways) + (ways == 1 ? " way" : " ways") +
                          ", not all in the pools 0 to 7"});
  checkWidth(doubts, "entryWidth", context.entryWidth);
  checkBlocks(doubts, "numEntries", context.numEntries, sramRuns(context));
  checkRuns(doubts, context);
  return doubts;
}

Doubts check(xpLpmTableContext const& context) {
  Doubts doubts;
  std::vector<SramRun> const runs = sramRuns(context);
  for (U32 slot = 0; slot < std::size(context.prefixTable); ++slot) {
    xpLpmPrefixTable const& table = context.prefixTable[slot];
    if (table.valid == 0) continue;
    std::string const name = "prefixTable[" + numberText(slot) + "].";
    checkWidth(doubts, name + "entryWidth", table.entryWidth);
    auto const run = std::ranges::find_if(runs, [slot](SramRun const& candidate) {
      return candidate.part == SramPart::prefixTable && candidate.number == slot;
    });
    if (run != runs.end()) checkBlocks(doubts, name + "numOfEntries", table.numOfEntries, {*run});
  }
  checkRuns(doubts, context);
  return doubts;
}

}  // namespace

std::vector<Doubt> doubtsOf(xpTableContext const& context) {
  return visitContext(context, [](auto const& record) { return check(record); });
}

}  // namespace kestrel
