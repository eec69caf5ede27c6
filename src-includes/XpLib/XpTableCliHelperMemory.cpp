// The rows of hash tables, and the ways of next-hop tables.
#include "XpLib/XpTableCliHelperMemory.h"

#include "XpLib/XpTableCliHelperDiagnostics.h"

#include <bit>

namespace Kestrel::xpTableCliHelper {

U32 rowsOf(U32 entries, xpHashTableContext const& context, char const* signature) {
  U32 const width = entryWidth(context);
  if (width <= rowWidth) return rowsOf(entries, width);
  moxAssert(context.keySize == rowWidth, "context.keySize == (256)", signature);
  moxAssert(context.valueSize == rowWidth, "context.valueSize == (256)", signature);
  return entries * (width / rowWidth);
}

U32 numWays(xpNhTableContext const& context) {
  return static_cast<U32>(std::popcount(context.poolBitmap));
}

}  // namespace Kestrel::xpTableCliHelper
