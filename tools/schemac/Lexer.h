// Words, texts and marks of a schema file.
#pragma once

#include "tools/schemac/Diagnostics.h"

#include <string>
#include <string_view>
#include <vector>

namespace schemac {

/// One piece of a schema file.
struct Token {
  enum class Kind {
    word,     ///< a name, a qualified name, a number, a path: `Mox::Name`, `-3`, `Mox/Name.h`
    text,     ///< what stands between double quotes, its backslashes kept
    mark,     ///< one of ( ) , : = * ->
    doc,      ///< the text behind `///`, without the one space in front
    newline,  ///< the end of a line, also of an empty one
    end       ///< the end of the file
  };
  Kind kind;
  std::string text;
  Position at;
};

/// Cuts `source` into tokens; the last one is `end`.  What belongs to no token is reported and left
/// out.  `#` starts a comment.
std::vector<Token> lex(std::string const& file, std::string_view source, Diagnostics& diagnostics);

}  // namespace schemac
