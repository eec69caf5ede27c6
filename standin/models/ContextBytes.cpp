// Table contexts as byte strings.
#include "standin/models/ContextBytes.h"

#include "Mox/Exception.h"
#include "Xdk/LpmTableContext.h"
#include "Xdk/TableContexts.h"

#include <concepts>
#include <string>
#include <tuple>
#include <type_traits>
#include <utility>

namespace XpXdk {

namespace {

template <class T, class R>
concept RecordOf = std::same_as<std::remove_const_t<T>, R>;

// The fields of each class in the order of the record, those that no reader knows included: a
// stored context is the whole of the SDK's.

template <RecordOf<xpTableContext> R>
auto fields(R& r) {
  return std::tie(r.first, r.tableType);
}

template <RecordOf<xpMatchTableContext> R>
auto fields(R& r) {
  return std::tie(r.numDb, r.keySize, r.valueSize, r.startDb, r.unlisted);
}

template <RecordOf<xpHashTableContext> R>
auto fields(R& r) {
  return std::tie(r.numOfEntries, r.keySize, r.valueSize, r.numOfWays, r.poolId, r.rowBlkStartId,
                  r.shared);
}

template <RecordOf<xpDirectTableContext> R>
auto fields(R& r) {
  return std::tie(r.numOfEntries, r.entryWidth, r.poolId, r.rowBlkStartId, r.unlisted);
}

template <RecordOf<xpIsmeTableContext> R>
auto fields(R& r) {
  return std::tie(r.ismeNum, r.ldeNum, r.numOfEntries, r.tileStartId, r.unlisted);
}

template <RecordOf<xpNhTableContext> R>
auto fields(R& r) {
  return std::tie(r.poolBitmap, r.entryWidth, r.numEntries, r.rowBlkStartId, r.unlisted);
}

template <RecordOf<xpLpmPrefixTable> R>
auto fields(R& r) {
  return std::tie(r.valid, r.numOfEntries, r.entryWidth, r.tread, r.poolId, r.rowBlkStartId);
}

template <RecordOf<xpLpmNhiTable> R>
auto fields(R& r) {
  return std::tie(r.poolBitmap, r.numEntries, r.tileBitmap, r.pairPerEntry, r.nhWidth);
}

template <RecordOf<xpLpmTableContext> R>
auto fields(R& r) {
  return std::tie(r.searchDataWidth, r.vrfIdWidth, r.prefixTable, r.nhiTable, r.unlisted);
}

// Calls `visit` for each integer of `field`, through arrays and records.
template <class Field, class Visit>
void eachInteger(Field& field, Visit const& visit) {
  if constexpr (std::is_array_v<Field>) {
    for (auto& element : field) eachInteger(element, visit);
  } else if constexpr (std::is_integral_v<Field>) {
    visit(field);
  } else {
    std::apply([&visit](auto&... inner) { (eachInteger(inner, visit), ...); }, fields(field));
  }
}

// The same for a whole context, its head first.
template <class Head, class Context, class Visit>
void eachInteger(Head& head, Context& context, Visit const& visit) {
  eachInteger(head, visit);
  eachInteger(context, visit);
}

void put(std::string& bytes, U64 value, std::size_t width) {
  while (width-- > 0) bytes.push_back(static_cast<char>(value >> width * 8));
}

U64 take(unsigned char const*& at, std::size_t width) {
  U64 value = 0;
  while (width-- > 0) value = value << 8 | *at++;
  return value;
}

// Bytes that the integers of a `Field` take.
template <class Field>
consteval std::size_t sizeOf();

template <class... Inner>
consteval std::size_t sizeOfAll(std::type_identity<std::tuple<Inner&...>>) {
  return (sizeOf<Inner>() + ...);
}

template <class Field>
consteval std::size_t sizeOf() {
  if constexpr (std::is_array_v<Field>) {
    return std::extent_v<Field> * sizeOf<std::remove_extent_t<Field>>();
  } else if constexpr (std::is_integral_v<Field>) {
    return sizeof(Field);
  } else {
    return sizeOfAll(std::type_identity<decltype(fields(std::declval<Field&>()))>());
  }
}

template <class Context>
constexpr std::size_t sizeOfContext = sizeOf<xpTableContext>() + sizeOf<Context>();

template <class Context, class Given>
Context& asClass(Given& context) {
  if (auto* const typed = dynamic_cast<Context*>(&context)) return *typed;
  Mox::throwRangeException(
      Mox::format("the record isn't of the context class of table type %u", Context::code));
}

template <class Context>
Mox::String8 encode(xpTableContext const& head) {
  auto const& context = asClass<Context const>(head);
  std::string bytes;
  bytes.reserve(sizeOfContext<Context>);
  eachInteger(head, context,
              [&bytes](auto integer) { put(bytes, static_cast<U64>(integer), sizeof integer); });
  return Mox::String8(bytes);
}

template <class Context>
void decode(Mox::String8 const& bytes, xpTableContext& head) {
  auto& context = asClass<Context>(head);
  if (bytes.size() != sizeOfContext<Context>)
    Mox::throwRangeException(Mox::format("a context of table type %u takes %zu bytes, not %u",
                                         Context::code, sizeOfContext<Context>, bytes.size()));
  auto const* at = reinterpret_cast<unsigned char const*>(bytes.charPtr());
  eachInteger(head, context, [&at](auto& integer) {
    integer = static_cast<std::remove_reference_t<decltype(integer)>>(take(at, sizeof integer));
  });
}

// What can be done with the contexts of one type.
struct ContextType {
  U32 code;
  Mox::String8 (*encode)(xpTableContext const& context);
  void (*decode)(Mox::String8 const& bytes, xpTableContext& context);
};

template <class Context>
constexpr ContextType contextType{Context::code, encode<Context>, decode<Context>};

constexpr ContextType contextTypes[] = {
    contextType<xpMatchTableContext>,  contextType<xpHashTableContext>,
    contextType<xpDirectTableContext>, contextType<xpLpmTableContext>,
    contextType<xpIsmeTableContext>,   contextType<xpNhTableContext>,
};

ContextType const& typeOf(U32 tableType) {
  for (ContextType const& type : contextTypes)
    if (type.code == tableType) return type;
  Mox::throwRangeException(Mox::format("table type %u has no context", tableType));
}

}  // namespace

Mox::String8 contextBytes(U32 tableType, xpTableContext const& context) {
  return typeOf(tableType).encode(context);
}

void contextOfBytes(U32 tableType, Mox::String8 const& bytes, xpTableContext* context) {
  typeOf(tableType).decode(bytes, *context);
}

}  // namespace XpXdk
