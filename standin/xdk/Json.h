// A JSON text as a tree that keeps what its reader's complaints need: order, numbers as they were
// written, and a refusal of keys that stand twice.
#pragma once

#include "Mox/Integers.h"

#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace xdksim {

/// A fault of a profile; `what()` is one line that names the file, the place and the fault.
class ProfileFault : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

struct JsonMember;

struct Json {
  enum class Kind : U8 { null, boolean, number, string, list, object };

  Kind kind;
  std::string text;                 ///< of a string its characters, of others as it was written
  std::vector<JsonMember> members;  ///< of a list without names

  /// "a list", "true", "12", "\"abc\"": the value as a complaint names it.
  std::string shown() const;
};

/// A value within a list or an object.
struct JsonMember {
  std::string name;
  Json value;
};

/// Reads `text`, which came from `file`.  Throws `ProfileFault`: "file:line:column: ..." where it
/// isn't JSON, "file: /path: ..." for a key that stands twice and for nesting of more than 16.
Json parseJson(std::string_view text, std::string const& file);

/// The path with one more step, in the form of a JSON pointer.
std::string pathTo(std::string const& path, std::string_view step);

inline std::string inQuotes(std::string_view text) { return '"' + std::string(text) + '"'; }

/// Bytes that aren't printable ASCII as "\xNN", so that the text stays one line, and "..." for what
/// goes past `limit` bytes.
std::string printable(std::string_view text, std::size_t limit = 60);

}  // namespace xdksim
