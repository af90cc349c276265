// SPDX-License-Identifier: MIT
#include "desktop/uikit/views/ui_image_view.h"

#include <algorithm>

#include "bridge/class_builder.h"
#include "desktop/uikit/graphics/canvas.h"
#include "desktop/uikit/graphics/encodings.h"
#include "desktop/uikit/graphics/ui_image.h"
#include "desktop/uikit/views/ui_view.h"

namespace desktop::uikit {
namespace {

CGSize sizeOf(bridge::UIImage image) {
  return bridge::isKindOf(image, UIImage::classObject()) ? UIImage::of(image).size() : CGSize{};
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

Class UIImageView::classObject() {
  static const Class made = bridge::ClassBuilder<UIImageView>("UIImageView")
                                .method<"initWithImage:", &UIImageView::initWithImage>()
                                .method<"image", &UIImageView::image>()
                                .method<"setImage:", &UIImageView::setImage>()
                                .method<"sizeThatFits:", &UIImageView::sizeThatFits>()
                                .method<"drawContentOn:", &UIImageView::drawContent>()
                                .build();
  return made;
}

UIImageView::UIImageView(id self) : Bound(self) {
  bridge::send<void, "setUserInteractionEnabled:">(self, false);
}

bridge::UIView UIImageView::initWithImage(bridge::UIImage image) {
  const auto object =
      bridge::send<bridge::UIView, "initWithFrame:">(self(), CGRect{{0, 0}, sizeOf(image)});
  if (object) setImage(image);
  return object;
}

void UIImageView::setImage(bridge::UIImage image) {
  if (image == _image.get()) return;
  _image = bridge::Owned<bridge::UIImage>::retain(image);
  UIView::of(self()).setNeedsDisplay();
}

CGSize UIImageView::sizeThatFits(CGSize) const {
  return sizeOf(_image);
}

void UIImageView::drawContent(Canvas* canvas) const {
  const SharedBitmap bitmap = UIImage::bitmapOf(_image.get());
  if (!bitmap) return;
  const auto mode = static_cast<ContentMode>(bridge::send<NSInteger, "contentMode">(self()));
  const CGRect rect = placed(sizeOf(_image), UIView::of(self()).shown().bounds, mode);
  if (!isEmpty(rect)) canvas->image(bitmap, rect);
}

}  // namespace desktop::uikit
