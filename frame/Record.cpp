// Passes over the fields of a record.
#include "frame/Record.h"

#include "Mox/Exception.h"

#include <algorithm>
#include <compare>
#include <string>

namespace frame {

namespace {

using Mox::String8;
using Position = String8::IteratorConst;

template <class T>
T const& at(FieldRow const& field, void const* record) {
  return *reinterpret_cast<T const*>(static_cast<char const*>(record) + field.offset);
}

template <class T>
T& at(FieldRow const& field, void* record) {
  return *reinterpret_cast<T*>(static_cast<char*>(record) + field.offset);
}

// Calls `step` with the field as what it is held as.
template <class Record, class Step>
auto visit(FieldRow const& field, Record* record, Step step) {
  switch (field.type) {
    case FieldType::u8:
      return step(at<U8>(field, record));
    case FieldType::s8:
      return step(at<S8>(field, record));
    case FieldType::u16:
      return step(at<U16>(field, record));
    case FieldType::u32:
      return step(at<U32>(field, record));
    case FieldType::string:
      break;
  }
  return step(at<String8>(field, record));
}

std::strong_ordering compare(RecordTable const& table, void const* a, void const* b) {
  for (FieldRow const& field : table.fields) {
    auto const order =
        visit(field, a, [&field, b]<class T>(T const& value) { return value <=> at<T>(field, b); });
    if (order != 0) return order;
  }
  return std::strong_ordering::equal;
}

FieldRow const& fieldNamed(RecordTable const& table, String8 const& key) {
  auto const found =
      std::find_if(table.fields.begin(), table.fields.end(),
                   [&key](FieldRow const& field) { return key.view() == field.name; });
  if (found == table.fields.end())
    Mox::throwRangeException(String8(table.name) + " has no such attribute: " + key);
  return *found;
}

template <std::integral T>
void parse(T& value, Position& position, Position const& end, char const* name) {
  value = static_cast<T>(Mox::sequenceToAttribute<long long>(position, end, name));
}

void parse(String8& value, Position& position, Position const& end, char const* name) {
  value = Mox::sequenceToAttribute<String8>(position, end, name);
}

/// Past white space; raises if that is all there is.
U8 nextByte(RecordTable const& table, Position& position, Position const& end) {
  Mox::needString(position, end, " ");
  if (position == end)
    Mox::throwRangeException(String8("premature end of value type ") + table.name);
  return *position;
}

template <std::integral T>
void read(T& value, Mox::NboAttrLog::In& in) {
  value = in.nextInteger<T>();
}

void read(String8& value, Mox::NboAttrLog::In& in) { value = in.nextString(); }

template <std::integral T>
void addTo(Mox::OneAtATime& hash, T value) {
  for (U32 shift = 0; shift < 8 * sizeof(T); shift += 8)
    hash.add(static_cast<U8>(static_cast<U32>(value) >> shift));
}

void addTo(Mox::OneAtATime& hash, String8 const& value) {
  for (U8 const byte : value.view()) hash.add(byte);
}

}  // namespace

bool recordEqual(RecordTable const& table, void const* a, void const* b) {
  return compare(table, a, b) == 0;
}

bool recordLess(RecordTable const& table, void const* a, void const* b) {
  return compare(table, a, b) < 0;
}

String8 recordText(RecordTable const& table, void const* record) {
  std::string text = table.opening;
  char const* separator = "'";
  for (FieldRow const& field : table.fields) {
    text.append(separator).append(field.name).append("': ");
    visit(field, record,
          [&text](auto const& value) { text.append(Mox::valueToStrep(value).view()); });
    separator = ", '";
  }
  return std::string_view(text.append("})"));
}

void recordParse(RecordTable const& table, void* record, Position& position, Position const& end) {
  Mox::needString(position, end, table.pattern);
  for (bool first = true; nextByte(table, position, end) != '}'; first = false) {
    if (!first) Mox::needString(position, end, ", ");
    String8 const key = Mox::sequenceToValue(position, end, static_cast<String8*>(nullptr));
    Mox::needString(position, end, " : ");
    FieldRow const& field = fieldNamed(table, key);
    visit(field, record, [&](auto& value) { parse(value, position, end, field.name); });
  }
  Mox::needString(position, end, "} ");
  Mox::needString(position, end, ") ");
}

void recordWrite(RecordTable const& table, Mox::Ptr<Mox::NboAttrLog::Out> const& out,
                 void const* record) {
  for (FieldRow const& field : table.fields)
    visit(field, record, [&out](auto const& value) { out << value; });
}

void recordRead(RecordTable const& table, void* record, Mox::NboAttrLog::In& in) {
  for (FieldRow const& field : table.fields)
    visit(field, record, [&in](auto& value) { read(value, in); });
}

U32 recordHash(RecordTable const& table, void const* record) {
  Mox::OneAtATime hash;
  for (FieldRow const& field : table.fields)
    visit(field, record, [&hash](auto const& value) { addTo(hash, value); });
  return hash.finish();
}

}  // namespace frame
