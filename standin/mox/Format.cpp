// printf into a string.
#include "Mox/Exception.h"
#include "Mox/String8.h"

#include <array>
#include <cstdarg>
#include <cstdio>
#include <memory>

namespace Mox {

namespace {

// Ends a variable argument list with its scope.
struct ListEnd {
  explicit ListEnd(va_list& list) : list_(list) {}
  ~ListEnd() { va_end(list_); }
  ListEnd(ListEnd const&) = delete;

  va_list& list_;
};

}  // namespace

String8 format(char const* pattern, ...) {
  std::array<char, 256> line;
  va_list arguments;
  va_start(arguments, pattern);
  ListEnd const end(arguments);
  va_list again;
  va_copy(again, arguments);
  ListEnd const endAgain(again);

  int const length = std::vsnprintf(line.data(), line.size(), pattern, arguments);
  if (length < 0) throwInternalException(String8("can't format by ") + pattern);
  auto const size = static_cast<U32>(length);
  if (size < line.size()) return String8(line.data(), size);
  auto const longLine = std::make_unique<char[]>(size + 1);
  std::vsnprintf(longLine.get(), size + 1, pattern, again);
  return String8(longLine.get(), size);
}

}  // namespace Mox
