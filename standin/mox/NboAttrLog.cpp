// Writing primitives, most significant byte first.
#include "Mox/NboAttrLog.h"

#include <bit>

namespace Mox::NboAttrLog {

namespace {

template <std::integral T>
Ptr<Out> const& writeInteger(Ptr<Out> const& out, T value) {
  char bytes[sizeof(T)];
  auto rest = static_cast<U64>(value);
  for (std::size_t index = sizeof(T); index-- > 0; rest >>= 8)
    bytes[index] = static_cast<char>(rest & 0xFF);
  out->append({bytes, sizeof bytes});
  return out;
}

}  // namespace

Ptr<Out> const& operator<<(Ptr<Out> const& out, bool value) { return out << U8(value); }
Ptr<Out> const& operator<<(Ptr<Out> const& out, U8 value) { return writeInteger(out, value); }
Ptr<Out> const& operator<<(Ptr<Out> const& out, S8 value) { return writeInteger(out, value); }
Ptr<Out> const& operator<<(Ptr<Out> const& out, U16 value) { return writeInteger(out, value); }
Ptr<Out> const& operator<<(Ptr<Out> const& out, S16 value) { return writeInteger(out, value); }
Ptr<Out> const& operator<<(Ptr<Out> const& out, U32 value) { return writeInteger(out, value); }
Ptr<Out> const& operator<<(Ptr<Out> const& out, S32 value) { return writeInteger(out, value); }
Ptr<Out> const& operator<<(Ptr<Out> const& out, U64 value) { return writeInteger(out, value); }
Ptr<Out> const& operator<<(Ptr<Out> const& out, double value) {
  return out << std::bit_cast<U64>(value);
}
Ptr<Out> const& operator<<(Ptr<Out> const& out, String8 const& value) {
  out << value.size();
  out->append(value.view());
  return out;
}
Ptr<Out> const& operator<<(Ptr<Out> const& out, Name const& value) {
  return out << value.stringValue();
}

}  // namespace Mox::NboAttrLog
