// The entries of one status, referred to by another.
#include "XpLib/XpTableCliHelperStatus.h"

namespace Kestrel {

void tableContextFrom(XpSystem::ChipStatus& status, ChipStatus& published) {
  status.tableContextDelAll();
  for (auto at = published.tableContextEntryIterator(); at; ++at) status.tableContextIs(at.value());
}

}  // namespace Kestrel
