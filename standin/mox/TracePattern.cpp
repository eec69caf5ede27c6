// Reading of trace patterns.
#include "standin/mox/TracePattern.h"

#include "Mox/Exception.h"
#include "Mox/Strep.h"
#include "Mox/Trace.h"

#include <charconv>
#include <optional>

namespace Mox {

namespace {

constexpr U32 everyLevel = 0xFFFFFFFF;

std::optional<int> readLevel(std::string_view text) {
  int level = 0;
  auto const* const end = text.data() + text.size();
  auto const read = std::from_chars(text.data(), end, level);
  bool const whole = read.ec == std::errc() && read.ptr == end;
  if (!whole || level < 0 || level >= TraceFacility::numLevels) return std::nullopt;
  return level;
}

// The bits of "3" or "0-3"; nothing for what is neither.
std::optional<U32> readRange(std::string_view text) {
  auto const dash = text.find('-');
  auto const first = readLevel(text.substr(0, dash));
  auto const last = dash == text.npos ? first : readLevel(text.substr(dash + 1));
  if (!first || !last || *first > *last) return std::nullopt;
  U32 const upToLast = everyLevel >> (TraceFacility::numLevels - 1 - *last);
  return upToLast & everyLevel << *first;
}

[[noreturn]] void refuse(String8 const& pattern, String8 const& why) {
  throwRangeException("trace pattern " + valueToStrep(pattern) + ": " + why);
}

U32 readLevels(String8 const& pattern, std::string_view list) {
  U32 levels = 0;
  for (bool more = true; more;) {
    auto const comma = list.find(',');
    auto const range = readRange(list.substr(0, comma));
    if (!range)
      refuse(pattern, valueToStrep(String8(list.substr(0, comma))) +
                          " is no level or range of levels, which are 0 to 31");
    levels |= *range;
    more = comma != list.npos;
    if (more) list.remove_prefix(comma + 1);
  }
  return levels;
}

bool glob(std::string_view pattern, std::string_view text) noexcept {
  std::size_t at = 0, in = 0;
  std::size_t star = pattern.npos, behindStar = 0;
  while (in < text.size()) {
    if (at < pattern.size() && pattern[at] == '*') {
      star = at++;
      behindStar = in;
    } else if (at < pattern.size() && (pattern[at] == '?' || pattern[at] == text[in])) {
      ++at, ++in;
    } else if (star != pattern.npos) {
      at = star + 1;  // let the star take one character more
      in = ++behindStar;
    } else {
      return false;
    }
  }
  return pattern.find_first_not_of('*', at) == pattern.npos;
}

}  // namespace

TracePattern::TracePattern(String8 const& pattern) {
  auto const text = pattern.view();
  auto const slash = text.find('/');
  name = text.substr(0, slash);
  if (name.empty()) refuse(pattern, "no facility is named");
  levels = slash == text.npos ? everyLevel : readLevels(pattern, text.substr(slash + 1));
}

bool TracePattern::matches(std::string_view facility) const noexcept {
  return glob(name.view(), facility);
}

}  // namespace Mox
