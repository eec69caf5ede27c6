// Text tracing: named facilities with levels, and where their lines go.
//
// One line a trace, in this form, with no clock in it, so that two runs compare:
//
//   XpTableManSm 1 src-includes/XpLib/XpTableManSm:212 doCreateBdTables <unknown>: the text
//
// which is the facility, the level, the module's path and the line of the site (the function tells
// in which of the module's files), its function, the name of the object that speaks, and the text
// as the site wrote it, whatever bytes it holds.  One thread at a time.
#pragma once

#include "Mox/String8.h"

#include <functional>
#include <iosfwd>
#include <sstream>
#include <string_view>

namespace Mox {

/// What a name stands for in tracing: whether it is enabled, which of its levels are, and how often
/// its sites were passed.  One per name in the process; never destroyed.
class TraceFacility {
 public:
  /// Levels are 0 to 31.  Level 0 is for what nobody may miss.
  static constexpr int numLevels = 32;

  explicit TraceFacility(String8 const& name) : name_(name) {}
  TraceFacility(TraceFacility const&) = delete;
  TraceFacility& operator=(TraceFacility const&) = delete;

  String8 const& name() const noexcept { return name_; }
  bool enabled() const noexcept { return enabled_; }
  void enabledIs(bool enabled) noexcept { enabled_ = enabled; }
  /// The levels that are on, one bit each; they count only while the facility is enabled.
  U32 levels() const noexcept { return levels_; }
  void levelsIs(U32 levels) noexcept { levels_ = levels; }
  /// True when lines of this level are wanted; no level outside 0 to 31 ever is.
  bool isTracing(int level) const noexcept {
    return enabled_ && level >= 0 && level < numLevels && (levels_ >> level & 1) != 0;
  }

  /// Counts a site that was passed: 2 while enabled, 1 while not.
  void hit() noexcept { hits_ += enabled_ ? 2 : 1; }
  U64 hits() const noexcept { return hits_; }

 private:
  String8 name_;
  U64 hits_ = 0;
  U32 levels_ = 0;
  bool enabled_ = false;
};

/// The facility of that name; null where no handle has named it.
TraceFacility* traceFacility(String8 const& name);

/// A module's hold on the facility of that name, which the first handle makes.
class TraceHandle {
 public:
  /// `enabled` says how a facility starts that `traceEnable` has not spoken of: true is enabled
  /// with level 0 on, false is not enabled.
  TraceHandle(String8 name, bool enabled);

  TraceFacility* facility() const noexcept { return facility_; }

 private:
  TraceFacility* facility_;
};

/// Enables facilities and levels of them: "XpTableManSm/1,2", "Xp*/0-3,7".  In the name, `*` stands
/// for any text and `?` for any one character; a pattern without levels means all.  Holds for the
/// facilities that there are and for those made later.  Adds to what is on.  A pattern that can't
/// be read throws `RangeException` "trace pattern '<pattern>': <why>" and changes nothing.
void traceEnable(String8 const& pattern);
/// Takes levels off again, or without levels disables the facilities; those made later likewise.
void traceDisable(String8 const& pattern);

/// Takes a finished line, which has no new line behind it.
using TraceSink = std::function<void(std::string_view line)>;
/// Directs the lines from now on to `sink`; an empty one stands for standard error, where lines go
/// at the start.  Returns the former sink.
TraceSink traceSinkIs(TraceSink sink);

/// While set, every site writes its line here, whatever is enabled: what shows that sites are run.
/// The stream outlives its being set.
extern std::ostream* coverageStream_;

/// Emits what a site has written: to the sink if `traced`, and to `coverageStream_` if that is set.
/// `object` names who speaks, "<unknown>" where a site has no name for it.
void traceHelper(TraceFacility* facility, String8 const& object, std::stringstream& text, int level,
                 bool traced, char const* file, int line, char const* function);

}  // namespace Mox
