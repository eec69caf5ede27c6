// The map of the SRAM as SVG elements, for a file of its own or within a page.
#pragma once

#include "tools/kestrel/SramModel.h"

namespace kestrel {

/// Where things stand in the drawing, in its units, which are pixels at full size.
namespace sramDrawing {

constexpr U32 left = 72;       ///< margin with the numbers of the tiles
constexpr U32 top = 52;        ///< margin with the numbers of the pools
constexpr U32 poolStep = 92;   ///< from column to column
constexpr U32 blockStep = 13;  ///< from block to block
constexpr U32 width = left + Kestrel::xpTableCliHelper::numPools * poolStep;
constexpr U32 height = top + Kestrel::xpTableCliHelper::blocksPerPool * blockStep + 8;

/// Ahead of the notes.
constexpr char const* notesHead = "Not drawn, as the chip has no such blocks:";

/// A line of text, which is `content` as it is meant, in the class `style`.
std::string text(char const* style, U32 x, U32 y, std::string const& content);

}  // namespace sramDrawing

/// The style of the map's elements, in light and in dark surroundings.
extern char const* const sramStyle;

/// Pools with their numbers and free blocks, tiles, and blocks.
std::string sramColumns(SramModel const& model);

/// A swatch of the group's colour with its letter, `width` by `height`, at (0, 0).
std::string sramSwatch(SramModel const& model, std::size_t group, U32 width, U32 height);

/// "pool 0, blocks 48 to 51: FDB" for each table and pool with blocks that the chip lacks.
std::vector<std::string> sramNotes(SramModel const& model);

/// "413 of 448 blocks taken, 35 free".
std::string sramSummary(SramModel const& model);

/// "1 block", "3 blocks".
std::string blockCount(U32 blocks);

}  // namespace kestrel
