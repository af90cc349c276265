// SPDX-License-Identifier: MIT
#include "desktop/photos_ui/base/labels.h"

#include "desktop/uikit/graphics/ui_color.h"
#include "desktop/uikit/text/ui_font.h"

namespace desktop::photos_ui {

Owned<UILabel> makeLabel(const uikit::FontFace& face, uikit::Color color) {
  auto label = bridge::makeView<UILabel>({});
  label->setFont(uikit::UIFontState::make(face));
  label->setTextColor(uikit::UIColorState::make(color));
  return label;
}

void showText(UILabel label, std::string_view text) {
  if (label.text().utf8() != text) label.setText(NSString::make(text));
}

}  // namespace desktop::photos_ui
