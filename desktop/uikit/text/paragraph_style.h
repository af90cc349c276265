// SPDX-License-Identifier: MIT
//
// How the lines of a paragraph stand, as a plain value.
#pragma once

#include "bridge/runtime/objc.h"
#include "desktop/platform.h"

namespace desktop::uikit {

// As the platform numbers them. Natural is where the text's writing begins.
enum class TextAlignment : NSInteger { left, center, right, justified, natural };
enum class LineBreakMode : NSInteger {
  byWordWrapping,
  byCharWrapping,
  byClipping,
  byTruncatingHead,
  byTruncatingTail,
  byTruncatingMiddle
};

// In points. Spacing stands between paragraphs only, and line spacing between lines.
struct ParagraphStyle {
  double spacing = 0;        // behind a paragraph
  double spacingBefore = 0;  // in front of it
  double firstLineHeadIndent = 0;
  double headIndent = 0;  // of all lines but the first
  double lineSpacing = 0;
  TextAlignment alignment = TextAlignment::natural;
  LineBreakMode lineBreakMode = LineBreakMode::byWordWrapping;
  bool operator==(const ParagraphStyle&) const = default;
};

}  // namespace desktop::uikit
