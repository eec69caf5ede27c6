// What the simulated SDK knows of one device, as plain data.
#pragma once

#include "Xdk/LpmTableContext.h"
#include "Xdk/TableContexts.h"

#include <map>
#include <set>
#include <string>
#include <type_traits>
#include <variant>
#include <vector>

namespace xdksim {

/// The copies of one table, in the records of its class; the base class stands for type codes that
/// have no class.
using Contexts = std::variant<std::vector<xpMatchTableContext>, std::vector<xpHashTableContext>,
                              std::vector<xpDirectTableContext>, std::vector<xpLpmTableContext>,
                              std::vector<xpIsmeTableContext>, std::vector<xpNhTableContext>,
                              std::vector<xpTableContext>>;

/// One table of the profile.  Without contexts the SDK hands out a null pointer for it.
struct Table {
  U32 copyNum = 0;
  U32 type = xpMatchTableContext::code;  ///< stands in all contexts of the table
  Contexts contexts;
};

/// A table of a class with a type code, from its contexts.
template <class Context>
Table tableOf(std::vector<Context> contexts, U32 copyNum) {
  static_assert(!std::is_same_v<Context, xpTableContext>, "give a table without class its type");
  return {copyNum, Context::code, std::move(contexts)};
}

/// Which treads the prefix tables of the LPM tables take: plan key to tread, keys 0 to 31.
struct LpmTreadCfg {
  bool treadV4Valid = false;
  bool treadV6Valid = false;
  std::map<U8, U8> treadV4;
  std::map<U8, U8> treadV6;

  bool operator==(LpmTreadCfg const&) const = default;
};

/// A device with its tables, and how the SDK behaves on it.
struct Profile {
  U8 deviceId = 0;
  U32 ldePipeMode = 3;
  bool coldStartNeeded = true;
  LpmTreadCfg lpmTreadCfg;
  std::map<U32, Table> tables;  ///< by table id, 0 to 61
  /// Statuses that operations answer with, by "xpFdbMgr[0]::addDevice" or, for every index,
  /// "xpFdbMgr::addDevice"; one for each call, and the last for all calls behind.
  std::map<std::string, std::vector<S32>> sdkStatus;
  /// "xpFdbMgr[0]" or "xpFdbMgr": managers that the platform layers answer null for.
  std::set<std::string> nullManagers;
};

/// Equal in all that a profile file can say.
bool operator==(Table const& a, Table const& b);
bool operator==(Profile const& a, Profile const& b);

/// A complete switch in `ldePipeMode` 3 on which the whole bring-up passes: every kind of memory
/// is used, some tables have two copies, the two host tables share their blocks, no others do.
Profile defaultProfile();

}  // namespace xdksim
