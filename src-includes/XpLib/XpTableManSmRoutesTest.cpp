// The tables of routes and hosts, and the treads of the prefix tables.
#include "XpLib/XpTableManSmAbortTest.h"
#include "XpLib/XpTableManSmSaidTest.h"
#include "XpLib/XpTableManSmTreads.h"

#include <map>

namespace Kestrel::xpTableManSm {
namespace {

std::string const treadsSignature =
    "void Kestrel::doUpdateLpmTblCtx(U32, xpTableContext*, Mox::Ptr<XpLib::Config::LpmTreadCfg>)";

using Treads = std::map<U32, U32>;  // by slot

xpLpmTableContext withTreads(Treads const& treads) {
  xpLpmTableContext context;
  context.first = 0;
  for (auto [slot, tread] : treads) {
    context.prefixTable[slot].valid = 1;
    context.prefixTable[slot].tread = tread;
  }
  return context;
}

Treads treadsOf(xpLpmTableContext const& context) {
  Treads treads;
  for (U32 slot = 0; slot < 32; ++slot)
    if (context.prefixTable[slot].valid) treads[slot] = context.prefixTable[slot].tread;
  return treads;
}

/// Valid plans, of these treads by key.
Mox::Ptr<XpLib::Config::LpmTreadCfg> plan(std::map<U8, U8> const& v4, std::map<U8, U8> const& v6) {
  Mox::Ptr<XpLib::Config::LpmTreadCfg> const cfg = new XpLib::Config::LpmTreadCfg("treads");
  for (auto [key, tread] : v4) cfg->treadV4Is(key, tread);
  for (auto [key, tread] : v6) cfg->treadV6Is(key, tread);
  cfg->treadV4ValidIs(true);
  cfg->treadV6ValidIs(true);
  return cfg;
}

/// What a line of the trace says behind the name of the operation.
Lines texts(Trace const& trace) {
  Lines result;
  for (std::string const& line : trace.lines) result.push_back(line.substr(line.find(": ") + 2));
  return result;
}

// Treads.

TEST(TreadsTest, PrefixTablesTakeThePlanInTheirOrder) {
  auto context = withTreads({{3, 0}, {7, 16}, {9, 2}});
  Trace trace("XpTableManSm/1");
  doUpdateLpmTblCtx(50, &context, plan({{0, 5}, {1, 8}}, {}));
  EXPECT_EQ(treadsOf(context), (Treads{{3, 21}, {7, 16}, {9, 24}}));
  EXPECT_EQ(texts(trace), (Lines{" index 3/0 tread 0/21", " index 9/1 tread 2/24"}));
}

TEST(TreadsTest, WalkIsTracedAtLevelTwo) {
  auto context = withTreads({{0, 16}, {1, 4}});
  context.prefixTable[2].tread = 9;
  Trace trace("XpTableManSm/2");
  doUpdateLpmTblCtx(51, &context, plan({}, {{0, 1}}));
  Lines const said = texts(trace);
  ASSERT_EQ(said.size(), 34u);
  EXPECT_EQ(Lines(said.begin(), said.begin() + 5),
            (Lines{"doUpdateLpmTblCtx tblGuid 51", " index 0 tread 16 valid 1",
                   " index 1 tread 4 valid 1", " cfgIdx 0", " index 2 tread 9 valid 0"}));
  EXPECT_EQ(said.back(), " index 31 tread 0 valid 0");
}

TEST(TreadsTest, ValidIsAnythingButZero) {
  auto context = withTreads({{0, 4}});
  context.prefixTable[0].valid = 0x80;
  Trace trace("XpTableManSm/2");
  doUpdateLpmTblCtx(50, &context, plan({{0, 1}}, {}));
  EXPECT_EQ(texts(trace)[1], " index 0 tread 4 valid 1");
  EXPECT_EQ(context.prefixTable[0].tread, 17u);
}

TEST(TreadsTest, PrefixTableThatIsNotValidKeepsItsTread) {
  auto context = withTreads({{1, 0}});
  context.prefixTable[0].tread = 3;
  context.prefixTable[2].tread = 16;
  doUpdateLpmTblCtx(50, &context, plan({{0, 0}}, {}));
  EXPECT_EQ(context.prefixTable[0].tread, 3u);
  EXPECT_EQ(context.prefixTable[1].tread, 16u);
  EXPECT_EQ(context.prefixTable[2].tread, 16u);
}

// As a second bring-up on the same contexts meets them.
TEST(TreadsTest, TreadsPastSixteenAreRewrittenToo) {
  auto context = withTreads({{0, 17}, {1, 16}});
  doUpdateLpmTblCtx(50, &context, plan({{0, 5}}, {}));
  EXPECT_EQ(treadsOf(context), (Treads{{0, 21}, {1, 16}}));
}

TEST(TreadsTest, EachTableHasItsPlan) {
  auto v4 = withTreads({{0, 0}});
  auto v6 = withTreads({{0, 0}});
  auto const cfg = plan({{0, 1}}, {{0, 2}});
  doUpdateLpmTblCtx(50, &v4, cfg);
  doUpdateLpmTblCtx(51, &v6, cfg);
  EXPECT_EQ(treadsOf(v4), (Treads{{0, 17}}));
  EXPECT_EQ(treadsOf(v6), (Treads{{0, 18}}));
}

TEST(TreadsTest, PlanThatIsNotValidChangesNothing) {
  auto context = withTreads({{0, 3}});
  auto const cfg = plan({{0, 1}}, {});
  cfg->treadV4ValidIs(false);
  Trace trace("XpTableManSm/0-31");
  doUpdateLpmTblCtx(50, &context, cfg);
  EXPECT_EQ(treadsOf(context), (Treads{{0, 3}}));
  EXPECT_EQ(texts(trace), (Lines{"doUpdateLpmTblCtx tblGuid 50", " tread cfg not valid "}));
}

TEST(TreadsTest, MembersBehindTheLastPrefixTableAreNotRead) {
  auto context = withTreads({{0, 0}});
  doUpdateLpmTblCtx(50, &context, plan({{0, 1}, {1, 255}, {31, 9}}, {}));
  EXPECT_EQ(treadsOf(context), (Treads{{0, 17}}));
}

TEST(TreadsTest, AllThirtyTwoPrefixTablesTakeTheLargestTreads) {
  Treads before;
  Treads expected;
  std::map<U8, U8> treads;
  for (U8 slot = 0; slot < 32; ++slot) {
    before[slot] = 0;
    treads[slot] = static_cast<U8>(255 - slot);
    expected[slot] = 16u + 255 - slot;
  }
  auto context = withTreads(before);
  doUpdateLpmTblCtx(51, &context, plan({}, treads));
  EXPECT_EQ(treadsOf(context), expected);
}

TEST(TreadsDeathTest, PlanWithTooFewMembers) {
  auto context = withTreads({{2, 0}, {5, 0}});
  struct Case {
    U32 tableGuid;
    char const* test;
  };
  for (Case const each : {Case{50, "lpmTreadCfg->treadV4IteratorConst().isMemberOf( cfgIdx )"},
                          {51, "lpmTreadCfg->treadV6IteratorConst().isMemberOf( cfgIdx )"}}) {
    std::string const test = each.test;
    expectAbort(
        [&] {
          doUpdateLpmTblCtx(each.tableGuid, &context, plan({{0, 1}}, {{0, 1}}));
        },
        "Failed(" + test + ")  cfgIdx 1 i 5\n" + assertion("! \"" + test + "\"", treadsSignature));
  }
}

TEST(TreadsDeathTest, ValidPlanWithoutMembers) {
  auto context = withTreads({{0, 0}});
  expectAbort(
      [&] {
        doUpdateLpmTblCtx(50, &context, plan({}, {{0, 1}}));
      },
      "Failed(lpmTreadCfg->treadV4IteratorConst().isMemberOf( cfgIdx ))  cfgIdx 0 i 0\n" +
          assertion("! \"lpmTreadCfg->treadV4IteratorConst().isMemberOf( cfgIdx )\"",
                    treadsSignature));
}

TEST(TreadsDeathTest, ArgumentsAreAssertedInTheirOrder) {
  xpHashTableContext hash;
  xpLpmTableContext lpm;
  auto const expectAssertion = [](U32 guid, xpTableContext* context, bool hasPlan,
                                  char const* text) {
    expectAbort([&] { doUpdateLpmTblCtx(guid, context, hasPlan ? plan({}, {}) : nullptr); },
                assertion(text, treadsSignature));
  };
  expectAssertion(49, nullptr, false,
                  "tableGuid == LPM_V4_TBL_GUID || tableGuid == LPM_V6_TBL_GUID");
  expectAssertion(52, &lpm, true, "tableGuid == LPM_V4_TBL_GUID || tableGuid == LPM_V6_TBL_GUID");
  expectAssertion(50, nullptr, false, "tblCtx");
  expectAssertion(51, &hash, false, "lpmTblCtx");
  expectAssertion(50, &lpm, false, "lpmTreadCfg");
}

// Routes.

TEST(LpmTablesTest, BothManagersComeFirstAndBothPublicationsLast) {
  Rig rig;
  EXPECT_EQ(linesOf(rig, &TableManSm::doCreateLpmTables),
            (Lines{"xpIpRouteLpmMgr[1]::addDevice device=0 table=50 copies=1 mode=1 -> 0",
                   "xpIpRouteLpmMgr[0]::addDevice device=0 table=51 copies=1 mode=1 -> 0",
                   "entry 50 LPM_IPV4", "entry 51 LPM_IPV6"}));
}

TEST(LpmTablesTest, IndicesAreTheReverseOfTheNames) {
  Rig rig;
  rig.bringUp();
  EXPECT_EQ(rig.entry(50)->plMgrId(), xpIpRouteLpmMgr::myId[1]);
  EXPECT_EQ(rig.entry(51)->plMgrId(), xpIpRouteLpmMgr::myId[0]);
  EXPECT_EQ(rig.entry(50)->tableIdForMgr(), 0u);
  EXPECT_EQ(rig.entry(51)->tableIdForMgr(), 0u);
}

TEST(LpmTablesTest, FirstCopyIsRewrittenAndTheSecondIsTheSdks) {
  for (U32 id : {50u, 51u}) {
    auto profile = fullProfile();
    auto const context = withTreads({{0, 0}, {4, 1}});
    profile.tables[id] = xdksim::tableOf(std::vector{context, context}, 2);
    Rig rig(profile);
    rig.lpmTreadCfg = plan({{0, 5}, {1, 6}}, {{0, 5}, {1, 6}});
    rig.bringUp();
    EXPECT_EQ(treadsOf(rig.published<xpLpmTableContext>(id, 0)), (Treads{{0, 21}, {4, 22}}));
    EXPECT_EQ(treadsOf(rig.published<xpLpmTableContext>(id, 1)), (Treads{{0, 0}, {4, 1}}));
  }
}

// The SDK gets the rewritten context.
TEST(LpmTablesTest, TreadsAreRewrittenBeforeTheManagerGetsTheTable) {
  auto profile = fullProfile();
  profile.tables[50] = xdksim::tableOf(std::vector{withTreads({{0, 0}})}, 1);
  Rig rig(profile);
  rig.lpmTreadCfg = plan({{0, 5}}, {});
  Treads seen;
  rig.sim.callLogIs([&](std::string_view line) {
    if (line.starts_with("xpIpRouteLpmMgr[1]"))
      seen = treadsOf(*rig.sdkContext<xpLpmTableContext>(50));
  });
  rig.bringUp();
  EXPECT_EQ(seen, (Treads{{0, 21}}));
}

TEST(LpmTablesTest, PlanOfOneTableAlone) {
  auto profile = fullProfile();
  for (U32 id : {50u, 51u})
    profile.tables[id] = xdksim::tableOf(std::vector{withTreads({{0, 3}})}, 1);
  Rig rig(profile);
  rig.lpmTreadCfg = plan({{0, 5}}, {{0, 6}});
  rig.lpmTreadCfg->treadV6ValidIs(false);
  rig.bringUp();
  EXPECT_EQ(treadsOf(rig.published<xpLpmTableContext>(50)), (Treads{{0, 21}}));
  EXPECT_EQ(treadsOf(rig.published<xpLpmTableContext>(51)), (Treads{{0, 3}}));
}

TEST(LpmTablesDeathTest, TablesAndPlanAreMandatory) {
  for (U32 id : {50u, 51u}) {
    auto profile = fullProfile();
    profile.tables.erase(id);
    Rig rig(profile);
    expectAbort([&] { rig.bringUp(); }, assertion("tblCtx", treadsSignature));
  }
  Rig rig;
  rig.lpmTreadCfg = nullptr;
  expectAbort([&] { rig.bringUp(); }, assertion("lpmTreadCfg", treadsSignature));
}

TEST(LpmTablesDeathTest, TableOfAnotherClass) {
  auto profile = fullProfile();
  profile.tables[51] = table<xpHashTableContext>();
  Rig rig(profile);
  expectAbort([&] { rig.bringUp(); }, assertion("lpmTblCtx", treadsSignature));
}

// A table that isn't in use is rewritten and added all the same.
TEST(LpmTablesTest, TableThatIsNotInUseIsNotPublished) {
  Rig rig;
  rig.sdkContext<xpTableContext>(50)->first = -1;
  rig.bringUp();
  EXPECT_EQ(rig.entry(50), nullptr);
  EXPECT_TRUE(rig.entry(51));
}

// Hosts.

TEST(HostTablesTest, BothManagersComeFirstAndBothPublicationsLast) {
  Rig rig;
  EXPECT_EQ(linesOf(rig, &TableManSm::doCreateHostTables),
            (Lines{"xpIpv4HostMgr[0]::addDevice device=0 table=4 copies=1 mode=1 -> 0",
                   "xpIpv6HostMgr[0]::addDevice device=0 table=5 copies=1 mode=1 -> 0",
                   "entry 4 IPV4_HOST", "entry 5 IPV6_HOST"}));
  EXPECT_EQ(rig.entry(4)->plMgrId(), xpIpv4HostMgr::myId[0]);
  EXPECT_EQ(rig.entry(5)->plMgrId(), xpIpv6HostMgr::myId[0]);
}

}  // namespace
}  // namespace Kestrel::xpTableManSm
