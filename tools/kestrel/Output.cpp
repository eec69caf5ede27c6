// Writing to a file descriptor in full.
#include "tools/kestrel/Output.h"

#include <cerrno>
#include <unistd.h>

namespace kestrel {

OutputBuffer::int_type OutputBuffer::overflow(int_type byte) {
  if (sync() != 0) return traits_type::eof();
  if (traits_type::eq_int_type(byte, traits_type::eof())) return traits_type::not_eof(byte);
  return sputc(traits_type::to_char_type(byte));
}

int OutputBuffer::sync() {
  char const* from = pbase();
  while (from != pptr() && error_ == 0) {
    ssize_t const written = write(descriptor_, from, static_cast<std::size_t>(pptr() - from));
    if (written >= 0)
      from += written;
    else if (errno != EINTR)
      error_ = errno;
  }
  empty();
  return error_ == 0 ? 0 : -1;
}

}  // namespace kestrel
