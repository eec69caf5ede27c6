// What lint names, in the user's words.
#include "tools/kestrel/Lint.h"

#include <gtest/gtest.h>

namespace kestrel {

using namespace xdksim;

namespace {

std::string linesOf(std::vector<Finding> const& findings) {
  std::string text;
  for (Finding const& finding : findings) text += finding.line() + '\n';
  return text;
}

/// The profile's lint, a line a finding.
std::string said(Profile const& profile) { return linesOf(findingsOf(profile)); }

/// A profile of one table, with id 0 and the given copies.
template <class... Context>
Profile of(Context... copies) {
  auto contexts = std::vector{copies...};
  for (auto& context : contexts) context.first = 0;
  Profile profile;
  profile.tables[0] = tableOf(contexts, static_cast<U32>(contexts.size()));
  return profile;
}

/// What is said about the one copy of table 0, each line without its beginning.
template <class Context>
std::string saidOf(Context const& context) {
  std::string const start = "table 0 (FDB), copy 0: ";
  std::string text = said(of(context));
  for (std::size_t at; (at = text.find(start)) != text.npos;) text.erase(at, start.size());
  return text;
}

xpHashTableContext hash(U32 entries = 8192, U16 keySize = 64, U16 valueSize = 64, U8 ways = 2) {
  xpHashTableContext context;
  context.numOfEntries = entries;
  context.keySize = keySize;
  context.valueSize = valueSize;
  context.numOfWays = ways;
  for (U32 way = 0; way < 8; ++way) {
    context.poolId[way] = way;
    context.rowBlkStartId[way] = 8 + way;
  }
  return context;
}

xpDirectTableContext direct(U32 entries, U16 width, U32 pool = 2, U32 start = 5) {
  xpDirectTableContext context;
  context.numOfEntries = entries;
  context.entryWidth = width;
  context.poolId = pool;
  context.rowBlkStartId = start;
  return context;
}

xpNhTableContext nextHop(U32 poolBitmap, U32 entries = 65536, U32 width = 64) {
  xpNhTableContext context;
  context.poolBitmap = poolBitmap;
  context.numEntries = entries;
  context.entryWidth = width;
  return context;
}

xpLpmTableContext lpm(U32 slot, xpLpmPrefixTable const& table) {
  xpLpmTableContext context;
  context.prefixTable[slot] = table;
  return context;
}

std::string const stopsAll = " (stops summary, detail and sram)\n";

TEST(LintTest, BuiltInProfileIsBeyondDoubt) { EXPECT_EQ(said(defaultProfile()), ""); }

TEST(LintTest, WidthOfADirectTable) {
  EXPECT_EQ(saidOf(direct(8192, 0)),
            "entryWidth: 0 is no width of an entry, which is 1 to 256" + stopsAll);
  EXPECT_EQ(saidOf(direct(8192, 257)),
            "entryWidth: 257 is no width of an entry, which is 1 to 256" + stopsAll);
  EXPECT_EQ(saidOf(direct(8192, 256)), "");
  EXPECT_EQ(saidOf(direct(1 << 18, 1, 4, 0)), "");
}

TEST(LintTest, WidthOfANextHopTable) {
  EXPECT_EQ(saidOf(nextHop(1, 8192, 0x10040)),
            "entryWidth: 65600 is no width of an entry, which is 1 to 256" + stopsAll);
  EXPECT_EQ(saidOf(nextHop(1, 8192, 256)), "");
}

TEST(LintTest, WidthOfAValidPrefixTableAlsoWithoutEntries) {
  EXPECT_EQ(saidOf(lpm(3, {1, 0, 0, 0, 1, 1})),
            "prefixTable[3].entryWidth: 0 is no width of an entry, which is 1 to 256" + stopsAll);
  EXPECT_EQ(saidOf(lpm(3, {0, 8192, 300, 0, 1, 1})), "");
}

TEST(LintTest, WidthOfAHashTable) {
  EXPECT_EQ(saidOf(hash(8192, 0, 0)),
            "keySize: 0 and a valueSize of 0 are no width of an entry" + stopsAll);
  EXPECT_EQ(saidOf(hash(8192, 128, 129)),
            "keySize: 128 and a valueSize of 129 are wider than a row, and not 256 and 256 "
            "(summary, detail and sram end by assertion)\n");
  EXPECT_EQ(saidOf(hash(8192, 256, 255)),
            "valueSize: 255 and a keySize of 256 are wider than a row, and not 256 and 256 "
            "(summary, detail and sram end by assertion)\n");
  EXPECT_EQ(saidOf(hash(8192, 256, 256)), "");
  EXPECT_EQ(saidOf(hash(8192, 256, 0)), "");
}

TEST(LintTest, WaysOfAHashTable) {
  EXPECT_EQ(saidOf(hash(8192, 64, 64, 0)),
            "numOfWays: 0 ways for 8192 entries (stops summary and sram)\n");
  EXPECT_EQ(saidOf(hash(65536, 64, 64, 9)), "numOfWays: 9 ways, and room for 8" + stopsAll);
  EXPECT_EQ(saidOf(hash(65536, 64, 64, 8)), "");
}

TEST(LintTest, WaysOfANextHopTable) {
  EXPECT_EQ(saidOf(nextHop(0)),
            "poolBitmap: 0 has no way for 65536 entries "
            "(stops summary and sram)\n");
  EXPECT_EQ(saidOf(nextHop(0xFF)), "");
  EXPECT_EQ(saidOf(nextHop(0x1FF, 9 * 8192)),
            "poolBitmap: 511 has 9 ways, not all in the pools 0 to 7\n");
  EXPECT_EQ(saidOf(nextHop(0x100)), "poolBitmap: 256 has 1 way, not all in the pools 0 to 7\n");
}

TEST(LintTest, RunOfNoBlock) {
  EXPECT_EQ(saidOf(direct(2047, 128)),
            "numOfEntries: 2047 entries make a run of no block, which is 1024 rows\n");
  EXPECT_EQ(saidOf(hash(4096, 64, 64, 3)),
            "numOfEntries: 4096 entries make a run of no block, which is 1024 rows\n");
  EXPECT_EQ(saidOf(lpm(31, {1, 0, 64, 0, 1, 1})),
            "prefixTable[31].numOfEntries: 0 entries make a run of no block, which is 1024 rows\n");
  EXPECT_EQ(saidOf(direct(1, 128)),
            "numOfEntries: 1 entry makes a run of no block, which is 1024 rows\n");
}

TEST(LintTest, RunOfNoBlockAtBlock0StopsTheMap) {
  std::string const fault =
      " entries make a run of no block, which is 1024 rows; from block 0 its count in 8 bits never "
      "ends (stops sram)\n";
  EXPECT_EQ(saidOf(direct(512, 128, 2, 0)), "numOfEntries: 512" + fault);
  EXPECT_EQ(saidOf(direct(512, 128, 2, 256)), "numOfEntries: 512" + fault);
  EXPECT_EQ(saidOf(nextHop(0b11, 512)), "numEntries: 512" + fault);
  EXPECT_EQ(saidOf(lpm(0, {1, 512, 64, 0, 1, 0})), "prefixTable[0].numOfEntries: 512" + fault);
  xpHashTableContext secondWay = hash(512);
  secondWay.rowBlkStartId[1] = 0;
  EXPECT_EQ(saidOf(secondWay), "numOfEntries: 512" + fault);
}

TEST(LintTest, RunThatEndsAtBlock255) {
  EXPECT_EQ(saidOf(direct(8192, 128, 4, 252)),
            "rowBlkStartId: 252 begins a run that goes to block 255, and pool 4 has 0 to 63\n"
            "rowBlkStartId: 252 begins a run that ends at block 255, so that its count in 8 bits "
            "never ends (stops sram)\n");
  EXPECT_EQ(saidOf(direct(8192, 128, 4, 251)),
            "rowBlkStartId: 251 begins a run that goes to block 254, and pool 4 has 0 to 63\n");
}

TEST(LintTest, EndIsCountedIn8Bits) {
  EXPECT_EQ(saidOf(direct(8192, 128, 9, 508)),
            "poolId: 9 is no pool, which are 0 to 7\n"
            "rowBlkStartId: 508 begins a run that ends at block 255, so that its count in 8 bits "
            "never ends (stops sram)\n");
}

TEST(LintTest, BlocksBeyondThePool) {
  EXPECT_EQ(saidOf(direct(8192, 128, 3, 44)), "");
  EXPECT_EQ(saidOf(direct(8192, 128, 3, 45)),
            "rowBlkStartId: 45 begins a run that goes to block 48, and pool 3 has 0 to 47\n");
  EXPECT_EQ(saidOf(direct(8192, 128, 4, 60)), "");
  EXPECT_EQ(saidOf(direct(8192, 128, 4, 0xFFFFFFFF)),
            "rowBlkStartId: 4294967295 begins a run that goes to block 4294967298, and pool 4 has "
            "0 to 63\n");
}

TEST(LintTest, PoolThatTheChipLacks) {
  xpHashTableContext context = hash();
  context.poolId[1] = 8;
  EXPECT_EQ(saidOf(context), "poolId[1]: 8 is no pool, which are 0 to 7\n");
  EXPECT_EQ(saidOf(lpm(4, {1, 8192, 64, 0, 99, 0})),
            "prefixTable[4].poolId: 99 is no pool, which are 0 to 7\n");
}

TEST(LintTest, EachKindOfRunIsNamedByItsField) {
  xpHashTableContext way = hash();
  way.rowBlkStartId[1] = 48;
  EXPECT_EQ(saidOf(way),
            "rowBlkStartId[1]: 48 begins a run that goes to block 49, and pool 1 has 0 to 47\n");
  xpNhTableContext pool = nextHop(0b100);
  pool.rowBlkStartId[2] = 40;
  EXPECT_EQ(saidOf(pool),
            "rowBlkStartId[2]: 40 begins a run that goes to block 55, and pool 2 has 0 to 47\n");
  EXPECT_EQ(saidOf(lpm(7, {1, 8192, 64, 0, 1, 47})),
            "prefixTable[7].rowBlkStartId: 47 begins a run that goes to block 48, and pool 1 has 0 "
            "to 47\n");
  xpLpmTableContext tile;
  tile.nhiTable.poolBitmap = 1 << 3;
  tile.nhiTable.tileBitmap[3] = 0b1100000;
  EXPECT_EQ(saidOf(tile),
            "nhiTable.tileBitmap[3]: 96 has a tile 6 that goes to block 55, and pool 3 has 0 to "
            "47\n");
}

TEST(LintTest, EmptyContextsAreBeyondDoubt) {
  EXPECT_EQ(saidOf(hash(0, 0, 0, 0)), "");
  EXPECT_EQ(saidOf(hash(0, 300, 1, 9)), "");
  EXPECT_EQ(saidOf(xpDirectTableContext()), "");
  EXPECT_EQ(saidOf(direct(0, 300)), "");
  EXPECT_EQ(saidOf(nextHop(0, 0, 0)), "");
  EXPECT_EQ(saidOf(xpLpmTableContext()), "");
}

TEST(LintTest, OtherMemoriesAreBeyondDoubt) {
  xpMatchTableContext match;
  match.numDb = 300;
  match.startDb = 255;
  EXPECT_EQ(saidOf(match), "");
  xpIsmeTableContext isme;
  isme.numOfEntries = 0xFFFFFFFF;
  EXPECT_EQ(saidOf(isme), "");
}

TEST(LintTest, EachCopyIsLookedAt) {
  EXPECT_EQ(
      said(of(direct(8192, 64), direct(8192, 0), direct(1, 64))),
      "table 0 (FDB), copy 1: entryWidth: 0 is no width of an entry, which is 1 to 256" + stopsAll +
          "table 0 (FDB), copy 2: numOfEntries: 1 entry makes a run of no block, which is 1024 "
          "rows\n");
}

TEST(LintTest, TableIsLookedAtWhateverItsCopyNumberAndId) {
  Profile profile;
  profile.tables[61] = tableOf(std::vector{direct(8192, 0)}, 0);
  std::get<std::vector<xpDirectTableContext>>(profile.tables[61].contexts)[0].first = 3;
  EXPECT_EQ(findingsOf(profile).size(), 1u);
}

TEST(LintTest, TableIsInUseByItsFirstCopy) {
  Profile profile = of(direct(8192, 0), direct(8192, 0));
  auto& copies = std::get<std::vector<xpDirectTableContext>>(profile.tables[0].contexts);
  copies[1].first = -1;
  EXPECT_EQ(findingsOf(profile).size(), 2u);
  copies[0].first = -1;
  EXPECT_EQ(findingsOf(profile).size(), 0u);
}

TEST(LintTest, TableWithoutContextsOrClassIsBeyondDoubt) {
  Profile profile;
  profile.tables[0] = {1, 3, std::vector<xpTableContext>(2)};
  profile.tables[1] = {1, 1, std::vector<xpHashTableContext>()};
  EXPECT_EQ(said(profile), "");
}

/// Tables 3 and 4 on pool 2, from blocks 0 and 2 on; 4 blocks each.
Profile overlapping(U32 sharedBy3, U32 sharedBy4) {
  xpHashTableContext third = hash(8192, 64, 64, 1);
  third.first = 0;
  third.poolId[0] = 2;
  third.rowBlkStartId[0] = 0;
  third.shared = sharedBy3;
  xpHashTableContext fourth = third;
  fourth.rowBlkStartId[0] = 2;
  fourth.shared = sharedBy4;
  Profile profile;
  profile.tables[3] = tableOf(std::vector{third}, 1);
  profile.tables[4] = tableOf(std::vector{fourth}, 1);
  return profile;
}

std::string const third =
    "table 3, copy 0: rowBlkStartId[0]: 0 begins a run that shares blocks 2, 3 of pool 2 with "
    "table 4, undeclared\n";
std::string const fourth =
    "table 4 (IPV4_HOST), copy 0: rowBlkStartId[0]: 2 begins a run that shares blocks 2, 3 of pool "
    "2 with "
    "table 3, undeclared\n";

TEST(LintTest, SharingMustBeDeclaredByEach) {
  EXPECT_EQ(said(overlapping(0, 0)), third + fourth);
  EXPECT_EQ(said(overlapping(1, 0)), fourth);
  EXPECT_EQ(said(overlapping(0, 1)), third);
  EXPECT_EQ(said(overlapping(1, 2)), "");
}

TEST(LintTest, ClassWithoutTheFieldCannotDeclareSharing) {
  Profile profile = overlapping(1, 1);
  xpDirectTableContext sixth = direct(2048, 128, 2, 2);
  sixth.first = 0;
  profile.tables[6] = tableOf(std::vector{sixth}, 1);
  EXPECT_EQ(said(profile),
            "table 6, copy 0: rowBlkStartId: 2 begins a run that shares block 2 of pool 2 with "
            "tables 3, 4, undeclared\n");
}

TEST(LintTest, CopiesOfOneTableMayLieOnOneAnother) {
  EXPECT_EQ(said(of(direct(8192, 64), direct(8192, 64))), "");
}

TEST(LintTest, TablesThatAreNotInUseShareNothing) {
  Profile profile = overlapping(0, 0);
  std::get<std::vector<xpHashTableContext>>(profile.tables[4].contexts)[0].first = -1;
  EXPECT_EQ(said(profile), "");
}

TEST(LintTest, NameStandsInTheLineWhereItIsKnown) {
  Finding finding{7, "SPARE", 2, {"numOfWays", 9, "ways, and room for 8"}};
  EXPECT_EQ(finding.line(), "table 7 (SPARE), copy 2: numOfWays: 9 ways, and room for 8");
}

/// The harm at which the report stops first on a table with these copies; `none` if on none.
template <class... Context>
Harm stopOf(Report report, Context... copies) {
  std::vector<Finding> const findings = findingsOf(of(copies...));
  Finding const* const stop = firstStop(report, findings);
  return stop ? stop->doubt.harm : Harm::none;
}

using enum Report;

TEST(FirstStopTest, WaysAreDividedByAheadOfAllElseButInTheDetail) {
  EXPECT_EQ(stopOf(summary, hash(8192, 256, 1, 0)), Harm::noWay);
  EXPECT_EQ(stopOf(sram, hash(8192, 256, 1, 0)), Harm::noWay);
  EXPECT_EQ(stopOf(detail, hash(8192, 256, 1, 0)), Harm::assertion);
  EXPECT_EQ(stopOf(detail, hash(8192, 64, 64, 0)), Harm::none);
}

TEST(FirstStopTest, WidthIsLookedAtAheadOfTheWaysPastTheArray) {
  EXPECT_EQ(stopOf(summary, hash(8192, 256, 1, 9)), Harm::assertion);
  EXPECT_EQ(stopOf(detail, hash(8192, 0, 0, 9)), Harm::noRow);
  EXPECT_EQ(stopOf(detail, hash(65536, 64, 64, 9)), Harm::pastArray);
}

TEST(FirstStopTest, NextHopWithoutAWayHasADetailAllTheSame) {
  EXPECT_EQ(stopOf(summary, nextHop(0)), Harm::noWay);
  EXPECT_EQ(stopOf(detail, nextHop(0)), Harm::none);
  EXPECT_EQ(stopOf(detail, nextHop(0, 8192, 0)), Harm::noRow);
}

TEST(FirstStopTest, EarlierCopyStopsFirst) {
  EXPECT_EQ(stopOf(summary, hash(8192, 64, 64, 9), hash(8192, 256, 1)), Harm::pastArray);
  EXPECT_EQ(stopOf(summary, hash(8192, 256, 1), hash(8192, 64, 64, 9)), Harm::assertion);
}

TEST(FirstStopTest, BlocksAreCountedBehindTheDecodingOfAllCopies) {
  xpHashTableContext endless = hash(512);
  endless.rowBlkStartId[0] = 0;
  EXPECT_EQ(stopOf(sram, endless, hash(8192, 256, 1)), Harm::assertion);
  EXPECT_EQ(stopOf(sram, endless, hash()), Harm::endless);
  EXPECT_EQ(stopOf(summary, endless), Harm::none);
  EXPECT_EQ(stopOf(detail, endless), Harm::none);
}

TEST(FirstStopTest, OddFiguresStopNothing) {
  for (Report report : {summary, detail, sram}) {
    EXPECT_EQ(stopOf(report, direct(1, 128)), Harm::none);
    EXPECT_EQ(stopOf(report, direct(8192, 128, 9, 251)), Harm::none);
    EXPECT_EQ(stopOf(report, nextHop(0x1FF)), Harm::none);
  }
}

}  // namespace

}  // namespace kestrel
