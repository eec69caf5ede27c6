// The whole runtime.
#pragma once

#include "Mox/AttributeId.h"
#include "Mox/BoundedIntegers.h"
#include "Mox/Dir.h"
#include "Mox/Entity.h"
#include "Mox/Exception.h"
#include "Mox/HashMap.h"
#include "Mox/Integers.h"
#include "Mox/MoxType.h"
#include "Mox/Name.h"
#include "Mox/Ptr.h"
#include "Mox/RbTreeMap.h"
#include "Mox/Strep.h"
#include "Mox/String8.h"
#include "Mox/Trace.h"
