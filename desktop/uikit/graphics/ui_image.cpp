// SPDX-License-Identifier: MIT
#include "desktop/uikit/graphics/ui_image.h"

#include <cmath>
#include <utility>

#include "bridge/class_builder.h"
#include "desktop/platform.h"

namespace desktop::uikit {

Class UIImageState::classObject() {
  static const Class made = ClassBuilder<UIImageState>("UIImage")
                                .method<"size", &UIImageState::size>()
                                .method<"scale", &UIImageState::scale>()
                                .method<"copyWithZone:", &UIImageState::copyWithZone>()
                                .build();
  return made;
}

UIImage UIImageState::make(SharedBitmap bitmap, CGFloat scale) {
  auto image = makeNew<UIImage>(classObject());
  UIImageState& state = of(image.get());
  state._bitmap = std::move(bitmap);
  if (scale > 0 && std::isfinite(scale)) state._scale = scale;
  return image.autorelease();
}

SharedBitmap UIImageState::bitmapOf(Object image) {
  return isKindOf(image, classObject()) ? of(image)._bitmap : nullptr;
}

CGSize UIImageState::size() const {
  if (!_bitmap) return {};
  return {_bitmap->width / _scale, _bitmap->height / _scale};
}

// An image never changes: its copy is itself, with a reference for the caller.
Object UIImageState::copyWithZone(void*) {
  return Owned<NSObject>::retain(self()).detach();
}

}  // namespace desktop::uikit
