// The faces of the attribute log that entities name in their virtual operations.
#pragma once

#include "Mox/PtrInterface.h"

namespace Mox::NboAttrLog {

/// The outbound half of one attribute log.
class Out : public PtrInterface {};

}  // namespace Mox::NboAttrLog
