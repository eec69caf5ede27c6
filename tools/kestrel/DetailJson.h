// Reads the library's detail report, so that each figure is told once.
#pragma once

#include <nlohmann/json_fwd.hpp>
#include <string_view>

namespace kestrel {

/// The copies that the report of one table shows, from its text without the head line.  A field of
/// a line is a member under its name, and "yes" is true.  Way, prefix table and tile lines are
/// lists of "ways", "prefixTables" and "tiles", which is in "nhiTable"; each begins with its
/// number, as "way", "slot" and "tile".  A copy without entries has "empty" as true and no more.
nlohmann::ordered_json detailCopies(std::string_view text);

}  // namespace kestrel
