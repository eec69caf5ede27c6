// The managers that are reached through a platform layer.
#pragma once

#include "Xdk/PrimitiveMgr.h"

class xpVifEntry;

// Interfaces, `xpIfPl`: no table of the profile.
class xpPortConfigMgr : public xpPrimitiveMgrBase<xpPortConfigMgr> {};
class xpEgressFilterMgr : public xpPrimitiveMgrBase<xpEgressFilterMgr> {};
class xpTrunkResolutionMgr : public xpPrimitiveMgrBase<xpTrunkResolutionMgr> {};
class xpControlMacMgr : public xpPrimitiveMgrBase<xpControlMacMgr> {};

// Interfaces, `xpIfPl`: one table, and groups of tables.
class xpMdtMgr : public xpPrimitiveMgrBase<xpMdtMgr> {};
class xpHdrModificationMgr : public xpPrimitiveMgrBase<xpHdrModificationMgr> {};
class xpVifMgr : public xpPrimitiveMgrBase<xpVifMgr> {
 public:
  /// Writes the entry of a virtual interface on one side of the chip.
  XP_STATUS writeEntry(U32 devId, U32 vifId, xpDirection_t direction, xpVifEntry* entry);
};

// Counter memory, `xpAcmPl`: no table of the profile.
class xpAcmBankMgr : public xpPrimitiveMgrBase<xpAcmBankMgr> {};
class xpAcmRsltMgr : public xpPrimitiveMgrBase<xpAcmRsltMgr> {};

// Bridging, `xpL2Pl`: one table each.
class xpBdMgr : public xpPrimitiveMgrBase<xpBdMgr> {};
class xpEgressBdMgr : public xpPrimitiveMgrBase<xpEgressBdMgr> {};
class xpFdbMgr : public xpPrimitiveMgrBase<xpFdbMgr> {};
class xpPortVlanIvifMgr : public xpPrimitiveMgrBase<xpPortVlanIvifMgr> {};

// Multicast, `xpMcastPl`: one table each.
class xpIpv4RouteMcMgr : public xpPrimitiveMgrBase<xpIpv4RouteMcMgr> {};
class xpIpv4PIMBiDirRPFMgr : public xpPrimitiveMgrBase<xpIpv4PIMBiDirRPFMgr> {};

// Routing, `xpL3Pl`: one table each; of the LPM managers IPv6 has index 0 and IPv4 index 1.
class xpIpRouteLpmMgr : public xpPrimitiveMgrBase<xpIpRouteLpmMgr> {};
class xpNhMgr : public xpPrimitiveMgrBase<xpNhMgr> {};
class xpIpv4HostMgr : public xpPrimitiveMgrBase<xpIpv4HostMgr> {};
class xpIpv6HostMgr : public xpPrimitiveMgrBase<xpIpv6HostMgr> {};

// Access control, `xpAclPl`: one table each; index 1 is of the source, 2 of the destination.
class aaclL4PortMgr : public xpPrimitiveMgrBase<aaclL4PortMgr> {};
class xpIpXformMgr : public xpPrimitiveMgrBase<xpIpXformMgr> {};

// Access control, `xpAclPl`: groups of tables.
class xpMgksMgr : public xpPrimitiveMgrBase<xpMgksMgr> {};
class xpAaclMgTableMgr : public xpPrimitiveMgrBase<xpAaclMgTableMgr> {};
class xpIaclMgr : public xpPrimitiveMgrBase<xpIaclMgr> {
 public:
  /// Gives the manager its tables, behind `addDevice`.  The list is read during the call and stays
  /// the caller's.
  XP_STATUS createTable(U32 devId, std::vector<xpTblCtxPerIdx*>& tblCtxPerIdx, U8 tblCopyNum,
                        XP_TABLE_MODE_T mode);
};

// Tunnels, `xpTunnelPl`: one table, and a group.
class xpTunnelInfoMgr : public xpPrimitiveMgrBase<xpTunnelInfoMgr> {};
class xpTunnelIvifMgr : public xpPrimitiveMgrBase<xpTunnelIvifMgr> {};
