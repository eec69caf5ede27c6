// The whole of the chip vendor's SDK that the system calls.
#pragma once

#include "Xdk/Device.h"
#include "Xdk/LayerMgrs.h"
#include "Xdk/LpmTableContext.h"
#include "Xdk/PlatformLayers.h"
#include "Xdk/PrimitiveMgr.h"
#include "Xdk/SingletonMgr.h"
#include "Xdk/SingletonMgrs.h"
#include "Xdk/TableContext.h"
#include "Xdk/TableContexts.h"
#include "Xdk/TableProfile.h"
#include "Xdk/TblCtxPerIdx.h"
#include "Xdk/Types.h"
#include "Xdk/Vif.h"
