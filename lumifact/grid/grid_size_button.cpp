// SPDX-License-Identifier: MIT
#include "lumifact/grid/grid_size_button.h"

namespace lumifact {
namespace {

constexpr CGFloat diameter = 20.0;
constexpr NSInteger itemTag = 95433;
constexpr CGFloat spaceBeforeButton = 10.0;

GridSizeButton& keptButton() {
  static auto& kept = *new GridSizeButton;
  return kept;
}

void writeTitle(UIButton button, UIColor tint) {
  const NSString title = NSString::make("G");
  button.setTitle(title, stateNormal);
  button.setTitle(title, stateHighlighted);
  button.setTitleColor(tint, stateNormal);
  button.setTitleColor(UIColor::grayColor(), stateHighlighted);
  const UILabel label = button.titleLabel();
  label.setNumberOfLines(1);
  label.setAdjustsFontSizeToFitWidth(true);
  label.setLineBreakMode(breakByClipping);
}

void drawCircle(UIButton button, UIColor tint) {
  const CALayer layer = button.layer();
  layer.setCornerRadius(diameter / 2);
  layer.setMasksToBounds(true);
  layer.setBorderWidth(1.0);
  layer.setBorderColor(tint.cgColor());
}

Owned<UIButton> makeButton(UIColor tint) {
  auto button = Owned<UIButton>::retain(UIButton::withType(UIButton::custom));
  button->setFrame({{0.0, 0.0}, {diameter, diameter}});
  writeTitle(button, tint);
  drawCircle(button, tint);
  button->setBackgroundColor(UIColor::greenColor());  // for no frame: clear follows at once
  button->setBackgroundColor(UIColor::clearColor());
  return button;
}

}  // namespace

const GridSizeButton& gridSizeButton(UIColor tint) {
  GridSizeButton& kept = keptButton();
  if (kept.button) return kept;
  kept.button = makeButton(tint);
  kept.item = UIBarButtonItem::withCustomView(kept.button);
  kept.item->setTag(itemTag);
  kept.spacer = UIBarButtonItem::withSystemItem(UIBarButtonItem::fixedSpace, {}, nullptr);
  kept.spacer->setWidth(spaceBeforeButton);
  return kept;
}

UIBarButtonItem gridSizeItem() {
  return keptButton().item;
}

}  // namespace lumifact
