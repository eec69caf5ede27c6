// The rows: each table type with its record.
#include "standin/xdk/TableTypes.h"

namespace xdksim {
namespace {

struct TypeRow {
  U32 code;
  char const* name;
  Contexts (*contexts)();
};

template <class Context>
constexpr TypeRow row(char const* name) {
  return {Context::code, name, []() -> Contexts { return std::vector<Context>(); }};
}

constexpr TypeRow typeRows[] = {
    row<xpMatchTableContext>("MATCH"),   row<xpHashTableContext>("HASH"),
    row<xpDirectTableContext>("DIRECT"), row<xpLpmTableContext>("LPM"),
    row<xpIsmeTableContext>("ISME"),     row<xpNhTableContext>("NH"),
};

}  // namespace

char const* tableTypeName(U32 code) {
  for (TypeRow const& type : typeRows) {
    if (type.code == code) return type.name;
  }
  return nullptr;
}

std::optional<U32> tableTypeCode(std::string_view name) {
  for (TypeRow const& type : typeRows) {
    if (type.name == name) return type.code;
  }
  return std::nullopt;
}

Contexts contextsOf(U32 code) {
  for (TypeRow const& type : typeRows) {
    if (type.code == code) return type.contexts();
  }
  return std::vector<xpTableContext>();
}

}  // namespace xdksim
