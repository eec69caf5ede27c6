// Descriptors and records on their way into the trace file.
#include "Swiftlog/MsgDesc.h"

#include "Mox/Exception.h"
#include "Swiftlog/RingBuf.h"
#include "Swiftlog/TraceFile.h"
#include "standin/mox/swiftlog/Layout.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <limits>
#include <span>

namespace Swiftlog {

namespace {

constexpr std::size_t maxLength = std::numeric_limits<U16>::max();

void append(std::vector<std::byte>& to, void const* bytes, std::size_t size) {
  auto const* const from = static_cast<std::byte const*>(bytes);
  to.insert(to.end(), from, from + size);
}

U16 cutLength(char const* text) { return static_cast<U16>(std::min(std::strlen(text), maxLength)); }

void countUp(U16& count) {
  if (count == maxLength) Mox::throwInternalException("Swiftlog: too many items in a message");
  ++count;
}

}  // namespace

void MsgFormatString::put(char const* types) {
  for (char const* type = types; *type; ++type) {
    if (argumentSize(*type) == 0)
      Mox::throwInternalException(Mox::format("Swiftlog: unknown argument type %c", *type));
    countUp(count_);
    append(items_, type, 1);
  }
}

void MsgFormatString::piece(char const* text) {
  countUp(count_);
  U16 const length = cutLength(text);
  append(items_, &textItem, 1);
  append(items_, &length, sizeof length);
  append(items_, text, length);
}

int MsgDesc::finish() {
  U16 const fileLength = cutLength(file_);
  std::size_t const size = sizeof(DescriptorHeader) + fileLength + format_.items_.size();
  DescriptorHeader const header = {static_cast<U32>(roundedUp<std::size_t>(size, 4)),
                                   static_cast<U32>(line_), fileLength, format_.count_};
  std::vector<std::byte> bytes;
  bytes.reserve(header.size);
  append(bytes, &header, sizeof header);
  append(bytes, file_, fileLength);
  append(bytes, format_.items_.data(), format_.items_.size());
  bytes.resize(header.size);
  return traceFile_->descriptorIs(bytes);
}

void RingBuf::endMsg() {
  if (size_ > maxArguments)
    file_->lostInc();
  else
    file_->recordIs(id_, std::span(arguments_.data(), size_));
}

}  // namespace Swiftlog
