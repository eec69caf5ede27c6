// From a context to the record that it is.
#pragma once

#include "Xdk/LpmTableContext.h"
#include "Xdk/TableContexts.h"

namespace xdksim {

/// Calls `visit` with the record of the class that `context` was made as, and returns what it
/// returns; a context of no class comes as it is.
template <class Visit>
auto visitContext(xpTableContext const& context, Visit const& visit) {
  if (auto const* match = dynamic_cast<xpMatchTableContext const*>(&context)) return visit(*match);
  if (auto const* hash = dynamic_cast<xpHashTableContext const*>(&context)) return visit(*hash);
  if (auto const* direct = dynamic_cast<xpDirectTableContext const*>(&context))
    return visit(*direct);
  if (auto const* lpm = dynamic_cast<xpLpmTableContext const*>(&context)) return visit(*lpm);
  if (auto const* isme = dynamic_cast<xpIsmeTableContext const*>(&context)) return visit(*isme);
  if (auto const* nh = dynamic_cast<xpNhTableContext const*>(&context)) return visit(*nh);
  return visit(context);
}

}  // namespace xdksim
