// SPDX-License-Identifier: MIT
#include "desktop/photos_ui/base/labels.h"

#include "desktop/uikit/graphics/ui_color.h"
#include "desktop/uikit/text/ui_font.h"

namespace desktop::photos_ui {

bridge::Owned<bridge::UILabel> makeLabel(const uikit::FontFace& face, uikit::Color color) {
  auto label = bridge::makeView<bridge::UILabel>({});
  label->setFont(uikit::UIFont::make(face));
  label->setTextColor(uikit::UIColor::make(color));
  return label;
}

void showText(bridge::UILabel label, std::string_view text) {
  if (label.text().utf8() != text) label.setText(bridge::NSString::make(text));
}

}  // namespace desktop::photos_ui
