// Text forms: from text to values, and the complaints about what can't be read.
#include "Mox/Strep.h"
#include "standin/mox/TypeName.h"

#include <array>
#include <charconv>
#include <cstring>
#include <optional>
#include <string>

namespace Mox {

namespace {

using Position = String8::IteratorConst;

constexpr U32 longestFinding = 20;  // bytes of the text that a complaint shows

std::string_view rest(Position const& at, Position const& end) {
  auto const text = at.string().view();
  auto const from = std::min<std::size_t>(at.index(), text.size());
  auto const to = std::min<std::size_t>(end.index(), text.size());
  return text.substr(from, to > from ? to - from : 0);
}

String8 whatStandsAt(Position const& at, Position const& end) {
  auto const found = rest(at, end);
  if (found.empty()) return "the end";
  bool const all = found.size() <= longestFinding;
  return valueToStrep(String8(found.substr(0, longestFinding))) + (all ? "" : "...");
}

[[noreturn]] void complain(Position const& at, Position const& end, String8 const& expected) {
  throwRangeException(format("column %u: expected ", at.index()) + expected + ", found " +
                      whatStandsAt(at, end));
}

void advance(Position& at, std::size_t bytes) { at.indexIs(at.index() + static_cast<U32>(bytes)); }

bool isWhite(char byte) noexcept { return byte == ' ' || (byte >= '\t' && byte <= '\r'); }

void passWhite(Position& at, Position const& end) {
  auto const text = rest(at, end);
  std::size_t passed = 0;
  while (passed < text.size() && isWhite(text[passed])) ++passed;
  advance(at, passed);
}

bool pass(Position& at, Position const& end, std::string_view token) {
  if (!rest(at, end).starts_with(token)) return false;
  advance(at, token.size());
  return true;
}

template <class Number>
Number readNumber(Position& at, Position const& end) {
  auto const text = rest(at, end);
  Number number{};
  auto const read = std::from_chars(text.data(), text.data() + text.size(), number);
  if (read.ec == std::errc::invalid_argument) cannotConvert(at, end, typeid(Number));
  auto const start = at;
  advance(at, read.ptr - text.data());
  if (read.ec == std::errc::result_out_of_range) outOfRange(start, at);
  return number;
}

// The byte behind "\x"; nothing where two hexadecimal digits are missing.
std::optional<char> readHexByte(Position& at, Position const& end) {
  auto const digits = rest(at, end).substr(0, 2);
  U8 byte = 0;
  auto const read = std::from_chars(digits.data(), digits.data() + digits.size(), byte, 16);
  if (digits.size() < 2 || read.ptr != digits.data() + 2) return std::nullopt;
  advance(at, 2);
  return static_cast<char>(byte);
}

// The byte that an escape stands for; the position is behind the backslash.
std::optional<char> readEscaped(Position& at, Position const& end) {
  constexpr std::array<std::array<char, 2>, 6> letters = {
      {{'\'', '\''}, {'"', '"'}, {'\\', '\\'}, {'n', '\n'}, {'t', '\t'}, {'r', '\r'}}};
  for (auto const& [letter, byte] : letters)
    if (pass(at, end, {&letter, 1})) return byte;
  return pass(at, end, "x") ? readHexByte(at, end) : std::nullopt;
}

}  // namespace

String8 sequenceToValue(Position& at, Position const& end, String8* to) {
  auto const remaining = rest(at, end);
  if (remaining.empty() || (remaining[0] != '\'' && remaining[0] != '"'))
    cannotConvert(at, end, typeid(String8));
  auto const quote = remaining.substr(0, 1);
  advance(at, 1);
  std::string bytes;
  while (!pass(at, end, quote)) {
    auto const next = rest(at, end);
    if (next.empty()) complain(at, end, format("closing %c", quote[0]));
    auto const start = at;
    advance(at, 1);
    auto const byte = next[0] == '\\' ? readEscaped(at, end) : next[0];
    if (!byte) complain(start, end, "an escape");
    bytes += *byte;
  }
  return storedValue(String8(std::string_view(bytes)), to);
}

Name sequenceToValue(Position& at, Position const& end, Name* to) {
  return storedValue(Name(sequenceToValue(at, end, static_cast<String8*>(nullptr))), to);
}

long long sequenceToValue(Position& at, Position const& end, long long* to) {
  return storedValue(readNumber<long long>(at, end), to);
}

unsigned long long sequenceToValue(Position& at, Position const& end, unsigned long long* to) {
  return storedValue(readNumber<unsigned long long>(at, end), to);
}

double sequenceToValue(Position& at, Position const& end, double* to) {
  return storedValue(readNumber<double>(at, end), to);
}

bool sequenceToValue(Position& at, Position const& end, bool* to) {
  if (pass(at, end, "True") || pass(at, end, "1")) return storedValue(true, to);
  if (pass(at, end, "False") || pass(at, end, "0")) return storedValue(false, to);
  cannotConvert(at, end, typeid(bool));
}

void needString(Position& at, Position const& end, char const* pattern) {
  for (std::string_view wanted = pattern; !wanted.empty();) {
    if (wanted[0] == ' ') {
      passWhite(at, end);
      wanted.remove_prefix(1);
      continue;
    }
    auto const token = wanted.substr(0, wanted.find(' '));
    if (!pass(at, end, token)) complain(at, end, valueToStrep(String8(token)));
    wanted.remove_prefix(token.size());
  }
}

void cannotConvert(Position const& at, Position const& end, std::type_info const& type) {
  complain(at, end, typeName(type));
}

void outOfRange(Position const& at, Position const& end) {
  throwRangeException(format("column %u: ", at.index()) + String8(rest(at, end)) +
                      " is out of range");
}

void rethrowFromDeserializeAttr(RangeException const& complaint, String8& attribute) {
  throw RangeException("attribute " + valueToStrep(attribute) + ": " + complaint.message(),
                       complaint.ids());
}

void requireEnd(Position const& at) {
  String8 const& text = at.string();
  if (at.index() == text.size()) return;
  auto const column = static_cast<long long>(at.index());
  // The text is appended by length, for it may hold a zero.
  throwRangeException(format("junk at column %lld deserializing %s", column, "") + text);
}

}  // namespace Mox
