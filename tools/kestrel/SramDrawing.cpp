// Columns of blocks, with what they need to be read.
#include "tools/kestrel/SramDrawing.h"

#include "tools/kestrel/Colours.h"
#include "tools/kestrel/Markup.h"
#include "tools/kestrel/Ranges.h"

namespace kestrel {

using namespace sramDrawing;
using Kestrel::xpTableCliHelper::blocksPerTile;

// Blocks leave one pixel to the next, which the lines between tiles fill.
char const* const sramStyle = R"(
  .sram { font: 12px "DejaVu Sans", "Segoe UI", Helvetica, Arial, sans-serif; }
  .sram text { fill: #1d232b; }
  .sram .pool { font-weight: bold; text-anchor: middle; }
  .sram .note { fill: #5b6673; font-size: 10.5px; }
  .sram .middle { text-anchor: middle; }
  .sram .frame { fill: #dfe3e8; }
  .sram .line { stroke: #39424d; stroke-width: 1; }
  .sram .free rect { fill: #f6f7f9; }
  .sram .letter { font: bold 9.5px "DejaVu Sans Mono", Menlo, Consolas, monospace;
                  text-anchor: middle; pointer-events: none; }
  .sram .block:hover rect { stroke: #000; stroke-width: 1.5; }
  @media (prefers-color-scheme: dark) {
    .sram text { fill: #e3e7ec; }
    .sram .note { fill: #9aa5b1; }
    .sram .frame { fill: #30363e; }
    .sram .line { stroke: #c3ccd6; }
    .sram .free rect { fill: #1b1f24; }
    .sram .block:hover rect { stroke: #fff; }
  }
)";

namespace {

constexpr U32 gap = 10;  // between two pools
constexpr U32 blockWidth = poolStep - gap;
constexpr U32 blockHeight = blockStep - 1;

std::string placeOf(U32 pool, U32 block) {
  return "Pool " + std::to_string(pool) + ", tile " + std::to_string(block / blocksPerTile) +
         ", block " + std::to_string(block);
}

std::string letter(std::string const& letter, Colour const& colour, U32 x, U32 y) {
  return element("text",
                 {{"class", "letter"}, {"style", "fill: " + colour.text}, {"x", x}, {"y", y}},
                 escaped(letter));
}

std::vector<MarkupAttribute> box(U32 x, U32 y, U32 wide, U32 high) {
  return {{"x", x}, {"y", y}, {"width", wide}, {"height", high}};
}

std::string freeBlock(U32 pool, U32 block, U32 x, U32 y) {
  return element("g", {{"class", "block free"}, {"data-pool", pool}, {"data-block", block}},
                 element("title", {}, placeOf(pool, block) + ": free") +
                     element("rect", box(x, y, blockWidth, blockHeight)));
}

std::string takenBlock(SramModel const& model, U32 pool, U32 block, U32 x, U32 y) {
  std::size_t const index = *model.pools[pool].blocks[block];
  SramGroup const& group = model.groups[index];
  Colour const colour = colourOf(static_cast<U32>(index));
  std::vector<MarkupAttribute> rectangle = box(x, y, blockWidth, blockHeight);
  rectangle.emplace_back("fill", colour.fill);
  return element(
      "g",
      {{"class", "block"},
       {"data-pool", pool},
       {"data-block", block},
       {"data-group", static_cast<U32>(index)}},
      element("title", {},
              escaped(placeOf(pool, block) + ", " + group.letter + ": " + group.names())) +
          element("rect", rectangle) +
          letter(group.letter, colour, x + blockWidth / 2, y + blockHeight - 3));
}

std::string tileLines(SramPool const& pool, U32 x) {
  std::string lines;
  for (U32 tile = 1; tile < pool.tiles(); ++tile) {
    std::string const y = std::to_string(top + tile * blocksPerTile * blockStep - 1) + ".5";
    lines += element("line",
                     {{"class", "line"}, {"x1", x}, {"x2", x + blockWidth}, {"y1", y}, {"y2", y}});
  }
  return lines;
}

std::string poolColumn(SramModel const& model, SramPool const& pool) {
  U32 const x = left + pool.pool * poolStep;
  U32 const blocks = static_cast<U32>(pool.blocks.size());
  std::string content = text("pool", x + blockWidth / 2, 24, "Pool " + std::to_string(pool.pool)) +
                        text("note middle", x + blockWidth / 2, 40,
                             std::to_string(pool.free()) + " free of " + std::to_string(blocks)) +
                        element("rect", {{"class", "frame"},
                                         {"x", x - 1},
                                         {"y", top - 1},
                                         {"width", blockWidth + 2},
                                         {"height", blocks * blockStep + 1}});
  for (U32 block = 0; block < blocks; ++block) {
    U32 const y = top + block * blockStep;
    content += '\n' + (pool.blocks[block] ? takenBlock(model, pool.pool, block, x, y)
                                          : freeBlock(pool.pool, block, x, y));
  }
  return element("g", {{"class", "column"}, {"data-pool", pool.pool}},
                 content + '\n' + tileLines(pool, x)) +
         '\n';
}

std::string tileNumbers(U32 tiles) {
  std::string numbers;
  for (U32 tile = 0; tile < tiles; ++tile) {
    U32 const first = tile * blocksPerTile;
    U32 const y = top + first * blockStep;
    numbers += text("tile", 8, y + 11, "Tile " + std::to_string(tile)) +
               text("note", 8, y + 25,
                    std::to_string(first) + " to " + std::to_string(first + blocksPerTile - 1)) +
               '\n';
  }
  return numbers;
}

}  // namespace

std::string sramDrawing::text(char const* style, U32 x, U32 y, std::string const& content) {
  return element("text", {{"class", style}, {"x", x}, {"y", y}}, escaped(content));
}

std::string sramColumns(SramModel const& model) {
  std::string columns = tileNumbers(model.pools.back().tiles());
  for (SramPool const& pool : model.pools) columns += poolColumn(model, pool);
  return columns;
}

std::string sramSwatch(SramModel const& model, std::size_t group, U32 width, U32 height) {
  Colour const colour = colourOf(static_cast<U32>(group));
  std::vector<MarkupAttribute> rectangle = box(0, 0, width, height);
  rectangle.emplace_back("fill", colour.fill);
  return element("rect", rectangle) +
         letter(model.groups[group].letter, colour, width / 2, height - 3);
}

std::vector<std::string> sramNotes(SramModel const& model) {
  std::vector<std::string> notes;
  for (SramBeyond const& beyond : model.beyond)
    for (auto const& [pool, blocks] : beyond.blocks)
      notes.push_back("pool " + std::to_string(pool) +
                      (blocks.size() == 1 ? ", block " : ", blocks ") +
                      rangesText({blocks.begin(), blocks.end()}) + ": " + beyond.table.name);
  return notes;
}

std::string sramSummary(SramModel const& model) {
  return std::to_string(model.blocks() - model.free()) + " of " + std::to_string(model.blocks()) +
         " blocks taken, " + std::to_string(model.free()) + " free";
}

std::string blockCount(U32 blocks) {
  return std::to_string(blocks) + (blocks == 1 ? " block" : " blocks");
}

}  // namespace kestrel
