// A place in a JSON tree that knows its path, and refuses with it.
#pragma once

#include "standin/xdk/Json.h"

#include <limits>
#include <string>
#include <utility>
#include <vector>

namespace xdksim {

/// Refers to its tree and file name, which outlive it.  All that throw throw `ProfileFault`.
class JsonCursor {
 public:
  JsonCursor(Json const& value, std::string const& file) : value_(&value), file_(&file) {}

  Json const& value() const { return *value_; }
  [[noreturn]] void refuse(std::string const& fault) const;

  /// The members of an object by name, in the order of the text; refuses all else.
  std::vector<std::pair<std::string, JsonCursor>> members() const;
  /// The elements of a list; refuses all else.
  std::vector<JsonCursor> elements() const;

  bool boolean() const;
  /// A whole number that fits into `Integer`.
  template <class Integer>
  Integer integer() const {
    return static_cast<Integer>(integer(std::numeric_limits<Integer>::min(),
                                        std::numeric_limits<Integer>::max(), 8 * sizeof(Integer)));
  }

 private:
  JsonCursor(Json const& value, std::string const& file, std::string path)
      : value_(&value), file_(&file), path_(std::move(path)) {}

  void expect(Json::Kind kind, char const* what) const;
  S64 integer(S64 least, S64 most, U32 bits) const;

  Json const* value_;
  std::string const* file_;
  std::string path_;
};

/// The number that the key of a member is, from 0 to `last` and without leading zeroes; refuses,
/// at the member, what is no `what`.
U32 numberKey(JsonCursor const& member, std::string const& key, U32 last, char const* what);

}  // namespace xdksim
