// Value records: comparison, text form, parser, stream form and hash, all over one table of fields.
#pragma once

#include "Mox/NboAttrLog.h"
#include "Mox/Strep.h"
#include "Mox/String8.h"

#include <span>

namespace frame {

/// How a field is held.
enum class FieldType : U8 { u8, s8, u16, u32, string };

/// One field of a record.
struct FieldRow {
  char const* name;
  U16 offset;
  FieldType type;
};

/// A record's type as texts and parsers name it, and its fields in order.
struct RecordTable {
  char const* name;     ///< "TxEq"
  char const* opening;  ///< "Value('Kestrel::TxEq', ** {"
  char const* pattern;  ///< the opening as parsers need it: " Value ( 'Kestrel::TxEq' , ** {"
  std::span<FieldRow const> fields;
};

/// Field by field, strings by their bytes.
bool recordEqual(RecordTable const& table, void const* a, void const* b);

/// Lexicographic in field order.
bool recordLess(RecordTable const& table, void const* a, void const* b);

/// "Value('Kestrel::TxEq', ** {'atten': -3, 'pre': 1, 'post': 2})".
Mox::String8 recordText(RecordTable const& table, void const* record);

/// Reads the text form at `at`, keys in any order, and advances.  Fields that the text leaves out
/// are left alone; one that it names twice takes the last value; an integer is narrowed to its
/// field.  Raises `RangeException`: "premature end of value type TxEq", "TxEq has no such
/// attribute: <key>", and the complaints of the runtime's tokens and values.
void recordParse(RecordTable const& table, void* record, Mox::String8::IteratorConst& at,
                 Mox::String8::IteratorConst const& end);

/// The fields in order, without tag or length.
void recordWrite(RecordTable const& table, Mox::Ptr<Mox::NboAttrLog::Out> const& out,
                 void const* record);

/// Reads what `recordWrite` has written.
void recordRead(RecordTable const& table, void* record, Mox::NboAttrLog::In& in);

/// One-at-a-time over the bytes of the fields in order, wider ones least significant byte first.
U32 recordHash(RecordTable const& table, void const* record);

}  // namespace frame
