// SPDX-License-Identifier: MIT
//
// The measuring of text, behind one small interface: a renderer brings the real one, which knows
// fonts; without a renderer every character has one width, so that tests are exact.
#pragma once

#include <memory>
#include <string_view>
#include <vector>

#include "bridge/geometry.h"
#include "desktop/platform.h"

namespace desktop::uikit {

enum class FontFamily { system, courier };
enum class FontWeight { regular, semibold, bold };

// Which letters: a family and weight at a size in points. Any size is allowed; one that is not
// positive and finite takes no room.
struct FontFace {
  FontFamily family = FontFamily::system;
  FontWeight weight = FontWeight::regular;
  double size = 17;
  bool operator==(const FontFace&) const = default;
};

// In points, of a face at its size.
struct FontMeasures {
  double ascender = 0;
  double descender = 0;  // below the baseline, so negative
  double lineHeight() const { return ascender - descender; }
};

// The vertical measures of a face. They are the platform's, whatever letters a renderer draws.
FontMeasures measuresOf(const FontFace& face);

// A stretch of a paragraph that is shown as one line.
struct TextLine {
  std::size_t start = 0;   // in UTF-16 units of the paragraph
  std::size_t length = 0;  // with the blanks at its end
  double width = 0;        // in points, without the blanks at its end
};

// Room for the lines of a paragraph, in points.
struct ParagraphRoom {
  double width = 0;            // of the whole column
  double firstLineIndent = 0;  // from the column's left edge
  double headIndent = 0;       // of all other lines
};

// Texts are UTF-16 without line breaks; lone surrogates are shown as U+FFFD.
class TextEngine {
 public:
  virtual ~TextEngine() = default;

  // The width of the text as one line, in points, blanks at its end included.
  virtual double width(const FontFace& face, std::u16string_view text) = 0;
  // Breaks a paragraph between words, and within a word where it is wider than the room; at least
  // one line, and always on: room without width takes a character a line.
  virtual std::vector<TextLine> breakLines(const FontFace& face, std::u16string_view paragraph,
                                           const ParagraphRoom& room) = 0;
  // Whether breaking this paragraph takes next to no time, so that nobody needs to put it off.
  virtual bool breaksQuickly(const FontFace& face, std::u16string_view paragraph) = 0;
  // The unit of a line before which a caret nearest to x stands, and the x of a caret there.
  virtual std::size_t indexAt(const FontFace& face, std::u16string_view line, double x) = 0;
  virtual double positionOf(const FontFace& face, std::u16string_view line, std::size_t index) = 0;
};

// The engine in use; until one is set, one with letters 0.6 of their size wide.
TextEngine& textEngine();
// Installs an engine, or with null the one of the start again. Answers the engine so far, null for
// that of the start.
std::unique_ptr<TextEngine> setTextEngine(std::unique_ptr<TextEngine> engine);

}  // namespace desktop::uikit
