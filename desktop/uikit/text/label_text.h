// SPDX-License-Identifier: MIT
//
// Fitting text into the room of a label: cutting lines, and shrinking the font.
#pragma once

#include <string>

#include "desktop/uikit/text/attributed_text.h"

namespace desktop::uikit {

// A line cut to a width, with "…" where something is missing, as the mode says; the line itself
// where it fits or where the mode is to clip.
std::u16string truncated(std::u16string_view line, const FontFace& face, double width,
                         LineBreakMode mode);

// The size at which a line fits into a width: the face's own where it fits, never below the
// smallest one.
double sizeFitting(std::u16string_view line, const FontFace& face, double width,
                   double smallestSize);

}  // namespace desktop::uikit
