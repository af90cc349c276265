// SPDX-License-Identifier: MIT
#include "lumifact/views/hanging_text.h"

namespace lumifact {

using bridge::NSMutableAttributedString;
using bridge::NSString;
using bridge::Owned;

Owned<NSMutableAttributedString> hangingText(NSString text, bridge::UIFont font, CGFloat spacing,
                                             CGFloat headIndent) {
  const NSString shown = text ? text : NSString::make("");
  const NSRange all = {0, shown.length()};
  const auto style = bridge::makeNew<bridge::NSMutableParagraphStyle>();
  style->setParagraphSpacing(spacing);
  style->setParagraphSpacingBefore(0.0);
  style->setFirstLineHeadIndent(0.0);
  style->setHeadIndent(headIndent);
  auto attributed = NSMutableAttributedString::withString(shown);
  if (font) attributed->addAttribute(bridge::fontAttributeName(), font, all);
  attributed->addAttribute(bridge::paragraphStyleAttributeName(), style, all);
  return attributed;
}

}  // namespace lumifact
