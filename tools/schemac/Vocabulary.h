// The words of the language: kinds of types, shapes of rows, options, and where each may stand.
#pragma once

#include <optional>
#include <span>
#include <string_view>
#include <vector>

namespace schemac {

/// What a type is.
enum class Kind { primitive, value, enumeration, entity, object };

/// The word of the language for `kind`, such as "enum"; also the name of its template folder.
std::string_view kindName(Kind kind);
std::optional<Kind> kindNamed(std::string_view word);

/// How a row goes on behind its name.
enum class Form {
  nothing,  ///< enumerators
  type,     ///< a type
  mapping,  ///< a key type, "->", a type
  keyed,    ///< a mapping, or an element type and "by" with the attribute that is the key
  element,  ///< an element type and "by" with the attribute that is the key
  call      ///< arguments in parentheses, then maybe "->" and a result type
};

/// Whether rows of a shape bear a number.
enum class Numbering { always, maybe, never };

/// A shape of rows.
struct Shape {
  std::string_view name;
  std::string_view blocks;  ///< kinds of types that it may stand in, as words
  Form form;
  Numbering numbering = Numbering::always;
  bool takesDefault = false;
  bool takesRange = false;
  bool takesArguments = false;
  /// What C++ code gets from a row, as words with `$name$` and `$Name$`: members of the class, of
  /// its `NotifieeConst` and its `Tags`, and what only the source knows behind "::".
  std::string_view makes = "";
  /// The types inside of the row's own tag.
  std::string_view tagTypes = "";
};

std::span<Shape const> shapes();
/// Null for an unknown name.
Shape const* shapeNamed(std::string_view name);
/// The shape of rows that name none, in a block of `kind`; null where each row names its own.
Shape const* plainShape(Kind kind);

/// An option: a word at the end of a line, maybe with an argument.
struct Option {
  enum class Takes { nothing, word, text };
  std::string_view name;
  std::string_view places;  ///< "extern", kinds of types, shapes of rows, as words
  Takes takes = Takes::nothing;
};

std::span<Option const> options();
/// The option of that name at `place`, or null.
Option const* optionAt(std::string_view place, std::string_view name);

/// What the code of a type of `kind` has by itself, so that no row can make it; written as in
/// `Shape::makes`, with `$Class$`, `$class$` and `$module$`.  For enumerations: what every schema
/// has in its namespace.
std::string_view namesOfKind(Kind kind);

/// What the namespace gets from a type, written in the same way.
inline constexpr std::string_view namesOfType = "$Class$ $class$Row $class$Type $class$Factory";
inline constexpr std::string_view namesOfEnum =
    "$Class$Instance $Class$_GenericIf_ _fwkType_$Class$";

/// The words in `words`, which are separated by single spaces.
std::vector<std::string_view> wordsOf(std::string_view words);

/// True where `words`, separated by single spaces, contain `word`.
bool hasWord(std::string_view words, std::string_view word);

/// True for a word that C++ keeps for itself, or for a macro.
bool isReserved(std::string_view word);

}  // namespace schemac
