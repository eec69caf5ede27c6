// Values as users write them: in paths, and as arguments.
#pragma once

#include "tools/kestrel/model/Attributes.h"

#include <string_view>

namespace kestrel {

/// The text of a value without quotes: a string or a name as it stands, an enumerator by its name,
/// all else by its text form.
std::string plainText(GenericIf const& value);
/// The value of such a text.  Raises `RangeException` for one that the type's own parser refuses,
/// "no XpPortId "x" (column 0: expected ...)": the parser's complaint stands behind the type.
GenericIf::Ptr fromPlainText(MoxType const& type, std::string const& text);
/// The same; the text of a string, a name or an enumerator may stand in quotes too.
GenericIf::Ptr fromText(MoxType const& type, std::string const& text);

/// One step of a path for a name or key: bytes but letters, digits and "-._~" as "%XX", and nothing
/// as "''".
std::string encoded(std::string_view name);
/// The name or key of such a step, in which other bytes may stand for themselves.  Raises
/// `RangeException` for a "%" without two hexadecimal digits.
std::string decoded(std::string_view step);

}  // namespace kestrel
