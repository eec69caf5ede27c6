// The two halves of an attribute log, as values see them: bytes in network order.
#pragma once

#include "Mox/ByteConnection.h"
#include "Mox/Name.h"
#include "Mox/Ptr.h"

#include <string>

namespace Mox::NboAttrLog {

/// The inbound half of one attribute log.
class In : public ByteConnection::In {
 public:
  using ByteConnection::In::In;
};

/// The outbound half of one attribute log: keeps what is written until it is taken.
class Out : public PtrInterface {
 public:
  void append(std::string_view bytes) { bytes_ += bytes; }
  /// What was written since the start or the last `clear`; valid until the next write.
  std::string_view bytes() const noexcept { return bytes_; }
  void clear() noexcept { bytes_.clear(); }

 private:
  std::string bytes_;
};

// Each primitive has an operator of its own width, so that nothing is written wider or narrower
// than it is kept.  An enumeration goes as the S32 that it is kept in, a bounded integer as its
// storage.
Ptr<Out> const& operator<<(Ptr<Out> const& out, bool value);
Ptr<Out> const& operator<<(Ptr<Out> const& out, U8 value);
Ptr<Out> const& operator<<(Ptr<Out> const& out, S8 value);
Ptr<Out> const& operator<<(Ptr<Out> const& out, U16 value);
Ptr<Out> const& operator<<(Ptr<Out> const& out, S16 value);
Ptr<Out> const& operator<<(Ptr<Out> const& out, U32 value);
Ptr<Out> const& operator<<(Ptr<Out> const& out, S32 value);
Ptr<Out> const& operator<<(Ptr<Out> const& out, U64 value);
Ptr<Out> const& operator<<(Ptr<Out> const& out, double value);
Ptr<Out> const& operator<<(Ptr<Out> const& out, String8 const& value);
Ptr<Out> const& operator<<(Ptr<Out> const& out, Name const& value);
/// No pointer shall pass for a bool.
template <class T>
Ptr<Out> const& operator<<(Ptr<Out> const& out, T const* value) = delete;

}  // namespace Mox::NboAttrLog
