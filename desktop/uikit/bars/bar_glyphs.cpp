// SPDX-License-Identifier: MIT
//
// Each picture is a short text of strokes in a square of 24 points: M and L move and draw to a
// point, C draws a curve to its third point, Z closes. "s" ends a stroke, "f" fills what is closed.
#include "desktop/uikit/bars/bar_glyphs.h"

#include <array>
#include <charconv>

#include "desktop/uikit/graphics/canvas.h"

namespace desktop::uikit {
namespace {

constexpr CGFloat lineWidth = 1.5;

struct Picture {
  Glyph glyph;
  std::string_view name;
  std::string_view strokes;
};

constexpr Picture pictures[] = {
    {Glyph::add, "Add", "M12 3 L12 21 s M3 12 L21 12 s"},
    {Glyph::compose, "Compose",
     "M13 4 L4 4 L4 20 L20 20 L20 11 s M9 15 L10 11.5 L19 2.5 L21.5 5 L12.5 14 Z s"},
    {Glyph::reply, "Reply",
     "M10 5 L3 11 L10 17 L10 13.5 C15 13 19 15 21 19 C21 13 17 9 10 8.5 Z f"},
    {Glyph::action, "Share",
     "M8.5 9 L5 9 L5 22 L19 22 L19 9 L15.5 9 s M12 15 L12 2 s M8 6 L12 2 L16 6 s"},
    {Glyph::organize, "Organize", "M3 7 L3 20 L21 20 L21 7 Z s M3 7 L5 4 L10 4 L12 7 s"},
    {Glyph::bookmarks, "Bookmarks",
     "M12 6 C10 4 6 3.5 2 4 L2 19 C6 18.5 10 19 12 21 s "
     "M12 6 C14 4 18 3.5 22 4 L22 19 C18 18.5 14 19 12 21 s M12 6 L12 21 s"},
    {Glyph::search, "Search",
     "M17 10 C17 13.9 13.9 17 10 17 C6.1 17 3 13.9 3 10 C3 6.1 6.1 3 10 3 C13.9 3 17 6.1 17 10 Z s "
     "M15 15 L21 21 s"},
    {Glyph::refresh, "Refresh",
     "M19.5 8 C18 5 15 3.5 12 3.5 C7.3 3.5 3.5 7.3 3.5 12 C3.5 16.7 7.3 20.5 12 20.5 "
     "C16 20.5 19.5 17.5 20.3 14 s M20 3 L20 8.5 L14.5 8.5 s"},
    {Glyph::stop, "Stop", "M5 5 L19 19 s M19 5 L5 19 s"},
    {Glyph::camera, "Camera",
     "M2 7 L2 20 L22 20 L22 7 L17 7 L15.5 4.5 L8.5 4.5 L7 7 Z s "
     "M16 13 C16 15.2 14.2 17 12 17 C9.8 17 8 15.2 8 13 C8 10.8 9.8 9 12 9 C14.2 9 16 10.8 16 13 Z "
     "s"},
    {Glyph::trash, "Delete",
     "M4 5.5 L20 5.5 s M9 5.5 L9 3 L15 3 L15 5.5 s M5.5 5.5 L6.5 22 L17.5 22 L18.5 5.5 s "
     "M9.5 9 L10 18.5 s M12 9 L12 18.5 s M14.5 9 L14 18.5 s"},
    {Glyph::play, "Play", "M6 3.5 L20 12 L6 20.5 Z f"},
    {Glyph::pause, "Pause", "M6 4 L10 4 L10 20 L6 20 Z f M14 4 L18 4 L18 20 L14 20 Z f"},
    {Glyph::rewind, "Rewind", "M12 5 L3 12 L12 19 Z f M21 5 L12 12 L21 19 Z f"},
    {Glyph::fastForward, "Fast Forward", "M3 5 L12 12 L3 19 Z f M12 5 L21 12 L12 19 Z f"},
    {Glyph::photos, "Photos",
     "M3 5 L21 5 L21 19 L3 19 Z s M3 16 L8.5 10.5 L13 15 L16 12 L21 17 s "
     "M17.5 8.5 C17.5 9.3 16.8 10 16 10 C15.2 10 14.5 9.3 14.5 8.5 C14.5 7.7 15.2 7 16 7 "
     "C16.8 7 17.5 7.7 17.5 8.5 Z f"},
    {Glyph::heart, "Favorite",
     "M12 20.5 C7 16 3 12.8 3 8.8 C3 3.6 9.6 2.6 12 7.2 C14.4 2.6 21 3.6 21 8.8 C21 12.8 17 16 12 "
     "20.5 Z s"},
    {Glyph::filledHeart, "Remove Favorite",
     "M12 20.5 C7 16 3 12.8 3 8.8 C3 3.6 9.6 2.6 12 7.2 C14.4 2.6 21 3.6 21 8.8 C21 12.8 17 16 12 "
     "20.5 Z f"},
    {Glyph::livePhoto, "Live Photo",
     "M14.5 12 C14.5 13.4 13.4 14.5 12 14.5 C10.6 14.5 9.5 13.4 9.5 12 C9.5 10.6 10.6 9.5 12 9.5 "
     "C13.4 9.5 14.5 10.6 14.5 12 Z f "
     "M17.5 12 C17.5 15 15 17.5 12 17.5 C9 17.5 6.5 15 6.5 12 C6.5 9 9 6.5 12 6.5 C15 6.5 17.5 9 "
     "17.5 12 Z s "
     "M21 12 C21 17 17 21 12 21 C7 21 3 17 3 12 C3 7 7 3 12 3 C17 3 21 7 21 12 Z s"},
    {Glyph::settings, "Settings",
     "M10.3 4.9 L10.7 2.1 L13.3 2.1 L13.7 4.9 L15.8 5.8 L18.1 4.1 L19.9 5.9 L18.2 8.2 L19.1 10.3 "
     "L21.9 10.7 L21.9 13.3 L19.1 13.7 L18.2 15.8 L19.9 18.1 L18.1 19.9 L15.8 18.2 L13.7 19.1 "
     "L13.3 21.9 L10.7 21.9 L10.3 19.1 L8.2 18.2 L5.9 19.9 L4.1 18.1 L5.8 15.8 L4.9 13.7 L2.1 13.3 "
     "L2.1 10.7 L4.9 10.3 L5.8 8.2 L4.1 5.9 L5.9 4.1 L8.2 5.8 Z s "
     "M15 12 C15 13.7 13.7 15 12 15 C10.3 15 9 13.7 9 12 C9 10.3 10.3 9 12 9 C13.7 9 15 10.3 15 12 "
     "Z "
     "s"},
    {Glyph::albums, "Albums", "M3 9 L21 9 L21 20 L3 20 Z s M5 6 L19 6 s M7 3 L17 3 s"},
};

const Picture* pictureOf(NSInteger item) {
  for (const Picture& picture : pictures)
    if (static_cast<NSInteger>(picture.glyph) == item) return &picture;
  return nullptr;
}

// Reads the strokes one word at a time.
class Strokes {
 public:
  Strokes(std::string_view text, CGPoint origin, Color color, Canvas& canvas)
      : _text(text), _origin(origin), _color(color), _canvas(canvas) {}

  void draw() {
    while (!_text.empty()) step(take());
  }

 private:
  char take() {
    const char first = _text.front();
    _text.remove_prefix(1);
    return first;
  }

  CGPoint point() {
    std::array<CGFloat, 2> numbers{};
    for (CGFloat& number : numbers) {
      while (!_text.empty() && _text.front() == ' ') take();
      const auto read = std::from_chars(_text.data(), _text.data() + _text.size(), number);
      _text.remove_prefix(static_cast<std::size_t>(read.ptr - _text.data()));
    }
    return CGPoint{numbers[0], numbers[1]} + _origin;
  }

  void step(char command) {
    switch (command) {
      case 'M':
        _path.moveTo(point());
        break;
      case 'L':
        _path.lineTo(point());
        break;
      case 'C': {
        const CGPoint control1 = point();
        const CGPoint control2 = point();
        _path.curveTo(point(), control1, control2);
        break;
      }
      case 'Z':
        _path.close();
        break;
      case 's':
        _canvas.stroke(_path, lineWidth, _color);
        _path = {};
        break;
      case 'f':
        _canvas.fill(_path, _color);
        _path = {};
        break;
      default:
        break;
    }
  }

  std::string_view _text;
  CGPoint _origin;
  Color _color;
  Canvas& _canvas;
  Path _path;
};

}  // namespace

bool hasGlyph(NSInteger item) {
  return pictureOf(item) != nullptr;
}

std::string_view glyphName(NSInteger item) {
  const Picture* picture = pictureOf(item);
  return picture ? picture->name : std::string_view();
}

void drawGlyph(NSInteger item, CGPoint origin, Color color, Canvas& canvas) {
  if (const Picture* picture = pictureOf(item))
    Strokes(picture->strokes, origin, color, canvas).draw();
}

void drawBackChevron(CGPoint origin, Color color, Canvas& canvas) {
  constexpr CGFloat width = 2.5;
  Path path;
  path.moveTo(origin + CGPoint{10.5, 1.5}).lineTo(origin + CGPoint{1.5, 10.5});
  path.lineTo(origin + CGPoint{10.5, 19.5});
  canvas.stroke(path, width, color);
}

}  // namespace desktop::uikit
