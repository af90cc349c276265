// SPDX-License-Identifier: MIT
#include "desktop/uikit/text/attributed_text.h"

#include <algorithm>

#include "bridge/foundation.h"
#include "desktop/platform.h"
#include "desktop/uikit/graphics/ui_color.h"
#include "desktop/uikit/text/ns_paragraph_style.h"
#include "desktop/uikit/text/ui_font.h"
#include "desktop/uikit/text/utf16.h"

namespace desktop::uikit {
namespace {

TextRun runOf(NSDictionary attributes, std::size_t start, const FontFace& face) {
  TextRun run{
      .start = start,
      .face = UIFontState::faceOf(attributes.at(NSString::make("NSFont")), face),
      .style = NSParagraphStyleState::valueOf(attributes.at(NSString::make("NSParagraphStyle"))),
      .color = {}};
  const Object color = attributes.at(NSString::make("NSColor"));
  if (isKindOf(color, UIColorState::classObject())) run.color = UIColorState::valueOf(color);
  return run;
}

bool looksLike(const TextRun& left, const TextRun& right) {
  return left.face == right.face && left.style == right.style && left.color == right.color;
}

}  // namespace

const TextRun& AttributedText::runAt(std::size_t index) const {
  const auto next = std::ranges::upper_bound(runs, index, {}, &TextRun::start);
  return *std::prev(next == runs.begin() ? std::next(next) : next);
}

AttributedText AttributedText::plain(std::u16string text, const FontFace& face,
                                     const ParagraphStyle& style) {
  return {std::move(text), {{.start = 0, .face = face, .style = style, .color = {}}}};
}

AttributedText AttributedText::of(NSAttributedString text, const FontFace& face) {
  AttributedText made = plain(utf16Of(text.string()), face);
  std::vector<TextRun> runs;
  for (std::size_t at = 0; at < made.text.size();) {
    const AutoreleasePool pool;
    NSRange range{};
    const auto attributes = text.attributesAt(NSUInteger{at}, &range);
    const TextRun run = runOf(attributes, at, face);
    if (runs.empty() || !looksLike(runs.back(), run)) runs.push_back(run);
    at = std::max(at + 1, range.location + range.length);
  }
  if (!runs.empty()) made.runs = std::move(runs);
  return made;
}

NSAttributedString attributedString(NSString string, const std::vector<TextRun>& runs) {
  auto made = NSMutableAttributedString::withString(string);
  for (std::size_t index = 0; index < runs.size(); ++index) {
    const TextRun& run = runs[index];
    const NSUInteger end = index + 1 < runs.size() ? runs[index + 1].start : string.length();
    const NSRange range{run.start, end - run.start};
    made->addAttribute(fontAttributeName(), UIFontState::make(run.face), range);
    made->addAttribute(paragraphStyleAttributeName(), NSParagraphStyleState::make(run.style),
                       range);
    if (run.color)
      made->addAttribute(NSString::make("NSColor"), UIColorState::make(*run.color), range);
  }
  return made.autorelease();
}

}  // namespace desktop::uikit
