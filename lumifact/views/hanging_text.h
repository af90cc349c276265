// SPDX-License-Identifier: MIT
//
// Text whose wrapped lines hang under its value column.
#pragma once

#include "bridge/uikit/ui_appearance.h"
#include "lumifact/platform.h"

namespace lumifact {

// The head indent that goes with a font size, both in points: 22 at 12, and in proportion.
// Computed in single precision.
constexpr float headIndentFor(std::int32_t fontSize) {
  return static_cast<float>(fontSize) / 12.0F * 22.0F;
}

// The text in one font, its paragraphs `spacing` points apart; what does not fit on a paragraph's
// first line begins `headIndent` points further right. Nil is shown as an empty text, and without a
// font in the platform's own.
Owned<NSMutableAttributedString> hangingText(NSString text, UIFont font, CGFloat spacing,
                                             CGFloat headIndent);

}  // namespace lumifact
