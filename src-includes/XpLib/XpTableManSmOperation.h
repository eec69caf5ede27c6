// An operation of the table manager, as its traces and assertions name it.
#pragma once

#include "Swiftlog/Site.h"

namespace Kestrel::xpTableManSm {

/// How the module names its source, in traces, status lines and assertions.
inline constexpr char const* sourcePath = "src-includes/XpLib/XpTableManSm";

/// Stands in a static variable of the operation, where it keeps the operation's place in the
/// process's trace file:
///
///   static constinit Operation here("doCreateFdbTable",
///                                   "void Kestrel::TableManSm::doCreateFdbTable()");
struct Operation {
  constexpr Operation(char const* name, char const* signature, int line = __builtin_LINE()) noexcept
      : name(name), signature(signature), line(line), site(sourcePath, line) {}

  char const* name;       ///< in traces
  char const* signature;  ///< in assertions
  int line;               ///< of its traces
  Swiftlog::Site site;
};

}  // namespace Kestrel::xpTableManSm
