// The language of tests on values: what is complained of, and what stands on a stream.
#pragma once

#include "Mox/Exception.h"
#include "Mox/NboAttrLog.h"
#include "Mox/Strep.h"

#include <string>

namespace moxtest {

/// The text of the `RangeException` that `action` raises; empty if it raises none.
template <class Action>
std::string complaint(Action action) {
  try {
    action();
  } catch (Mox::RangeException const& exception) {
    return exception.what();
  }
  return "";
}

/// The complaint about `text` as the text form of a `T`.
template <class T>
std::string parseComplaint(std::string_view text) {
  return complaint([text] { Mox::strepToValue<T>(text); });
}

/// The bytes of `value` on a stream.
template <class T>
std::string written(T const& value) {
  Mox::Ptr<Mox::NboAttrLog::Out> const out = new Mox::NboAttrLog::Out;
  out << value;
  return std::string(out->bytes());
}

/// A stream of these bytes, which must outlive it.
inline Mox::Ptr<Mox::NboAttrLog::In> reading(std::string_view bytes) {
  return new Mox::NboAttrLog::In(bytes);
}

/// The value that begins a stream of these bytes.
template <class T>
T read(std::string_view bytes) {
  return T(reading(bytes).ptr(), Mox::StreamBogon());
}

/// A type whose values have a public order.
template <class T>
concept Ordered = requires(T const& a) {
  a < a;
};

}  // namespace moxtest
