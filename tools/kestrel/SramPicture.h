// Pictures of the SRAM, for eyes rather than text.
//
// Pools are columns, blocks lie from the top to scale, and every block is one rectangle of the
// class "block" with `data-pool` and `data-block`; it bears the letter of its group, and tells
// pool, tile, block and tables where the pointer rests on it.  Nothing is fetched from anywhere.
#pragma once

#include "tools/kestrel/SramModel.h"

namespace kestrel {

/// A file of its own, with a legend.
std::string sramSvg(SramModel const& model);

/// A page with the picture and a legend, whose lines show where their group lies.
std::string sramHtml(SramModel const& model);

}  // namespace kestrel
