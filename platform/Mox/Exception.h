// The runtime's exceptions, the calls that raise them, and the expectation of one.
#pragma once

#include "Mox/String8.h"

#include <exception>

namespace Mox {

/// Base of all runtime exceptions: a message and a set of ids.
class Exception : public std::exception {
 public:
  /// Number of a kind of exception, 0 to 63.  0 is no kind: it is never a member of a set.
  using Id = U32;

  /// A set of exception ids.
  class IdBitArray {
   public:
    /// Enters an id; 0 enters nothing, one above 63 ends the process by assertion.
    void add(Id id) noexcept;
    bool isMember(Id id) const noexcept;

   private:
    U64 bits_ = 0;
  };

  static constexpr Id rangeId = 1;
  static constexpr Id internalId = 2;
  static constexpr Id nameInUseId = 3;
  static constexpr Id constId = 4;
  static constexpr Id badIndexAttrId = 5;
  static constexpr Id typeId = 6;
  static constexpr Id opNotSupportedId = 7;
  static constexpr Id unknownAttrId = 8;
  static constexpr Id unknownArgId = 9;
  static constexpr Id attrLogEntityId = 47;

  Exception(String8 const& message, IdBitArray const& ids, bool expected = false);
  ~Exception() override;
  Exception(Exception const&) = default;

  String8 const& message() const noexcept { return message_; }
  IdBitArray const& ids() const noexcept { return ids_; }
  /// Raised where an `Expect` for one of its ids stood open: no news for a log.
  bool expected() const noexcept { return expected_; }
  char const* what() const noexcept override { return message_.charPtr(); }

 private:
  String8 message_;
  IdBitArray ids_;
  bool expected_;
};

/// A value is out of range, or a text can't be read.  Each kind enters its own id into the set.
class RangeException : public Exception {
 public:
  explicit RangeException(String8 const& message, IdBitArray ids = {});
};

/// An internal invariant of the model failed.
class InternalException : public Exception {
 public:
  explicit InternalException(String8 const& message, IdBitArray ids = {});
};

/// A name is taken with different constructor parameters.
class NameInUseException : public Exception {
 public:
  explicit NameInUseException(String8 const& message, IdBitArray ids = {});
};

/// A message of the attribute log refers to an entity that can't be used.
class AttrLogEntityException : public Exception {
 public:
  explicit AttrLogEntityException(String8 const& message, IdBitArray ids = {});
};

// What an interface to attributes by number can't do (GenericIf.h).

/// A write through a constant interface.
class ConstException : public Exception {
 public:
  explicit ConstException(String8 const& message, IdBitArray ids = {});
};

/// An index for an attribute that has none.
class BadIndexAttrException : public Exception {
 public:
  explicit BadIndexAttrException(String8 const& message, IdBitArray ids = {});
};

/// A value or key of another type than the one that is wanted.
class TypeException : public Exception {
 public:
  explicit TypeException(String8 const& message, IdBitArray ids = {});
};

/// Something that can't be asked of this attribute.
class OpNotSupportedException : public Exception {
 public:
  explicit OpNotSupportedException(String8 const& message, IdBitArray ids = {});
};

/// An attribute that the type doesn't have.
class UnknownAttrException : public Exception {
 public:
  explicit UnknownAttrException(String8 const& message, IdBitArray ids = {});
};

/// More arguments than are wanted.
class UnknownArgException : public Exception {
 public:
  explicit UnknownArgException(String8 const& message, IdBitArray ids = {});
};

// The raisers that the model calls; none returns.
[[noreturn]] void throwRangeException(char const* message);
[[noreturn]] void throwRangeException(String8 const& message);
[[noreturn]] void throwInternalException(char const* message);
[[noreturn]] void throwInternalException(String8 const& message);
[[noreturn]] void throwNameInUseException(String8 const& message);

/// Says, for the scope that it lives in, which exception id the code inside expects.  Scopes nest
/// on one thread.  Id 0 expects none, and hides the scopes around it: it stands around every call
/// of a notification hook, so that what the mutator's caller expects isn't taken to be the hook's.
class Expect {
 public:
  explicit Expect(Exception::Id id) noexcept : id_(id), outer_(innermost_) { open(); }
  ~Expect() { close(); }
  Expect(Expect const&) = delete;
  Expect& operator=(Expect const&) = delete;

  /// Ends the scope early, and opens it again where it stood: for something within that mustn't see
  /// it.
  void close() const noexcept { innermost_ = outer_; }
  void open() const noexcept { innermost_ = this; }

  /// The innermost open scope of this thread; null where there is none.
  static Expect const* current() noexcept { return innermost_; }
  /// Its id; 0 where there is none.
  static Exception::Id innermost() noexcept { return innermost_ ? innermost_->id_ : 0; }
  /// True while an open scope of this thread, inside the innermost of id 0, expects an id of the
  /// set.
  static bool isExpected(Exception::IdBitArray const& ids) noexcept;

 private:
  Exception::Id id_;
  Expect const* outer_;

  [[gnu::tls_model("initial-exec")]] static thread_local constinit Expect const* innermost_;
};

}  // namespace Mox
