// SPDX-License-Identifier: MIT
//
// Which of the installed fonts draws a face.
#pragma once

#include <QFont>

#include "desktop/uikit/graphics/text_engine.h"

namespace desktop::render {

// Text is shaped and measured at this size in pixels, without hinting, and then scaled: so its
// advances are those of the font's design, whatever size and whatever display it is shown at.
constexpr int designSize = 1000;

// The font of a face at the design size. Where the wanted font is not installed, another one that
// resembles it.
QFont designFontOf(const uikit::FontFace& face);

// The advance that all printable ASCII characters of a face share, in fractions of its size; 0
// where they differ.
double fixedAdvanceOf(const uikit::FontFace& face);

}  // namespace desktop::render
