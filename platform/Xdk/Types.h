// The SDK's plain types: status, start type, table mode, direction.
#pragma once

#include "Mox/Integers.h"

/// What an operation of the SDK answers; 0 is success.
using XP_STATUS = S32;

/// Whether a manager starts from nothing or takes over a chip that is forwarding.
enum xpInitType_t : U32 { XP_INIT_COLD = 1, XP_INIT_WARM = 2 };

/// How a manager comes by the layout of its table.
enum XP_TABLE_MODE_T : U32 { TABLE_INIT_WITH_FIXED_INFO = 1 };

/// The side of the chip that an entry is written on.
enum xpDirection_t : U32 { XP_INGRESS = 1 };
