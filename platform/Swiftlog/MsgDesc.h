// Descriptors of messages: what a reader needs to print a record.
#pragma once

#include "Mox/Integers.h"

#include <cstddef>
#include <vector>

namespace Swiftlog {

class TraceFile;

/// The types of a message's arguments, each at its place among the pieces of text.
class MsgFormatString {
 public:
  /// Adds an argument for each letter of `types`: "c" a byte, "b" a bool, "i" a U32.  Another
  /// letter throws `Mox::InternalException` "Swiftlog: unknown argument type <letter>".
  void put(char const* types);
  /// Adds a piece of text, which is copied.  One longer than 65,535 bytes is cut there.
  void piece(char const* text);

 private:
  friend class MsgDesc;
  std::vector<std::byte> items_;
  U16 count_ = 0;
};

/// A descriptor under construction.  Texts are added by `<<`, arguments by `format().put(...)`, in
/// the order in which the message prints them.
class MsgDesc {
 public:
  /// A message of the site at `file` and `line`; `file` is used until `finish()`.
  MsgDesc(TraceFile* traceFile, char const* file, int line)
      : traceFile_(traceFile), file_(file), line_(line) {}

  MsgFormatString& format() noexcept { return format_; }
  MsgDesc& operator<<(char const* text) {
    format_.piece(text);
    return *this;
  }

  /// Closes the descriptor and enters it into the trace file.  Returns the message's id there, 1 or
  /// more; -1 where the file has no room left for descriptors.
  int finish();

 private:
  TraceFile* traceFile_;
  char const* file_;
  int line_;
  MsgFormatString format_;
};

}  // namespace Swiftlog
