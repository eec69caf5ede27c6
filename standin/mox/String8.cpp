// Strings: their records, and what is made of them.
#include "Mox/String8.h"

#include "Mox/Exception.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <functional>
#include <new>
#include <ostream>

namespace Mox {

namespace {

U32 checkedSize(U64 size) {
  if (size > String8::maxSize)
    throwRangeException(
        format("a string can't hold %llu bytes", static_cast<unsigned long long>(size)));
  return static_cast<U32>(size);
}

std::string_view orEmpty(char const* text) noexcept { return text ? text : std::string_view(); }

bool liesIn(std::string_view piece, std::string_view whole) noexcept {
  std::less<> const before;
  return !before(piece.data(), whole.data()) && before(piece.data(), whole.data() + whole.size());
}

}  // namespace

template <class Char>
constinit typename StringN<Char>::NullData StringN<Char>::nullStringData_{
    {ReferenceWord(ReferenceWord::keptAlive), 0}, 0};

// Room for `length` bytes and their zero, in a new record or, where one is given, in that record
// grown.  The word of a new one counts the caller's reference.  The bytes are about to change, so
// no hash is kept.
template <class Char>
typename StringN<Char>::Data* StringN<Char>::withRoom(Data* data, U32 length) {
  static_assert(alignof(Data) <= alignof(U32));
  std::size_t const size = sizeof(U32) + sizeof(Data) + length + 1;
  void* const room = std::realloc(data ? keptHash(data) : nullptr, size);
  if (!room) throw std::bad_alloc();
  void* const record = static_cast<U32*>(room) + 1;
  auto* const made = data ? static_cast<Data*>(record) : new (record) Data{ReferenceWord(1), 0};
  *keptHash(made) = 0;
  made->length = length;
  made->bytes()[length] = 0;
  return made;
}

template <class Char>
StringN<Char>::StringN(char const* text) : StringN(orEmpty(text)) {}

template <class Char>
StringN<Char>::StringN(std::string_view text) {
  init(text.data(), 0, checkedSize(text.size()));
}

template <class Char>
StringN<Char>& StringN<Char>::operator=(StringN&& other) noexcept {
  StringN taken(std::move(other));
  std::swap(data_, taken.data_);
  return *this;
}

template <class Char>
StringN<Char>& StringN<Char>::operator=(char const* text) {
  return *this = StringN(text);
}

template <class Char>
void StringN<Char>::init(char const* bytes, U32, U32 length) {
  Data* made = nullptr;
  if (length > 0) {
    made = withRoom(nullptr, checkedSize(length));
    std::memcpy(made->bytes(), bytes, length);
  }
  drop();
  data_ = made;
}

template <class Char>
void StringN<Char>::free(Data* data) noexcept {
  std::free(keptHash(data));
}

template <class Char>
void StringN<Char>::append(std::string_view text) {
  if (text.empty()) return;
  U32 const before = size();
  U32 const after = checkedSize(U64(before) + text.size());
  // A piece of this string itself must not be pulled away from under the copy.
  bool const grows = data_ && data_->references.isSole() && !liesIn(text, view());
  Data* const longer = withRoom(grows ? data_ : nullptr, after);
  if (!grows) std::memcpy(longer->bytes(), data().bytes(), before);
  std::memcpy(longer->bytes() + before, text.data(), text.size());
  if (!grows) drop();
  data_ = longer;
}

template <class Char>
StringN<Char>& StringN<Char>::operator+=(char const* text) {
  append(orEmpty(text));
  return *this;
}

template <class Char>
StringN<Char>& StringN<Char>::operator+=(StringN const& text) {
  if (!data_) return *this = text;
  append(text.view());
  return *this;
}

template <class Char>
StringN<Char> StringN<Char>::operator+(char const* text) const {
  StringN sum(*this);
  return sum += text;
}

template <class Char>
StringN<Char> StringN<Char>::operator+(StringN const& text) const {
  StringN sum(*this);
  return sum += text;
}

template <class Char>
StringN<Char> StringN<Char>::substr(long long position, U32 length) const {
  if (position < 0) position = 0;
  if (position >= size()) return StringN();
  U32 const from = static_cast<U32>(position);
  if (from == 0 && length >= size()) return *this;
  return StringN(charPtr() + from, std::min(length, size() - from));
}

template <class Char>
U32 StringN<Char>::hashAnew() const noexcept {
  OneAtATime hash;
  for (char const byte : view()) hash.add(static_cast<U8>(byte));
  U32 const result = hash.finish();
  __atomic_store_n(keptHash(data_), result, __ATOMIC_RELAXED);
  return result;
}

template class StringN<unsigned char>;

String8 operator+(char const* a, String8 const& b) { return String8(a) + b; }

std::ostream& operator<<(std::ostream& out, String8 const& text) { return out << text.view(); }

}  // namespace Mox
