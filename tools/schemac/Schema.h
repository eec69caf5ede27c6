// A schema file, as read.
#pragma once

#include "tools/schemac/Diagnostics.h"
#include "tools/schemac/Vocabulary.h"

#include <map>
#include <optional>
#include <string>
#include <vector>

namespace schemac {

/// A word with its place.
struct Word {
  std::string text;
  Position at;
};

/// A type where it is used: `const Fru::Gpo`, `xpTableProfile*`.
struct TypeUse {
  std::string name;
  bool isConst = false;
  bool isPointer = false;
  Position at;
};

/// A constructor parameter, or an argument of an operation.
struct Argument {
  std::string name;
  TypeUse type;
  Position at;
};

/// The legal values of a field and the message for all others.
struct Range {
  long long least = 0;
  long long most = 0;
  std::string message;
  Position at;
};

/// By option name; the argument, or "" where it takes none.
using Options = std::map<std::string, Word>;

using Arguments = std::vector<Argument>;

/// The number of a row that has none.
inline constexpr long long noNumber = -1;

/// One attribute, field, enumerator or operation.
struct Row {
  long long id = 0;  ///< `noNumber` for what is no attribute
  Shape const* shape = nullptr;
  std::string name;
  std::optional<TypeUse> type;  ///< of the value or element; of an operation's result
  std::optional<TypeUse> key;
  std::optional<Word> by;  ///< the element's attribute that is the key
  std::optional<Word> defaultValue;
  std::optional<Range> range;
  std::optional<Arguments> arguments;
  Options options;
  std::vector<std::string> doc;
  Position at;
};

/// A type that the schema defines.
struct Type {
  Kind kind = Kind::entity;
  std::string space;  ///< the namespace, maybe empty
  std::string name;
  Arguments arguments;
  std::optional<TypeUse> base;
  Options options;
  std::vector<Row> rows;
  std::vector<std::string> doc;
  Position at;
};

/// A type that stands elsewhere.
struct Extern {
  Kind kind = Kind::entity;
  std::string name;
  Options options;
  Position at;
};

/// A whole file.  An empty `header` wasn't given.
struct Schema {
  std::string file;
  std::string module;
  std::string header;
  std::string space;  ///< the namespace of all its types, maybe empty
  Position spaceAt;
  bool closed = false;
  std::vector<Extern> externs;
  std::vector<Type> types;
};

/// `space::name`, or `name` in no namespace.
inline std::string qualified(std::string const& space, std::string const& name) {
  return space.empty() ? name : space + "::" + name;
}

}  // namespace schemac
