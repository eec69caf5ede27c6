// What is doubtful about the contexts of a profile: figures that no real device reports, and which
// of the library's reports they stop.
//
// A context without entries takes no memory, and nothing about it is doubtful.
//
// A run that ends at block 255 counts as what stops the sram report: the report's contract counts
// blocks in 8 bits, in which a count up to 255 has no end.  The library's own map stops at the end
// of the pool.
#pragma once

#include "standin/xdk/Profile.h"

#include <string>
#include <vector>

namespace kestrel {

/// What the library's reports make of a doubtful context, as they are written down.
enum class Harm : U8 {
  none,       ///< it is drawn as told
  noWay,      ///< a division by zero in what divides by the ways: summary and sram
  noRow,      ///< a division by zero in all that divide by the entries of a row
  pastArray,  ///< all read past the record's arrays
  assertion,  ///< all end the process by their assertion
  endless,    ///< sram has no end to count its blocks up to
};

/// The reports that decode contexts.
enum class Report : U8 { summary, detail, sram };

/// "summary" and the like.
char const* reportName(Report report);

/// The reports that get no further than such a context, in the order of their names above.
std::vector<Report> stoppedReports(Harm harm);

/// What is doubtful about one field of one context.
struct Doubt {
  std::string field;  ///< "numOfWays", "poolId[2]", "prefixTable[3].entryWidth"
  U32 value;          ///< what the field holds
  std::string what;   ///< goes on behind the value
  Harm harm = Harm::none;
};

/// A doubt with the copy of the table that it is about.
struct Finding {
  U32 tableId;
  std::string tableName;  ///< under which the library publishes it; empty where it doesn't
  U32 copy;
  Doubt doubt;

  /// "table 0 (FDB), copy 1: numOfWays: 9 ways, and room for 8", and behind it in brackets what
  /// becomes of the reports, where they aren't drawn.
  std::string line() const;
};

/// The doubts about one context by itself, those that stop a report in the order in which it meets
/// them.
std::vector<Doubt> doubtsOf(xpTableContext const& context);

/// The finding among those on the copies of one table, in the order of the copies, at which the
/// report stops first, or null: every copy is decoded before the first block is counted.
Finding const* firstStop(Report report, std::vector<Finding> const& findings);

/// All findings of the profile, by table, copy and field: on the contexts that it lists, whether
/// there is an operation that creates their table and whatever their copy number is.  Tables that
/// aren't in use, by the first field of their first copy, are passed over.
std::vector<Finding> findingsOf(xdksim::Profile const& profile);

}  // namespace kestrel
