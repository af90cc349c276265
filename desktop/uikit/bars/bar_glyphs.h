// SPDX-License-Identifier: MIT
//
// The pictures of bar items, as lines and shapes.
#pragma once

#include <string_view>

#include "bridge/geometry.h"
#include "desktop/platform.h"
#include "desktop/uikit/graphics/color.h"

namespace desktop::uikit {

class Canvas;

// Numbers of the platform's system items, where it has one for the picture.
enum class Glyph : NSInteger {
  add = 4,
  compose = 7,
  reply = 8,
  action = 9,
  organize = 10,
  bookmarks = 11,
  search = 12,
  refresh = 13,
  stop = 14,
  camera = 15,
  trash = 16,
  play = 17,
  pause = 18,
  rewind = 19,
  fastForward = 20,
  photos = 100,
  albums = 101,
  heart = 102,
  filledHeart = 103,
  livePhoto = 104,
  settings = 105,
};

// The side of the square that a picture is drawn in, in points.
inline constexpr CGFloat glyphSize = 24;

bool hasGlyph(NSInteger item);
// What the picture is called for those who do not see it; empty where there is none.
std::string_view glyphName(NSInteger item);
// Draws it in a square with this top left corner; nothing where there is none.
void drawGlyph(NSInteger item, CGPoint origin, Color color, Canvas& canvas);
// The arrow of a back button, 12 by 21 points.
void drawBackChevron(CGPoint origin, Color color, Canvas& canvas);

}  // namespace desktop::uikit
