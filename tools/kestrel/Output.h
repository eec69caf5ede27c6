// Standard output that remembers why it failed.
#pragma once

#include <array>
#include <streambuf>

namespace kestrel {

/// A stream's buffer in front of a file descriptor, which it doesn't close.  At the first failure
/// it gives up, and the stream goes bad.
class OutputBuffer : public std::streambuf {
 public:
  explicit OutputBuffer(int descriptor) : descriptor_(descriptor) { empty(); }
  ~OutputBuffer() override { sync(); }

  /// The number of the error that writing failed with; 0 while all is well.
  int error() const { return error_; }

 protected:
  int_type overflow(int_type byte) override;
  int sync() override;

 private:
  void empty() { setp(bytes_.data(), bytes_.data() + bytes_.size()); }

  int descriptor_;
  int error_ = 0;
  std::array<char, 8192> bytes_;
};

}  // namespace kestrel
