// Binary tracing into a ring: everything that writers of records use.
#pragma once

#include "Swiftlog/MsgDesc.h"
#include "Swiftlog/RingBuf.h"
#include "Swiftlog/Site.h"
#include "Swiftlog/TraceFile.h"
