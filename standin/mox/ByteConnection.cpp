// Reading primitives, with the tests that keep a read inside of its bytes.
#include "Mox/ByteConnection.h"

#include "Mox/Exception.h"

#include <bit>

namespace Mox::ByteConnection {

std::string_view In::take(std::size_t size) {
  if (size > left_.size())
    throwRangeException(format("the stream ends: %zu bytes wanted, %zu left", size, left_.size()));
  auto const taken = left_.substr(0, size);
  left_.remove_prefix(size);
  return taken;
}

double In::nextdouble() { return std::bit_cast<double>(nextU64()); }

String8 In::nextString() { return take(nextU32()); }

}  // namespace Mox::ByteConnection
