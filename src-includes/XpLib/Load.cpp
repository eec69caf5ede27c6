// The work at load: the library's three modules register their types, one after the other.
//
// Nothing else in the library runs before somebody calls it. The order of the initialisers is that
// of the definitions below, which is why they stand in one file.
#include "Kestrel/Kestrel.module.h"
#include "Kestrel/XpTableCliHelper.module.h"
#include "Kestrel/XpTableManSm.module.h"
#include "Mox/Trace.h"
#include "frame/Module.h"

#include <ios>

namespace Kestrel {
namespace {

/// Registers a module's types when it is made.  The standard streams come first, for a fault of the
/// registration is told there; the pair is what the runtime wants to be shown by each module.
class Initialiser {
 public:
  explicit Initialiser(frame::Module& module) {
    module.load();
    Mox::forcePointerAccessH(&pair_);
  }

 private:
  std::ios_base::Init standardStreams_;
  void const* pair_[2] = {nullptr, nullptr};
};

/// Makes a trace handle for the SDK's macros too; nothing in this library writes to it.
class XpTableManSmInitialiser : Initialiser {
 public:
  XpTableManSmInitialiser() : Initialiser(moxModuleXpTableManSm()) {}

 private:
  Mox::TraceHandle xpXdkApiMacros_{"XpXdkApiMacros", false};
};

Initialiser const kestrel(moxModuleKestrel());
XpTableManSmInitialiser const xpTableManSm;
Initialiser const xpTableCliHelper(moxModuleXpTableCliHelper());

}  // namespace
}  // namespace Kestrel
