// Exceptions: sets of ids, the calls that raise, and what is expected.
#include "Mox/Exception.h"

#include "Mox/Assert.h"

namespace Mox {

namespace {

constexpr Exception::Id maxId = 63;

constexpr U64 bitOf(Exception::Id id) noexcept { return U64(1) << id; }

Exception::IdBitArray with(Exception::IdBitArray ids, Exception::Id id) noexcept {
  ids.add(id);
  return ids;
}

}  // namespace

void Exception::IdBitArray::add(Id id) noexcept {
  if (id > maxId)
    assertionFailed("id <= maxId", "/usr/include/Mox/Exception.h", __builtin_LINE(),
                    "void Mox::Exception::IdBitArray::add(Mox::Exception::Id)");
  if (id != 0) bits_ |= bitOf(id);
}

bool Exception::IdBitArray::isMember(Id id) const noexcept {
  return id <= maxId && (bits_ & bitOf(id)) != 0;
}

Exception::Exception(String8 const& message, IdBitArray const& ids, bool expected)
    : message_(message), ids_(ids), expected_(expected) {}

Exception::~Exception() = default;

RangeException::RangeException(String8 const& message, IdBitArray ids)
    : Exception(message, with(ids, rangeId), Expect::isExpected(with(ids, rangeId))) {}

InternalException::InternalException(String8 const& message, IdBitArray ids)
    : Exception(message, with(ids, internalId), Expect::isExpected(with(ids, internalId))) {}

NameInUseException::NameInUseException(String8 const& message, IdBitArray ids)
    : Exception(message, with(ids, nameInUseId), Expect::isExpected(with(ids, nameInUseId))) {}

AttrLogEntityException::AttrLogEntityException(String8 const& message, IdBitArray ids)
    : Exception(message, with(ids, attrLogEntityId),
                Expect::isExpected(with(ids, attrLogEntityId))) {}

ConstException::ConstException(String8 const& message, IdBitArray ids)
    : Exception(message, with(ids, constId), Expect::isExpected(with(ids, constId))) {}

BadIndexAttrException::BadIndexAttrException(String8 const& message, IdBitArray ids)
    : Exception(message, with(ids, badIndexAttrId), Expect::isExpected(with(ids, badIndexAttrId))) {
}

TypeException::TypeException(String8 const& message, IdBitArray ids)
    : Exception(message, with(ids, typeId), Expect::isExpected(with(ids, typeId))) {}

OpNotSupportedException::OpNotSupportedException(String8 const& message, IdBitArray ids)
    : Exception(message, with(ids, opNotSupportedId),
                Expect::isExpected(with(ids, opNotSupportedId))) {}

UnknownAttrException::UnknownAttrException(String8 const& message, IdBitArray ids)
    : Exception(message, with(ids, unknownAttrId), Expect::isExpected(with(ids, unknownAttrId))) {}

UnknownArgException::UnknownArgException(String8 const& message, IdBitArray ids)
    : Exception(message, with(ids, unknownArgId), Expect::isExpected(with(ids, unknownArgId))) {}

void throwRangeException(char const* message) { throw RangeException(message); }
void throwRangeException(String8 const& message) { throw RangeException(message); }
void throwInternalException(char const* message) { throw InternalException(message); }
void throwInternalException(String8 const& message) { throw InternalException(message); }
void throwNameInUseException(String8 const& message) { throw NameInUseException(message); }

thread_local constinit Expect const* Expect::innermost_ = nullptr;

bool Expect::isExpected(Exception::IdBitArray const& ids) noexcept {
  for (Expect const* scope = innermost_; scope && scope->id_ != 0; scope = scope->outer_)
    if (ids.isMember(scope->id_)) return true;
  return false;
}

}  // namespace Mox
