// Passes over the fields of a record.
#include "frame/Record.h"

#include "Mox/Exception.h"

#include <algorithm>
#include <compare>

namespace frame {

namespace {

using Position = Mox::String8::IteratorConst;

template <class T>
T const& at(FieldRow const& field, void const* record) {
  return *reinterpret_cast<T const*>(static_cast<char const*>(record) + field.offset);
}

template <class T>
T& at(FieldRow const& field, void* record) {
  return *reinterpret_cast<T*>(static_cast<char*>(record) + field.offset);
}

long long number(FieldRow const& field, void const* record) {
  switch (field.type) {
    case FieldType::u8:
      return at<U8>(field, record);
    case FieldType::s8:
      return at<S8>(field, record);
    case FieldType::u16:
      return at<U16>(field, record);
    case FieldType::u32:
      return at<U32>(field, record);
    case FieldType::string:
      break;
  }
  return 0;
}

void numberIs(FieldRow const& field, void* record, long long value) {
  switch (field.type) {
    case FieldType::u8:
      at<U8>(field, record) = static_cast<U8>(value);
      break;
    case FieldType::s8:
      at<S8>(field, record) = static_cast<S8>(value);
      break;
    case FieldType::u16:
      at<U16>(field, record) = static_cast<U16>(value);
      break;
    case FieldType::u32:
      at<U32>(field, record) = static_cast<U32>(value);
      break;
    case FieldType::string:
      break;
  }
}

std::strong_ordering compareField(FieldRow const& field, void const* a, void const* b) {
  if (field.type == FieldType::string)
    return at<Mox::String8>(field, a) <=> at<Mox::String8>(field, b);
  return number(field, a) <=> number(field, b);
}

std::strong_ordering compare(RecordTable const& table, void const* a, void const* b) {
  for (FieldRow const& field : table.fields)
    if (auto const order = compareField(field, a, b); order != 0) return order;
  return std::strong_ordering::equal;
}

Mox::String8 fieldText(FieldRow const& field, void const* record) {
  if (field.type == FieldType::string) return Mox::valueToStrep(at<Mox::String8>(field, record));
  return Mox::valueToStrep(number(field, record));
}

FieldRow const& fieldNamed(RecordTable const& table, Mox::String8 const& key) {
  auto const found = std::find_if(table.fields.begin(), table.fields.end(),
                                  [&key](FieldRow const& field) { return key == field.name; });
  if (found == table.fields.end())
    Mox::throwRangeException(Mox::String8(table.name) + " has no such attribute: " + key);
  return *found;
}

void parseField(FieldRow const& field, void* record, Position& position, Position const& end) {
  try {
    if (field.type == FieldType::string) {
      Mox::sequenceToValue(position, end, &at<Mox::String8>(field, record));
    } else {
      long long value = 0;
      Mox::sequenceToValue(position, end, &value);
      numberIs(field, record, value);
    }
  } catch (Mox::RangeException const& complaint) {
    Mox::String8 name = field.name;
    Mox::rethrowFromDeserializeAttr(complaint, name);
  }
}

void parseOpening(RecordTable const& table, Position& position, Position const& end) {
  Mox::String8 const quotedType = Mox::String8(" '") + table.fullName + "'";
  for (char const* token : {" Value", " (", quotedType.charPtr(), " ,", " **", " {"})
    Mox::needString(position, end, token);
}

/// Past white space; raises if that is all there is.
U8 nextByte(RecordTable const& table, Position& position, Position const& end) {
  Mox::needString(position, end, " ");
  if (position == end)
    Mox::throwRangeException(Mox::String8("premature end of value type ") + table.name);
  return *position;
}

U8 byteOf(FieldRow const& field, void const* record, U32 index) {
  return static_cast<U8>(static_cast<U32>(number(field, record)) >> (8 * index));
}

U32 width(FieldType type) { return type == FieldType::u32 ? 4 : type == FieldType::u16 ? 2 : 1; }

}  // namespace

bool recordEqual(RecordTable const& table, void const* a, void const* b) {
  return compare(table, a, b) == 0;
}

bool recordLess(RecordTable const& table, void const* a, void const* b) {
  return compare(table, a, b) < 0;
}

Mox::String8 recordText(RecordTable const& table, void const* record) {
  std::string text = "Value('";
  text.append(table.fullName).append("', ** {");
  char const* separator = "'";
  for (FieldRow const& field : table.fields) {
    text.append(separator).append(field.name).append("': ");
    text.append(fieldText(field, record).view());
    separator = ", '";
  }
  return Mox::String8(std::string_view(text.append("})")));
}

void recordParse(RecordTable const& table, void* record, Position& position, Position const& end) {
  parseOpening(table, position, end);
  for (bool first = true; nextByte(table, position, end) != '}'; first = false) {
    if (!first) Mox::needString(position, end, ", ");
    Mox::String8 key;
    Mox::sequenceToValue(position, end, &key);
    Mox::needString(position, end, " : ");
    parseField(fieldNamed(table, key), record, position, end);
  }
  Mox::needString(position, end, "} ");
  Mox::needString(position, end, ") ");
}

U32 recordHash(RecordTable const& table, void const* record) {
  Mox::OneAtATime hash;
  for (FieldRow const& field : table.fields) {
    if (field.type == FieldType::string) {
      for (U8 byte : at<Mox::String8>(field, record).view()) hash.add(byte);
    } else {
      for (U32 index = 0; index < width(field.type); ++index)
        hash.add(byteOf(field, record, index));
    }
  }
  return hash.finish();
}

}  // namespace frame
