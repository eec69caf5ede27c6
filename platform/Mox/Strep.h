// Text forms of values, and the operations that parsers are made of.
//
// A parser works on a read position and the end of its text, and leaves the position behind what it
// has read.  Primitives are read as they are written, without white space in front; `needString` is
// what passes over white space.  Every complaint is a `RangeException` "column <n>: expected
// <what>, found <what stands there>"; columns are byte indices from 0.
#pragma once

#include "Mox/Exception.h"
#include "Mox/Name.h"
#include "Mox/Ptr.h"
#include "Mox/String8.h"

#include <concepts>
#include <type_traits>
#include <typeinfo>
#include <utility>

namespace Mox {

class Entity;
class PtrInterface;

/// "True" or "False".
String8 valueToStrep(bool value);
/// Decimal.
String8 valueToStrep(long long value);
String8 valueToStrep(unsigned long long value);
/// The shortest decimal text that reads back as the same number; "inf", "-inf" and "nan" besides.
String8 valueToStrep(double value);
/// The bytes in single quotes.  Quote and backslash stand behind a backslash, new line, tab and
/// carriage return are \n, \t, \r, and other control bytes \xHH; bytes above 0x7F stand as they
/// are.
String8 valueToStrep(String8 const& value);
String8 valueToStrep(Name const& value);
String8 valueToStrep(char const* value);
/// Pointers to objects have `valueToStrepOfRawPtr`; none shall pass for a bool.
template <class T>
String8 valueToStrep(T const* value) = delete;
/// Integers of any other width go through the signed or the unsigned conversion; a character is a
/// number too.
template <std::integral T>
String8 valueToStrep(T value) {
  if constexpr (std::signed_integral<T>)
    return valueToStrep(static_cast<long long>(value));
  else
    return valueToStrep(static_cast<unsigned long long>(value));
}

/// A reference to an object: "None", or "Entity('<type>', '<full name>')" with the type's full name
/// (that of `type`, in C++'s spelling, where the object has no descriptor).  No addresses: the text
/// is the same in each run.
String8 valueToStrepOfRawPtr(Entity const* object, std::type_info const& type);
/// Likewise for what isn't an entity and so has no name: "None" or "Object('<type>')".
String8 valueToStrepOfRawPtr(PtrInterface const* object, std::type_info const& type);

// Readers.  The third argument says which type is read.  The value is handed back, and stored
// through that argument too unless it is null.

/// A text in single or double quotes, with the escapes of `valueToStrep` and \" besides.
String8 sequenceToValue(String8::IteratorConst& at, String8::IteratorConst const& end, String8* to);
Name sequenceToValue(String8::IteratorConst& at, String8::IteratorConst const& end, Name* to);
/// Decimal digits, for the signed one behind an optional "-".  A number that doesn't fit is
/// refused: "column <n>: <digits> is out of range".
long long sequenceToValue(String8::IteratorConst& at, String8::IteratorConst const& end,
                          long long* to);
unsigned long long sequenceToValue(String8::IteratorConst& at, String8::IteratorConst const& end,
                                   unsigned long long* to);
/// "True", "False", "1" or "0".
bool sequenceToValue(String8::IteratorConst& at, String8::IteratorConst const& end, bool* to);
double sequenceToValue(String8::IteratorConst& at, String8::IteratorConst const& end, double* to);

/// An entity by its reference, as `valueToStrepOfRawPtr` writes it: null for "None"; else the one
/// of exactly that type and full name below the root directory (Dir.h).  Raises `RangeException`
/// for a text that is no reference, and where there is no such entity or more than one.
Ptr<Entity> sequenceToValueOfPtr(String8::IteratorConst& at, String8::IteratorConst const& end,
                                 Entity* to);
/// What isn't an entity has no name to be found by: only "None" is read.
Ptr<PtrInterface> sequenceToValueOfPtr(String8::IteratorConst& at,
                                       String8::IteratorConst const& end, PtrInterface* to);

/// Requires the text of `pattern` at the position and advances past it.  A blank in the pattern
/// stands for any white space, none included.
void needString(String8::IteratorConst& at, String8::IteratorConst const& end, char const* pattern);

/// The standard complaint: the text at `at` can't be read as `type`.
[[noreturn]] void cannotConvert(String8::IteratorConst const& at, String8::IteratorConst const& end,
                                std::type_info const& type);
/// The complaint of a number that was read but doesn't fit: it stands from `at` up to `end`.
[[noreturn]] void outOfRange(String8::IteratorConst const& at, String8::IteratorConst const& end);
/// Raises the complaint again as "attribute '<attribute>': <complaint>", with the ids that it had.
[[noreturn]] void rethrowFromDeserializeAttr(RangeException const& complaint, String8& attribute);
/// Raises "junk at column <n> deserializing <text>" unless `at` is at the end of its text.
void requireEnd(String8::IteratorConst const& at);

/// Stores `value` where a reader was asked to, and hands it on.
template <class T>
T storedValue(T value, T* to) {
  if (to) *to = value;
  return value;
}

/// An integer of any other width; one that `T` can't hold is refused.
template <std::integral T>
T sequenceToValue(String8::IteratorConst& at, String8::IteratorConst const& end, T* to) {
  using Wide = std::conditional_t<std::signed_integral<T>, long long, unsigned long long>;
  auto const start = at;
  Wide const wide = sequenceToValue(at, end, static_cast<Wide*>(nullptr));
  if (!std::in_range<T>(wide)) outOfRange(start, at);
  return storedValue(static_cast<T>(wide), to);
}

/// A type that reads its own text form from a position up to an end.
template <class T>
concept ReadsItself =
    std::constructible_from<T, String8::IteratorConst&, String8::IteratorConst const&>;

template <ReadsItself T>
T sequenceToValue(String8::IteratorConst& at, String8::IteratorConst const& end, T* to) {
  return storedValue(T(at, end), to);
}

/// Reads the value of an attribute; a complaint names the attribute.
template <class T>
T sequenceToAttribute(String8::IteratorConst& at, String8::IteratorConst const& end,
                      char const* attribute) {
  try {
    return sequenceToValue(at, end, static_cast<T*>(nullptr));
  } catch (RangeException const& complaint) {
    String8 name(attribute);
    rethrowFromDeserializeAttr(complaint, name);
  }
}

/// Reads a whole text.  Raises "junk at column <n> deserializing <text>" where the value ends
/// first; then nothing is stored.
template <class T>
T strepToValue(String8 const& text, T* to = nullptr) {
  auto at = text.begin();
  T const value = sequenceToValue(at, text.end(), static_cast<T*>(nullptr));
  requireEnd(at);
  return storedValue(value, to);
}

}  // namespace Mox
