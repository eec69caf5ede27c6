// The built-in profile: how the tables of a 100G switch lie in its memories.
//
// SRAM by pool and row block (a block is 1,024 rows of 256 bits):
//
//   pools 0 to 3, 48 blocks each           pools 4 to 7, 64 blocks each
//    0- 3  NEXTHOP, a way in each           0-15  FDB, a way in each
//    0: 4-11  INGRESS_BD                   16-23  IPV4_HOST and IPV6_HOST, shared
//    1: 4- 7  EGRESS_BD                    24-27  PORTVLAN_IVIF (4, 5), IPV4_ROUTEMC (6, 7)
//    0, 1: 12-43  AACL_MG, two copies      28-29  TNL_IVIF (4, 5), VNI (6, 7)
//    2: 4-35  VIF_TBL, copy 0              30-31  TUNNEL_INFO (4), the PIM table (5)
//    3: 4-35  VIF_TBL, copy 1              32-39  next-hop index of LPM_IPV4 (4, 5), _IPV6 (6, 7)
//                                          40-47  prefix tables of LPM_IPV4, two in each
//                                          48-55  prefix tables of LPM_IPV6 (52-55: 4, 5 alone)
//                                          52-63  INS1_128 (4), INS2_128 (5), from 56 on;
//                                                 MDT (6), INS0_128 (7), 52 to 59
#include "standin/xdk/Profile.h"

#include <utility>

namespace xdksim {
namespace {

/// Where a run begins.
struct Run {
  U32 poolId;
  U32 rowBlkStartId;
};

xpHashTableContext hash(U32 entries, U16 keySize, U16 valueSize, std::vector<Run> const& ways) {
  xpHashTableContext context;
  context.first = 0;
  context.numOfEntries = entries;
  context.keySize = keySize;
  context.valueSize = valueSize;
  context.numOfWays = static_cast<U8>(ways.size());
  for (std::size_t way = 0; way < ways.size(); ++way) {
    context.poolId[way] = ways[way].poolId;
    context.rowBlkStartId[way] = ways[way].rowBlkStartId;
  }
  return context;
}

xpHashTableContext sharing(xpHashTableContext context) {
  context.shared = 1;
  return context;
}

xpDirectTableContext direct(U32 entries, U16 entryWidth, Run run) {
  xpDirectTableContext context;
  context.first = 0;
  context.numOfEntries = entries;
  context.entryWidth = entryWidth;
  context.poolId = run.poolId;
  context.rowBlkStartId = run.rowBlkStartId;
  return context;
}

xpMatchTableContext match(U32 numDb, U16 keySize, U16 valueSize, U8 startDb) {
  xpMatchTableContext context;
  context.first = 0;
  context.numDb = numDb;
  context.keySize = keySize;
  context.valueSize = valueSize;
  context.startDb = startDb;
  return context;
}

xpIsmeTableContext isme(U32 ismeNum, U32 ldeNum, U32 entries, U32 tileStartId) {
  xpIsmeTableContext context;
  context.first = 0;
  context.ismeNum = ismeNum;
  context.ldeNum = ldeNum;
  context.numOfEntries = entries;
  context.tileStartId = tileStartId;
  return context;
}

/// The copies of one table.
template <class Context>
void add(Profile& profile, U32 tableId, std::vector<Context> copies) {
  U32 copyNum = static_cast<U32>(copies.size());
  profile.tables[tableId] = tableOf(std::move(copies), copyNum);
}

void addBridging(Profile& profile) {
  add(profile, 0, std::vector{hash(131072, 64, 64, {{4, 0}, {5, 0}, {6, 0}, {7, 0}})});
  add(profile, 1, std::vector{hash(32768, 32, 32, {{4, 24}, {5, 24}})});
  add(profile, 8, std::vector{hash(16384, 80, 48, {{6, 24}, {7, 24}})});
  add(profile, 10, std::vector{direct(4096, 128, {5, 30})});
  add(profile, 30, std::vector{direct(8192, 256, {6, 52})});
  add(profile, 31, std::vector{direct(16384, 128, {0, 4})});
  add(profile, 32, std::vector{direct(16384, 64, {1, 4})});
}

void addHosts(Profile& profile) {
  add(profile, 4, std::vector{sharing(hash(65536, 48, 16, {{4, 16}, {5, 16}, {6, 16}, {7, 16}}))});
  add(profile, 5, std::vector{sharing(hash(32768, 144, 64, {{4, 16}, {5, 16}, {6, 16}, {7, 16}}))});

  xpNhTableContext nextHop;
  nextHop.first = 0;
  nextHop.poolBitmap = 0x0F;
  nextHop.entryWidth = 64;
  nextHop.numEntries = 65536;
  add(profile, 52, std::vector{nextHop});
}

void addTunnels(Profile& profile) {
  add(profile, 2, std::vector{hash(8192, 64, 64, {{4, 28}, {5, 28}})});
  add(profile, 12, std::vector{isme(0, 0, 4096, 16)});
  add(profile, 13, std::vector{hash(16384, 32, 32, {{6, 28}, {7, 28}})});
  add(profile, 35, std::vector{direct(4096, 128, {4, 30})});
  // The table that would stand in place of 12 and 13 is there and not in use.
  add(profile, 14, std::vector{xpIsmeTableContext()});
  profile.tables[14].copyNum = 0;
}

void addInterfaces(Profile& profile) {
  for (U32 i = 0; i < 8; ++i)
    add(profile, 19 + i,
        std::vector{direct(8192, 128, {2, 4 + 4 * i}), direct(8192, 128, {3, 4 + 4 * i})});
  Run const headers[] = {{7, 52}, {4, 56}, {5, 56}};
  for (U32 i = 0; i < 3; ++i) add(profile, 27 + i, std::vector{direct(16384, 128, headers[i])});
}

/// Two ways in pools 0 and 1; the copies lie one behind the other.
void addMaskGroup(Profile& profile, U32 i, U16 width, U32 block, U32 blocksPerWay) {
  U32 next = block + blocksPerWay;
  add(profile, 36 + i,
      std::vector{hash(width == 512 ? 4096 : 8192, width / 2, width / 2, {{0, block}, {1, block}}),
                  hash(width == 512 ? 4096 : 8192, width / 2, width / 2, {{0, next}, {1, next}})});
}

void addAcls(Profile& profile) {
  add(profile, 33, std::vector{isme(0, 0, 65536, 0)});
  add(profile, 34, std::vector{isme(1, 0, 65536, 0)});
  addMaskGroup(profile, 0, 512, 12, 4);
  addMaskGroup(profile, 1, 512, 20, 4);
  for (U32 i = 2; i < 6; ++i) addMaskGroup(profile, i, 128, 28 + 4 * (i - 2), 2);
  U16 const keySizes[] = {80, 160, 320};
  for (U32 i = 0; i < 3; ++i) {
    U8 startDb = static_cast<U8>(4 * i);
    add(profile, 42 + i,
        std::vector{match(2, keySizes[i], 32, startDb),
                    match(2, keySizes[i], 32, static_cast<U8>(startDb + 2))});
  }
  add(profile, 45, std::vector{match(2, 160, 32, 19)});  // of the egress, which no one creates here
  for (U32 i = 0; i < 7; ++i)
    add(profile, 53 + i, std::vector{match(1, 80, 64, static_cast<U8>(12 + i))});
  add(profile, 60, std::vector{isme(2, 1, 8192, 0)});
  add(profile, 61, std::vector{isme(2, 1, 8192, 2)});
}

/// A prefix table for each run, and tile 4 of `nhiPool` and of the next pool for the index.
xpLpmTableContext lpm(U32 entries, U32 entryWidth, std::vector<Run> const& runs, U32 nhiPool) {
  xpLpmTableContext context;
  context.first = 0;
  context.vrfIdWidth = 12;
  for (std::size_t slot = 0; slot < runs.size(); ++slot) {
    U32 tread = static_cast<U32>(slot);
    context.prefixTable[slot] = {1,     entries,           entryWidth,
                                 tread, runs[slot].poolId, runs[slot].rowBlkStartId};
  }
  context.nhiTable.poolBitmap = 3u << nhiPool;
  context.nhiTable.numEntries = 2 * 16384;
  context.nhiTable.tileBitmap[nhiPool] = context.nhiTable.tileBitmap[nhiPool + 1] = 1u << 4;
  context.nhiTable.pairPerEntry = 2;
  context.nhiTable.nhWidth = 20;
  return context;
}

/// The last prefix table of IPv4 takes no tread of the plan.
void addRoutes(Profile& profile) {
  auto v4 =
      lpm(16384, 64, {{4, 40}, {4, 44}, {5, 40}, {5, 44}, {6, 40}, {6, 44}, {7, 40}, {7, 44}}, 4);
  v4.searchDataWidth = 32;
  v4.prefixTable[7].tread = 16;
  add(profile, 50, std::vector{v4});
  auto v6 = lpm(8192, 128, {{4, 48}, {5, 48}, {6, 48}, {7, 48}, {4, 52}, {5, 52}}, 6);
  v6.searchDataWidth = 128;
  add(profile, 51, std::vector{v6});

  profile.lpmTreadCfg.treadV4Valid = true;
  profile.lpmTreadCfg.treadV4 = {{0, 0}, {1, 2}, {2, 4}, {3, 6}, {4, 8}, {5, 10}, {6, 12}};
  profile.lpmTreadCfg.treadV6Valid = true;
  profile.lpmTreadCfg.treadV6 = {{0, 1}, {1, 3}, {2, 5}, {3, 7}, {4, 9}, {5, 11}};
}

}  // namespace

Profile defaultProfile() {
  Profile profile;
  addBridging(profile);
  addHosts(profile);
  addTunnels(profile);
  addInterfaces(profile);
  addAcls(profile);
  addRoutes(profile);
  return profile;
}

}  // namespace xdksim
