// A site that writes records.
#pragma once

#include "Swiftlog/MsgDesc.h"
#include "Swiftlog/RingBuf.h"
#include "Swiftlog/TraceFile.h"

namespace Swiftlog {

/// One place in the source that writes records of one form.  It stands in a static variable of that
/// place, which needs no guard, as it is initialised by constants:
///
///   static constinit Swiftlog::Site site("src-includes/XpLib/XpTableManSm");
///   site.log("TableManSm::", "doCreateBdTables", " DeviceId ", U8(device));
class Site {
 public:
  /// `file` is used at the first record in each trace file; `line` is that of the call.
  constexpr explicit Site(char const* file, int line = __builtin_LINE()) noexcept
      : file_(file), line_(line) {}

  /// Writes a record, if the process has a trace file.  Texts go into the descriptor, so they must
  /// be the same at each call; `U8`, `bool` and `U32` are the record's arguments.
  template <class... Parts>
  void log(Parts const&... parts) {
    if (!theTraceFile) [[likely]]
      return;
    if (id_ == 0) describe(parts...);
    RingBuf record;
    record.startMsg(theTraceFile, id_);
    (argument(record, parts), ...);
    record.endMsg();
  }

  /// The message's id in the process's trace file; 0 before the first record there, -1 when that
  /// file has no room for the descriptor.
  int id() const noexcept { return id_; }

 private:
  template <class... Parts>
  void describe(Parts const&... parts) {
    MsgDesc description(theTraceFile, file_, line_);
    theTraceFile->msgIdArrIs(&id_);
    (item(description, parts), ...);
    id_ = description.finish();
  }

  static void item(MsgDesc& description, char const* text) { description << text; }
  static void item(MsgDesc& description, U8) { description.format().put("c"); }
  static void item(MsgDesc& description, bool) { description.format().put("b"); }
  static void item(MsgDesc& description, U32) { description.format().put("i"); }

  static void argument(RingBuf&, char const*) noexcept {}
  static void argument(RingBuf& record, U8 value) noexcept { record.put(value); }
  static void argument(RingBuf& record, bool value) noexcept { record.put(value); }
  static void argument(RingBuf& record, U32 value) noexcept { record.put(value); }

  char const* file_;
  int line_;
  int id_ = 0;
};

}  // namespace Swiftlog
