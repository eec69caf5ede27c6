// What is special about groups of tables: order, hash, text.
#include "XpLib/XpTableCliHelper.h"
#include "XpLib/XpTableCliHelperDiagnostics.h"

namespace Kestrel {

SharedTableGroup::SharedTableGroup(Mox::String8::IteratorConst&,
                                   Mox::String8::IteratorConst const&) {
  // Deliberate: the text form carries nothing to read.
  xpTableCliHelper::moxAssert(false, "This should not be used and doesn't work",
                              "Kestrel::SharedTableGroup::SharedTableGroup("
                              "Mox::String8::IteratorConst&, const Mox::String8::IteratorConst&)");
}

bool SharedTableGroup::operator==(SharedTableGroup const& other) const {
  if (tableId_.count() != other.tableId_.count()) return false;
  for (MoxTableId const& table : tableId_) {
    MoxTableId const* const same = other.tableId_.find(table.key());
    if (!same || same->value() != table.value()) return false;
  }
  return true;
}

// Deliberate: the ids are never looked at, so that of groups whose values are all true none is
// less.
bool SharedTableGroup::operator<(SharedTableGroup const& other) const {
  for (MoxTableId const& mine : tableId_)
    for (MoxTableId const& its : other.tableId_)
      if (mine.value() != its.value()) return its.value();
  return false;
}

U32 SharedTableGroup::hash() const {
  Mox::OneAtATime hash;
  for (MoxTableId const& table : tableId_)
    for (U32 shift = 0; shift < 32; shift += 8) hash.add(static_cast<U8>(table.key() >> shift));
  return hash.finish();
}

Mox::String8 valueToStrep(SharedTableGroup const&) { return "None"; }

}  // namespace Kestrel
