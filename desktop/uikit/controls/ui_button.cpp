// SPDX-License-Identifier: MIT
//
// What a button shows is kept by state (normal, highlighted, disabled, selected); `valueFor` finds
// what counts now, falling back to normal. Label and image view are made when they are first needed
// and brought up to date by `update` after every change.
#include "desktop/uikit/controls/ui_button.h"

#include <algorithm>
#include <cmath>

#include "bridge/class_builder.h"
#include "desktop/platform.h"
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

Class UIButtonState::classObject() {
  static const Class made =
      ClassBuilder<UIButtonState>("UIButton")
          .classMethod<"buttonWithType:", &UIButtonState::withType>()
          .method<"buttonType", &UIButtonState::typeNumber>()
          .method<"titleLabel", &UIButtonState::titleLabel>()
          .method<"imageView", &UIButtonState::imageView>()
          .method<"setTitle:forState:", &UIButtonState::setTitle>()
          .method<"titleForState:", &UIButtonState::titleForState>()
          .method<"currentTitle", &UIButtonState::currentTitle>()
          .method<"setTitleColor:forState:", &UIButtonState::setTitleColor>()
          .method<"titleColorForState:", &UIButtonState::titleColorForState>()
          .method<"currentTitleColor", &UIButtonState::currentTitleColorObject>()
          .method<"setImage:forState:", &UIButtonState::setImage>()
          .method<"imageForState:", &UIButtonState::imageForState>()
          .method<"currentImage", &UIButtonState::currentImage>()
          .method<"setBackgroundImage:forState:", &UIButtonState::setBackgroundImage>()
          .method<"backgroundImageForState:", &UIButtonState::backgroundImageForState>()
          .method<"adjustsImageWhenHighlighted", &UIButtonState::adjustsImageWhenHighlighted>()
          .method<"setAdjustsImageWhenHighlighted:",
                  &UIButtonState::setAdjustsImageWhenHighlighted>()
          .method<"setHighlighted:", &UIButtonState::setHighlighted>()
          .method<"setSelected:", &UIButtonState::setSelected>()
          .method<"setEnabled:", &UIButtonState::setEnabled>()
          .method<"setTintColor:", &UIButtonState::setTintColor>()
          .method<"didMoveToSuperview", &UIButtonState::didMoveToSuperview>()
          .method<"layoutSubviews", &UIButtonState::layoutSubviews>()
          .method<"sizeThatFits:", &UIButtonState::sizeThatFits>()
          .method<"drawContentOn:", &UIButtonState::drawContent>()
          .build();
  return made;
}

UIButton UIButtonState::withType(NSInteger type) {
  auto made = makeNew<UIButton>(classObject());
  UIButtonState& button = of(made.get());
  button._type = type >= custom && type <= contactAdd ? static_cast<Type>(type) : custom;
  if (button.hasSymbol()) made->setFrame({{0, 0}, symbolSize});
  return made.autorelease();
}

NSUInteger UIButtonState::state() const {
  return UIControlState::state();
}

template <typename T>
T UIButtonState::valueFor(const ByState<T>& values, NSUInteger state) const {
  auto found = values.find(state);
  if (found == values.end()) found = values.find(UIControlState::normal);
  return found == values.end() ? T() : found->second.get();
}

template <typename T>
void UIButtonState::setValue(ByState<T>& values, T value, NSUInteger state) {
  if (value)
    values[state] = Owned<T>::retain(value);
  else
    values.erase(state);
  update();
}

// A title of its own, which a text that is changed later does not reach.
void UIButtonState::setTitle(NSString title, NSUInteger state) {
  const auto copied = copy(title);
  setValue(_titles, copied.get(), state);
}

NSString UIButtonState::titleForState(NSUInteger state) const {
  return valueFor(_titles, state);
}

NSString UIButtonState::currentTitle() const {
  return titleForState(state());
}

void UIButtonState::setTitleColor(UIColor color, NSUInteger state) {
  setValue(_titleColors, color, state);
}

UIColor UIButtonState::titleColorForState(NSUInteger state) const {
  if (const auto color = valueFor(_titleColors, state)) return color;
  if ((state & UIControlState::disabled) != 0) return UIColorState::make(disabledTitle);
  return UIColorState::make(_type == custom ? colors::white : UIViewState::of(self()).tint());
}

UIColor UIButtonState::currentTitleColorObject() const {
  return titleColorForState(state());
}

Color UIButtonState::currentTitleColor() const {
  return UIColorState::valueOf(currentTitleColorObject());
}

void UIButtonState::setImage(UIImage image, NSUInteger state) {
  setValue(_images, image, state);
}

UIImage UIButtonState::imageForState(NSUInteger state) const {
  return valueFor(_images, state);
}

UIImage UIButtonState::currentImage() const {
  return imageForState(state());
}

void UIButtonState::setBackgroundImage(UIImage image, NSUInteger state) {
  setValue(_backgroundImages, image, state);
}

UIImage UIButtonState::backgroundImageForState(NSUInteger state) const {
  return valueFor(_backgroundImages, state);
}

void UIButtonState::setAdjustsImageWhenHighlighted(bool adjusts) {
  _adjustsImageWhenHighlighted = adjusts;
  update();
}

void UIButtonState::setHighlighted(bool isHighlighted) {
  super<void, "setHighlighted:">(isHighlighted);
  update();
}

void UIButtonState::setSelected(bool isSelected) {
  super<void, "setSelected:">(isSelected);
  update();
}

void UIButtonState::setEnabled(bool isEnabled) {
  super<void, "setEnabled:">(isEnabled);
  update();
}

void UIButtonState::setTintColor(UIColor color) {
  super<void, "setTintColor:">(color);
  update();
}

// There may be another tint now.
void UIButtonState::didMoveToSuperview() {
  super<void, "didMoveToSuperview">();
  update();
}

UILabel UIButtonState::titleLabel() {
  if (_titleLabel) return _titleLabel;
  _titleLabel = bridge::makeView<UILabel>({});
  _titleLabel->setFont(UIFont::systemFont(_type == custom ? customFontSize : systemFontSize));
  UIView(self()).addSubview(_titleLabel);
  update();
  return _titleLabel;
}

UIImageView UIButtonState::imageView() {
  if (_imageView) return _imageView;
  _imageView = bridge::makeView<UIImageView>({});
  insertSubview(_imageView.get(), 0);
  update();
  return _imageView;
}

void UIButtonState::update() {
  const bool isHighlighted = UIControlState::isHighlighted();
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
  setNeedsLayout();
  setNeedsDisplay();
}

CGSize UIButtonState::imageSize() const {
  const auto image = currentImage();
  return image ? UIImageState::of(image).size() : CGSize{};
}

CGSize UIButtonState::titleSize() const {
  constexpr CGSize anySize{10'000, 10'000};
  if (!_titleLabel) return {};
  const auto size = _titleLabel->sizeThatFits(anySize);
  return {std::ceil(size.width), std::ceil(size.height)};
}

CGSize UIButtonState::sizeThatFits(CGSize) const {
  if (hasSymbol()) return symbolSize;
  const CGSize image = imageSize();
  const bool hasTitle = currentTitle() && currentTitle().length() > 0;
  if (currentImage() && !hasTitle) return image;
  const CGSize title = hasTitle ? titleSize() : CGSize{};
  return {std::max(leastWidth, image.width + title.width),
          std::max(image.height, title.height + 2 * roomAboveTitle)};
}

// Image and title stand side by side in the middle; the title gives way where there is no room.
void UIButtonState::layoutSubviews() {
  super<void, "layoutSubviews">();
  const CGRect bounds = UIViewState::bounds();
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

void UIButtonState::drawContent(Canvas* canvas) const {
  const CGRect bounds = shown().bounds;
  if (const SharedBitmap background = UIImageState::bitmapOf(backgroundImageForState(state())))
    canvas->image(background, bounds);
  if (!hasSymbol()) return;
  const Color tint = UIViewState::tint();
  const bool isHighlighted = UIControlState::isHighlighted();
  const Color color = isHighlighted ? tint.withAlpha(tint.alpha * highlightedAlpha) : tint;
  const CGPoint corner = middle(bounds) - CGPoint{symbolSize.width / 2, symbolSize.height / 2};
  const auto symbol = _type == contactAdd ? ButtonSymbol::plus : ButtonSymbol::info;
  drawSymbol(symbol, {corner, symbolSize}, color, *canvas);
}

}  // namespace desktop::uikit
