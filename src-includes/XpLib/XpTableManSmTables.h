// The catalogue of tables: ids in the SDK's profile, published names, and who manages them.
#pragma once

#include "Xdk/LayerMgrs.h"
#include "Xdk/PlatformLayers.h"

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

inline constexpr SingleTable<xpL2Pl, xpFdbMgr> fdb{
    0, "FDB", "fdbMgr",
    "((fdbMgr->addDevice( devId, &fdbTblCtx, tblCopyNum, TABLE_INIT_WITH_FIXED_INFO )))"};

inline constexpr SingleTable<xpL2Pl, xpPortVlanIvifMgr> portVlan{
    1, "PORTVLAN_IVIF", "portVlanMgr",
    "((portVlanMgr->addDevice( devId, &portVlanTblCtx, tblCopyNum, TABLE_INIT_WITH_FIXED_INFO )))"};

inline constexpr SingleTable<xpMcastPl, xpIpv4RouteMcMgr> routeMc{
    8, "IPV4_ROUTEMC", "mrouteMgr",
    "((mrouteMgr->addDevice( devId, &mrouteTblCtx, tblCopyNum, TABLE_INIT_WITH_FIXED_INFO )))"};

inline constexpr SingleTable<xpMcastPl, xpIpv4PIMBiDirRPFMgr> pim{
    10, nullptr, "v4PimMgr",
    "((v4PimMgr->addDevice( devId, &v4PimTblCtx, v4TblCopyNum, TABLE_INIT_WITH_FIXED_INFO )))"};

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

inline constexpr SingleTable<xpL3Pl, xpNhMgr> nextHop{
    52, "NEXTHOP", "nhMgr",
    "((nhMgr->addDevice( devId, &nhTblCtx, nhTblCopyNum, TABLE_INIT_WITH_FIXED_INFO )))"};

}  // namespace Kestrel::xpTableManSm
