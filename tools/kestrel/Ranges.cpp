// Finding the runs.
#include "tools/kestrel/Ranges.h"

namespace kestrel {

std::string rangesText(std::vector<U32> const& numbers) {
  std::string text;
  for (std::size_t first = 0; first < numbers.size();) {
    std::size_t last = first;
    while (last + 1 < numbers.size() && numbers[last + 1] == numbers[last] + 1) ++last;
    if (last == first + 1) last = first;  // two are named each
    text += (text.empty() ? "" : ", ") + std::to_string(numbers[first]);
    if (last > first) text += " to " + std::to_string(numbers[last]);
    first = last + 1;
  }
  return text;
}

}  // namespace kestrel
