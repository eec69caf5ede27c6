// The table of table types.
#include "XpLib/XpTableCliHelperTypes.h"

#include "XpLib/XpTableCliHelperDiagnostics.h"

#include <algorithm>

namespace Kestrel {

namespace {

using xpTableCliHelper::Context;

template <class Class>
Context read(XpXdk::TableContextEntry const& entry, U8 copy) {
  Context context(std::in_place_type<Class>);
  entry.xpTblContext(copy, &std::get<Class>(context), false);
  return context;
}

struct TableType {
  U8 code;
  char const* name;
  Context (*read)(XpXdk::TableContextEntry const& entry, U8 copy);
};

template <class Class>
constexpr TableType tableType(char const* name) {
  return {Class::code, name, read<Class>};
}

constexpr TableType tableTypes[] = {
    tableType<xpMatchTableContext>("MATCH"),   tableType<xpHashTableContext>("HASH"),
    tableType<xpDirectTableContext>("DIRECT"), tableType<xpLpmTableContext>("LPM"),
    tableType<xpIsmeTableContext>("ISME"),     tableType<xpNhTableContext>("NH"),
};

TableType const& tableTypeOf(U8 code, char const* signature, int line = __builtin_LINE()) {
  auto const found = std::ranges::find(tableTypes, code, &TableType::code);
  xpTableCliHelper::moxAssert(found != std::end(tableTypes), "false", signature, line);
  return *found;
}

}  // namespace

char const* tableTypeToString(U8 type) {
  return tableTypeOf(type, "const char* Kestrel::tableTypeToString(U8)").name;
}

namespace xpTableCliHelper {

U32 numCopies(XpXdk::TableContextEntry const& entry) {
  constexpr U32 maxCopies = 256;
  return std::min(entry.tblCopyNum(), maxCopies);
}

Context contextOf(XpXdk::TableContextEntry const& entry, U8 copy, char const* signature) {
  return tableTypeOf(entry.tableType(), signature).read(entry, copy);
}

}  // namespace xpTableCliHelper

}  // namespace Kestrel
