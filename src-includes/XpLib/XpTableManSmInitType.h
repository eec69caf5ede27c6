// Cold or warm, as the SDK says it.
#pragma once

#include "Xdk/Types.h"
#include "XpLib/XpTableManSm.h"

namespace Kestrel {

/// How the managers that take an init type are to start.
inline xpInitType_t xdkInitType(TableManSm const* sm) {
  return sm->coldStartNeeded() ? XP_INIT_COLD : XP_INIT_WARM;
}

}  // namespace Kestrel
