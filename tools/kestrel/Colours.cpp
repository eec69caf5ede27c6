// Steps around the circle of hues, in a space where equal steps look equal.
#include "tools/kestrel/Colours.h"

#include "Mox/String8.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <iterator>
#include <numbers>

namespace kestrel {

namespace {

using Channels = std::array<double, 3>;

/// Linear red, green and blue of an Oklch colour, hue in degrees; cut to what a screen shows.
Channels linear(double lightness, double chroma, double hue) {
  double const angle = hue * std::numbers::pi / 180;
  double const a = chroma * std::cos(angle);
  double const b = chroma * std::sin(angle);
  double const l = std::pow(lightness + 0.3963377774 * a + 0.2158037573 * b, 3);
  double const m = std::pow(lightness - 0.1055613458 * a - 0.0638541728 * b, 3);
  double const s = std::pow(lightness - 0.0894841775 * a - 1.2914855480 * b, 3);
  Channels channels = {4.0767416621 * l - 3.3077115913 * m + 0.2309699292 * s,
                       -1.2684380046 * l + 2.6097574011 * m - 0.3413193965 * s,
                       -0.0041960863 * l - 0.7034186147 * m + 1.7076147010 * s};
  for (double& channel : channels) channel = std::clamp(channel, 0.0, 1.0);
  return channels;
}

U32 byteOf(double channel) {
  double const curved =
      channel <= 0.0031308 ? 12.92 * channel : 1.055 * std::pow(channel, 1 / 2.4) - 0.055;
  return static_cast<U32>(std::lround(255 * curved));
}

// Contrast is (a + 0.05) / (b + 0.05): black wins on all that is lighter than this.
bool isReadInBlack(Channels const& channels) {
  double const luminance = 0.2126 * channels[0] + 0.7152 * channels[1] + 0.0722 * channels[2];
  return luminance > 0.179;
}

}  // namespace

Colour colourOf(U32 index) {
  // The golden angle: however many there are, no two hues meet.  Where they come close, 8, 13, 21
  // or 34 colours later, the lightness is another.
  double const hue = std::fmod(250 + 137.50776405 * index, 360);
  constexpr double lightnesses[] = {0.70, 0.52, 0.87, 0.61, 0.79};
  Channels const channels = linear(lightnesses[index % std::size(lightnesses)], 0.125, hue);
  Mox::String8 const fill =
      Mox::format("#%02x%02x%02x", byteOf(channels[0]), byteOf(channels[1]), byteOf(channels[2]));
  return {std::string(fill.view()), isReadInBlack(channels) ? "#000000" : "#ffffff"};
}

}  // namespace kestrel
