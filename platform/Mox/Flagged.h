// A flag that is set for a scope.
#pragma once

namespace Mox {

/// Sets a flag for the scope that it lives in, and then restores what it was.
class Flagged {
 public:
  explicit Flagged(bool& flag) noexcept : flag_(flag), before_(flag) { flag_ = true; }
  ~Flagged() { flag_ = before_; }
  Flagged(Flagged const&) = delete;
  Flagged& operator=(Flagged const&) = delete;

 private:
  bool& flag_;
  bool before_;
};

}  // namespace Mox
