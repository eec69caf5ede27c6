// Colours that are told apart, also by those who see fewer of them.
#pragma once

#include "Mox/Integers.h"

#include <string>

namespace kestrel {

/// "#rrggbb", with the colour of text that is read on it.
struct Colour {
  std::string fill;
  std::string text;
};

/// The `index`th of a row of colours without end.  Neighbours differ in hue and in lightness, so
/// that they differ in grey too; none is near white or black.
Colour colourOf(U32 index);

}  // namespace kestrel
