// SPDX-License-Identifier: MIT
//
// Text with fonts, paragraph styles and colours over stretches of it, as a plain value.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "bridge/foundation/ns_text.h"
#include "desktop/platform.h"
#include "desktop/uikit/graphics/color.h"
#include "desktop/uikit/graphics/text_engine.h"
#include "desktop/uikit/text/paragraph_style.h"

namespace desktop::uikit {

struct TextRun {
  std::size_t start = 0;  // in UTF-16 units; it reaches to the next run
  FontFace face;
  ParagraphStyle style;
  std::optional<Color> color;  // none: the color of whoever shows it
};

struct AttributedText {
  std::u16string text;
  std::vector<TextRun> runs;  // ordered, the first one at 0; never empty

  // The run of a unit; the last one beyond the text.
  const TextRun& runAt(std::size_t index) const;

  // Text in one face and style.
  static AttributedText plain(std::u16string text, const FontFace& face,
                              const ParagraphStyle& style = {});
  // What an attributed string holds, in the face where it names none. Nil is empty.
  static AttributedText of(NSAttributedString text, const FontFace& face);
};

// The platform's object of a string with these runs. Autoreleased.
NSAttributedString attributedString(NSString string, const std::vector<TextRun>& runs);

// Shared by those who lay it out; never changed once it is.
using SharedText = std::shared_ptr<const AttributedText>;

}  // namespace desktop::uikit
