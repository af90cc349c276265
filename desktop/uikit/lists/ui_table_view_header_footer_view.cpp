// SPDX-License-Identifier: MIT
#include "desktop/uikit/lists/ui_table_view_header_footer_view.h"

#include <algorithm>
#include <cmath>

#include "bridge/class_builder.h"
#include "desktop/platform.h"
#include "desktop/uikit/graphics/color.h"
#include "desktop/uikit/graphics/ui_color.h"
#include "desktop/uikit/text/ui_font.h"
#include "desktop/uikit/views/ui_view.h"

namespace desktop::uikit {
namespace {

constexpr CGFloat margin = 16;
constexpr CGFloat groupedHeader = 38;
constexpr CGFloat plainTitle = 28;
constexpr CGFloat groupedPadding = 7.5;  // above and below the text of a grouped title
constexpr Color groupedText = Color::bytes(109, 109, 114);
constexpr Color plainBackground = Color::bytes(247, 247, 247);

}  // namespace

Class UITableViewHeaderFooterView::classObject() {
  using Self = UITableViewHeaderFooterView;
  static const Class made = ClassBuilder<Self>("UITableViewHeaderFooterView")
                                .method<"initWithFrame:", &Self::initWithFrame>()
                                .method<"textLabel", &Self::textLabel>()
                                .method<"layoutSubviews", &Self::layoutSubviews>()
                                .build();
  return made;
}

UIView UITableViewHeaderFooterView::initWithFrame(CGRect frame) {
  if (!super<UIView, "initWithFrame:">(frame)) return {};
  _textLabel = bridge::makeView<UILabel>({});
  self().addSubview(_textLabel);
  return self();
}

UIView UITableViewHeaderFooterView::make(NSString title, Place place, bool isGrouped) {
  auto made = makeNew<UIView>(classObject());
  of(made.get()).show(title, place, isGrouped);
  return made.autorelease();
}

void UITableViewHeaderFooterView::show(NSString title, Place place, bool isGrouped) {
  _place = place;
  _isGrouped = isGrouped;
  const bool isUpper = isGrouped && place == Place::header;
  _textLabel->setText(isUpper ? title.uppercased() : title);
  const auto weight = isGrouped ? FontWeight::regular : FontWeight::semibold;
  _textLabel->setFont(UIFontState::make({.weight = weight, .size = isGrouped ? 13.0 : 17.0}));
  _textLabel->setTextColor(UIColorState::make(isGrouped ? groupedText : colors::black));
  _textLabel->setNumberOfLines(isUpper || !isGrouped ? 1 : 0);
  if (!isGrouped) self().setBackgroundColor(UIColorState::make(plainBackground));
}

CGSize UITableViewHeaderFooterView::textSize(CGFloat width) const {
  const CGSize room = {std::max(width - 2 * margin, 0.0), 10'000};
  return _textLabel->sizeThatFits(room);
}

CGFloat UITableViewHeaderFooterView::heightOf(NSString title, Place place, bool isGrouped,
                                              CGFloat width) {
  if (!isGrouped) return plainTitle;
  if (place == Place::header) return groupedHeader;
  const UIView measured = make(title, place, isGrouped);
  return std::ceil(of(measured).textSize(width).height) + 2 * groupedPadding;
}

// A grouped header's text stands on its rows, a grouped footer's hangs from them.
void UITableViewHeaderFooterView::layoutSubviews() {
  super<void, "layoutSubviews">();
  const CGSize room = bounds().size;
  const CGSize text = textSize(room.width);
  CGFloat top = std::round(room.height - text.height) / 2;
  if (_isGrouped && _place == Place::header) top = room.height - text.height - groupedPadding;
  if (_isGrouped && _place == Place::footer) top = groupedPadding;
  _textLabel->setFrame({{margin, top}, {std::max(room.width - 2 * margin, 0.0), text.height}});
}

}  // namespace desktop::uikit
