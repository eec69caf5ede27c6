// Table contexts as byte strings.
#include "standin/models/ContextBytes.h"

#include "Mox/Exception.h"
#include "Xdk/ContextFields.h"

#include <string>
#include <type_traits>
#include <utility>

namespace XpXdk {

namespace {

// Calls `visit` for each integer of a context, in the order of the record; those that no reader
// knows are among them: a stored context is the whole of the SDK's.
template <class Context, class Visit>
void visitStored(Context& context, Visit const& visit) {
  bool atFirst = true;
  Xdk::visitFields(context, [&](char const*, auto& field) {
    Xdk::visitIntegers(field, visit);
    if (std::exchange(atFirst, false)) visit(context.tableType);
  });
  if constexpr (requires { context.unlisted; }) Xdk::visitIntegers(context.unlisted, visit);
}

void put(std::string& bytes, U64 value, std::size_t width) {
  while (width-- > 0) bytes.push_back(static_cast<char>(value >> width * 8));
}

U64 take(unsigned char const*& at, std::size_t width) {
  U64 value = 0;
  while (width-- > 0) value = value << 8 | *at++;
  return value;
}

template <class Context>
std::size_t sizeOf(Context const& context) {
  std::size_t size = 0;
  visitStored(context, [&size](auto integer) { size += sizeof integer; });
  return size;
}

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
  bytes.reserve(sizeof context);
  visitStored(context,
              [&bytes](auto integer) { put(bytes, static_cast<U64>(integer), sizeof integer); });
  return Mox::String8(bytes);
}

template <class Context>
void decode(Mox::String8 const& bytes, xpTableContext& head) {
  auto& context = asClass<Context>(head);
  std::size_t const size = sizeOf(context);
  if (bytes.size() != size)
    Mox::throwRangeException(Mox::format("a context of table type %u takes %zu bytes, not %u",
                                         Context::code, size, bytes.size()));
  auto const* at = reinterpret_cast<unsigned char const*>(bytes.charPtr());
  visitStored(context, [&at](auto& integer) {
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
