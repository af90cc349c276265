// SPDX-License-Identifier: MIT
//
// A colour as a plain value.
#pragma once

namespace desktop::uikit {

// sRGB components and alpha, each from 0 to 1 and not multiplied with each other.
struct Color {
  double red = 0;
  double green = 0;
  double blue = 0;
  double alpha = 0;
  bool operator==(const Color&) const = default;

  static constexpr Color white(double white, double alpha = 1) {
    return {white, white, white, alpha};
  }
  static constexpr Color bytes(int red, int green, int blue, double alpha = 1) {
    return {red / 255.0, green / 255.0, blue / 255.0, alpha};
  }
  constexpr Color withAlpha(double newAlpha) const { return {red, green, blue, newAlpha}; }
};

// The user interface's own colours.
namespace colors {
inline constexpr Color clear{};
inline constexpr Color black = Color::white(0);
inline constexpr Color white = Color::white(1);
inline constexpr Color tint = Color::bytes(0, 122, 255);
inline constexpr Color separator = Color::bytes(200, 199, 204);
inline constexpr Color groupedBackground = Color::bytes(239, 239, 244);
inline constexpr Color secondaryText = Color::bytes(142, 142, 147);
inline constexpr Color disclosure = Color::bytes(199, 199, 204);
inline constexpr Color highlight = Color::bytes(217, 217, 217);
}  // namespace colors

}  // namespace desktop::uikit
