// SPDX-License-Identifier: MIT
#include "lumifact/views/hanging_text.h"

namespace lumifact {

Owned<NSMutableAttributedString> hangingText(NSString text, UIFont font, CGFloat spacing,
                                             CGFloat headIndent) {
  const NSString shown = text ? text : NSString::make("");
  const NSRange all = {0, shown.length()};
  const auto style = makeNew<NSMutableParagraphStyle>();
  style->setParagraphSpacing(spacing);
  style->setParagraphSpacingBefore(0.0);
  style->setFirstLineHeadIndent(0.0);
  style->setHeadIndent(headIndent);
  auto attributed = NSMutableAttributedString::withString(shown);
  if (font) attributed->addAttribute(fontAttributeName(), font, all);
  attributed->addAttribute(paragraphStyleAttributeName(), style, all);
  return attributed;
}

}  // namespace lumifact
