// SPDX-License-Identifier: MIT
#include "desktop/uikit/views/ui_image_view.h"

#include <algorithm>

#include "bridge/class_builder.h"
#include "desktop/platform.h"
#include "desktop/uikit/graphics/canvas.h"
#include "desktop/uikit/graphics/encodings.h"
#include "desktop/uikit/graphics/ui_image.h"
#include "desktop/uikit/views/ui_view.h"

namespace desktop::uikit {
namespace {

CGSize sizeOf(UIImage image) {
  return isKindOf(image, UIImageState::classObject()) ? UIImageState::of(image).size() : CGSize{};
}

}  // namespace

CGRect placed(CGSize picture, CGRect room, ContentMode mode) {
  if (isEmpty(rectOfSize(picture)) || isEmpty(room)) return {};
  const CGFloat across = room.size.width / picture.width;
  const CGFloat down = room.size.height / picture.height;
  CGFloat scale = 1;
  switch (mode) {
    case ContentMode::aspectFit:
      scale = std::min(across, down);
      break;
    case ContentMode::aspectFill:
      scale = std::max(across, down);
      break;
    case ContentMode::center:
      break;
    case ContentMode::scaleToFill:
    default:
      return room;
  }
  const CGSize size{picture.width * scale, picture.height * scale};
  return {middle(room) - CGPoint{size.width / 2, size.height / 2}, size};
}

Class UIImageViewState::classObject() {
  static const Class made = ClassBuilder<UIImageViewState>("UIImageView")
                                .method<"initWithImage:", &UIImageViewState::initWithImage>()
                                .method<"image", &UIImageViewState::image>()
                                .method<"setImage:", &UIImageViewState::setImage>()
                                .method<"sizeThatFits:", &UIImageViewState::sizeThatFits>()
                                .method<"drawContentOn:", &UIImageViewState::drawContent>()
                                .build();
  return made;
}

UIImageViewState::UIImageViewState(id object) : Bound(object) {
  self().setUserInteractionEnabled(false);
}

UIView UIImageViewState::initWithImage(UIImage image) {
  const auto object = initWith<"initWithFrame:">(self(), CGRect{{0, 0}, sizeOf(image)});
  if (object) setImage(image);
  return object;
}

void UIImageViewState::setImage(UIImage image) {
  if (image == _image.get()) return;
  _image = Owned<UIImage>::retain(image);
  setNeedsDisplay();
}

CGSize UIImageViewState::sizeThatFits(CGSize) const {
  return sizeOf(_image);
}

void UIImageViewState::drawContent(Canvas* canvas) const {
  const SharedBitmap bitmap = UIImageState::bitmapOf(_image.get());
  if (!bitmap) return;
  const auto mode = static_cast<ContentMode>(self().contentMode());
  const CGRect rect = placed(sizeOf(_image), shown().bounds, mode);
  if (!isEmpty(rect)) canvas->image(bitmap, rect);
}

}  // namespace desktop::uikit
