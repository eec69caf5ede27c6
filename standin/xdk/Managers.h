// The table of the SDK's managers and of the operations that each has.  The call log, the statuses
// that profiles set and the documentation all come from it; the entry points look themselves up.
#pragma once

#include "Mox/Integers.h"

#include <array>
#include <span>
#include <string>
#include <string_view>
#include <vector>

class xpPrimitiveMgr;

namespace xdksim {

/// How a manager is reached: through a platform layer, or as the one of its class.
enum class Reach : U8 { ifPl, l2Pl, l3Pl, aclPl, acmPl, mcastPl, tunnelPl, singleton };

/// One operation in one form.  The forms of `addDevice` share their name, and so their statuses.
enum class Call : U8 {
  none,
  addTable,
  addTables,
  addDevice,
  addWithInit,
  loadDefaultValue,
  createTable,
  writeEntry,
  init,
  removeDevice,
  deInit,
};

/// What a call is told beside its manager.
enum class Argument : U8 { none, device, table, list, copies, mode, init, vif, direction };

/// A row of the operations.
struct Operation {
  Call call;
  char const* name;
  std::array<Argument, 4> arguments;  ///< in the order of the call log; `none` at the end
  char const* meaning;

  /// "addDevice device= init=": the form as its calls look in the log.
  std::string shown() const;
};

/// How a row meets its class in the SDK's declarations.
struct ManagerClass {
  std::vector<U32>* ids = nullptr;        ///< the class's `myId`; null for a singleton
  xpPrimitiveMgr* (*object)() = nullptr;  ///< a new one for a layer, the one of a singleton
};

/// A row of the managers.
struct Manager {
  char const* name;
  Reach reach;
  U32 firstIndex;  ///< indices that are in use, both ends included; 0 for a singleton
  U32 lastIndex;
  std::array<Call, 4> calls;  ///< `none` at the end
  ManagerClass declared;

  bool isSingleton() const { return reach == Reach::singleton; }
  bool has(Call call) const;
  bool has(std::string_view operation) const;
};

/// One manager among those of a row.
struct ManagerId {
  Manager const* row = nullptr;
  U32 index = 0;

  bool operator==(ManagerId const&) const = default;
  /// "xpFdbMgr[0]", and a singleton's bare name.
  std::string name() const;
  void appendName(std::string& text) const;
};

std::span<Manager const> managers();
std::span<Operation const> operations();
Operation const& operationOf(Call call);
/// The row of that class, or null.
Manager const* managerOf(std::string_view name);
/// "xpIfPl", and "instance" for singletons.
char const* reachName(Reach reach);
/// "device", "list" and so on, as the call log shows it.
char const* argumentName(Argument argument);

/// Both tables for the documentation, in Markdown.
std::string managersMarkdown();
std::string operationsMarkdown();

}  // namespace xdksim
