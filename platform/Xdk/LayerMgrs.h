// The managers that are reached through a platform layer.
#pragma once

#include "Xdk/PrimitiveMgr.h"

// Bridging, `xpL2Pl`: one table each.
class xpBdMgr : public xpPrimitiveMgrBase<xpBdMgr> {};
class xpEgressBdMgr : public xpPrimitiveMgrBase<xpEgressBdMgr> {};
class xpFdbMgr : public xpPrimitiveMgrBase<xpFdbMgr> {};
class xpPortVlanIvifMgr : public xpPrimitiveMgrBase<xpPortVlanIvifMgr> {};

// Multicast, `xpMcastPl`: one table each.
class xpIpv4RouteMcMgr : public xpPrimitiveMgrBase<xpIpv4RouteMcMgr> {};
class xpIpv4PIMBiDirRPFMgr : public xpPrimitiveMgrBase<xpIpv4PIMBiDirRPFMgr> {};

// Interfaces, `xpIfPl`: one table, and none.
class xpMdtMgr : public xpPrimitiveMgrBase<xpMdtMgr> {};
class xpControlMacMgr : public xpPrimitiveMgrBase<xpControlMacMgr> {};

// Routing, `xpL3Pl`: one table.
class xpNhMgr : public xpPrimitiveMgrBase<xpNhMgr> {};
