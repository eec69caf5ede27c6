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

void assertMember(Plan const& plan, LpmTreadCfg const& cfg, TreadIndex key, U32 cfgIdx,
                  TreadIndex i, Operation const& in) {
  if (plan.isMember(cfg, key)) return;
  std::cerr << Mox::format("Failed(%s)  cfgIdx %u i %u\n", plan.memberTest, cfgIdx, U32(i.value()))
            << std::flush;
  moxAssert(false, plan.assertion, in);
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

  Plan const& plan = tableGuid == LPM_V4_TBL_GUID ? v4Plan : v6Plan;
  if (!((*lpmTreadCfg).*plan.isValid)()) {
    traceText(2, here, [](std::ostream& text) { text << " tread cfg not valid "; });
    return;
  }

  U32 cfgIdx = 0;
  for (U8 at = TreadIndex::min; at < TreadIndex::invalid; ++at) {
    TreadIndex const i(at);
    xpLpmPrefixTable& prefixTable = lpmTblCtx->prefixTable[at];
    traceText(2, here, [&](std::ostream& text) {
      text << " index " << U32(at) << " tread " << prefixTable.tread << " valid "
           << (prefixTable.valid != 0);
    });
    if (prefixTable.valid == 0 || prefixTable.tread == firstTread) continue;
    traceText(2, here, [&](std::ostream& text) { text << " cfgIdx " << cfgIdx; });
    TreadIndex const key(static_cast<U8>(cfgIdx));
    assertMember(plan, *lpmTreadCfg, key, cfgIdx, i, here);
    U32 const tread = firstTread + ((*lpmTreadCfg).*plan.tread)(key);
    traceText(1, here, [&](std::ostream& text) {
      text << " index " << U32(at) << '/' << cfgIdx << " tread " << prefixTable.tread << '/'
           << tread;
    });
    ++cfgIdx;
    prefixTable.tread = tread;
  }
}

}  // namespace Kestrel
