// The walk over the prefix tables, and what it says where the plan is too short.
#include "XpLib/XpTableManSmTreads.h"

#include "Xdk/LpmTableContext.h"
#include "Xdk/TableProfile.h"
#include "XpLib/XpTableManSmChecks.h"
#include "XpLib/XpTableManSmTrace.h"

#include <iostream>

namespace Kestrel {

using namespace xpTableManSm;
using XpLib::Config::LpmTreadCfg;
using XpLib::Config::TreadIndex;

namespace {

constexpr U32 firstTread = 16;  // of the plan; a prefix table that stands here takes none of it

// What differs between the plans of the two tables.
struct Plan {
  bool (LpmTreadCfg::*isValid)() const;
  bool (*isMember)(LpmTreadCfg const& cfg, TreadIndex index);
  U8 (LpmTreadCfg::*tread)(TreadIndex) const;
  char const* memberTest;  ///< as the failure shows it
  char const* assertion;
};

constexpr Plan v4Plan{&LpmTreadCfg::treadV4Valid,
                      [](LpmTreadCfg const& cfg, TreadIndex index) {
                        return cfg.treadV4IteratorConst().isMemberOf(index);
                      },
                      &LpmTreadCfg::treadV4,
                      "lpmTreadCfg->treadV4IteratorConst().isMemberOf( cfgIdx )",
                      "! \"lpmTreadCfg->treadV4IteratorConst().isMemberOf( cfgIdx )\""};

constexpr Plan v6Plan{&LpmTreadCfg::treadV6Valid,
                      [](LpmTreadCfg const& cfg, TreadIndex index) {
                        return cfg.treadV6IteratorConst().isMemberOf(index);
                      },
                      &LpmTreadCfg::treadV6,
                      "lpmTreadCfg->treadV6IteratorConst().isMemberOf( cfgIdx )",
                      "! \"lpmTreadCfg->treadV6IteratorConst().isMemberOf( cfgIdx )\""};

void assertMember(Plan const& plan, LpmTreadCfg const& cfg, U32 cfgIdx, TreadIndex i,
                  Operation const& in) {
  if (plan.isMember(cfg, TreadIndex(static_cast<U8>(cfgIdx)))) return;
  std::cerr << Mox::format("Failed(%s)  cfgIdx %u i %u\n", plan.memberTest, cfgIdx, U32(i.value()))
            << std::flush;
  moxAssert(false, plan.assertion, in);
}

// Gives the prefix table of slot `i` the tread that the plan has for `cfgIdx`, the number of those
// before it that took one.  True if it takes one too.
bool rewriteTread(xpLpmPrefixTable& prefixTable, TreadIndex i, U32 cfgIdx, Plan const& plan,
                  LpmTreadCfg const& cfg, Operation const& in) {
  U32 const index = i.value();
  U32 const former = prefixTable.tread;
  bool const isValid = prefixTable.valid != 0;
  traceText(2, in, [&](std::ostream& text) {
    text << " index " << index << " tread " << former << " valid " << isValid;
  });
  if (!isValid || former == firstTread) return false;
  traceText(2, in, [&](std::ostream& text) { text << " cfgIdx " << cfgIdx; });
  assertMember(plan, cfg, cfgIdx, i, in);
  U32 const tread = firstTread + (cfg.*plan.tread)(TreadIndex(static_cast<U8>(cfgIdx)));
  traceText(1, in, [&](std::ostream& text) {
    text << " index " << index << '/' << cfgIdx << " tread " << former << '/' << tread;
  });
  prefixTable.tread = tread;
  return true;
}

// The plan of the table, where it is valid; null, and traced, where it isn't.
Plan const* validPlan(U32 tableGuid, LpmTreadCfg const& cfg, Operation const& in) {
  Plan const& plan = tableGuid == LPM_V4_TBL_GUID ? v4Plan : v6Plan;
  if ((cfg.*plan.isValid)()) return &plan;
  traceText(2, in, [](std::ostream& text) { text << " tread cfg not valid "; });
  return nullptr;
}

}  // namespace

void doUpdateLpmTblCtx(U32 tableGuid, xpTableContext* tblCtx, Mox::Ptr<LpmTreadCfg> lpmTreadCfg) {
  static constinit Operation here("doUpdateLpmTblCtx",
                                  "void Kestrel::doUpdateLpmTblCtx(U32, xpTableContext*, "
                                  "Mox::Ptr<XpLib::Config::LpmTreadCfg>)");
  traceText(2, here,
            [&](std::ostream& text) { text << "doUpdateLpmTblCtx tblGuid " << tableGuid; });
  moxAssert(tableGuid == LPM_V4_TBL_GUID || tableGuid == LPM_V6_TBL_GUID,
            "tableGuid == LPM_V4_TBL_GUID || tableGuid == LPM_V6_TBL_GUID", here);
  moxAssert(tblCtx, "tblCtx", here);
  auto* const lpmTblCtx = dynamic_cast<xpLpmTableContext*>(tblCtx);
  moxAssert(lpmTblCtx, "lpmTblCtx", here);
  moxAssert(lpmTreadCfg != nullptr, "lpmTreadCfg", here);

  Plan const* const plan = validPlan(tableGuid, *lpmTreadCfg, here);
  if (!plan) return;
  U32 cfgIdx = 0;
  for (U8 i = TreadIndex::min; i < TreadIndex::invalid; ++i) {
    if (rewriteTread(lpmTblCtx->prefixTable[i], TreadIndex(i), cfgIdx, *plan, *lpmTreadCfg, here))
      ++cfgIdx;
  }
}

}  // namespace Kestrel
