// The drawing of the SRAM: a column for each pool, a line for each block, a letter for each group
// of tables.
#include "XpLib/XpTableCliHelper.h"
#include "XpLib/XpTableCliHelperDiagnostics.h"
#include "XpLib/XpTableCliHelperMemory.h"
#include "XpLib/XpTableCliHelperSramMap.h"

#include <algorithm>
#include <string>
#include <vector>

namespace Kestrel {

using namespace xpTableCliHelper;

namespace {

constexpr U32 cellWidth = 8;
constexpr char const* blanks = "        ";

// The letters of the groups, handed out in the order in which they are asked for.
class Legend {
 public:
  explicit Legend(SramMap const& map) : map_(map), letters_(map.numGroups()) { letters_[0] = '.'; }

  char letterOf(U32 group) {
    char& letter = letters_[group];
    if (letter == 0) {
      letter = nextLetter();
      legend_->newLegend(map_.group(group), Mox::String8(&letter, 1));
    }
    return letter;
  }
  TableSramMemoryMap::LegendMap::IteratorConst iteratorConst() const {
    return legend_->legendIteratorConst();
  }

 private:
  char nextLetter() const {
    U32 const groups = legend_->legendCount();
    return groups < groupLetters.size() ? groupLetters[groups] : '?';
  }

  SramMap const& map_;         // outlives this
  std::vector<char> letters_;  // by group; 0 for one that hasn't been asked for
  TableSramMemoryMap::Ptr legend_ = TableSramMemoryMap::TableSramMemoryMapIs();
};

void drawHead(std::string& text) {
  text += blanks;
  for (U32 pool = 0; pool < numPools; ++pool) text += Mox::format("   Pool %u ", pool).view();
  text += "\n\n";
}

void drawMargin(std::string& text, U32 block) {
  if (block % blocksPerTile == 0)
    text += Mox::format(" Tile %u ", block / blocksPerTile).view();
  else
    text += blanks;
}

// A cell is two blanks and eight times its letter; where a pool has no such block, all are blanks.
void drawGrid(std::string& text, SramMap const& map, Legend& legend) {
  constexpr U32 gap = 2;
  for (U32 block = 0; block < blocksPerPool; ++block) {
    drawMargin(text, block);
    text.append(numPools * (gap + cellWidth), ' ');
    char* const lineEnd = text.data() + text.size();
    for (U32 pool = 0; pool < numPools; ++pool)
      if (block < blocksOfPool(pool))
        std::fill_n(lineEnd - (numPools - pool) * (gap + cellWidth) + gap, cellWidth,
                    legend.letterOf(map.groupAt(pool, block)));
    text += '\n';
    if ((block + 1) % blocksPerTile == 0) text += '\n';
  }
}

void drawLegend(std::string& text, Legend const& legend, XpSystem::ChipStatus const& status) {
  text +=
      "Legends: \n"
      "  Each row corresponds to one block (1024 SRAM entries)\n"
      "  .: unused\n";
  for (auto at = legend.iteratorConst(); at; ++at) {
    text.append("  ").append(at.value().view()).append(":");
    for (auto table = at.key().tableIdIteratorConst(); table; ++table)
      text.append(" ").append(status.tableContext(table.key())->tableName().view());
    text += '\n';
  }
}

}  // namespace

Mox::String8 TableCliHelper::displaySramAllocationGraph() {
  traceReport("displaySramAllocationGraph");
  SramMap const map(*chipStatus_);
  Legend legend(map);
  std::string text;
  drawHead(text);
  drawGrid(text, map, legend);
  drawLegend(text, legend, *chipStatus_);
  return Mox::String8(text);
}

}  // namespace Kestrel
