// One-at-a-time, with the way through a common head remembered (docs/decisions/string-hash.md).
#include "standin/mox/StringHash.h"

#include <cstring>

namespace Mox {

namespace {

// The same as `OneAtATime`, with what depends on the byte alone kept off the critical path: a byte
// waits for the one before, and that wait is all that the hash costs.
constexpr U32 step(U32 hash, U8 byte) noexcept {
  hash = (hash << 10) + (hash + byte * 1025u);
  return hash ^ (hash >> 6);
}

constexpr U32 finish(U32 hash) noexcept {
  hash += hash << 3;
  hash ^= hash >> 11;
  return hash + (hash << 15);
}

U32 through(char const* bytes, std::size_t count, U32 hash) noexcept {
  for (; count >= 4; bytes += 4, count -= 4)
    for (int i = 0; i < 4; ++i) hash = step(hash, static_cast<U8>(bytes[i]));
  for (; count > 0; ++bytes, --count) hash = step(hash, static_cast<U8>(*bytes));
  return hash;
}

// A head of 8 bytes, and the hash behind it.  A head of zeros, as it stands here first, has hash 0.
struct Head {
  U64 bytes;
  U32 hash;
};

constexpr int headBits = 4;
[[gnu::tls_model("initial-exec")]] thread_local constinit Head heads[1 << headBits] = {};

U32 throughHead(char const* bytes) noexcept {
  U64 word;
  std::memcpy(&word, bytes, sizeof word);
  Head& head = heads[word * 0x9E3779B97F4A7C15u >> (64 - headBits)];
  if (head.bytes != word) [[unlikely]]
    head = {word, through(bytes, sizeof word, 0)};
  return head.hash;
}

}  // namespace

U32 stringHash(std::string_view text) noexcept {
  std::size_t const head = sizeof(Head::bytes);
  if (text.size() < head) return finish(through(text.data(), text.size(), 0));
  return finish(through(text.data() + head, text.size() - head, throughHead(text.data())));
}

}  // namespace Mox
