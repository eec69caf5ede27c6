// Which tables lie on which block of the SRAM, as the pictures and programs want it.
#pragma once

#include "XpLib/XpTableCliHelperMemory.h"
#include "XpSystem/ChipStatus.h"

#include <array>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <vector>

namespace kestrel {

/// A table on a block.
struct SramTable {
  U32 id;
  std::string name;

  bool operator==(SramTable const&) const = default;
};

/// The set of tables that lies on some blocks.
struct SramGroup {
  std::string letter;             ///< "A" to "z" as in the text of the report, then "AA" to "zz"
  std::vector<SramTable> tables;  ///< in the order of the text
  U32 blocks = 0;

  /// The names, with " + " between each two.
  std::string names() const;
};

/// Blocks of a table that the chip lacks.
struct SramBeyond {
  SramTable table;
  std::map<U32, std::set<U32>> blocks;  ///< by pool
};

/// A pool of the chip.
struct SramPool {
  U32 pool;
  std::vector<std::optional<std::size_t>> blocks;  ///< index of the group; none where free

  U32 tiles() const;
  U32 free() const;
};

/// The SRAM of one chip.
struct SramModel {
  std::array<SramPool, Kestrel::xpTableCliHelper::numPools> pools;
  std::vector<SramGroup> groups;   ///< by letter
  std::vector<SramBeyond> beyond;  ///< in the order of the tables

  U32 blocks() const;
  U32 free() const;
};

/// The letter of the group that the text meets as the `index`th.
std::string sramLetter(std::size_t index);

/// The SRAM of the chip with that status.  Groups come in the order in which the text meets them:
/// line by line from the top, and within a line from pool 0 on.
SramModel sramModel(XpSystem::ChipStatus const& status);

}  // namespace kestrel
