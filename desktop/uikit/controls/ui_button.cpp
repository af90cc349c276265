// SPDX-License-Identifier: MIT
//
// What a button shows is kept by state (normal, highlighted, disabled, selected); `valueFor` finds
// what counts now, falling back to normal. Label and image view are made when they are first needed
// and brought up to date by `update` after every change.
#include "desktop/uikit/controls/ui_button.h"

#include <algorithm>
#include <cmath>

#include "bridge/class_builder.h"
#include "desktop/uikit/controls/button_symbols.h"
#include "desktop/uikit/controls/ui_control.h"
#include "desktop/uikit/graphics/canvas.h"
#include "desktop/uikit/graphics/encodings.h"
#include "desktop/uikit/graphics/ui_color.h"
#include "desktop/uikit/graphics/ui_image.h"
#include "desktop/uikit/views/ui_view.h"

namespace desktop::uikit {
namespace {

constexpr CGFloat customFontSize = 18;
constexpr CGFloat systemFontSize = 15;
constexpr CGFloat leastWidth = 30;
constexpr CGFloat roomAboveTitle = 6;  // and below it
constexpr double highlightedAlpha = 0.2;
constexpr double highlightedImageAlpha = 0.5;
constexpr Color disabledTitle = Color::white(0.56);

}  // namespace

Class UIButton::classObject() {
  static const Class made =
      bridge::ClassBuilder<UIButton>("UIButton")
          .classMethod<"buttonWithType:", &UIButton::withType>()
          .method<"buttonType", &UIButton::typeNumber>()
          .method<"titleLabel", &UIButton::titleLabel>()
          .method<"imageView", &UIButton::imageView>()
          .method<"setTitle:forState:", &UIButton::setTitle>()
          .method<"titleForState:", &UIButton::titleForState>()
          .method<"currentTitle", &UIButton::currentTitle>()
          .method<"setTitleColor:forState:", &UIButton::setTitleColor>()
          .method<"titleColorForState:", &UIButton::titleColorForState>()
          .method<"currentTitleColor", &UIButton::currentTitleColorObject>()
          .method<"setImage:forState:", &UIButton::setImage>()
          .method<"imageForState:", &UIButton::imageForState>()
          .method<"currentImage", &UIButton::currentImage>()
          .method<"setBackgroundImage:forState:", &UIButton::setBackgroundImage>()
          .method<"backgroundImageForState:", &UIButton::backgroundImageForState>()
          .method<"adjustsImageWhenHighlighted", &UIButton::adjustsImageWhenHighlighted>()
          .method<"setAdjustsImageWhenHighlighted:", &UIButton::setAdjustsImageWhenHighlighted>()
          .method<"setHighlighted:", &UIButton::setHighlighted>()
          .method<"setSelected:", &UIButton::setSelected>()
          .method<"setEnabled:", &UIButton::setEnabled>()
          .method<"setTintColor:", &UIButton::setTintColor>()
          .method<"didMoveToSuperview", &UIButton::didMoveToSuperview>()
          .method<"layoutSubviews", &UIButton::layoutSubviews>()
          .method<"sizeThatFits:", &UIButton::sizeThatFits>()
          .method<"drawContentOn:", &UIButton::drawContent>()
          .build();
  return made;
}

bridge::UIButton UIButton::withType(NSInteger type) {
  auto made =
      bridge::Owned<bridge::UIButton>::adopt(bridge::send<bridge::UIButton, "new">(classObject()));
  UIButton& button = of(made.get());
  button._type = type >= custom && type <= contactAdd ? static_cast<Type>(type) : custom;
  if (button.hasSymbol()) made->setFrame({{0, 0}, symbolSize});
  return made.autorelease();
}

NSUInteger UIButton::state() const {
  return UIControl::of(self()).state();
}

template <typename T>
T UIButton::valueFor(const ByState<T>& values, NSUInteger state) const {
  auto found = values.find(state);
  if (found == values.end()) found = values.find(UIControl::normal);
  return found == values.end() ? T() : found->second.get();
}

template <typename T>
void UIButton::setValue(ByState<T>& values, T value, NSUInteger state) {
  if (value)
    values[state] = bridge::Owned<T>::retain(value);
  else
    values.erase(state);
  update();
}

// A title of its own, which a text that is changed later does not reach.
void UIButton::setTitle(bridge::NSString title, NSUInteger state) {
  const auto copied =
      bridge::Owned<bridge::NSString>::adopt(bridge::send<bridge::NSString, "copy">(title));
  setValue(_titles, copied.get(), state);
}

bridge::NSString UIButton::titleForState(NSUInteger state) const {
  return valueFor(_titles, state);
}

bridge::NSString UIButton::currentTitle() const {
  return titleForState(state());
}

void UIButton::setTitleColor(bridge::UIColor color, NSUInteger state) {
  setValue(_titleColors, color, state);
}

bridge::UIColor UIButton::titleColorForState(NSUInteger state) const {
  if (const auto color = valueFor(_titleColors, state)) return color;
  if ((state & UIControl::disabled) != 0) return UIColor::make(disabledTitle);
  return UIColor::make(_type == custom ? colors::white : UIView::of(self()).tint());
}

bridge::UIColor UIButton::currentTitleColorObject() const {
  return titleColorForState(state());
}

Color UIButton::currentTitleColor() const {
  return UIColor::valueOf(currentTitleColorObject());
}

void UIButton::setImage(bridge::UIImage image, NSUInteger state) {
  setValue(_images, image, state);
}

bridge::UIImage UIButton::imageForState(NSUInteger state) const {
  return valueFor(_images, state);
}

bridge::UIImage UIButton::currentImage() const {
  return imageForState(state());
}

void UIButton::setBackgroundImage(bridge::UIImage image, NSUInteger state) {
  setValue(_backgroundImages, image, state);
}

bridge::UIImage UIButton::backgroundImageForState(NSUInteger state) const {
  return valueFor(_backgroundImages, state);
}

void UIButton::setAdjustsImageWhenHighlighted(bool adjusts) {
  _adjustsImageWhenHighlighted = adjusts;
  update();
}

void UIButton::setHighlighted(bool isHighlighted) {
  super<void, "setHighlighted:">(isHighlighted);
  update();
}

void UIButton::setSelected(bool isSelected) {
  super<void, "setSelected:">(isSelected);
  update();
}

void UIButton::setEnabled(bool isEnabled) {
  super<void, "setEnabled:">(isEnabled);
  update();
}

void UIButton::setTintColor(bridge::UIColor color) {
  super<void, "setTintColor:">(color);
  update();
}

// There may be another tint now.
void UIButton::didMoveToSuperview() {
  super<void, "didMoveToSuperview">();
  update();
}

bridge::UILabel UIButton::titleLabel() {
  if (_titleLabel) return _titleLabel;
  _titleLabel = bridge::makeView<bridge::UILabel>({});
  _titleLabel->setFont(
      bridge::UIFont::systemFont(_type == custom ? customFontSize : systemFontSize));
  bridge::UIView(self()).addSubview(_titleLabel);
  update();
  return _titleLabel;
}

handles::UIImageView UIButton::imageView() {
  if (_imageView) return _imageView;
  _imageView = bridge::makeView<handles::UIImageView>({});
  UIView::of(self()).insertSubview(_imageView.get(), 0);
  update();
  return _imageView;
}

void UIButton::update() {
  const bool isHighlighted = UIControl::of(self()).isHighlighted();
  if (currentTitle() && !_titleLabel) return static_cast<void>(titleLabel());
  if (currentImage() && !_imageView) return static_cast<void>(imageView());
  if (_titleLabel) {
    _titleLabel->setText(currentTitle());
    _titleLabel->setTextColor(currentTitleColorObject());
    const bool isDimmed = isHighlighted && _type != custom;
    _titleLabel->setAlpha(isDimmed ? highlightedAlpha : 1);
  }
  if (_imageView) {
    _imageView->setImage(currentImage());
    const bool isDimmed = isHighlighted && _adjustsImageWhenHighlighted;
    _imageView->setAlpha(isDimmed ? highlightedImageAlpha : 1);
  }
  UIView::of(self()).setNeedsLayout();
  UIView::of(self()).setNeedsDisplay();
}

CGSize UIButton::imageSize() const {
  const auto image = currentImage();
  return image ? UIImage::of(image).size() : CGSize{};
}

CGSize UIButton::titleSize() const {
  constexpr CGSize anySize{10'000, 10'000};
  if (!_titleLabel) return {};
  const auto size = bridge::send<CGSize, "sizeThatFits:">(_titleLabel.get(), anySize);
  return {std::ceil(size.width), std::ceil(size.height)};
}

CGSize UIButton::sizeThatFits(CGSize) const {
  if (hasSymbol()) return symbolSize;
  const CGSize image = imageSize();
  const bool hasTitle = currentTitle() && currentTitle().length() > 0;
  if (currentImage() && !hasTitle) return image;
  const CGSize title = hasTitle ? titleSize() : CGSize{};
  return {std::max(leastWidth, image.width + title.width),
          std::max(image.height, title.height + 2 * roomAboveTitle)};
}

// Image and title stand side by side in the middle; the title gives way where there is no room.
void UIButton::layoutSubviews() {
  super<void, "layoutSubviews">();
  const CGRect bounds = UIView::of(self()).bounds();
  const CGSize image = imageSize();
  CGSize title = titleSize();
  title.width = std::min(title.width, std::max(0.0, bounds.size.width - image.width));
  title.height = std::min(title.height, bounds.size.height);
  const CGPoint mid = middle(bounds);
  const CGFloat left = mid.x - (image.width + title.width) / 2;
  if (_imageView) _imageView->setFrame({{left, mid.y - image.height / 2}, image});
  if (_titleLabel)
    _titleLabel->setFrame({{left + image.width, std::floor(mid.y - title.height / 2)}, title});
}

void UIButton::drawContent(Canvas* canvas) const {
  const CGRect bounds = UIView::of(self()).shown().bounds;
  if (const SharedBitmap background = UIImage::bitmapOf(backgroundImageForState(state())))
    canvas->image(background, bounds);
  if (!hasSymbol()) return;
  const Color tint = UIView::of(self()).tint();
  const bool isHighlighted = UIControl::of(self()).isHighlighted();
  const Color color = isHighlighted ? tint.withAlpha(tint.alpha * highlightedAlpha) : tint;
  const CGPoint corner = middle(bounds) - CGPoint{symbolSize.width / 2, symbolSize.height / 2};
  const auto symbol = _type == contactAdd ? ButtonSymbol::plus : ButtonSymbol::info;
  drawSymbol(symbol, {corner, symbolSize}, color, *canvas);
}

}  // namespace desktop::uikit
