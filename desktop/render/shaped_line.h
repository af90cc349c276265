// SPDX-License-Identifier: MIT
//
// A line of text as glyphs where they stand: what is measured is what is painted.
#pragma once

#include <QGlyphRun>
#include <QList>
#include <string_view>

#include "desktop/uikit/graphics/text_engine.h"

namespace desktop::render {

// In points, the beginning of the baseline at the origin. Copies share their glyphs.
struct ShapedLine {
  QList<QGlyphRun> runs;
  double width = 0;  // blanks at the end included
};

// The glyphs of a line, remembered for the next time. REQUIRES: a QGuiApplication.
ShapedLine shapedLine(const uikit::FontFace& face, std::u16string_view line);

// Forgets all lines and fonts, which must not outlive the application.
void forgetShapedLines();

}  // namespace desktop::render
