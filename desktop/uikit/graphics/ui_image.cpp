// SPDX-License-Identifier: MIT
#include "desktop/uikit/graphics/ui_image.h"

#include <cmath>
#include <utility>

#include "bridge/class_builder.h"

namespace desktop::uikit {

Class UIImage::classObject() {
  static const Class made = bridge::ClassBuilder<UIImage>("UIImage")
                                .method<"size", &UIImage::size>()
                                .method<"scale", &UIImage::scale>()
                                .method<"copyWithZone:", &UIImage::copyWithZone>()
                                .build();
  return made;
}

bridge::UIImage UIImage::make(SharedBitmap bitmap, CGFloat scale) {
  auto image =
      bridge::Owned<bridge::UIImage>::adopt(bridge::send<bridge::UIImage, "new">(classObject()));
  UIImage& state = of(image.get());
  state._bitmap = std::move(bitmap);
  if (scale > 0 && std::isfinite(scale)) state._scale = scale;
  return image.autorelease();
}

SharedBitmap UIImage::bitmapOf(bridge::Object image) {
  return bridge::isKindOf(image, classObject()) ? of(image)._bitmap : nullptr;
}

CGSize UIImage::size() const {
  if (!_bitmap) return {};
  return {_bitmap->width / _scale, _bitmap->height / _scale};
}

// An image never changes: its copy is itself, with a reference for the caller.
bridge::Object UIImage::copyWithZone(void*) {
  return bridge::Owned<bridge::NSObject>::retain(self()).detach();
}

}  // namespace desktop::uikit
