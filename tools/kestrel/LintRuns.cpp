// The fields by part.
#include "tools/kestrel/LintRuns.h"

#include "standin/xdk/ContextClass.h"

namespace kestrel {

using namespace xdksim;

namespace {

std::string slot(SramRun const& run) { return '[' + std::to_string(run.number) + ']'; }

U32 tileBitmap(xpTableContext const& context, U32 pool) {
  auto const* const lpm = dynamic_cast<xpLpmTableContext const*>(&context);
  return lpm ? lpm->nhiTable.tileBitmap[pool] : 0;
}

}  // namespace

RunField startField(xpTableContext const& context, SramRun const& run) {
  std::string const subject = "begins a run that";
  std::string const field = "rowBlkStartId";
  switch (run.part) {
    case SramPart::all:
      return {field, run.start, subject};
    case SramPart::way:
    case SramPart::poolWay:
      return {field + slot(run), run.start, subject};
    case SramPart::prefixTable:
      return {"prefixTable" + slot(run) + '.' + field, run.start, subject};
    case SramPart::tile:
      break;
  }
  return {"nhiTable.tileBitmap[" + std::to_string(run.pool) + ']', tileBitmap(context, run.pool),
          "has a tile " + std::to_string(run.number) + " that"};
}

std::string poolField(SramRun const& run) {
  switch (run.part) {
    case SramPart::all:
      return "poolId";
    case SramPart::way:
      return "poolId" + slot(run);
    case SramPart::prefixTable:
      return "prefixTable" + slot(run) + ".poolId";
    case SramPart::poolWay:
      return "poolBitmap";
    case SramPart::tile:
      break;
  }
  return "nhiTable.poolBitmap";
}

}  // namespace kestrel
