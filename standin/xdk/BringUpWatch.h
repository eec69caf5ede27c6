// Watches that one bring-up at a time uses the SDK, which protects nothing of its own.
#pragma once

#include "standin/xdk/Managers.h"

#include <mutex>
#include <optional>
#include <thread>

namespace xdksim {

/// Ends the process, by `misuse`, with both sides named, when
///  - a thread calls a manager while another thread is inside a call;
///  - a thread calls a manager, or takes a device's profile, while the bring-up of another thread
///    has begun to call managers and hasn't come to its last call, the `addDevice` of
///    `xpEgressAclMgr`;
///  - a bring-up begins within another that was announced.
/// A bring-up that was given up half-way, by an exception, counts as under way for other threads.
/// The watch may itself be used from any thread.
class BringUpWatch {
 public:
  /// A bring-up of this thread begins with its next call.
  void profileTaken(U32 device);
  /// Number of the bring-up of this thread that is under way, from 1 on; 0 for none.
  U32 number() const;
  /// Says for as long as it lives that a call is on.
  class Inside {
   public:
    Inside(BringUpWatch& watch, ManagerId manager, Call call) : watch_(watch) {
      watch_.callBegins(manager, call);
    }
    ~Inside() { watch_.callEnds(); }
    Inside(Inside const&) = delete;
    Inside& operator=(Inside const&) = delete;

   private:
    BringUpWatch& watch_;  // outlives the call
  };
  /// A bring-up that lasts until it is said to have ended.
  void announced(U32 device);
  void announcedEnds();

 private:
  struct CallId {
    ManagerId manager;
    Call call;
    std::string name() const;
  };
  struct BringUp {
    std::thread::id thread;
    U32 number = 0;
    U32 device = 0;
    bool isAnnounced = false;
    std::optional<CallId> last;
  };
  struct Current {
    std::thread::id thread;
    CallId call;
  };

  void callBegins(ManagerId manager, Call call);
  void callEnds();
  bool isUnderWayElsewhere() const;
  void begin(U32 device, bool isAnnounced);
  [[noreturn]] void overlap(std::string const& other) const;

  mutable std::mutex mutex_;
  U32 lastNumber_ = 0;
  std::optional<BringUp> bringUp_;
  std::optional<Current> current_;
};

}  // namespace xdksim
