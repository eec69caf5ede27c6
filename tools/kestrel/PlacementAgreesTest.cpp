// The simulated chip and the reports tell alike where a table lies; the reports take each number by
// its low 8 bits.
#include "XpLib/XpTableCliHelperDecoding.h"
#include "XpLib/XpTableCliHelperTypes.h"
#include "standin/xdk/Placement.h"
#include "standin/xdk/ProfileReader.h"
#include "tools/kestrel/Chip.h"

#include <gtest/gtest.h>
#include <tuple>

namespace kestrel {

namespace {

using namespace Kestrel::xpTableCliHelper;

/// Pool, first and last block of each run.
using Runs = std::vector<std::tuple<U32, U32, U32>>;

Runs chipsRuns(XpXdk::TableContextEntry const& entry) {
  Runs runs;
  for (U32 copy = 0; copy < numCopies(entry); ++copy)
    for (xdksim::SramRun const& run :
         std::visit([](auto const& context) { return xdksim::sramRuns(context); },
                    contextOf(entry, static_cast<U8>(copy), "")))
      runs.emplace_back(static_cast<U8>(run.pool), static_cast<U8>(run.start), run.end());
  return runs;
}

Runs reportsRuns(XpXdk::TableContextEntry const& entry) {
  Runs runs;
  Chunks const chunks = tableChunks(entry);
  for (Kestrel::TableSramChunk const& chunk : chunks.sram)
    runs.emplace_back(chunk.poolId(), chunk.startRowBlkId(), chunk.endRowBlkId());
  return runs;
}

U32 comparedRuns(xdksim::Profile const& profile) {
  Chip chip(profile, "test");
  chip.bringUp();
  U32 compared = 0;
  for (auto at = chip.status()->tableContextEntryIteratorConst(); at; ++at) {
    Runs const runs = reportsRuns(*at.value());
    EXPECT_EQ(chipsRuns(*at.value()), runs) << at.value()->tableName();
    compared += static_cast<U32>(runs.size());
  }
  return compared;
}

TEST(PlacementAgreesTest, OnTheBuiltInProfile) {
  EXPECT_GT(comparedRuns(xdksim::defaultProfile()), 0u);
}

TEST(PlacementAgreesTest, OnProfilesOfEveryType) {
  for (std::string const file : {"/tests/tool/profiles/types.json",
                                 "/examples/profiles/bridge.json", "/tests/tool/profiles/odd.json"})
    EXPECT_GT(comparedRuns(xdksim::readProfileFile(KESTREL_SOURCE_DIR + file)), 0u) << file;
}

}  // namespace

}  // namespace kestrel
