// The catalogue of tables: ids in the SDK's profile, published names, and who manages them.
#pragma once

#include "Mox/String8.h"
#include "Xdk/LayerMgrs.h"
#include "Xdk/PlatformLayers.h"
#include "Xdk/TableProfile.h"

namespace Kestrel::xpTableManSm {

/// A table that is alone under its manager, which platform layer `Layer` has under the id at
/// `index` of class `Manager`.
template <class Layer, class Manager>
struct SingleTable {
  U32 id;               ///< index in the SDK's table profile
  char const* name;     ///< under which it is published; null for one that isn't
  char const* manager;  ///< what the assertion on a missing manager says
  char const* call;     ///< what the status line says of `addDevice`
  U32 index = 0;
};

/// Tables that one manager, at index 0 of its class, gets together.
template <class Layer, class Manager>
struct TableGroup {
  U32 firstId;          ///< of the first table; the others follow
  U32 size;             ///< number of tables
  char const* name;     ///< under which table %d of the group is published
  char const* manager;  ///< what the assertion on a missing manager says
  char const* call;     ///< what the status line says of the call that hands the tables over
};

inline constexpr SingleTable<xpL2Pl, xpFdbMgr> fdb{
    0, "FDB", "fdbMgr",
    "((fdbMgr->addDevice( devId, &fdbTblCtx, tblCopyNum, TABLE_INIT_WITH_FIXED_INFO )))"};

inline constexpr SingleTable<xpL2Pl, xpPortVlanIvifMgr> portVlan{
    1, "PORTVLAN_IVIF", "portVlanMgr",
    "((portVlanMgr->addDevice( devId, &portVlanTblCtx, tblCopyNum, TABLE_INIT_WITH_FIXED_INFO )))"};

inline constexpr SingleTable<xpL3Pl, xpIpv4HostMgr> v4Host{
    4, "IPV4_HOST", "v4HostMgr",
    "((v4HostMgr->addDevice( devId, &v4HostTblCtx, v4TblCopyNum, TABLE_INIT_WITH_FIXED_INFO )))"};

inline constexpr SingleTable<xpL3Pl, xpIpv6HostMgr> v6Host{
    5, "IPV6_HOST", "v6HostMgr",
    "((v6HostMgr->addDevice( devId, &v6HostTblCtx, v6TblCopyNum, TABLE_INIT_WITH_FIXED_INFO )))"};

inline constexpr SingleTable<xpMcastPl, xpIpv4RouteMcMgr> routeMc{
    8, "IPV4_ROUTEMC", "mrouteMgr",
    "((mrouteMgr->addDevice( devId, &mrouteTblCtx, tblCopyNum, TABLE_INIT_WITH_FIXED_INFO )))"};

inline constexpr SingleTable<xpMcastPl, xpIpv4PIMBiDirRPFMgr> pim{
    10, nullptr, "v4PimMgr",
    "((v4PimMgr->addDevice( devId, &v4PimTblCtx, v4TblCopyNum, TABLE_INIT_WITH_FIXED_INFO )))"};

inline constexpr TableGroup<xpIfPl, xpVifMgr> vif{
    19, 8, "VIF_TBL_%d", "vifMgr",
    "((vifMgr->addDevice( deviceId().value(), tblCtxPerIdx, tblCopyNum, TABLE_INIT_WITH_FIXED_INFO "
    ")))"};

inline constexpr TableGroup<xpIfPl, xpHdrModificationMgr> headerMod{
    27, 3, "INS%d_128", "hdrModMgr",
    "((hdrModMgr->addDevice( devId, tblCtxPerIdx, tblCopyNum, TABLE_INIT_WITH_FIXED_INFO )))"};

inline constexpr SingleTable<xpIfPl, xpMdtMgr> mdt{
    30, "MDT", "mdtMgr",
    "((mdtMgr->addDevice( devId, &mdtTblCtx, tblCopyNum, TABLE_INIT_WITH_FIXED_INFO )))"};

inline constexpr SingleTable<xpL2Pl, xpBdMgr> ingressBd{
    31, "INGRESS_BD", "bdMgr",
    "((bdMgr->addDevice( deviceId().value(), &bdTblCtx, tblCopyNum, TABLE_INIT_WITH_FIXED_INFO "
    ")))"};

inline constexpr SingleTable<xpL2Pl, xpEgressBdMgr> egressBd{
    32, "EGRESS_BD", "egressBdMgr",
    "((egressBdMgr->addDevice( deviceId().value(), &egressBdTblCtx, tblCopyNum, "
    "TABLE_INIT_WITH_FIXED_INFO )))"};

inline constexpr SingleTable<xpAclPl, aaclL4PortMgr> l4SrcPort{
    33, "AACL_SRC_PORT", "l4SrcPortMgr",
    "((l4SrcPortMgr->addDevice( deviceId().value(), &l4SrcPortTblCtx, tblCopyNum, "
    "TABLE_INIT_WITH_FIXED_INFO )))",
    1};

inline constexpr SingleTable<xpAclPl, aaclL4PortMgr> l4DstPort{
    34, "AACL_DST_PORT", "l4DstPortMgr",
    "((l4DstPortMgr->addDevice( deviceId().value(), &l4DstPortTblCtx, tblCopyNum, "
    "TABLE_INIT_WITH_FIXED_INFO )))",
    2};

inline constexpr SingleTable<xpTunnelPl, xpTunnelInfoMgr> tunnelInfo{
    35, "TUNNEL_INFO", "tunInfoMgr",
    "((tunInfoMgr->addDevice( deviceId().value(), &tunInfoTblCtx, tunInfoTblCopyNum, "
    "TABLE_INIT_WITH_FIXED_INFO )))"};

inline constexpr TableGroup<xpAclPl, xpAaclMgTableMgr> aaclMg{
    36, 6, "AACL_MG_%d", "mgTableMgr",
    "((mgTableMgr->addDevice( deviceId().value(), tblCtxPerIdx, tblCopyNum, "
    "TABLE_INIT_WITH_FIXED_INFO )))"};

inline constexpr TableGroup<xpAclPl, xpIaclMgr> iacl{
    42, 3, "IACL%d", "iaclMgr",
    "((iaclMgr->createTable( deviceId().value(), tblCtxPerIdx, numTblCopies, "
    "TABLE_INIT_WITH_FIXED_INFO )))"};

// Deliberate: IPv4 has the second manager of the class, IPv6 the first.
inline constexpr SingleTable<xpL3Pl, xpIpRouteLpmMgr> lpmV4{
    LPM_V4_TBL_GUID, "LPM_IPV4", "v4LpmMgr",
    "((v4LpmMgr->addDevice( devId, &v4TblCtx, v4TblCopyNum, TABLE_INIT_WITH_FIXED_INFO )))", 1};

inline constexpr SingleTable<xpL3Pl, xpIpRouteLpmMgr> lpmV6{
    LPM_V6_TBL_GUID, "LPM_IPV6", "v6LpmMgr",
    "((v6LpmMgr->addDevice( devId, &v6TblCtx, v6TblCopyNum, TABLE_INIT_WITH_FIXED_INFO )))"};

inline constexpr SingleTable<xpL3Pl, xpNhMgr> nextHop{
    52, "NEXTHOP", "nhMgr",
    "((nhMgr->addDevice( devId, &nhTblCtx, nhTblCopyNum, TABLE_INIT_WITH_FIXED_INFO )))"};

inline constexpr TableGroup<xpAclPl, xpMgksMgr> mgks{
    53, 7, "AACL_MGKS_%d", "mgksMgr",
    "((mgksMgr->addDevice( deviceId().value(), mgksTblCtxPerIdx, numTblCopies, "
    "TABLE_INIT_WITH_FIXED_INFO )))"};

inline constexpr SingleTable<xpAclPl, xpIpXformMgr> sipXform{
    60, "SIP_XFORM", "sipXformMgr",
    "((sipXformMgr->addDevice( deviceId().value(), &sipXformTblCtx, tblCopyNum, "
    "TABLE_INIT_WITH_FIXED_INFO )))",
    1};

inline constexpr SingleTable<xpAclPl, xpIpXformMgr> dipXform{
    61, "DIP_XFORM", "dipXformMgr",
    "((dipXformMgr->addDevice( deviceId().value(), &dipXformTblCtx, tblCopyNum, "
    "TABLE_INIT_WITH_FIXED_INFO )))",
    2};

/// A table of the tunnel manager, whose tables depend on the device.
struct TunnelTable {
  U32 id;
  char const* name;
  U8 tableIdForMgr;
};

inline constexpr TunnelTable tunnelIvif{2, "TNL_IVIF", 0};
inline constexpr TunnelTable localVtepVni{14, "LOCAL_VTEP_VNI", 1};
inline constexpr TunnelTable localVtep{12, "LOCAL_VTEP", 2};
inline constexpr TunnelTable vni{13, "VNI", 3};

/// The name under which the table with that id is published; empty where none is.
Mox::String8 publishedName(U32 tableId);

}  // namespace Kestrel::xpTableManSm
